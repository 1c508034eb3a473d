#include "frmBericht.h"

#include "einstellungen.h"
#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "seiteneinrichtung.h"
#include "standtext.h"
#include "textmitwerten.h"
#include "ui_frmBericht.h"
#include "umgebung.h"

#include <QPrinter>
#include <QTimer>

namespace varnoth {

namespace {

constexpr const char* Abschnittname = "frmBericht";

constexpr std::int16_t TextVorschau = 6793;
constexpr std::int16_t TextSeitenzahl = 9737;
constexpr std::int16_t TextSeiteVon = 9738;
constexpr std::int16_t TextKeinDrucker = 9739;
constexpr std::int16_t TextNichtGedruckt = 9740;
constexpr std::int16_t TextKeinPdf = 9923;
constexpr std::int16_t TextPdffilter = 9741;
constexpr std::int16_t TextHtmlfilter = 9742;
constexpr std::int16_t TextTextfilter = 9674;

constexpr int VerzugMs = 300; // between a typed letter and the new preview

} // namespace

frmBericht::frmBericht(Berichtsumfeld neues, QWidget* parent)
    : QDialog(parent), umfeld(std::move(neues)), ui(std::make_unique<Ui::frmBericht>()),
      verzug(new QTimer(this)) {
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    verzug->setSingleShot(true);
    verzug->setInterval(VerzugMs);
    LokalisiereForm(*this);
    ui->vorschau->setAccessibleName(QString::fromStdString(LadeText(TextVorschau)));
    for (const auto& [eingabe, schluessel] : Eingaben())
        eingabe->setText(QString::fromStdString(DieEinstellungen().LiesText(Abschnittname, schluessel, "")));
    ui->chkStrahlstatistik->setVisible(umfeld.strahlen.has_value());
    ui->chkStrahlstatistik->setChecked(umfeld.strahlen && umfeld.mitStrahlen);
    Verbinde();
    StelleFensterHer(*this, Abschnittname);
    Zeige();
}

frmBericht::~frmBericht() = default;

std::vector<std::pair<QLineEdit*, const char*>> frmBericht::Eingaben() const {
    return {{ui->txtAnlage, "Anlage"}, {ui->txtMaschine, "Maschine"}, {ui->txtPerson, "Person"}};
}

void frmBericht::Verbinde() {
    connect(ui->vorschau, &Seitenvorschau::Gezeigt, this, [this] { NenneSeiten(); });
    connect(verzug, &QTimer::timeout, this, [this] { Zeige(); });
    for (const auto& [eingabe, schluessel] : Eingaben())
        connect(eingabe, &QLineEdit::textEdited, verzug, qOverload<>(&QTimer::start));
    connect(ui->chkStrahlstatistik, &QCheckBox::toggled, this, [this] { Zeige(); });
    connect(ui->cmdDrucken, &QPushButton::clicked, this, [this] { DruckeAufPapier(); });
    connect(ui->cmdPdf, &QPushButton::clicked, this, [this] { SpeicherePdf(); });
    connect(ui->cmdHtml, &QPushButton::clicked, this,
            [this] { umfeld.speichere(LadeText(TextHtmlfilter), umfeld.name + ".html", Html()); });
    connect(ui->cmdTextExport, &QPushButton::clicked, this, [this] {
        umfeld.speichere(LadeText(TextTextfilter), umfeld.name + ".txt",
                         Standtext(OhneMomentanes(umfeld.abbild())));
    });
    ui->cmdTextImport->setVisible(umfeld.importiereText != nullptr);
    connect(ui->cmdTextImport, &QPushButton::clicked, this, [this] { ImportiereText(); });
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &QDialog::reject);
}

Berichtsangaben frmBericht::Angaben() const {
    Berichtsangaben angaben = umfeld.angaben();
    angaben.anlage = ui->txtAnlage->text().toStdString();
    angaben.maschine = ui->txtMaschine->text().toStdString();
    angaben.person = ui->txtPerson->text().toStdString();
    if (ui->chkStrahlstatistik->isChecked())
        angaben.strahlen = umfeld.strahlen;
    return angaben;
}

std::string frmBericht::Html() const {
    return Bericht(umfeld.abbild(), Angaben());
}

Berichtsdruck frmBericht::Druck() const {
    return {QString::fromStdString(Html()), QString::fromStdString(Berichtsfuss(umfeld.abbild(), Angaben())),
            QString::fromStdString(LadeText(TextSeiteVon))};
}

void frmBericht::Zeige() {
    ui->vorschau->Zeige(Druck());
}

void frmBericht::NenneSeiten() {
    const std::string seiten = std::to_string(ui->vorschau->Seitenzahl());
    ui->lblSeiten->setText(QString::fromStdString(LadeTextMit(TextSeitenzahl, {seiten})));
}

void frmBericht::DruckeAufPapier() {
    if (umfeld.drucker().isEmpty())
        return ZeigeWarnung(LadeText(TextKeinDrucker));
    QPrinter drucker(QPrinter::HighResolution);
    RichteSeiteEin(drucker);
    drucker.setDocName(windowTitle());
    if (umfeld.waehleDrucker(drucker, *this) && !Drucke(Druck(), drucker))
        ZeigeWarnung(LadeText(TextNichtGedruckt));
}

void frmBericht::SpeicherePdf() {
    const QByteArray pdf = umfeld.machePdf(Druck(), windowTitle());
    if (pdf.isEmpty())
        return ZeigeWarnung(LadeText(TextKeinPdf));
    umfeld.speichere(LadeText(TextPdffilter), umfeld.name + ".pdf", pdf.toStdString());
}

void frmBericht::ImportiereText() {
    umfeld.importiereText();
    Zeige();
}

void frmBericht::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    VerfolgePlatz(*this);
}

void frmBericht::done(int ergebnis) {
    for (const auto& [eingabe, schluessel] : Eingaben())
        DieEinstellungen().SchreibText(Abschnittname, schluessel, eingabe->text().toStdString());
    BewahreFensterplatz(*this, Abschnittname);
    QDialog::done(ergebnis);
}

} // namespace varnoth
