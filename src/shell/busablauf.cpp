#include "busablauf.h"

#include "dateien.h"
#include "dateiziel.h"
#include "frmBusprotokoll.h"
#include "konfigurationsbefehle.h"
#include "supporttext.h"
#include "umgebung.h"
#include "verbindungsauskunft.h"

#include <utility>

namespace varnoth {

namespace {

constexpr std::size_t GroessteEinstellungen = std::size_t{1} << 20U;

/// What stands in the way is told only where something does.
std::string Verbindung() {
    const auto fehlschlag = AuskunftNachFehlschlag();
    return fehlschlag ? fehlschlag->ursache + "\n" + fehlschlag->einzelheiten
                      : LiesVerbindungsauskunft().anschluss;
}

} // namespace

Busablauf::Busablauf(std::function<QString()> woDieEinstellungenLiegen)
    : einstellungsdatei(std::move(woDieEinstellungenLiegen)) {}

Busablauf::~Busablauf() = default;

void Busablauf::Zeige() {
    if (fenster == nullptr)
        fenster = std::make_unique<frmBusprotokoll>(static_cast<Protokollanbieter&>(*this));
    fenster->ZeigeVor();
}

void Busablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Lokalisiere();
}

void Busablauf::Schliesse() {
    if (fenster != nullptr)
        fenster->close();
}

std::optional<std::string> Busablauf::FrageNachDatei(const std::string& titel, const std::string& filter,
                                                     const std::string& name) {
    auto pfad = FrageNachZiel({.titel = titel, .filter = filter, .ordner = Dokumentordner(), .name = name});
    if (pfad)
        MerkeDokumentordner(*pfad);
    return pfad;
}

bool Busablauf::Schreibe(const std::string& pfad, const std::string& bytes) {
    const std::string fehler = ErsetzeDatei(pfad, bytes);
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, pfad));
    return fehler.empty();
}

Supportangaben Busablauf::Angaben() {
    const QString datei = einstellungsdatei();
    return {.umfeld = Supporttext(datei).toStdString(),
            .verbindung = Verbindung(),
            .einstellungen = LiesDatei(datei.toStdString(), GroessteEinstellungen).bytes};
}

} // namespace varnoth
