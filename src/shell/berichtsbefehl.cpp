#include "berichtsbefehl.h"

#include "dateiziel.h"
#include "frmBericht.h"
#include "geraetestand.h"
#include "klartext.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standtext.h"
#include "textimport.h"
#include "textmitwerten.h"
#include "transaktionen.h"
#include "versionstext.h"

#include <QDateTime>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <chrono>

namespace varnoth {

namespace {

constexpr std::int16_t TextGelesen = 9746;
constexpr std::int16_t TextTeilzustand = 9904;

QString Zeittext(const QDateTime& zeit) {
    return zeit.toString(GetSprachoffset() == Englisch ? QStringLiteral("MM/dd/yyyy HH:mm")
                                                       : QStringLiteral("dd.MM.yyyy HH:mm"));
}

std::string Namensvorschlag() {
    const QString name = QFileInfo(QString::fromStdString(modDaten::GetDateiname())).completeBaseName();
    return name.isEmpty() ? std::string("Varnoth") : name.toStdString();
}

QString Zeittext(std::chrono::system_clock::time_point zeit) {
    return Zeittext(QDateTime::fromSecsSinceEpoch(std::chrono::system_clock::to_time_t(zeit)));
}

void NenneTeilzustaende(Berichtsangaben& angaben) {
    const auto zustaende = modGeraetestand::HoleTeilzustaende();
    if (!zustaende)
        return;
    for (std::size_t teil = 0; teil < zustaende->status.size(); ++teil)
        angaben.teilzustaende.at(teil) = LadeTextMit(
            TextTeilzustand, {Zeittext(zustaende->zeit).toStdString(),
                              Klartext(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Optikteilstatus,
                                       {zustaende->status.at(teil)})});
}

/// Where the configuration comes from, if it is still the one that the controller held when it was read.
void NenneGeraet(Berichtsangaben& angaben) {
    const auto stand = modGeraetestand::HoleGeraetestand();
    if (!stand || !stand->IstGelesen() ||
        OhneMomentanes(stand->abbild) != OhneMomentanes(modDaten::DasAbbild()))
        return;
    angaben.quelle = LadeTextMit(TextGelesen, {Zeittext(*stand->gelesen).toStdString()});
    angaben.geraetezustand =
        Klartext(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus,
                 stand->abbild.HoleParameter(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus));
    NenneTeilzustaende(angaben);
    if (stand->ausDieserVerbindung && modModbus::GetIdentGueltig() != False) {
        angaben.geraetename = modModbus::GetIdentText1();
        angaben.copyright = modModbus::GetIdentText3();
    }
}

Berichtsangaben Grundangaben() {
    Berichtsangaben angaben;
    angaben.ausgestellt = Zeittext(QDateTime::currentDateTime()).toStdString();
    angaben.programmversion = Versionstext().toStdString();
    return angaben;
}

Berichtsangaben Angaben() {
    Berichtsangaben angaben = Grundangaben();
    NenneGeraet(angaben);
    return angaben;
}

bool WaehleDrucker(QPrinter& drucker, QWidget& ueber) {
    return QPrintDialog(&drucker, &ueber).exec() == QDialog::Accepted;
}

} // namespace

void ZeigeBericht(QWidget* eltern, const std::function<void()>& nachImport) {
    const auto importiere = [&nachImport] {
        if (ImportiereKonfigurationstext())
            nachImport();
    };
    frmBericht({.angaben = Angaben,
                .name = Namensvorschlag(),
                .speichere = SpeichereDokument,
                .importiereText = importiere,
                .drucker = QPrinterInfo::availablePrinterNames,
                .waehleDrucker = WaehleDrucker},
               eltern)
        .exec();
}

void ZeigeBerichtUeber(QWidget* eltern, const Abbild& abbild, const std::string& quelle,
                       const std::string& name) {
    const auto angaben = [&quelle] {
        Berichtsangaben diese = Grundangaben();
        diese.quelle = quelle;
        return diese;
    };
    frmBericht({.abbild = [&abbild]() -> const Abbild& { return abbild; },
                .angaben = angaben,
                .name = name,
                .speichere = SpeichereDokument,
                .drucker = QPrinterInfo::availablePrinterNames,
                .waehleDrucker = WaehleDrucker},
               eltern)
        .exec();
}

} // namespace varnoth
