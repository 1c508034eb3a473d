#include "knopfsymbole.h"

#include "symbolbild.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <string>

namespace varnoth {

namespace {

struct Knopfsymbol {
    std::string_view name;
    std::string_view symbol;
};

constexpr Knopfsymbol DieSymbole[] = {
    {"cmdOK", "ok"},
    {"cmdUebernehmen", "ok"},
    {"cmdCancel", "abbrechen"},
    {"cmdWeiter", "weiter"},
    {"cmdVor", "weiter"},
    {"cmdZurück", "zurueck"},
    {"cmdStart", "schreiben"},
    {"cmdDownLoad", "schreiben"},
    {"cmdSchreiben", "schreiben"},
    {"cmdLesen", "lesen"},
    {"cmdReset", "neustart"},
    {"cmdReihenfolge", "reihenfolge"},
    {"cmdBlankingmuster", "blanking"},
    {"cmdWillkommenVerbinden", "verbinden"},
    {"cmdWillkommenSuchen", "anschluss"},
    {"cmdWillkommenOeffnen", "oeffnen"},
    {"cmdWillkommenNeu", "neu"},
    {"cmdWillkommenSimuliert", "simuliert"},
    {"cmdWillkommenHilfe", "hilfe"},
    {"cmdOeffnen", "oeffnen"},
    {"cmdSpeichern", "speichern"},
    {"cmdDrucken", "drucken"},
    {"cmdLoeschen", "loeschen"},
    {"cmdLeeren", "loeschen"},
    {"cmdSupport", "bericht"},
    {"cmdVergleichen", "vergleich"},
    {"cmdAenderungen", "vergleich"},
    {"cmdVoriger", "zurueck"},
    {"cmdNaechster", "weiter"},
    {"cmdAlle", "ok"},
    {"cmdAllesBlanking", "alle"},
    {"cmdKeinBlanking", "keine"},
    {"cmdKopieren", "kopieren"},
    {"cmdBild", "kopieren"},
    {"cmdTabelle", "speichern"},
    {"cmdBlanking", "blanking"},
    {"cmdBericht", "bericht"},
    {"cmdPdf", "speichern"},
    {"cmdHtml", "speichern"},
    {"cmdTextExport", "speichern"},
    {"cmdTextImport", "oeffnen"},
    {"cmdSchliessen", "abbrechen"},
    {"cmdSuchen", "suchen"},
    {"cmdPruefen", "suchen"},
    {"cmdAnhalten", "stopp"},
    {"cmdGeben", "anschluss"},
    {"cmdVerwerfen", "zurueck"},
    {"cmdVerzoegerung", "ok"},
    {"cmdVerwenden", "verbinden"},
    {"cmdVerbinden", "verbinden"},
    {"cmdEreignisZurueck", "ereigniszurueck"},
    {"cmdDurchgangZurueck", "schrittzurueck"},
    {"cmdDurchgangVor", "schrittvor"},
    {"cmdEreignisVor", "ereignisvor"},
    {"cmdAufzeichnungKonfiguration", "konfiguration"},
    {"cmdVerlassen", "beenden"},
    {"cmdAbspielen", "abspielen"},
    {"cmdAufzeichnen", "aufnahme"},
    {"cmdOrdner", "oeffnen"},
    {"cmdOrdnerZeigen", "oeffnen"},
    {"cmdSichern", "speichern"},
    {"cmdAlles", "allezeit"},
    {"cmdZeitraum", "loeschen"},
    {"cmdMarkeA", "marke"},
    {"cmdMarkeB", "marke"},
    {"cmdMarkenWeg", "loeschen"},
    {"cmdNotizJetzt", "notiz"},
    {"cmdNotizZeiger", "notiz"},
    {"frmInfo/Command1", "ok"},
    {"frmReihenfolge/Command1", "davor"},
    {"frmReihenfolge/Command2", "danach"},
    {"frmReihenfolge/Command3", "loeschen"},
};

struct Standardsymbol {
    QDialogButtonBox::StandardButton knopf;
    std::string_view symbol;
};

constexpr Standardsymbol DieStandardsymbole[] = {
    {QDialogButtonBox::Ok, "ok"},
    {QDialogButtonBox::Yes, "ok"},
    {QDialogButtonBox::Cancel, "abbrechen"},
    {QDialogButtonBox::Open, "oeffnen"},
    {QDialogButtonBox::Save, "speichern"},
};

QIcon Bild(std::string_view symbol) {
    if (symbol.empty())
        return {};
    return Symbolbild(QLatin1String(symbol.data(), static_cast<qsizetype>(symbol.size())));
}

/// The name of one of several, such as "cmdBlankingmuster_2", without its index.
std::string OhneIndex(const std::string& name) {
    const auto strich = name.rfind('_');
    if (strich == std::string::npos || name.find_first_not_of("0123456789", strich + 1) != std::string::npos)
        return name;
    return name.substr(0, strich);
}

} // namespace

std::string_view SymbolFuerKnopf(const std::string& form, const std::string& name) {
    const std::string allgemein = OhneIndex(name);
    const std::string genau = form + "/" + name;
    const auto* const da = std::ranges::find_if(
        DieSymbole, [&](const auto& zeile) { return zeile.name == allgemein || zeile.name == genau; });
    return da == std::ranges::end(DieSymbole) ? std::string_view() : da->symbol;
}

void GibKnoepfenSymbole(QWidget& form) {
    for (auto* knopf : form.findChildren<QPushButton*>()) {
        const std::string name = knopf->objectName().toStdString();
        const std::string_view symbol = SymbolFuerKnopf(form.objectName().toStdString(), name);
        if (!symbol.empty() && knopf->icon().isNull() && knopf->window() == form.window())
            knopf->setIcon(Bild(symbol));
    }
}

void GibKnoepfenSymbole(const QDialogButtonBox& knoepfe) {
    for (QAbstractButton* knopf : knoepfe.buttons()) {
        const auto* const da =
            std::ranges::find(DieStandardsymbole, knoepfe.standardButton(knopf), &Standardsymbol::knopf);
        knopf->setIcon(Bild(da == std::ranges::end(DieStandardsymbole) ? std::string_view() : da->symbol));
    }
}

} // namespace varnoth
