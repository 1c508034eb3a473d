#include "ereignisablauf.h"

#include "dateidialog.h"
#include "dateiziel.h"
#include "frmEreignisse.h"

namespace varnoth {

Ereignisablauf::Ereignisablauf(Messanbieter& woher) : messungen(woher) {}

Ereignisablauf::~Ereignisablauf() = default;

void Ereignisablauf::Zeige() {
    if (fenster == nullptr)
        fenster = std::make_unique<frmEreignisse>(messungen, static_cast<Ereignisanbieter&>(*this));
    fenster->ZeigeVor();
}

void Ereignisablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Lokalisiere();
}

void Ereignisablauf::Schliesse() {
    sammler.Sieh();
    tagebuch.SchreibeAlles();
    if (fenster != nullptr)
        fenster->close();
}

std::optional<std::string> Ereignisablauf::FrageNachOrdner(const std::string& titel,
                                                           const std::string& anfang) {
    return FrageNachDatei(
        {.art = Dateiwahl::Ordner, .titel = titel, .ordner = anfang.empty() ? Dokumentordner() : anfang});
}

} // namespace varnoth
