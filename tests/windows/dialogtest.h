#pragma once

#include "bedienelement.h"
#include "boolean.h"
#include "fenstertest.h"
#include "pruefgeraet.h"
#include "schnittstelle.h"
#include "transaktionen.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

namespace varnoth::pruefung {

/// Setting of the tests of dialogs that run a procedure: an identified controller at the far end of a closed
/// port, German texts. Time jumps, so that a silent device costs no real second.
class DialogTest : public testing::Test {
protected:
    DialogTest() {
        Identifiziere();
        umgebung.beiEreignissen = [] { QCoreApplication::processEvents(); };
    }

    int AnzahlAnforderungen() const { return static_cast<int>(port.gesendet.size()); }
    /// The controller keeps silent; `dabei` runs with the number of each request, from 1.
    void Schweige(const std::function<void(int anforderung)>& dabei = {}) {
        geraet.schweige = [this, dabei](const std::string&) {
            if (dabei)
                dabei(AnzahlAnforderungen());
            return true;
        };
    }
    /// The controller answers; `dabei` runs with the number of each request, from 1, before its answer.
    void BeiAnforderung(const std::function<void(int anforderung)>& dabei) {
        geraet.schweige = [this, dabei](const std::string&) {
            dabei(AnzahlAnforderungen());
            return false;
        };
    }
    /// Shows the dialog and waits until its procedure has reached the end.
    template<class Dialog>
    static void ZeigeBisFertig(Dialog& dialog) {
        dialog.show();
        ASSERT_TRUE(WarteBis([&] { return dialog.GetVollstaendig() == True; }));
    }

    template<class Element>
    static Element& Kind(QDialog& dialog, const char* name) {
        return pruefung::Kind<Element>(dialog, name);
    }
    static QString Feld(QDialog& dialog, const char* name) { return Kind<QLineEdit>(dialog, name).text(); }
    static QString Beschriftung(QDialog& dialog, const char* name) {
        return Kind<QLabel>(dialog, name).text();
    }
    static bool Bereit(QDialog& dialog, const char* name) {
        return Kind<QPushButton>(dialog, name).isEnabled();
    }
    /// The names of the controls that Tab leads through, one after another.
    static QString Tabfolge(QDialog& dialog) {
        QStringList namen;
        const QWidget* element = &dialog;
        while ((element = element->nextInFocusChain()) != &dialog)
            if (element->focusPolicy() & Qt::TabFocus)
                namen += element->objectName();
        return namen.join(' ');
    }

    void Identifiziere() {
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        modSchnittstelle::CloseCommPort();
        port.gesendet.clear();
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    PruefPort port{umgebung};
    PruefGeraet geraet{port};
};

} // namespace varnoth::pruefung
