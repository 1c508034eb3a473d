#pragma once

#include "bedienelement.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "standardkonfiguration.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace varnoth::pruefung {

/// Setting of the tests of dialogs that ask for beam counts: an empty image, German texts.
class StrahlenTest : public testing::Test {
protected:
    template<class Element>
    static Element& Kind(QDialog& dialog, const std::string& name) {
        return pruefung::Kind<Element>(dialog, QString::fromStdString(name));
    }
    static QComboBox& Combo1(QDialog& dialog, int teil) {
        return Kind<QComboBox>(dialog, "Combo1_" + std::to_string(teil));
    }
    static QRadioButton& Option1(QDialog& dialog, int index) {
        return Kind<QRadioButton>(dialog, "Option1_" + std::to_string(index));
    }
    static void Waehle(QDialog& dialog, const std::array<int, AnzahlOptikteile>& strahlenzahlen) {
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            Combo1(dialog, teil)
                .setCurrentText(QString::number(strahlenzahlen.at(static_cast<std::size_t>(teil))));
    }
    static QStringList Listen(QDialog& dialog) {
        QStringList gezeigt;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            gezeigt += Combo1(dialog, teil).currentText();
        return gezeigt;
    }
    static std::vector<bool> ListenBereit(QDialog& dialog) {
        std::vector<bool> bereit;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            bereit.push_back(Combo1(dialog, teil).isEnabled());
        return bereit;
    }
    static std::vector<std::int32_t> ImAbbild() {
        std::vector<std::int32_t> zahlen;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            zahlen.push_back(modDaten::Strahlenzahl(teil));
        return zahlen;
    }
    static Werte GanzesAbbild() {
        Werte alles;
        for (const Speicherbereich bereich : AlleSpeicherbereiche) {
            const auto werte = modDaten::Bereich(bereich);
            alles.insert(alles.end(), werte.begin(), werte.end());
        }
        return alles;
    }
    static void KlickeOK(QDialog& dialog) { Kind<QPushButton>(dialog, "cmdOK").click(); }
    static QString Text(QDialog& dialog, const char* name) { return Kind<QLabel>(dialog, name).text(); }

    /// Every label and button has the room that its text needs.
    static void ErwarteNichtsAbgeschnitten(QDialog& dialog) {
        dialog.show();
        for (const auto* zeile : dialog.findChildren<QLabel*>())
            EXPECT_LE(zeile->sizeHint().width(), zeile->width()) << zeile->text().toStdString();
        for (const auto* knopf : dialog.findChildren<QAbstractButton*>())
            EXPECT_LE(knopf->sizeHint().width(), knopf->width()) << knopf->text().toStdString();
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
};

} // namespace varnoth::pruefung
