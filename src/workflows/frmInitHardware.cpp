#include "frmInitHardware.h"

#include "einstellungen.h"
#include "feldtext.h"
#include "ui_frmInitHardware.h"

#include <QRegularExpressionValidator>

#include <utility>

namespace varnoth {

namespace {

// What the fields take; their lengths are designed.
const QString Latin1Zeichen = QStringLiteral("[\\x{20}-\\x{7E}\\x{A0}-\\x{FF}]*");
const QString Ziffern = QStringLiteral("[0-9]*");
const QString ZahlBis255 = QStringLiteral("[01]?[0-9]{0,2}|2[0-4][0-9]|25[0-5]");

void LasseNurZu(QLineEdit& feld, const QString& muster) {
    feld.setValidator(new QRegularExpressionValidator(QRegularExpression(muster), &feld));
}

std::string Eingabe(const QLineEdit& feld) {
    return feld.text().toLatin1().toStdString();
}

} // namespace

frmInitHardware::frmInitHardware(QWidget* parent, QDate heute)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent), ui(std::make_unique<Ui::frmInitHardware>()) {
    ui->setupUi(this);
    BegrenzeEingaben();
    FuelleFelder(heute);
    connect(ui->cmdSchreiben, &QPushButton::clicked, this, [this] { FuehreAus(); });
    SetWeiter(True);
    Lade(*ui->cmdCancel);
    ui->txtSeriennummer->setFocus();
}

frmInitHardware::~frmInitHardware() = default;

void frmInitHardware::BegrenzeEingaben() {
    LasseNurZu(*ui->txtSeriennummer, Latin1Zeichen);
    for (QLineEdit* const feld : {ui->txtJahr, ui->txtMonat, ui->txtTag})
        LasseNurZu(*feld, Ziffern);
    for (QLineEdit* const feld : {ui->txtHauptversion, ui->txtUnterversion})
        LasseNurZu(*feld, ZahlBis255);
}

/// The settings may hold what nobody could have typed; such a field stays empty.
void frmInitHardware::FuelleFelder(QDate heute) {
    const std::pair<QLineEdit*, const char*> gemerkte[] = {
        {ui->txtSeriennummer, werksdatenablage::Seriennummer},
        {ui->txtHauptversion, werksdatenablage::Hauptversion},
        {ui->txtUnterversion, werksdatenablage::Unterversion},
    };
    for (const auto& [feld, schluessel] : gemerkte) {
        const std::string text = DieEinstellungen().LiesText(werksdatenablage::Abschnitt, schluessel, "");
        feld->setText(QString::fromStdString(text));
        if (!feld->hasAcceptableInput())
            feld->clear();
    }
    ui->txtJahr->setText(heute.toString(QStringLiteral("yyyy")));
    ui->txtMonat->setText(heute.toString(QStringLiteral("MM")));
    ui->txtTag->setText(heute.toString(QStringLiteral("dd")));
}

/// The focus must not fall on the cancel button: the key that pressed Write, pressed once more, would end the
/// procedure half-way, and a dialog that closes looks like one that has done its work.
void frmInitHardware::SperreEingaben() {
    ui->txtUebertragungszustand->setFocus();
    ui->cmdSchreiben->setEnabled(false);
    for (QLineEdit* const feld : {ui->txtSeriennummer, ui->txtJahr, ui->txtMonat, ui->txtTag,
                                  ui->txtHauptversion, ui->txtUnterversion})
        feld->setEnabled(false);
}

Werksdaten frmInitHardware::Eingaben() const {
    return {.seriennummer = Eingabe(*ui->txtSeriennummer),
            .jahr = Eingabe(*ui->txtJahr),
            .monat = Eingabe(*ui->txtMonat),
            .tag = Eingabe(*ui->txtTag),
            .hauptversion = Eingabe(*ui->txtHauptversion),
            .unterversion = Eingabe(*ui->txtUnterversion)};
}

bool frmInitHardware::Ablauf() {
    SperreEingaben();
    return InitialisiereHardware(*this, Eingaben());
}

void frmInitHardware::ZeigeSchritt(const std::string& text) {
    ZeigeText(*ui->txtUebertragungszustand, QString::fromStdString(text));
}

void frmInitHardware::ZeigeVersuch(int versuch) {
    ZeigeText(*ui->txtCounter, QString::number(versuch));
}

} // namespace varnoth
