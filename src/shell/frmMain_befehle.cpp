// What the menu commands of the main window do.

#include "ansichtstitel.h"
#include "einstellungen.h"
#include "frmDocument.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInfo.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmMain.h"
#include "lesevorgang.h"
#include "lokalisiereform.h"
#include "qttexte.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "trace.h"
#include "transaktionen.h"
#include "ui_frmMain.h"

#include <QMdiSubWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextAutosendFrage = 6003;
constexpr std::int16_t TextAchtung = 6109;

} // namespace

struct frmMain::Befehlszeile {
    Befehl befehl;
    void (*ablauf)(frmMain& fenster, int index);
};

void frmMain::FuehreAus(Befehl befehl, int index) {
    static constexpr Befehlszeile zeilen[] = {
        {Befehl::VisualisierenStart, [](frmMain& f, int) { f.Autostart(); }},
        {Befehl::VisualisierenStop, [](frmMain& f, int) { f.SubMessdatenVisualisierenStop(); }},
        {Befehl::LichtleisteAnzeigen, [](frmMain& f, int i) { f.ZeigeLichtleiste(i); }},
        {Befehl::Beenden, [](frmMain& f, int) { f.SubBeenden(); }},
        {Befehl::FensterNebeneinander, [](frmMain& f, int) { f.Ordne(Anordnung::Nebeneinander); }},
        {Befehl::FensterUeberlappend, [](frmMain& f, int) { f.ui->mdiBereich->cascadeSubWindows(); }},
        {Befehl::FensterUntereinander, [](frmMain& f, int) { f.Ordne(Anordnung::Untereinander); }},
        {Befehl::UebertragenerWert, [](frmMain& f, int) { f.ui->mnuUebertragenerWert->toggle(); }},
        {Befehl::ComPort, [](frmMain& f, int i) { f.WaehleComPort(i); }},
        {Befehl::Info, [](frmMain& f, int) { f.ZeigeInfo(); }},
        {Befehl::AutosendStarten, [](frmMain& f, int) { f.SubAutosendStarten(); }},
        {Befehl::Deutsch, [](frmMain& f, int) { f.SchalteSprache(varnoth::Deutsch); }},
        {Befehl::Englisch, [](frmMain& f, int) { f.SchalteSprache(varnoth::Englisch); }},
    };
    const auto zeile = std::ranges::find(zeilen, befehl, &Befehlszeile::befehl);
    if (zeile != std::ranges::end(zeilen))
        zeile->ablauf(*this, index);
}

void frmMain::MenuAusführen() {
    befehle.FuehreAus(*this);
}

void frmMain::mnuBeenden_Click() {
    befehle.Klick(Befehl::Beenden);
}

void frmMain::mnuMessdatenVisualisierenStop_Click() {
    befehle.Klick(Befehl::VisualisierenStop);
}

void frmMain::Autostart() {
    varnoth::Autostart(*this);
}

bool frmMain::Identifiziere() {
    frmIdentifikationsAnforderung dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    return dialog.GetCancel() == False;
}

bool frmMain::LiesKonfiguration() {
    frmKonfigurationLesenAusHardware dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    if (dialog.GetCancel() != False)
        return false;
    Werte autosend{0};
    modDaten::HoleKommunikationsdaten(kommunikation::Autosend, 1, autosend);
    zustand.autosendWaehlbar = AutosendWaehlbar(autosend[0]);
    AktualisiereMenue();
    return true;
}

bool frmMain::HoleOptikteilInformation() {
    frmHoleLichtleistenInfo dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    return dialog.GetCancel() == False;
}

bool frmMain::FrageNachKonfiguration() {
    modDaten::LadeStandardkonfiguration();
    return false;
}

void frmMain::SubMessdatenVisualisierenStop() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        Werte status{0};
        modDaten::HoleSpezifischeDaten(spezifisch::Optikteilstatus, 1, static_cast<std::int16_t>(teil),
                                       status);
        SetzeTitel(teil, Titeltext(modPolling::ZustandAus(status[0]), false));
    }
    ZeigeStatustext(FeldMeldungen, "");
    modPolling::StoppePolling();
    modModbus::SchreibeSteuerwert4();
    SetzeMessdatenMenue(2);
}

void frmMain::SubAutosendStarten() {
    const Antwort antwort = DieUmgebung().ZeigeMeldung({.text = LadeText(TextAutosendFrage),
                                                        .titel = LadeText(TextAchtung),
                                                        .symbol = Symbol::Warnung,
                                                        .knoepfe = Knoepfe::OkAbbrechen});
    if (antwort == Antwort::Ok)
        modModbus::SchreibeSteuerwert2();
}

void frmMain::SubBeenden() {
    modTrace::Schliesse();
    Entlade();
}

void frmMain::ZeigeLichtleiste(int optikteil) {
    const bool live = LiveDatenLaufen() && !modPolling::VerbindungVerloren();
    Fenster(optikteil).InitfrmDocument();
    SetzeTitel(optikteil, Titeltext(modPolling::GetOptikteilStatus(optikteil), live));
    Fenster(optikteil).Zeige();
}

void frmMain::WaehleComPort(int nummer) {
    if (nummer == modSchnittstelle::GetComPort())
        return;
    NimmComPort(nummer);
    DieEinstellungen().SchreibText("Settings", "ComPort", std::to_string(nummer));
}

void frmMain::NimmComPort(int nummer) {
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::SetzeComPort(static_cast<std::int16_t>(nummer));
    ZeigePort();
}

void frmMain::SchalteSprache(std::int16_t offset) {
    SetzeSprachoffset(offset);
    ZeigeSprache();
    LadeQtTexte(offset);
    DieEinstellungen().SchreibText("Settings", "Sprache", std::to_string(offset));
    LokalisiereForm(*this);
    for (frmDocument* ansicht : Fensterliste)
        ansicht->Lokalisiere();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, titeltexte.at(static_cast<std::size_t>(teil)));
    ZeigeStatustext(FeldSchaltausgang, "");
}

QSize frmMain::KleinsterRahmen() const {
    return rahmen[0]->minimumSizeHint().expandedTo(Fensterliste[0]->minimumSize() + rahmen[0]->size() -
                                                   Fensterliste[0]->size());
}

void frmMain::Ordne(Anordnung art) {
    std::vector<QMdiSubWindow*> gezeigte;
    for (QMdiSubWindow* fenster : rahmen)
        if (fenster->isVisible() && !fenster->isMinimized())
            gezeigte.push_back(fenster);
    const auto plaetze = OrdneAn(art, static_cast<int>(gezeigte.size()), ui->mdiBereich->viewport()->size(),
                                 KleinsterRahmen());
    for (std::size_t i = 0; i < plaetze.size(); ++i) {
        gezeigte[i]->showNormal();
        gezeigte[i]->setGeometry(plaetze[i]);
    }
}

void frmMain::ZeigeInfo() {
    frmInfo(this).exec();
}

} // namespace varnoth
