#include "inhaltsverzeichnis.h"

#include <QRegularExpression>

#include <algorithm>

namespace varnoth {

namespace {

enum Spalte { Ebene, Name, Titel, Fenster, AnzahlSpalten };

QString OhneIndex(QString objectName) {
    static const QRegularExpression index(QStringLiteral("_[0-9]+$"));
    return objectName.remove(index);
}

} // namespace

Inhaltsverzeichnis LiesInhalt(const QByteArray& tsv) {
    Inhaltsverzeichnis inhalt;
    const QStringList zeilen = QString::fromUtf8(tsv).split(u'\n');
    for (const QString& zeile : zeilen) {
        const QStringList felder = zeile.trimmed().isEmpty() ? QStringList() : zeile.split(u'\t');
        if (felder.size() >= AnzahlSpalten)
            inhalt.append({felder[Ebene].toInt(), felder[Name], felder[Titel],
                           felder[Fenster].trimmed().split(u',', Qt::SkipEmptyParts)});
    }
    return inhalt;
}

const Hilfeseite* SeiteZuFenster(const Inhaltsverzeichnis& inhalt, const QString& objectName) {
    const QString fenster = OhneIndex(objectName);
    const auto seite =
        std::ranges::find_if(inhalt, [&](const Hilfeseite& s) { return s.fenster.contains(fenster); });
    return seite == inhalt.end() ? nullptr : &*seite;
}

} // namespace varnoth
