#include "bericht.h"

#include <QTextStream>

#include <cstdio>
#include <cstdlib>

namespace varnoth::bench {

namespace {

constexpr int BreiteGroesse = 54;
constexpr int BreiteWert = 12;
constexpr int BreiteZiel = 16;
constexpr int BreiteErreicht = 5;

QString Zahl(double wert, const QString& einheit) {
    return QString::number(wert, 'f', 2) + u' ' + einheit;
}

void SchreibeZeile(const QString& groesse, const QString& wert, const QString& ziel, const QString& erreicht,
                   const QString& anmerkung) {
    QTextStream(stdout) << groesse.leftJustified(BreiteGroesse) << wert.rightJustified(BreiteWert)
                        << ziel.rightJustified(BreiteZiel) << "  " << erreicht.leftJustified(BreiteErreicht)
                        << anmerkung << "\n";
}

} // namespace

void Berichte(const QString& groesse, double gemessen, const QString& einheit, Ziel art, double ziel,
              const QString& anmerkung) {
    const bool mindestens = art == Ziel::Mindestens;
    const bool erreicht = mindestens ? gemessen >= ziel : gemessen <= ziel;
    const QString vergleich = mindestens ? QStringLiteral(">= ") : QStringLiteral("<= ");
    SchreibeZeile(groesse, Zahl(gemessen, einheit), vergleich + Zahl(ziel, einheit),
                  erreicht ? QStringLiteral("yes") : QStringLiteral("NO"), anmerkung);
}

void Berichte(const QString& groesse, double gemessen, const QString& einheit, const QString& anmerkung) {
    SchreibeZeile(groesse, Zahl(gemessen, einheit), {}, {}, anmerkung);
}

void Scheitere(const QString& grund) {
    QTextStream(stderr) << "failed: " << grund << "\n";
    std::exit(EXIT_FAILURE);
}

} // namespace varnoth::bench
