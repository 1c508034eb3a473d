#pragma once

#include "bedienelement.h"
#include "fenstertest.h"
#include "frmVerbindung.h"
#include "leitungspruefung.h"
#include "pruefumgebung.h"
#include "pruefverbindung.h"
#include "suchlauf.h"
#include "texte.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace varnoth::pruefung {

/// The connection window over a machine that a test says.
class VerbindungsfensterTest : public testing::Test {
protected:
    frmVerbindung& Fenster() {
        if (!fenster) {
            fenster = std::make_unique<frmVerbindung>(leitung);
            fenster->ZeigeVor();
        }
        return *fenster;
    }
    template<class Element>
    Element& Teil(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }
    QPushButton& Knopf(const char* name) { return Teil<QPushButton>(name); }
    std::string Text(const char* name) { return Teil<QLabel>(name).text().toStdString(); }
    QTreeWidget& Liste(const char* name) { return Teil<QTreeWidget>(name); }
    std::string Zelle(const char* liste, int zeile, int spalte) {
        const QTreeWidgetItem* const eintrag = Liste(liste).topLevelItem(zeile);
        return eintrag == nullptr ? "no row" : eintrag->text(spalte).toStdString();
    }
    void Tippe(const char* box, const char* text) { Teil<QComboBox>(box).setEditText(text); }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    PruefVerbindung leitung;
    std::unique_ptr<frmVerbindung> fenster;
};

} // namespace varnoth::pruefung
