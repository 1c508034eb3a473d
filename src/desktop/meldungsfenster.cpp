#include "meldungsfenster.h"

#include "fenstervorn.h"
#include "texte.h"

#include <QLabel>
#include <QMessageBox>

#include <utility>

namespace varnoth {

namespace {

QMessageBox::Icon AlsIcon(Symbol symbol) {
    switch (symbol) {
    case Symbol::Warnung:
        return QMessageBox::Warning;
    case Symbol::Frage:
        return QMessageBox::Question;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons AlsButtons(Knoepfe knoepfe) {
    switch (knoepfe) {
    case Knoepfe::OkAbbrechen:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Knoepfe::JaNeinAbbrechen:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

Antwort AlsAntwort(int knopf) {
    constexpr std::pair<int, Antwort> antworten[] = {
        {QMessageBox::Ok, Antwort::Ok}, {QMessageBox::Yes, Antwort::Ja}, {QMessageBox::No, Antwort::Nein}};
    for (const auto& [gedrueckt, antwort] : antworten)
        if (gedrueckt == knopf)
            return antwort;
    return Antwort::Abbrechen;
}

} // namespace

Antwort ZeigeMeldungsfenster(const Meldung& meldung) {
    const std::string& titel = meldung.titel.empty() ? LadeText(TextProgrammtitel) : meldung.titel;
    QMessageBox fenster(AlsIcon(meldung.symbol), QString::fromStdString(titel),
                        QString::fromStdString(meldung.text), AlsButtons(meldung.knoepfe), FensterVorn());
    fenster.setObjectName(QStringLiteral("Meldungsfenster"));
    if (meldung.abbrechenVorgegeben)
        fenster.setDefaultButton(QMessageBox::Cancel);
    fenster.setInformativeText(QString::fromStdString(meldung.informativtext));
    fenster.setDetailedText(QString::fromStdString(meldung.details));
    fenster.setTextFormat(Qt::PlainText);
    for (QLabel* beschriftung : fenster.findChildren<QLabel*>())
        beschriftung->setTextFormat(Qt::PlainText);
    return AlsAntwort(fenster.exec());
}

} // namespace varnoth
