#pragma once

#include "bedienelement.h"
#include "fenstertest.h"
#include "texte.h"

#include <QApplication>
#include <QPushButton>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <gtest/gtest.h>

namespace varnoth::pruefung {

/// The place that a help window shows: "page" or "page#anchor".
inline QString Stelle(const QWidget& hilfe) {
    const QUrl adresse = Kind<QTextBrowser>(hilfe, "brwSeite").source();
    const QString seite = adresse.fileName().section(u'.', 0, 0);
    return adresse.hasFragment() ? seite + u'#' + adresse.fragment() : seite;
}

/// The help window that is open; nullptr when there is none.
inline QWidget* OffeneHilfe() {
    for (QWidget* const fenster : QApplication::topLevelWidgets())
        if (fenster->objectName() == "frmHilfe" && fenster->isVisible())
            return fenster;
    return nullptr;
}

} // namespace varnoth::pruefung
