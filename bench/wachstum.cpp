#include "wachstum.h"

#include <algorithm>
#include <cmath>

namespace varnoth::bench {

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
    QString linie = QStringLiteral("|---:|");
    for (const Kostenart& art : Kostenarten) {
        kopf += QStringLiteral(" %1, ms |").arg(QLatin1String(art.name));
        linie += QStringLiteral("---:|");
    }
    QString tabelle = kopf + u'\n' + linie + u'\n';
    for (const Kosten& punkt : reihe.punkte) {
        tabelle += QStringLiteral("| %1 |").arg(punkt.groesse);
        for (const Kostenart& art : Kostenarten)
            tabelle += QStringLiteral(" %1 |").arg(punkt.*art.wert, 0, 'f', 2);
        tabelle += u'\n';
    }
    return tabelle;
}

} // namespace varnoth::bench
