#include "wiedergaberegel.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

struct Regel {
    Befehl befehl;
    bool verlaesst;
};

/// Commands that differ from what `Live` says of them: who stops live data has to do with the line or the
/// configuration, as a rule.
constexpr Regel DieAusnahmen[] = {
    {Befehl::VisualisierenStart, true},    // connects
    {Befehl::VisualisierenStop, true},     // what it stops is what is shown
    {Befehl::NeueKonfiguration, true},     // its parts are to be seen
    {Befehl::KonfigurationAnzeigen, true}, // the editor shows and changes the one in use
    {Befehl::Bericht, true},               // the same of the report
    {Befehl::Beenden, false},              // asks about the configuration in use, which is untouched
    {Befehl::ComPort, false},              // chosen for the next connection
    {Befehl::Simulation, false},           // looks and help
    {Befehl::Hilfethemen, false},
    {Befehl::Info, false},
    {Befehl::SpracheDeutsch, false},
    {Befehl::SpracheEnglisch, false},
    {Befehl::UebergebeneDateien, false}, // a configuration leaves it when it is opened
    {Befehl::Wiedergabe, false},         // another record takes its place once it is open
    {Befehl::UebergebeneAufzeichnung, false},
    {Befehl::WiedergabeVerlassen, false}, // does it itself
};

} // namespace

bool VerlaesstWiedergabe(Befehl befehl) {
    const auto* const ausnahme = std::ranges::find(DieAusnahmen, befehl, &Regel::befehl);
    return ausnahme != std::ranges::end(DieAusnahmen) ? ausnahme->verlaesst : StopptLiveDaten(befehl);
}

} // namespace varnoth
