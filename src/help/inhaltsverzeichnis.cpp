#include "inhaltsverzeichnis.h"

#include <QRegularExpression>

#include <algorithm>

namespace varnoth {

namespace {

enum Spalte { Ebene, Name, Titel, Fenster, AnzahlSpalten };

const Hilfeseite* SeiteMit(const Inhaltsverzeichnis& inhalt, const QString& fenster) {
    const auto seite =
        std::ranges::find_if(inhalt, [&](const Hilfeseite& s) { return s.fenster.contains(fenster); });
    return seite == inhalt.end() ? nullptr : &*seite;
}

} // namespace

Inhaltsverzeichnis LiesInhalt(const QByteArray& tsv) {
    Inhaltsverzeichnis inhalt;
    const QStringList zeilen = QString::fromUtf8(tsv).split(u'\n');
    for (const QString& zeile : zeilen) {
        const QStringList felder = zeile.split(u'\t');
        if (felder.size() >= AnzahlSpalten)
            inhalt.append({felder[Ebene].toInt(), felder[Name], felder[Titel],
                           felder[Fenster].trimmed().split(u',', Qt::SkipEmptyParts)});
    }
    return inhalt;
}

QString OhneIndex(const QString& objectName) {
    static const QRegularExpression index(QStringLiteral("_[0-9]+$"));
    return QString(objectName).remove(index);
}

const Hilfeseite* SeiteZuFenster(const Inhaltsverzeichnis& inhalt, const QString& objectName) {
    const Hilfeseite* const seite = SeiteMit(inhalt, objectName);
    return seite != nullptr ? seite : SeiteMit(inhalt, OhneIndex(objectName));
}

} // namespace varnoth
