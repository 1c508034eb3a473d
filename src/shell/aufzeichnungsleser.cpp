#include "aufzeichnungsleser.h"

#include "dateieingabe.h"
#include "vrecleser.h"
#include "vrecworte.h"

#include <utility>

namespace varnoth {

GeoeffneteAufzeichnung LiesAufzeichnung(const std::string& pfad,
                                        const std::function<bool(double anteil)>& weiter) {
    Eingabe eingabe = OeffneEingabe(pfad);
    if (eingabe.datei == nullptr)
        return {.fehlertext = std::move(eingabe.fehlertext)};
    auto leser = std::make_shared<Vrecleser>(std::move(eingabe.datei));
    while (leser->Arbeite())
        if (!weiter(leser->Anteil()))
            return {};
    std::string befund = Befundtext(leser->Zustand());
    if (leser->Zustand().befund != Vrecbefund::Gut)
        return {.fehlertext = std::move(befund)};
    return {.quelle = std::move(leser), .hinweis = std::move(befund)};
}

} // namespace varnoth
