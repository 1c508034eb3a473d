#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace varnoth {

/// A page of the help: one line of the contents list.
struct Hilfeseite {
    int ebene = 0; ///< 0: a chapter, 1: a page of the chapter before it
    QString name;  ///< file name without ending
    QString titel;
    QStringList fenster; ///< object names of the windows, or parts of them, that the page tells of

    bool operator==(const Hilfeseite&) const = default;
};

using Inhaltsverzeichnis = QList<Hilfeseite>;

/// Reads a contents list: UTF-8, a page a line; level, name, title and windows (separated by commas) stand
/// between tabs. Lines with fewer fields are passed over.
Inhaltsverzeichnis LiesInhalt(const QByteArray& tsv);

/// An object name without the index of a control array: "frmDocument_2" is a "frmDocument".
QString OhneIndex(const QString& objectName);

/// The page of a window, by its object name or that without the index; nullptr when none tells of it.
const Hilfeseite* SeiteZuFenster(const Inhaltsverzeichnis& inhalt, const QString& objectName);

} // namespace varnoth
