#include "registerjson.h"

#include "klartext.h"
#include "registerwahl.h"
#include "vergleichsworte.h"

namespace varnoth::ctl {

namespace {

const char* Bereichsname(Speicherbereich bereich) {
    switch (bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        return "global";
    case Speicherbereich::SpezifischeGeraetedaten:
        return "specific";
    case Speicherbereich::Kommunikationsdaten:
        break;
    }
    return "communication";
}

const char* Klassenname(Vergleichsklasse klasse) {
    switch (klasse) {
    case Vergleichsklasse::Gleich:
        return "equal";
    case Vergleichsklasse::Verschieden:
        return "different";
    case Vergleichsklasse::NurInA:
        return "onlyInA";
    case Vergleichsklasse::NurInB:
        return "onlyInB";
    case Vergleichsklasse::NichtLesbar:
        break;
    }
    return "notReadable";
}

} // namespace

std::vector<Json::Feld> Ortsfelder(const Transferparameter& parameter) {
    const auto& [bereich, adresse, anzahl, teil] = parameter;
    const bool istTeil = Exemplare(bereich) > 1;
    return {{"group", Gruppenname({bereich, adresse, teil})},
            {"name", IstParameter(parameter) ? Json(Parametername(bereich, adresse)) : Json()},
            {"range", Bereichsname(bereich)},
            {"part", istTeil ? Json(teil + 1) : Json()},
            {"register", Json(std::int32_t{adresse})},
            {"deviceAddress", Json(std::int32_t{Geraeteadresse(bereich, adresse)})}};
}

std::vector<Json::Feld> Ortsfelder(const Parameterstelle& stelle) {
    return Ortsfelder(Transferparameter{stelle.bereich, stelle.adresse,
                                        Beschreibung(stelle.bereich, stelle.adresse).Laenge,
                                        static_cast<std::int16_t>(stelle.optikteil)});
}

Json WertAlsJson(const Abbild& abbild, const Parameterstelle& stelle) {
    const Werte werte = abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
    return Json::Objekt(Ortsfelder(stelle),
                        {{"words", Klartext(stelle.bereich, stelle.adresse, werte,
                                            LesartFuer(abbild, stelle.bereich, stelle.optikteil))},
                         {"values", Json::Zahlen(werte)}});
}

Json ZeileAlsJson(const Vergleichsworte& worte, const Vergleichszeile& zeile, const Vergleichsbild& a,
                  const Vergleichsbild& b) {
    return Json::Objekt(Ortsfelder(worte.stelle), {{"class", Klassenname(worte.klasse)},
                                                   {"a", zeile.HatA(a.ungelesen) ? Json(worte.a) : Json()},
                                                   {"b", zeile.HatB(b.ungelesen) ? Json(worte.b) : Json()}});
}

Json BefundAlsJson(const Registerbefund& befund, std::string_view links, std::string_view rechts) {
    return Jsonliste(befund.zeilen, [&](const Registerzeile& zeile) {
        return Json::Objekt(Ortsfelder(zeile.stelle), {{links, zeile.links}, {rechts, zeile.rechts}});
    });
}

} // namespace varnoth::ctl
