// Any bytes as a record: opening it comes to an end, and what it gives is in order and can be read. Since a
// fuzzer does not find checksums, the first byte may say that what follows are the contents of blocks, which
// get right heads, or of a packet.

#include "messpaket.h"
#include "pruefe.h"
#include "speicherdatei.h"
#include "vrecleser.h"

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

enum Art : std::uint8_t { Datei, Bloecke, Paket };

/// A record of blocks: for each a byte with its kind, and two with the length of its content. Kind 0x80 and
/// above: bytes that are no block.
std::string AusBloecken(std::string_view bytes) {
    std::string datei(vrec::Kennung);
    datei += static_cast<char>(vrec::Version);
    while (!bytes.empty()) {
        const std::uint8_t art = NimmByte(bytes);
        const std::size_t laenge = NimmByte(bytes) + std::size_t{256} * NimmByte(bytes);
        const std::string_view inhalt = bytes.substr(0, laenge);
        bytes.remove_prefix(inhalt.size());
        datei += art < 0x80 ? vrec::AlsBlock(static_cast<vrec::Blockart>(art), inhalt) : std::string(inhalt);
    }
    return datei;
}

void PruefePaket(const Messpaket& paket) {
    Zeit letzte = paket.spanne.von;
    for (const Messdurchgang& durchgang : paket.durchgaenge) {
        Pruefe(durchgang.uhr >= letzte && durchgang.uhr <= paket.spanne.bis, "passes are in order");
        Pruefe(durchgang.anzahlTeile >= 0 && durchgang.anzahlTeile <= AnzahlOptikteile,
               "there are four parts");
        for (const Teilmessung& teil : durchgang.teile)
            Pruefe(teil.strahlen >= 0 && teil.strahlen <= 1009, "the beams of a part are bounded");
        letzte = durchgang.uhr;
    }
    Pruefe(paket.durchgaenge.size() <= GroessterPaketinhalt, "the passes of a packet are bounded");
}

void PruefeInhalt(std::string_view bytes) {
    const auto paket = PaketAus(bytes);
    if (!paket)
        return;
    PruefePaket(*paket);
    Pruefe(PaketAus(AlsBytes(*paket)) == paket, "what is written is what was read");
}

void PruefeDatei(std::string bytes) {
    const std::size_t groesse = bytes.size();
    Vrecleser leser(std::make_unique<pruefung::Speicherdatei>(std::move(bytes)));
    for (std::size_t i = 0; leser.Arbeite(); ++i)
        Pruefe(i <= groesse + 10, "opening comes to an end");
    Zeit letzte{};
    for (std::uint64_t nummer = leser.Erstes(); nummer < leser.Ende(); ++nummer) {
        const Zeitspanne spanne = leser.Spanne(nummer);
        Pruefe(spanne.von >= letzte && spanne.bis >= spanne.von, "packets are in order");
        Pruefe(leser.Spanne(leser.PaketUm(spanne.von)).von == spanne.von, "the packet of a time is found");
        letzte = spanne.bis;
        static_cast<void>(leser.Konfiguration(nummer));
        if (const auto paket = leser.Lies(nummer))
            PruefePaket(*paket);
    }
    const Uebersicht& uebersicht = leser.DieUebersicht();
    for (std::size_t i = 1; i < uebersicht.Anzahl(); ++i)
        Pruefe(uebersicht.Spanne(i - 1).bis < uebersicht.Spanne(i).von, "stretches do not overlap");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    std::string_view bytes = AlsText(daten, laenge);
    switch (NimmByte(bytes)) {
    case Bloecke:
        PruefeDatei(AusBloecken(bytes));
        break;
    case Paket:
        PruefeInhalt(bytes);
        break;
    default:
        PruefeDatei(std::string(bytes));
        break;
    }
    return 0;
}
