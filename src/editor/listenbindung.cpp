#include "listenbindung.h"

#include "gebietszahl.h"

#include <QComboBox>
#include <QLabel>

namespace varnoth {

namespace {

constexpr const char* Hinweis = "Hinweis"; // property of a box: what it says while nothing is selected

const QString LaengsterUebertragenerWert = QStringLiteral("(255)");

QStringList AlsListe(const std::vector<std::string>& texte) {
    QStringList liste;
    for (const std::string& text : texte)
        liste += QString::fromStdString(text);
    return liste;
}

} // namespace

void ZeigeListe(QComboBox& box, const Auswahlliste& liste, std::int32_t zyklus, std::int32_t registerwert) {
    const auto format = [](double zahl) { return Gebietszahl(zahl); };
    box.clear();
    box.addItems(AlsListe(Postentexte(liste, zyklus, format)));
    box.setCurrentIndex(AuswahlFuer(liste, registerwert));
    box.setProperty(Hinweis, QString::fromStdString(Hinweistext(liste, registerwert)));
    box.setToolTip({});
    ZeigeHinweis(box);
    QObject::connect(&box, &QComboBox::currentIndexChanged, &box, [&box] { box.setToolTip({}); });
}

void ZeigeHinweis(QComboBox& box) {
    if (box.currentIndex() == KeineAuswahl)
        box.setToolTip(box.property(Hinweis).toString());
}

std::int32_t GewaehlterWert(const QComboBox& box, const Auswahlliste& liste) {
    return WertFuer(liste, box.currentIndex());
}

void VerbindeUebertragenenWert(QComboBox& box, const Auswahlliste& liste, QLabel& zeile) {
    const auto zeige = [&zeile, liste](int auswahl) {
        zeile.setText(QString::fromStdString(UebertragenerWert(liste, auswahl)));
    };
    zeile.setMinimumWidth(zeile.fontMetrics().horizontalAdvance(LaengsterUebertragenerWert));
    QObject::connect(&box, &QComboBox::currentIndexChanged, &zeile, zeige);
}

} // namespace varnoth
