// The command that writes the report about a configuration.

#include "ablage.h"
#include "auftraege.h"
#include "klartext.h"
#include "konfigurationsbericht.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "programmversion.h"
#include "registeradressen.h"
#include "texte.h"
#include "textmitwerten.h"
#include "uhrzeit.h"
#include "zeichenwandel.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextGelesen = 9746;

Berichtsangaben Angaben(const Lauf& lauf, const Quelle& quelle) {
    const auto feld = [&lauf](const char* name) { return WortAlsUtf8(lauf.zeile.Wert(name).value_or("")); };
    Berichtsangaben angaben{.anlage = feld("plant"),
                            .maschine = feld("machine"),
                            .person = feld("person"),
                            .ausgestellt = Zeitpunkttext(),
                            .quelle = quelle.name,
                            .programmversion = std::string(Programmversion())};
    if (quelle.art != Quellenart::Geraet)
        return angaben;
    angaben.quelle = LadeTextMit(TextGelesen, {Zeitpunkttext()});
    angaben.geraetename = Geraetename();
    angaben.copyright = Geraetecopyright();
    angaben.geraetezustand =
        Klartext(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus,
                 quelle.abbild.HoleParameter(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus));
    return angaben;
}

} // namespace

Ende Report(Lauf& lauf) {
    Umwandlung umwandlung;
    if (const Ende ende = LiesFuerZiel(lauf, umwandlung); ende != Ende::Erledigt)
        return ende;
    const Quelle& quelle = umwandlung.quelle;
    return GibDokument(lauf, umwandlung, Bericht(quelle.abbild, Angaben(lauf, quelle)), "html");
}

} // namespace varnoth::ctl
