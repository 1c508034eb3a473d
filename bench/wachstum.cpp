#include "wachstum.h"

#include <algorithm>
#include <cmath>

namespace varnoth::bench {

namespace {

QString Spaltenkopf(const Kostenart& art) {
    return QLatin1String(art.name) + QStringLiteral(", ms");
}

/// The line below a column's head, which aligns the column to the right.
QString Trennlinie(const QString& kopf) {
    return u'|' + QString(kopf.size() + 1, u'-') + QStringLiteral(":|");
}

/// A size with its costs; cells as wide as the head above them, so that the table reads well as plain text.
QString Zeile(const Messreihe& reihe, const Kosten& punkt) {
    QString zeile = QStringLiteral("| ") + QString::number(punkt.groesse).rightJustified(reihe.name.size()) +
                    QStringLiteral(" |");
    for (const Kostenart& art : Kostenarten)
        zeile += u' ' + QString::number(punkt.*art.wert, 'f', 2).rightJustified(Spaltenkopf(art).size()) +
                 QStringLiteral(" |");
    return zeile + u'\n';
}

} // namespace

double Exponent(const Messreihe& reihe, double Kosten::*wert) {
    const auto anzahl = static_cast<double>(reihe.punkte.size());
    double mitteX = 0;
    double mitteY = 0;
    for (const Kosten& punkt : reihe.punkte) {
        mitteX += std::log(punkt.groesse) / anzahl;
        mitteY += std::log(punkt.*wert) / anzahl;
    }
    double gemeinsam = 0;
    double streuung = 0;
    for (const Kosten& punkt : reihe.punkte) {
        const double abstand = std::log(punkt.groesse) - mitteX;
        gemeinsam += abstand * (std::log(punkt.*wert) - mitteY);
        streuung += abstand * abstand;
    }
    return gemeinsam / streuung;
}

double SteilsterSchritt(const Messreihe& reihe, double Kosten::*wert) {
    double steilster = 0;
    for (std::size_t i = 1; i < reihe.punkte.size(); ++i) {
        const Kosten& kleiner = reihe.punkte[i - 1];
        const Kosten& groesser = reihe.punkte[i];
        steilster = std::max(steilster, std::log(groesser.*wert / kleiner.*wert) /
                                            std::log(groesser.groesse / kleiner.groesse));
    }
    return steilster;
}

QString Tabelle(const Messreihe& reihe) {
    QString kopf = QStringLiteral("| ") + reihe.name + QStringLiteral(" |");
    QString linie = Trennlinie(reihe.name);
    for (const Kostenart& art : Kostenarten) {
        const QString name = Spaltenkopf(art);
        kopf += u' ' + name + QStringLiteral(" |");
        linie += Trennlinie(name).sliced(1);
    }
    QString tabelle = kopf + u'\n' + linie + u'\n';
    for (const Kosten& punkt : reihe.punkte)
        tabelle += Zeile(reihe, punkt);
    return tabelle;
}

} // namespace varnoth::bench
