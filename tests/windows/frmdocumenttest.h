#pragma once

#include "beambarcontrol.h"
#include "fenstertest.h"
#include "frmDocument.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "strahlbits.h"
#include "texte.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <gtest/gtest.h>

#include <initializer_list>

namespace varnoth::pruefung {

/// A view of the second part with 20 beams, 20 mm apart, in a main window; a clock that jumps.
class FrmDocumentTest : public testing::Test {
protected:
    static constexpr int Teil = 1;
    static constexpr std::int16_t Blankingregister = 32;
    static constexpr std::int16_t Messwertregister = 18;

    FrmDocumentTest() {
        Setze(spezifisch::Strahlenzahl, 20);
        Setze(spezifisch::Aufloesung, 20);
        bereich = new QMdiArea;
        haupt.setCentralWidget(bereich);
        haupt.resize(900, 700);
        haupt.show();
        sicht = new frmDocument(Teil);
        rahmen = bereich->addSubWindow(sicht);
        rahmen->setAttribute(Qt::WA_DeleteOnClose, false);
        sicht->InitfrmDocument();
    }

    static void Setze(std::int16_t adresse, std::int32_t wert) {
        modDaten::SetzeSpezifischeDaten(adresse, 1, Teil, {wert});
    }
    static void SetzeMesswerte(std::int32_t aktuell, std::int32_t minimum, std::int32_t maximum) {
        Werte werte;
        for (const std::int32_t beginn : {aktuell, minimum, maximum})
            for (int k = 0; k < AnzahlMesswerte; ++k)
                werte.push_back(beginn + k);
        modDaten::SetzeSpezifischeDaten(spezifisch::Messwerte, Messwertregister, Teil, werte);
    }
    /// A data set with values and status of the image, not shown yet.
    void Lies(std::initializer_list<int> freie, std::initializer_list<int> geblankte) {
        Werte zustaende(2);
        Werte blanking(Blankingregister);
        for (const int strahl : freie)
            SetzeStrahlBit(zustaende, strahl, true);
        for (const int strahl : geblankte)
            SetzeStrahlBit(blanking, strahl, true);
        modDaten::SetzeStrahlzustaende(2, Teil, zustaende);
        modDaten::SetzeSpezifischeDaten(spezifisch::Blankingmuster, Blankingregister, Teil, blanking);
        sicht->NeuerDatensatz();
        sicht->StrahlzustaendeLiegenVor();
        sicht->BlankingBekannt();
        sicht->MesswerteLiegenVor();
    }
    void Scan(std::initializer_list<int> freie, std::initializer_list<int> geblankte) {
        Lies(freie, geblankte);
        umgebung.ErledigeAufgeschobenes();
    }
    void Zeige() {
        sicht->Zeige();
        QApplication::processEvents();
    }
    QLabel& Feld(const char* name) { return *sicht->findChild<QLabel*>(QLatin1String(name)); }
    QString Text(const char* name) { return Feld(name).text(); }
    QStringList Werttexte() {
        return {Text("lblInhaltTU"),  Text("lblInhaltHU"),  Text("lblInhaltZU"),
                Text("lblInhaltTNU"), Text("lblInhaltHNU"), Text("lblInhaltZNU")};
    }
    void SchreibeUeberall(const QString& text) {
        for (const char* name :
             {"lblInhaltTU", "lblInhaltHU", "lblInhaltZU", "lblInhaltTNU", "lblInhaltHNU", "lblInhaltZNU"})
            Feld(name).setText(text);
    }
    void Waehle(int auswahl) {
        sicht->findChild<QRadioButton*>(QStringLiteral("Option1_%1").arg(auswahl))->click();
    }
    BeamBarControl& Balken() { return *sicht->findChild<BeamBarControl*>("BeamBar1"); }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    QMainWindow haupt;
    QMdiArea* bereich = nullptr;
    frmDocument* sicht = nullptr;
    QMdiSubWindow* rahmen = nullptr;
};

} // namespace varnoth::pruefung
