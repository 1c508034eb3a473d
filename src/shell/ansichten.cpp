#include "ansichten.h"

#include "ansichtstitel.h"
#include "einstellungen.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "registerabbild.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

Ansichten::Ansichten(QMdiArea& der) : bereich(der) {
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil)
        Lade(teil);
}

void Ansichten::Lade(int optikteil) {
    const auto platz = static_cast<std::size_t>(optikteil);
    auto* ansicht = new frmDocument(optikteil);
    ansichten[platz] = ansicht;
    rahmen[platz] = bereich.addSubWindow(ansicht);
    rahmen[platz]->setAttribute(Qt::WA_DeleteOnClose, false);
    rahmen[platz]->hide();
    connect(ansicht, &frmDocument::Eingerichtet, this, [this, optikteil] { emit Gewechselt(optikteil, true); });
    connect(ansicht, &frmDocument::Geschlossen, this, [this, optikteil] { emit Gewechselt(optikteil, false); });
    SetzeTitel(optikteil, TextOffline);
    ansicht->InitForm();
    hatPlatz[platz] = LiesFensterplatz(DieEinstellungen(), std::to_string(optikteil) + "Form",
                                       {.zustand = ZustandNichtGespeichert})
                          .zustand != ZustandNichtGespeichert;
}

frmDocument& Ansichten::Ansicht(int optikteil) {
    return *ansichten.at(static_cast<std::size_t>(optikteil));
}

bool Ansichten::BaueAuf() {
    bool neueDabei = false;
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil) {
        const auto platz = static_cast<std::size_t>(teil);
        if (modDaten::Strahlenzahl(teil) > 0) {
            neueDabei |= !std::exchange(hatPlatz[platz], true);
            Ansicht(teil).InitfrmDocument();
            Ansicht(teil).Zeige();
        } else if (rahmen[platz]->isVisible()) {
            rahmen[platz]->close();
        }
    }
    return neueDabei;
}

void Ansichten::Zeige(int optikteil, bool live) {
    Ansicht(optikteil).InitfrmDocument();
    SetzeTitel(optikteil, Titeltext(modPolling::GetOptikteilStatus(optikteil), live));
    Ansicht(optikteil).Zeige();
}

int Ansichten::AnzahlGezeigter() const {
    return static_cast<int>(
        std::ranges::count_if(rahmen, [](const QMdiSubWindow* fenster) { return fenster->isVisible(); }));
}

void Ansichten::SetzeTitel(int optikteil, std::int16_t textId) {
    const auto platz = static_cast<std::size_t>(optikteil);
    const QString titel = Ansichtstitel(optikteil, textId);
    titeltexte.at(platz) = textId;
    ansichten.at(platz)->setWindowTitle(titel);
    rahmen.at(platz)->setWindowTitle(titel);
}

void Ansichten::ZeigeZustaende(bool live) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, Titeltext(modPolling::GetOptikteilStatus(teil), live));
}

void Ansichten::ZeigeAlleOffline() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, TextOffline);
}

void Ansichten::Lokalisiere() {
    for (frmDocument* ansicht : ansichten)
        ansicht->Lokalisiere();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, titeltexte.at(static_cast<std::size_t>(teil)));
}

QSize Ansichten::KleinsterRahmen() const {
    return rahmen[0]
        ->minimumSizeHint()
        .expandedTo(rahmen[0]->minimumSize())
        .expandedTo(ansichten[0]->minimumSize() + rahmen[0]->size() - ansichten[0]->size());
}

void Ansichten::Ordne(Anordnung art) {
    std::vector<QMdiSubWindow*> gezeigte;
    for (QMdiSubWindow* fenster : rahmen)
        if (fenster->isVisible() && !fenster->isMinimized())
            gezeigte.push_back(fenster);
    const auto plaetze =
        OrdneAn(art, static_cast<int>(gezeigte.size()), bereich.viewport()->size(), KleinsterRahmen());
    for (std::size_t i = 0; i < plaetze.size(); ++i) {
        gezeigte[i]->showNormal();
        gezeigte[i]->setGeometry(plaetze[i]);
    }
}

void Ansichten::Staffle() {
    bereich.cascadeSubWindows();
}

void Ansichten::SpeicherePlaetze() const {
    for (const frmDocument* ansicht : ansichten)
        ansicht->SpeicherePlatz();
}

} // namespace varnoth
