#pragma once

#include "bedienelement.h"
#include "fenstertest.h"
#include "pruefumgebung.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

#include <string>

namespace varnoth::pruefung {

/// Setting of the tests of dialogs that edit the image: an image of zeros, German texts, settings in memory.
class UntereditorTest : public testing::Test {
protected:
    template<class Element>
    static Element& Kind(QDialog& dialog, const char* name) {
        return pruefung::Kind<Element>(dialog, name);
    }
    static QAbstractButton& Knopf(QDialog& dialog, const char* name) {
        return Kind<QAbstractButton>(dialog, name);
    }
    static void Klicke(QDialog& dialog, const char* name) { Knopf(dialog, name).click(); }
    static QString Beschriftung(QDialog& dialog, const char* name) {
        return Kind<QLabel>(dialog, name).text();
    }
    static void ZeigeAktiv(QDialog& dialog) {
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(WarteBis([&] { return dialog.isActiveWindow(); }));
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
};

} // namespace varnoth::pruefung
