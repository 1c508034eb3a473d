#include "quelle.h"

#include "dateien.h"
#include "geraetestand.h"
#include "konfigurationsdatei.h"
#include "lauf.h"
#include "lesevorgang.h"
#include "plausibilitaet.h"
#include "seriennummer.h"
#include "standardkonfiguration.h"
#include "standtext.h"
#include "texte.h"
#include "textmitwerten.h"
#include "vergleichsworte.h"
#include "zeichenwandel.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextQuelleGeraet = 9572;
constexpr std::int16_t TextQuelleWerk = 9575;
constexpr std::int16_t TextKeineSicherung = 9600;
constexpr std::int16_t TextSicherungNichtLesbar = 9921;
constexpr std::int16_t TextLesen = 8625;
constexpr std::int16_t TextUnplausibel = 8626;
constexpr std::int16_t TextDateifehler = 8627;
constexpr std::int16_t TextKeineKonfiguration = 8628;
constexpr std::int16_t TextKeineSicherungVon = 8629;
constexpr std::int16_t TextDateiversion = 3101;

constexpr std::string_view WortWerk = "default";
constexpr std::string_view WortSicherung = "backup";
constexpr std::string_view WortSicherungVon = "backup:";

constexpr std::size_t LaengsteDatei = LaengsterStandtext + 1;
static_assert(LaengsteDatei > LaengeKonfigurationsdatei);

Ende MeldeTextfehler(const Lauf& lauf, const std::string& pfad, const std::vector<Standfehler>& fehler) {
    for (const Standfehler& einer : fehler)
        lauf.konsole.Meldung(pfad + ": " + Fehlertext(einer));
    return lauf.Scheitere(Ende::Datei, LadeTextMit(TextKeineKonfiguration, {pfad}));
}

/// Whether it was meant to be a configuration as text, right or wrong.
bool IstText(const Standbefund& befund) {
    return befund.abbild || (befund.fehler.front().mangel != Standmangel::KeinStand &&
                             befund.fehler.front().mangel != Standmangel::ZuGross);
}

Ende LiesAusDatei(const Lauf& lauf, const std::string& pfad, Quelle& quelle) {
    const auto datei = LiesDatei(pfad, LaengsteDatei);
    if (!datei.gelungen)
        return lauf.Scheitere(Ende::Datei, LadeTextMit(TextDateifehler, {pfad, datei.fehlertext}));
    quelle.pfad = quelle.name = pfad;
    const Standbefund text = LiesStandtext(datei.bytes);
    if (IstText(text)) {
        quelle.abbild = text.abbild.value_or(Abbild());
        return text.abbild ? Ende::Erledigt : MeldeTextfehler(lauf, pfad, text.fehler);
    }
    switch (ZerlegeKonfigurationsdatei(datei.bytes, quelle.abbild)) {
    case Dateibefund::Gut:
        return Ende::Erledigt;
    case Dateibefund::UnbekannteVersion:
        return lauf.Scheitere(Ende::Datei, LadeTextMit(TextDateifehler, {pfad, LadeText(TextDateiversion)}));
    case Dateibefund::UnbekanntesFormat:
        break;
    }
    return lauf.Scheitere(Ende::Datei, LadeTextMit(TextKeineKonfiguration, {pfad}));
}

Ende LiesSicherung(const Lauf& lauf, const std::optional<std::string>& seriennummer, Quelle& quelle) {
    const auto neueste = NeuesteSicherung(seriennummer);
    if (!neueste)
        return lauf.Scheitere(Ende::Datei, seriennummer ? LadeTextMit(TextKeineSicherungVon, {*seriennummer})
                                                        : LadeText(TextKeineSicherung));
    const auto abbild = DieSicherungen()->Lies(*neueste);
    if (!abbild)
        return lauf.Scheitere(Ende::Datei, LadeTextMit(TextSicherungNichtLesbar, {neueste->pfad}));
    quelle.pfad = quelle.name = neueste->pfad;
    quelle.abbild = *abbild;
    return Ende::Erledigt;
}

} // namespace

Quellenart ArtVon(std::string_view wort) {
    if (wort == WortGeraet)
        return Quellenart::Geraet;
    if (wort == WortWerk)
        return Quellenart::Werk;
    return wort == WortSicherung || wort.starts_with(WortSicherungVon) ? Quellenart::Sicherung
                                                                       : Quellenart::Datei;
}

Ende LiesQuelle(const Lauf& lauf, std::string_view wort, Leitungszugang& zugang,
                const std::optional<std::string>& seriennummer, Quelle& quelle) {
    quelle.art = ArtVon(wort);
    switch (quelle.art) {
    case Quellenart::Datei:
        return LiesAusDatei(lauf, std::string(wort), quelle);
    case Quellenart::Sicherung:
        return LiesSicherung(lauf,
                             wort == WortSicherung
                                 ? seriennummer
                                 : std::optional(WortAlsUtf8(wort.substr(WortSicherungVon.size()))),
                             quelle);
    case Quellenart::Werk:
        quelle.name = LadeText(TextQuelleWerk);
        quelle.abbild = Standardkonfiguration();
        return Ende::Erledigt;
    case Quellenart::Geraet:
        break;
    }
    const Ende ende = zugang.Verbinde();
    return ende == Ende::Erledigt ? LiesSteuergeraet(lauf, zugang, quelle) : ende;
}

std::optional<Sicherung> NeuesteSicherung(const std::optional<std::string>& seriennummer) {
    for (const Sicherung& eine : DieSicherungen()->Alle())
        if (!seriennummer || eine.angaben.seriennummer == *seriennummer)
            return eine;
    return std::nullopt;
}

Ende LiesSteuergeraet(const Lauf& lauf, Leitungszugang& zugang, Quelle& quelle) {
    quelle.art = Quellenart::Geraet;
    quelle.name = LadeText(TextQuelleGeraet) + ", " + GeraeteSeriennummer();
    Geduld geduld(lauf);
    Geraeteabzug abzug;
    bool vollstaendig = false;
    {
        Fortgang fortgang(lauf, geduld, LadeText(TextLesen));
        vollstaendig = LiesGeraeteabzug(fortgang, abzug);
    }
    quelle.abbild = abzug.abbild;
    quelle.ungelesen = abzug.ungelesen;
    if (!vollstaendig)
        return zugang.EndeNachAbbruch();
    modGeraetestand::MerkeGelesen(abzug.abbild, GeraeteSeriennummer());
    return Ende::Erledigt;
}

bool PruefePlausibel(const Lauf& lauf, const Abbild& abbild) {
    const Parametermenge unplausible = UnplausibleStellen(abbild);
    if (!unplausible.empty())
        lauf.konsole.Meldung(LadeText(TextUnplausibel) + Wertzeilen(abbild, unplausible));
    return unplausible.empty();
}

std::string Quellentext(const Quelle& quelle) {
    return Standtext(quelle.art == Quellenart::Geraet ? OhneMomentanes(quelle.abbild) : quelle.abbild);
}

Json AlsJson(const Quelle& quelle) {
    constexpr const char* Namen[] = {"file", "device", "default", "backup"};
    return Json::Objekt({{"kind", Namen[static_cast<std::size_t>(quelle.art)]},
                         {"path", quelle.pfad.empty() ? Json() : Json(quelle.pfad)},
                         {"name", quelle.name}});
}

} // namespace varnoth::ctl
