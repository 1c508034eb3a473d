#include "willkommensseite.h"

#include "letztedateien.h"
#include "lokalisiereform.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <iterator>
#include <utility>

namespace varnoth {

namespace {

constexpr int TextUeberschrift = 9200;
constexpr int TextLetzteDateien = 9211;
constexpr int Rand = 24;
constexpr int Abstand = 10;
constexpr int Namensbreite = 200; // logical pixels
constexpr int Ordnerbreite = 60;
constexpr double GrosseSchrift = 1.5;

struct Angebot {
    const char* name;
    Befehl befehl;
    int text;
    int erklaerung;
    int index = 0; ///< of the command
};

constexpr int AnDerSuche = 1; // of the command's pages

constexpr Angebot DieAngebote[] = {
    {"cmdWillkommenVerbinden", Befehl::VisualisierenStart, 9201, 9202},
    {"cmdWillkommenSuchen", Befehl::Verbindung, 8303, 8308, AnDerSuche},
    {"cmdWillkommenOeffnen", Befehl::KonfigurationOeffnen, 9203, 9204},
    {"cmdWillkommenNeu", Befehl::NeueKonfiguration, 9205, 9206},
    {"cmdWillkommenSimuliert", Befehl::SimuliertesGeraet, 9207, 9208},
    {"cmdWillkommenHilfe", Befehl::Hilfethemen, 9209, 9210},
};

/// A path that shows its middle as dots where it is too long.
class Pfadtext : public QLabel {
public:
    QSize minimumSizeHint() const override { return {Ordnerbreite, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        style()->drawItemText(&maler, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideMiddle, width()), foregroundRole());
    }
};

QLabel* MacheText(const QString& name, int id, QLabel* text = new QLabel) {
    text->setObjectName(name);
    text->setTextFormat(Qt::PlainText);
    if (id != 0)
        text->setProperty("Tag", id);
    return text;
}

QPushButton* MacheKnopf(const QString& name) {
    auto* const knopf = new QPushButton;
    knopf->setObjectName(name);
    knopf->setAutoDefault(true);
    return knopf;
}

QLabel* MacheKopf(const QString& name, int id, double groesse) {
    QLabel* const kopf = MacheText(name, id);
    QFont schrift = kopf->font();
    schrift.setPointSizeF(schrift.pointSizeF() * groesse);
    schrift.setBold(true);
    kopf->setFont(schrift);
    return kopf;
}

/// A file's name on a button, where "&" would mark a letter.
QString Knopftext(const QFileInfo& datei, const QFontMetrics& schrift) {
    return schrift.elidedText(datei.fileName(), Qt::ElideMiddle, Namensbreite)
        .replace(u'&', QLatin1String("&&"));
}

} // namespace

Willkommensseite::Willkommensseite(QMdiArea& mdiBereich, const Klick& klick)
    : QScrollArea(&mdiBereich), bereich(mdiBereich) {
    setObjectName(QStringLiteral("Willkommensseite"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* const inhalt = new QWidget;
    inhalt->setObjectName(QStringLiteral("WillkommenInhalt"));
    auto* const spalte = new QVBoxLayout(inhalt);
    auto* const raster = new QGridLayout;
    spalte->setContentsMargins(Rand, Rand, Rand, Rand);
    spalte->addWidget(MacheKopf(QStringLiteral("lblWillkommen"), TextUeberschrift, GrosseSchrift));
    spalte->addLayout(raster);
    spalte->addStretch();
    raster->setHorizontalSpacing(2 * Abstand);
    raster->setVerticalSpacing(Abstand);
    raster->setColumnStretch(1, 1);
    BaueKnoepfe(*raster, klick);
    BaueDateien(*raster, klick);
    setWidget(inhalt);
    bereich.viewport()->installEventFilter(this);
    hide();
}

void Willkommensseite::BaueKnoepfe(QGridLayout& raster, const Klick& klick) {
    for (const auto& [name, befehl, text, erklaerung, index] : DieAngebote) {
        const int zeile = raster.rowCount();
        QPushButton* const knopf = MacheKnopf(QLatin1String(name));
        knopf->setProperty("Tag", text);
        QLabel* const dazu = MacheText(QStringLiteral("lblWillkommen_%1").arg(erklaerung), erklaerung);
        dazu->setWordWrap(true);
        raster.addWidget(knopf, zeile, 0);
        raster.addWidget(dazu, zeile, 1);
        connect(knopf, &QPushButton::clicked, this,
                [klick, befehl = befehl, index = index] { klick(befehl, index); });
    }
}

void Willkommensseite::BaueDateien(QGridLayout& raster, const Klick& klick) {
    dateikopf = MacheKopf(QStringLiteral("lblWillkommenDateien"), TextLetzteDateien, 1);
    dateikopf->setContentsMargins(0, Rand / 2, 0, 0);
    raster.addWidget(dateikopf, raster.rowCount(), 0, 1, 2);
    for (int platz = 0; platz < HoechstensLetzteDateien; ++platz) {
        const int zeile = raster.rowCount();
        QPushButton* const knopf = MacheKnopf(QStringLiteral("cmdWillkommenDatei_%1").arg(platz + 1));
        QLabel* const ordner =
            MacheText(QStringLiteral("lblWillkommenOrdner_%1").arg(platz + 1), 0, new Pfadtext);
        raster.addWidget(knopf, zeile, 0);
        raster.addWidget(ordner, zeile, 1);
        connect(knopf, &QPushButton::clicked, this, [klick, platz] { klick(Befehl::LetzteDatei, platz); });
        dateizeilen.push_back({knopf, ordner});
    }
}

void Willkommensseite::ZeigeDateien(const std::vector<std::string>& dateien) {
    dateikopf->setVisible(!dateien.empty());
    for (std::size_t i = 0; i < dateizeilen.size(); ++i) {
        const auto& [knopf, ordner] = dateizeilen[i];
        knopf->setVisible(i < dateien.size());
        ordner->setVisible(i < dateien.size());
        if (i >= dateien.size())
            continue;
        const QFileInfo datei(QString::fromStdString(dateien[i]));
        knopf->setText(Knopftext(datei, fontMetrics()));
        ordner->setText(QDir::toNativeSeparators(datei.path()));
    }
}

void Willkommensseite::Zeige(bool sichtbar, const std::vector<std::string>& dateien) {
    if (sichtbar) {
        ZeigeDateien(dateien);
        LokalisiereForm(*this);
        FolgeFlaeche();
        raise();
    }
    setVisible(sichtbar);
}

void Willkommensseite::FolgeFlaeche() {
    setGeometry(bereich.viewport()->geometry());
}

bool Willkommensseite::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize)
        FolgeFlaeche();
    return QScrollArea::eventFilter(objekt, ereignis);
}

} // namespace varnoth
