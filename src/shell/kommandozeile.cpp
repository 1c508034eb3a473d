#include "kommandozeile.h"

#include "texte.h"
#include "versionstext.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace varnoth {

namespace {

constexpr int ServiceTextLaenge = 16;
constexpr std::int16_t TextAufruf = 8820;
constexpr std::int16_t TextDateien = 8821;
constexpr std::int16_t TextHilfe = 8828;
constexpr std::int16_t TextVersion = 8829;

const QString Trenner = QStringLiteral("--");
const QString Hilfewort = QStringLiteral("--help");
const QString Versionswort = QStringLiteral("--version");
const QString Endungen[] = {QStringLiteral(".con"), QStringLiteral(".vrec")};

std::string AlsServiceText(const QString& eingabe) {
    return eingabe.left(ServiceTextLaenge).leftJustified(ServiceTextLaenge).toLatin1().toStdString();
}

int LiesCom(const QString& eingabe) {
    const int nummer = eingabe.toInt();
    return nummer >= 1 && nummer <= 4 ? nummer : 0;
}

struct Schalter {
    QString beginn;
    const char* argument; ///< what follows, as the help shows it
    std::int16_t textId;  ///< what it does
    void (*wirkung)(Kommandozeile& zeile, const QString& rest);
};

const Schalter schalterliste[] = {
    {QStringLiteral("/P"), "...", 8822,
     [](Kommandozeile& z, const QString& rest) { z.serviceText = AlsServiceText(rest); }},
    {QStringLiteral("/Tlogfile"), "", 8823, [](Kommandozeile& z, const QString&) { z.trace = true; }},
    {QStringLiteral("/Simulator"), "", 8824, [](Kommandozeile& z, const QString&) { z.simulator = true; }},
    {QStringLiteral("/Geraet="), "PATH", 8825,
     [](Kommandozeile& z, const QString& rest) { z.geraet = rest; }},
    {QStringLiteral("/Com="), "N", 8826,
     [](Kommandozeile& z, const QString& rest) { z.com = LiesCom(rest); }},
    {QStringLiteral("/Selbsttest="), "FOLDER", 8827,
     [](Kommandozeile& z, const QString& rest) { z.selbsttest = rest; }},
};

bool BeginntWieSchalter(const QString& wort) {
    return std::ranges::any_of(schalterliste,
                               [&](const Schalter& schalter) { return wort.startsWith(schalter.beginn); });
}

bool IstDatei(const QString& wort, const std::function<bool(const QString&)>& gibtEs) {
    if (!wort.startsWith(u'/'))
        return !wort.isEmpty() && !wort.startsWith(u'-');
    const bool zweiterStrich = wort.indexOf(u'/', 1) > 0;
    if (BeginntWieSchalter(wort))
        return zweiterStrich && gibtEs(wort);
    return zweiterStrich || std::ranges::any_of(Endungen, [&](const QString& endung) {
               return wort.endsWith(endung, Qt::CaseInsensitive);
           });
}

void NimmSchalter(Kommandozeile& zeile, const QString& wort) {
    for (const Schalter& schalter : schalterliste)
        if (wort.startsWith(schalter.beginn))
            schalter.wirkung(zeile, wort.mid(schalter.beginn.size()));
}

QString Hilfezeile(const QString& wort, std::int16_t textId) {
    constexpr int spalte = 22;
    return QStringLiteral("  ") + wort.leftJustified(spalte) + QString::fromStdString(LadeText(textId)) +
           QLatin1Char('\n');
}

QString Hilfetext() {
    QString text = QString::fromStdString(LadeText(TextAufruf)) + QStringLiteral("\n\n");
    for (const Schalter& schalter : schalterliste)
        text += Hilfezeile(schalter.beginn + QLatin1String(schalter.argument), schalter.textId);
    return text + Hilfezeile(Hilfewort, TextHilfe) + Hilfezeile(Versionswort, TextVersion) +
           Hilfezeile(Trenner, TextDateien);
}

} // namespace

Kommandozeile LiesKommandozeile(const QStringList& worte, const std::function<bool(const QString&)>& gibtEs) {
    Kommandozeile zeile;
    bool nurDateien = false;
    for (const QString& wort : worte)
        if (nurDateien || IstDatei(wort, gibtEs))
            zeile.dateien += wort;
        else if (wort == Trenner)
            nurDateien = true;
        else
            NimmSchalter(zeile, wort);
    return zeile;
}

Kommandozeile LiesKommandozeile(const QStringList& worte) {
    return LiesKommandozeile(worte, [](const QString& pfad) { return QFileInfo(pfad).isFile(); });
}

std::optional<QString> Aufrufauskunft(const QStringList& worte) {
    const auto ende = std::find(worte.begin(), worte.end(), Trenner);
    const auto fragt = [&](const QString& wort) { return std::find(worte.begin(), ende, wort) != ende; };
    if (fragt(Versionswort))
        return QStringLiteral("varnoth ") + Versionstext() + QLatin1Char('\n');
    if (fragt(Hilfewort))
        return Hilfetext();
    return std::nullopt;
}

} // namespace varnoth
