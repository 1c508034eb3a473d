#include "kommandozeile.h"

namespace varnoth {

namespace {

constexpr int ServiceTextLaenge = 16;

std::string AlsServiceText(const QString& eingabe) {
    return eingabe.left(ServiceTextLaenge).leftJustified(ServiceTextLaenge).toLatin1().toStdString();
}

int LiesCom(const QString& eingabe) {
    const int nummer = eingabe.toInt();
    return nummer >= 1 && nummer <= 4 ? nummer : 0;
}

struct Schalter {
    QString beginn;
    void (*wirkung)(Kommandozeile& zeile, const QString& rest);
};

const Schalter schalterliste[] = {
    {QStringLiteral("/P"),
     [](Kommandozeile& z, const QString& rest) { z.serviceText = AlsServiceText(rest); }},
    {QStringLiteral("/Tlogfile"), [](Kommandozeile& z, const QString&) { z.trace = true; }},
    {QStringLiteral("/Simulator"), [](Kommandozeile& z, const QString&) { z.simulator = true; }},
    {QStringLiteral("/Geraet="), [](Kommandozeile& z, const QString& rest) { z.geraet = rest; }},
    {QStringLiteral("/Com="), [](Kommandozeile& z, const QString& rest) { z.com = LiesCom(rest); }},
    {QStringLiteral("/Selbsttest="), [](Kommandozeile& z, const QString& rest) { z.selbsttest = rest; }},
};

} // namespace

Kommandozeile LiesKommandozeile(const QStringList& worte) {
    Kommandozeile zeile;
    for (const QString& wort : worte)
        for (const auto& [beginn, wirkung] : schalterliste)
            if (wort.startsWith(beginn))
                wirkung(zeile, wort.mid(beginn.size()));
    return zeile;
}

} // namespace varnoth
