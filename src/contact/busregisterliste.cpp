#include "busregisterliste.h"

#include "busregister.h"
#include "texte.h"
#include "textmitwerten.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace varnoth {

namespace {

constexpr std::int16_t TextAlleRegister = 8472;
constexpr std::int16_t TextOptikteil = 9550;

/// Packs what a number in the list's data can hold.
QVariant AlsDaten(const Registerbezug& bezug) {
    return QVariantList{static_cast<int>(bezug.bereich), bezug.adresse, bezug.anzahl};
}

std::optional<Registerbezug> AusDaten(const QVariant& daten) {
    const QVariantList zahlen = daten.toList();
    if (zahlen.size() != 3)
        return std::nullopt;
    return Registerbezug{static_cast<Speicherbereich>(zahlen[0].toInt()), zahlen[1].toInt(),
                         zahlen[2].toInt()};
}

/// The parts are not told apart here.
QString Eintragstext(const Registerbezug& bezug) {
    QString text = QString::fromStdString(Registerworte(bezug, -1));
    return text.replace(QString::fromStdString(LadeTextMit(TextOptikteil, {"?"})),
                        QString::fromStdString(LadeTextMit(TextOptikteil, {"1-4"})));
}

void Ergaenze(QComboBox& liste, const Registerbezug& bezug) {
    liste.addItem(Eintragstext(bezug), AlsDaten(bezug));
}

} // namespace

void FuelleRegisterliste(QComboBox& liste) {
    const auto gewaehlter = GewaehlterBezug(liste);
    const QSignalBlocker stumm(&liste);
    liste.clear();
    liste.addItem(QString::fromStdString(LadeText(TextAlleRegister)));
    for (const Registername& name : AlleRegisternamen())
        Ergaenze(liste, {name.bereich, name.adresse, name.anzahl});
    if (gewaehlter)
        WaehleBezug(liste, *gewaehlter);
}

std::optional<Registerbezug> GewaehlterBezug(const QComboBox& liste) {
    return AusDaten(liste.currentData());
}

void WaehleBezug(QComboBox& liste, const Registerbezug& bezug) {
    if (liste.findData(AlsDaten(bezug)) < 0)
        Ergaenze(liste, bezug);
    liste.setCurrentIndex(liste.findData(AlsDaten(bezug)));
}

} // namespace varnoth
