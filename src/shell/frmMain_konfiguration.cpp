// The commands of the main window around the configuration: new, open, edit, write.

#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmMain.h"
#include "frmStrahlenBestimmen.h"
#include "konfigurationsbefehle.h"
#include "letzterdatensatz.h"
#include "registerabbild.h"
#include "transaktionen.h"
#include "ui_frmMain.h"
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

void frmMain::mnuOeffnen_Click() {
    befehle.Klick(Befehl::KonfigurationOeffnen);
}

void frmMain::SubOeffnen() {
    if (KonfigurationOeffnen())
        ZeigeKonfiguration();
}

void frmMain::LadeDatei(const std::string& pfad) {
    varnoth::LadeDatei(pfad);
    ZeigeKonfiguration();
}

/// The views and the menu follow the beam counts in the image.
void frmMain::ZeigeKonfiguration() {
    modHilfsFunktionen::BerechneZykluszeiten();
    BaueAnsichtenAuf();
    ZeigeLichtleistenmenue();
}

/// A way that led to nothing, such as a file dialog that was cancelled, leads back to the question.
bool frmMain::FrageNachKonfiguration() {
    using Wahl = frmKeinKonturAngeschlossen::Wahl;
    do {
        frmKeinKonturAngeschlossen dialog(this);
        dialog.exec();
        const Wahl wahl = dialog.GetWahl();
        if (wahl == Wahl::Abgebrochen || Beendet())
            return false;
        if (wahl == Wahl::LetzterDatensatz)
            varnoth::LadeDatei(LetzterDatensatz());
        if (wahl == Wahl::DateiOeffnen)
            KonfigurationOeffnen();
    } while (!HatStrahlen());
    ZeigeKonfiguration();
    return true;
}

void frmMain::NeueKonfiguration() {
    frmStrahlenBestimmen dialog(this);
    dialog.exec();
    if (dialog.GetCancel() == False)
        ZeigeKonfiguration();
}

void frmMain::BearbeiteKonfiguration() {
    const bool gewaehlt = HatStrahlen() || FrageNachKonfiguration();
    ZeigeKonfiguration();
    if (!gewaehlt || !HatStrahlen())
        return;
    frmKonfigurationEdit editor(this);
    editor.InitKonfiguration({.zeigeUebertrageneWerte = ui->mnuUebertragenerWert->isChecked(),
                              .autosendStartbar = [this](bool startbar) {
                                  zustand.autosendWaehlbar = startbar;
                                  AktualisiereMenue();
                              }});
    editor.exec();
    modHilfsFunktionen::BerechneZykluszeiten();
    if (editor.GetButtonDownLoad() != False)
        SchreibeKonfiguration();
}

void frmMain::SchreibeKonfiguration() {
    frmKonfigurationSchreibenInHardware(this).exec();
    modModbus::SchreibeSteuerwert4();
}

} // namespace varnoth
