#pragma once

#include "inhaltsverzeichnis.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace varnoth::pruefung {

/// What a test wants to know of a page as it lies in the source folder.
struct Hilfeblatt {
    QString fehler;         ///< why it is not well-formed; empty when it is
    QStringList elemente;   ///< names of all elements, in order
    QStringList fremdes;    ///< attributes that pages do not have, as element.attribute
    QStringList anker;      ///< in order
    QStringList verweise;   ///< targets of all links
    QStringList bilder;     ///< sources of all pictures
    QStringList ohneErsatz; ///< pictures without a text in their place
};

/// One language's folder.
struct Hilfequelle {
    Inhaltsverzeichnis inhalt;
    QMap<QString, Hilfeblatt> blaetter; ///< by page name: every HTML file of the folder
    QStringList bilder;                 ///< every picture of the folder, as pages name it
    QString ordner;
};

/// Reads a folder of the help: "de" or "en".
Hilfequelle LiesHilfequelle(const QString& sprache);

/// Object names of the root widgets of all forms under the source folder.
QStringList Formulare();
/// Object names of all controls that a user can set, of the form with the given file name.
QStringList Bedienelemente(const QString& formular);

} // namespace varnoth::pruefung
