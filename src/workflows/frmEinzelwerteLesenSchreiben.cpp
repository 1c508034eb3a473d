#include "frmEinzelwerteLesenSchreiben.h"

#include "ui_frmEinzelwerteLesenSchreiben.h"

#include <utility>

namespace varnoth {

namespace {

/// The options of a group are known by their index from now on.
void Nummeriere(QButtonGroup& gruppe) {
    int index = 0;
    for (QAbstractButton* const option : gruppe.buttons())
        gruppe.setId(option, index++);
}

} // namespace

frmEinzelwerteLesenSchreiben::frmEinzelwerteLesenSchreiben(QWidget* parent)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent), ui(std::make_unique<Ui::frmEinzelwerteLesenSchreiben>()) {
    ui->setupUi(this);
    Nummeriere(*ui->OptAdressOffset);
    Nummeriere(*ui->optSubUnit);
    connect(ui->OptAdressOffset, &QButtonGroup::idToggled, this, [this](int index, bool gewaehlt) {
        if (gewaehlt)
            OptAdressOffset_Click(index);
    });
    connect(ui->txtAdresse, &QLineEdit::returnPressed, ui->cmdLesen, &QPushButton::click);
    connect(ui->cmdLesen, &QPushButton::clicked, this, [this] { cmdLesen_Click(); });
    connect(ui->cmdSchreiben, &QPushButton::clicked, this, [this] { cmdSchreiben_Click(); });
    Lade(*ui->cmdCancel);
    ui->txtAdresse->setFocus();
}

frmEinzelwerteLesenSchreiben::~frmEinzelwerteLesenSchreiben() = default;

void frmEinzelwerteLesenSchreiben::OptAdressOffset_Click(int index) {
    AdressOffset = BereichsOffset(index);
}

Einzelregister frmEinzelwerteLesenSchreiben::GewaehltesRegister() const {
    return {.optikteil = ui->optSubUnit->checkedId(),
            .adressOffset = AdressOffset,
            .adresse = ui->txtAdresse->text().toStdString()};
}

void frmEinzelwerteLesenSchreiben::cmdLesen_Click() {
    Tausche([wahl = GewaehltesRegister()] { return LiesEinzelwert(wahl); });
}

void frmEinzelwerteLesenSchreiben::cmdSchreiben_Click() {
    Tausche([wahl = GewaehltesRegister(), inhalt = ui->txtInhalt->text().toStdString()] {
        return SchreibeEinzelwert(wahl, inhalt);
    });
}

void frmEinzelwerteLesenSchreiben::Tausche(std::function<std::string()> was) {
    austausch = std::move(was);
    FuehreAus();
}

void frmEinzelwerteLesenSchreiben::SetzeKnoepfe(bool bereit) {
    ui->cmdLesen->setEnabled(bereit);
    ui->cmdSchreiben->setEnabled(bereit);
}

/// The focus of a button that is disabled waits in the content field; it would fall on the cancel button,
/// where the next key closes the dialog.
bool frmEinzelwerteLesenSchreiben::Ablauf() {
    QWidget* const davor = focusWidget();
    SetzeKnoepfe(false);
    const bool warKnopf = davor != nullptr && !davor->isEnabled();
    if (warKnopf)
        ui->txtInhalt->setFocus();
    ui->txtInhalt->setText(QString::fromStdString(austausch()));
    SetzeKnoepfe(true);
    if (warKnopf && focusWidget() == ui->txtInhalt)
        davor->setFocus();
    return true;
}

} // namespace varnoth
