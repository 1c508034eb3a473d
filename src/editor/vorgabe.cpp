#include "vorgabe.h"

#include "klartext.h"
#include "registerabbild.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <tuple>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextAngekreuzt = 9622;
constexpr std::int16_t TextNichtAngekreuzt = 9623;

const Abbild& DieStandardkonfiguration() {
    static const Abbild standard = Standardkonfiguration();
    return standard;
}

Werte Vorgabewerte(const Parameterstelle& stelle) {
    return DieStandardkonfiguration().HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
}

QString Vorgabeworte(const Parameterstelle& stelle) {
    return QString::fromStdString(
        Klartext(stelle.bereich, stelle.adresse, Vorgabewerte(stelle),
                 LesartFuer(modDaten::DasAbbild(), stelle.bereich, stelle.optikteil)));
}

QString Beschriftung(const QAbstractButton* knopf) {
    return knopf == nullptr ? QString() : knopf->text().remove(u'&');
}

} // namespace

std::int32_t Vorgabewert(const Parameterstelle& stelle) {
    return Vorgabewerte(stelle).at(0);
}

Vorgabe VorgabeVon(QComboBox& box, const std::function<int()>& platz) {
    return {.elemente = {&box},
            .weichtAb = [&box, platz] { return box.currentIndex() != platz(); },
            .worte = [&box, platz] { return box.itemText(platz()); },
            .stelleZurueck = [&box, platz] { box.setCurrentIndex(platz()); }};
}

Vorgabe VorgabeVon(QButtonGroup& gruppe, const std::function<int()>& knopf) {
    const auto knoepfe = gruppe.buttons();
    return {.elemente = {knoepfe.begin(), knoepfe.end()},
            .weichtAb = [&gruppe, knopf] { return knopf() != -1 && gruppe.checkedId() != knopf(); },
            .worte = [&gruppe, knopf] { return Beschriftung(gruppe.button(knopf())); },
            .stelleZurueck = [&gruppe, knopf] { gruppe.button(knopf())->click(); },
            .traeger = [&gruppe]() -> const QWidget* { return gruppe.checkedButton(); }};
}

Vorgabe VorgabeVon(QCheckBox& kasten, bool angekreuzt) {
    return {.elemente = {&kasten},
            .weichtAb = [&kasten, angekreuzt] { return kasten.isChecked() != angekreuzt; },
            .worte =
                [angekreuzt] {
                    return QString::fromStdString(
                        LadeText(angekreuzt ? TextAngekreuzt : TextNichtAngekreuzt));
                },
            .stelleZurueck = [&kasten, angekreuzt] { kasten.setChecked(angekreuzt); }};
}

Vorgabe VorgabeVon(QLineEdit& feld, const QString& text) {
    return {.elemente = {&feld},
            .weichtAb = [&feld, text] { return feld.text() != text; },
            .worte = [text] { return text; },
            .stelleZurueck = [&feld, text] { feld.setText(text); }};
}

Vorgabe VorgabeVon(QPushButton& knopf, const Parameterstelle& stelle) {
    return {.elemente = {&knopf},
            .weichtAb =
                [stelle] {
                    return modDaten::HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil) !=
                           Vorgabewerte(stelle);
                },
            .worte = [stelle] { return Vorgabeworte(stelle); },
            .stelleZurueck =
                [stelle] {
                    std::ignore = modDaten::SetzeParameter(stelle.bereich, stelle.adresse,
                                                           Vorgabewerte(stelle), stelle.optikteil);
                }};
}

} // namespace varnoth
