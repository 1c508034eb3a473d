#include "hilfesuche.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr qsizetype AuszugVorher = 30; // characters before the first find
constexpr qsizetype AuszugLaenge = 110;

bool Enthaelt(const QString& text, const QString& wort) {
    return text.contains(wort, Qt::CaseInsensitive);
}

bool EnthaeltAlle(const Seitentext& seite, const QStringList& worte) {
    return std::ranges::all_of(worte, [&](const QString& wort) {
        return Enthaelt(seite.titel, wort) || Enthaelt(seite.text, wort);
    });
}

bool TitelEnthaeltEines(const Seitentext& seite, const QStringList& worte) {
    return std::ranges::any_of(worte, [&](const QString& wort) { return Enthaelt(seite.titel, wort); });
}

qsizetype ErsteStelle(const QString& text, const QStringList& worte) {
    qsizetype erste = text.size();
    for (const QString& wort : worte)
        if (const qsizetype stelle = text.indexOf(wort, 0, Qt::CaseInsensitive); stelle >= 0)
            erste = std::min(erste, stelle);
    return erste == text.size() ? 0 : erste;
}

/// Where the excerpt for a find begins: at a whole word about AuszugVorher characters before it.
qsizetype Anfang(const QString& text, qsizetype fund) {
    if (fund <= AuszugVorher)
        return 0;
    const qsizetype luecke = text.indexOf(u' ', fund - AuszugVorher);
    return luecke < 0 || luecke > fund ? fund : luecke + 1;
}

qsizetype Ende(const QString& text, qsizetype anfang, qsizetype fund) {
    const qsizetype spaetestens = anfang + AuszugLaenge;
    if (text.size() <= spaetestens)
        return text.size();
    const qsizetype luecke = text.lastIndexOf(u' ', spaetestens);
    return luecke > fund ? luecke : spaetestens;
}

/// Dots stand where text was left out.
QString Auszug(const QString& seitentext, const QStringList& worte) {
    const QString text = seitentext.simplified();
    const QString punkte = QStringLiteral("…");
    const qsizetype fund = ErsteStelle(text, worte);
    const qsizetype anfang = Anfang(text, fund);
    const qsizetype ende = Ende(text, anfang, fund);
    return (anfang > 0 ? punkte : QString()) + text.mid(anfang, ende - anfang) +
           (ende < text.size() ? punkte : QString());
}

} // namespace

QStringList Suchworte(const QString& eingabe) {
    QStringList worte = eingabe.simplified().split(u' ', Qt::SkipEmptyParts);
    worte.removeDuplicates();
    return worte;
}

QList<Fundstelle> Suche(const QList<Seitentext>& seiten, const QStringList& worte) {
    QList<Fundstelle> imTitel;
    QList<Fundstelle> imText;
    for (const Seitentext& seite : seiten) {
        if (worte.isEmpty() || !EnthaeltAlle(seite, worte))
            continue;
        QList<Fundstelle>& liste = TitelEnthaeltEines(seite, worte) ? imTitel : imText;
        liste.append({seite.seite, seite.titel, Auszug(seite.text, worte)});
    }
    return imTitel + imText;
}

} // namespace varnoth
