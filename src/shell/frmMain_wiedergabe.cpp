// The replay as the main window sees it.

#include "frmMain.h"
#include "messablauf.h"
#include "vergleichsablauf.h"
#include "wiedergabeablauf.h"

#include <utility>

namespace varnoth {

std::unique_ptr<Wiedergabeablauf> frmMain::MacheWiedergabeablauf(const Hauptteile& teile) {
    return std::make_unique<Wiedergabeablauf>(Wiedergabeablauf::Ziel{
        .fenster = *this,
        .teile = teile,
        .verlange = [this] { befehle.Klick(Befehl::WiedergabeVerlassen); },
        .vergleiche = [this](const Vergleichsseite& a, const Vergleichsseite& b) { vergleich->Zeige(a, b); },
        .setzeWiedergabe = [this](Wiedergabestand* neue) { messung->SetzeWiedergabe(neue); },
        .oeffne =
            [this](const std::string& pfad, const std::function<bool(double)>& weiter) {
                return aufzeichnungsleser(pfad, weiter);
            }});
}

void frmMain::OeffneAufzeichnung() {
    wiedergabe->Oeffne();
}

/// Live data that stopped for a replay goes on when it is left.
bool frmMain::RuhtFuerWiedergabe() {
    liveNachWiedergabe = liveNachWiedergabe || wiedergabe->Laeuft();
    return wiedergabe->Laeuft();
}

void frmMain::VerlasseWiedergabe() {
    const bool live = liveNachWiedergabe;
    BeendeWiedergabe();
    if (live)
        betrieb->SetzeLiveDatenFort();
}

void frmMain::BeendeWiedergabe() {
    liveNachWiedergabe = false;
    if (wiedergabe != nullptr)
        wiedergabe->Beende();
}

} // namespace varnoth
