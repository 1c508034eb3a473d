#include "konfigurationsablauf.h"

#include "berichtsbefehl.h"
#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmStrahlenBestimmen.h"
#include "hauptmenue.h"
#include "konfigurationsbefehle.h"
#include "letzterdatensatz.h"
#include "registerabbild.h"
#include "schreibablauf.h"
#include "transaktionen.h"
#include "zykluszeiten.h"

namespace varnoth {

namespace {

bool HatStrahlen() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (modDaten::Strahlenzahl(teil) > 0)
            return true;
    return false;
}

} // namespace

Konfigurationsablauf::Konfigurationsablauf(const Hauptteile& hauptteile) : teile(hauptteile) {}

/// The views and the menu follow the beam counts in the image.
void Konfigurationsablauf::Zeige() {
    modHilfsFunktionen::BerechneZykluszeiten();
    teile.baueAnsichtenAuf();
    teile.menue.FolgeStrahlenzahlen();
}

void Konfigurationsablauf::Oeffne() {
    if (KonfigurationOeffnen())
        Zeige();
}

void Konfigurationsablauf::LadeDatei(const std::string& pfad, Dateirolle rolle) {
    varnoth::LadeDatei(pfad, rolle);
    Zeige();
}

void Konfigurationsablauf::MacheNeue() {
    frmStrahlenBestimmen dialog(&teile.fenster);
    dialog.exec();
    if (dialog.GetCancel() == False)
        Zeige();
}

bool Konfigurationsablauf::Berichte(const Strahlzusatz* zusatz) {
    bool ersetzt = false;
    ZeigeBericht(
        &teile.fenster,
        [this, &ersetzt] {
            ersetzt = true;
            Zeige();
        },
        zusatz != nullptr ? *zusatz : Strahlzusatz{});
    return ersetzt;
}

/// A way that led to nothing, such as a file dialog that was cancelled, leads back to the question.
bool Konfigurationsablauf::FrageNachKonfiguration(const std::optional<Verbindungsauskunft>& ohneVerbindung) {
    using Wahl = frmKeinKonturAngeschlossen::Wahl;
    do {
        frmKeinKonturAngeschlossen dialog(&teile.fenster);
        if (ohneVerbindung)
            dialog.ZeigeUrsache(*ohneVerbindung);
        dialog.exec();
        const Wahl wahl = dialog.GetWahl();
        if (wahl == Wahl::Abgebrochen || teile.beendet())
            return false;
        if (wahl == Wahl::LetzterDatensatz)
            varnoth::LadeDatei(LetzterDatensatz());
        if (wahl == Wahl::DateiOeffnen)
            KonfigurationOeffnen();
    } while (!HatStrahlen());
    Zeige();
    return true;
}

void Konfigurationsablauf::Bearbeite(const Blankingvorschlag* vorschlag) {
    const bool gewaehlt = HatStrahlen() || FrageNachKonfiguration();
    Zeige();
    if (!gewaehlt || !HatStrahlen())
        return;
    frmKonfigurationEdit editor(&teile.fenster);
    editor.InitKonfiguration(
        {.zeigeUebertrageneWerte = teile.menue.UebertragenerWert(),
         .autosendStartbar = [this](bool startbar) { teile.menue.SetzeAutosendWaehlbar(startbar); },
         .blankingvorschlag = vorschlag != nullptr ? std::optional(*vorschlag) : std::nullopt});
    editor.exec();
    modHilfsFunktionen::BerechneZykluszeiten();
    if (editor.GetButtonDownLoad() != False)
        Schreibe();
}

void Konfigurationsablauf::Schreibe() {
    SchreibeInDialogen(&teile.fenster, teile.beendet);
    modModbus::SchreibeSteuerwert4();
}

} // namespace varnoth
