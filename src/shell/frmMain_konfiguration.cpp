// The commands of the main window around the configuration: new, open, edit, write.

#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmMain.h"
#include "frmStrahlenBestimmen.h"
#include "konfigurationsbefehle.h"
#include "letzterdatensatz.h"
#include "registerabbild.h"
#include "standardkonfiguration.h"
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

bool frmMain::FrageNachKonfiguration() {
    frmKeinKonturAngeschlossen dialog(this);
    dialog.exec();
    switch (dialog.GetWahl()) {
    case frmKeinKonturAngeschlossen::Wahl::LetzterDatensatz:
        LadeDatei(LetzterDatensatz());
        return true;
    case frmKeinKonturAngeschlossen::Wahl::DateiOeffnen:
        SubOeffnen();
        return true;
    case frmKeinKonturAngeschlossen::Wahl::Strahlenanzahl:
        ZeigeKonfiguration();
        return true;
    default:
        return false;
    }
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
