// The views of the optical parts in the main window.

#include "ansichtstitel.h"
#include "einstellungen.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "frmMain.h"
#include "registerabbild.h"
#include "ui_frmMain.h"
#include "umgebung.h"

#include <QMdiSubWindow>
#include <QScreen>

#include <algorithm>
#include <utility>
#include <vector>

namespace varnoth {

void frmMain::LadeAnsicht(int optikteil) {
    const auto platz = static_cast<std::size_t>(optikteil);
    auto* ansicht = new frmDocument(optikteil);
    Fensterliste[platz] = ansicht;
    rahmen[platz] = ui->mdiBereich->addSubWindow(ansicht);
    rahmen[platz]->setAttribute(Qt::WA_DeleteOnClose, false);
    rahmen[platz]->hide();
    connect(ansicht, &frmDocument::Eingerichtet, this, [this, optikteil] { MerkeAnsicht(optikteil, true); });
    connect(ansicht, &frmDocument::Geschlossen, this, [this, optikteil] { MerkeAnsicht(optikteil, false); });
    SetzeTitel(optikteil, TextOffline);
    ansicht->InitForm();
    hatPlatz[platz] = LiesFensterplatz(DieEinstellungen(), std::to_string(optikteil) + "Form",
                                       {.zustand = ZustandNichtGespeichert})
                          .zustand != ZustandNichtGespeichert;
}

frmDocument& frmMain::Fenster(int optikteil) {
    return *Fensterliste.at(static_cast<std::size_t>(optikteil));
}

LiveAnsicht& frmMain::Ansicht(int optikteil) {
    return Fenster(optikteil);
}

void frmMain::SetzeTitel(int optikteil, std::int16_t textId) {
    const QString titel = Ansichtstitel(optikteil, textId);
    titeltexte.at(static_cast<std::size_t>(optikteil)) = textId;
    Fenster(optikteil).setWindowTitle(titel);
    rahmen.at(static_cast<std::size_t>(optikteil))->setWindowTitle(titel);
    if (textId != TextOnline)
        Fenster(optikteil).VerwirfWerte();
}

void frmMain::MerkeAnsicht(int optikteil, bool gezeigt) {
    findChild<QAction*>(QStringLiteral("mnuAnzeigeLichtleiste_%1").arg(optikteil))->setChecked(gezeigt);
}

void frmMain::AktualisiereGeraetestatus() {
    const bool live = LiveDatenLaufen() && !modPolling::VerbindungVerloren();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, Titeltext(modPolling::GetOptikteilStatus(teil), live));
    ZeigeLichtleistenmenue();
    if (modPolling::VerbindungVerloren())
        ZeigeStatustext(FeldSchaltausgang, "");
}

void frmMain::ZeigeLichtleistenmenue() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        zustand.hatStrahlen.at(static_cast<std::size_t>(teil)) = modDaten::Strahlenzahl(teil) > 0;
    AktualisiereMenue();
}

void frmMain::ZeigeAlleOffline() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, TextOffline);
    zustand.hatStrahlen = {};
    AktualisiereMenue();
}

void frmMain::BaueAnsichtenAuf() {
    bool neueDabei = false;
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil) {
        const auto platz = static_cast<std::size_t>(teil);
        if (modDaten::Strahlenzahl(teil) > 0) {
            neueDabei |= !std::exchange(hatPlatz[platz], true);
            Fenster(teil).InitfrmDocument();
            Fenster(teil).Zeige();
        } else if (rahmen[platz]->isVisible()) {
            rahmen[platz]->close();
        }
    }
    if (!neueDabei)
        return;
    SchaffePlatzFuerAnsichten();
    Ordne(Anordnung::Nebeneinander);
}

/// The first time that views appear in a window nobody has sized yet, it grows to hold them side by side.
void frmMain::SchaffePlatzFuerAnsichten() {
    constexpr QSize angenehm(310, 640);
    if (DieEinstellungen().LiesZahl(Fensterabschnitt, "Width", 0) != 0 || isMaximized() || isFullScreen())
        return;
    const auto gezeigte = static_cast<int>(
        std::ranges::count_if(rahmen, [](const QMdiSubWindow* fenster) { return fenster->isVisible(); }));
    const QRect schirm = screen()->availableGeometry();
    const QSize gewuenscht(gezeigte * angenehm.width(), angenehm.height());
    resize(size().expandedTo(gewuenscht).boundedTo(schirm.size()));
    move(std::clamp(x(), schirm.left(), std::max(schirm.left(), schirm.right() + 1 - width())),
         std::clamp(y(), schirm.top(), std::max(schirm.top(), schirm.bottom() + 1 - height())));
}

void frmMain::ZeigeLichtleiste(int optikteil) {
    const bool live = LiveDatenLaufen() && !modPolling::VerbindungVerloren();
    Fenster(optikteil).InitfrmDocument();
    SetzeTitel(optikteil, Titeltext(modPolling::GetOptikteilStatus(optikteil), live));
    Fenster(optikteil).Zeige();
}

/// For the view in front, else for the first one that is shown.
void frmMain::SchalteGrossanzeige() {
    const QMdiSubWindow* vorn = ui->mdiBereich->currentSubWindow();
    auto gemeint = std::ranges::find(rahmen, vorn);
    if (vorn == nullptr || !vorn->isVisible())
        gemeint = std::ranges::find_if(rahmen, [](const QMdiSubWindow* einer) { return einer->isVisible(); });
    if (gemeint != rahmen.end())
        Fenster(static_cast<int>(gemeint - rahmen.begin())).SchalteGrossanzeige();
}

QSize frmMain::KleinsterRahmen() const {
    return rahmen[0]
        ->minimumSizeHint()
        .expandedTo(rahmen[0]->minimumSize())
        .expandedTo(Fensterliste[0]->minimumSize() + rahmen[0]->size() - Fensterliste[0]->size());
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

} // namespace varnoth
