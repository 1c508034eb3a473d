// The command that asks the controller who it is.

#include "auftraege.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextAdresse = 7203;
constexpr std::int16_t TextZustand = 7204;
constexpr std::int16_t TextTyp = 7205;
constexpr std::int16_t TextBezeichnung = 7206;
constexpr std::int16_t TextSeriennummer = 7207;
constexpr std::int16_t TextCopyright = 7208;

std::string Zeile(std::int16_t text, const std::string& wert) {
    return LadeText(text) + wert + "\n";
}

} // namespace

Ende Identify(Lauf& lauf) {
    using namespace modModbus;
    Leitungszugang zugang(lauf);
    if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
        return ende;
    lauf.Gib(Zeile(TextBezeichnung, Geraetename()) + Zeile(TextSeriennummer, GeraeteSeriennummer()) +
                 Zeile(TextCopyright, Geraetecopyright()) +
                 Zeile(TextAdresse, std::to_string(GetSlaveAdresse())) +
                 Zeile(TextTyp, std::to_string(GetIdentByte2())) +
                 Zeile(TextZustand, std::to_string(GetIdentByte1())),
             {{"controller", GeraetAlsJson()}});
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
