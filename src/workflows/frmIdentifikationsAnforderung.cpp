#include "frmIdentifikationsAnforderung.h"

#include "feldtext.h"
#include "transaktionen.h"
#include "ui_frmIdentifikationsAnforderung.h"
#include "verbindungsauskunft.h"
#include "zeichensatz.h"

#include <algorithm>

namespace varnoth {

namespace {

/// A text of the controller, one byte a character.
QString AlsQString(const std::string& text) {
    std::string utf8;
    for (const char zeichen : text)
        utf8 += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    return QString::fromStdString(utf8);
}

constexpr int HoechstensVersuche = 10; // the bar is full while the ninth attempt runs
constexpr int Ursachenzeilen = 5;

constexpr int LaengstesFeld = 80; // characters
constexpr int Feldrand = 6;

/// Shows a text of the controller; the field grows with it, within reason.
void ZeigeGeraetetext(QLineEdit& feld, const std::string& geraetetext) {
    const QString text = AlsQString(geraetetext);
    BietePlatz(feld, std::min(static_cast<int>(text.size()) + Feldrand, LaengstesFeld));
    ZeigeText(feld, text);
}

/// A byte of the identification; -1 stands for one that did not arrive.
void ZeigeByte(QLineEdit& feld, std::int16_t byte) {
    if (byte != -1)
        ZeigeText(feld, QString::number(byte));
}

} // namespace

frmIdentifikationsAnforderung::frmIdentifikationsAnforderung(QWidget* parent)
    : Ablaufdialog(Beginn::BeimZeigen, parent), ui(std::make_unique<Ui::frmIdentifikationsAnforderung>()) {
    ui->setupUi(this);
    connect(ui->cmdWeiter, &QPushButton::clicked, this, &QDialog::accept);
    ui->lblUrsache->setMinimumHeight(Ursachenzeilen * ui->lblUrsache->fontMetrics().lineSpacing());
    Lade(*ui->cmdCancel);
}

frmIdentifikationsAnforderung::~frmIdentifikationsAnforderung() = default;

bool frmIdentifikationsAnforderung::Ablauf() {
    if (!Identifiziere(*this))
        return false;
    ui->cmdWeiter->setEnabled(true);
    ui->cmdWeiter->setFocus();
    return true;
}

void frmIdentifikationsAnforderung::ZeigeVerbleibend(int versuche) {
    ui->lblVersuche->setText(QString::number(versuche));
    ZeigeStand(*ui->pbVersuche, HoechstensVersuche - versuche);
}

void frmIdentifikationsAnforderung::ZeigeUrsache(const Verbindungsauskunft& auskunft) {
    const QString text = QString::fromStdString(auskunft.anschluss + "\n" + auskunft.ursache);
    if (ui->lblUrsache->text() != text)
        ui->lblUrsache->setText(text);
}

void frmIdentifikationsAnforderung::ZeigeIdentifikation() {
    using namespace modModbus;
    ui->lblUrsache->clear();
    ZeigeByte(*ui->txtSlaveAdresse, GetSlaveAdresse());
    ZeigeByte(*ui->txtSchaltzustand, GetIdentByte1());
    ZeigeByte(*ui->txtGerätetyp, GetIdentByte2());
    ZeigeGeraetetext(*ui->txtBezeichnung, GetIdentText1());
    ZeigeGeraetetext(*ui->txtSeriennr, GetIdentText2());
    ZeigeGeraetetext(*ui->txtCopyright, GetIdentText3());
}

} // namespace varnoth
