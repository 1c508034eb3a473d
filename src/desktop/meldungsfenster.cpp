#include "meldungsfenster.h"

#include "fenstervorn.h"
#include "knopfsymbole.h"
#include "symbolbild.h"
#include "texte.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>

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

/// Qt's own signs are pictures of one size, which a fine screen blurs.
void SetzeZeichen(QMessageBox& fenster, Symbol symbol) {
    auto* const platz = fenster.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    if (symbol == Symbol::Ohne || platz == nullptr)
        return;
    const QIcon bild =
        Symbolbild(symbol == Symbol::Frage ? QStringLiteral("frage") : QStringLiteral("warnung"));
    const int mass = fenster.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &fenster);
    platz->setPixmap(bild.pixmap(QSize(mass, mass), fenster.devicePixelRatio()));
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
    SetzeZeichen(fenster, meldung.symbol);
    if (meldung.abbrechenVorgegeben)
        fenster.setDefaultButton(QMessageBox::Cancel);
    fenster.setInformativeText(QString::fromStdString(meldung.informativtext));
    fenster.setDetailedText(QString::fromStdString(meldung.details));
    if (const auto* const knoepfe = fenster.findChild<QDialogButtonBox*>())
        GibKnoepfenSymbole(*knoepfe);
    fenster.setTextFormat(Qt::PlainText);
    for (QLabel* beschriftung : fenster.findChildren<QLabel*>())
        beschriftung->setTextFormat(Qt::PlainText);
    return AlsAntwort(fenster.exec());
}

} // namespace varnoth
