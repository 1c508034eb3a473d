#include "bericht.h"

#include <QTextStream>

#include <cstdio>
#include <cstdlib>

namespace varnoth::bench {

namespace {

constexpr int BreiteGroesse = 54;
constexpr int BreiteWert = 12;

QString Zahl(double wert, const QString& einheit) {
    return QString::number(wert, 'f', 2) + u' ' + einheit;
}

} // namespace

void Berichte(const QString& groesse, double gemessen, const QString& einheit, Ziel art, double ziel,
              const QString& anmerkung) {
    const bool mindestens = art == Ziel::Mindestens;
    const bool erreicht = mindestens ? gemessen >= ziel : gemessen <= ziel;
    QTextStream(stdout) << groesse.leftJustified(BreiteGroesse)
                        << Zahl(gemessen, einheit).rightJustified(BreiteWert)
                        << ((mindestens ? QStringLiteral(">= ") : QStringLiteral("<= ")) +
                            Zahl(ziel, einheit))
                               .rightJustified(BreiteWert + 4)
                        << (erreicht ? "  yes  " : "  NO   ") << anmerkung << "\n";
}

void Scheitere(const QString& grund) {
    QTextStream(stderr) << "failed: " << grund << "\n";
    std::exit(EXIT_FAILURE);
}

} // namespace varnoth::bench
