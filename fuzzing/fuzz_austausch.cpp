// A row of reads over a line that sends replies a second time: whichever, when and how often, alone or with
// one bit changed, what the row takes over is what the controller holds, and the row comes to its end once
// the replies come once only.
//
// The first byte chooses how bytes become readable, the next ones the reads; what follows tells of one reply
// after the other whether and how it is repeated.

#include "austausch.h"
#include "proberegler.h"
#include "pruefe.h"
#include "schnittstelle.h"
#include "schrittfolge.h"
#include "startzustand.h"
#include "transaktionen.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;
using pruefung::Probefehler;
using pruefung::Proberegister;
using pruefung::Proberegler;

class Reihe {
public:
    explicit Reihe(std::string_view eingabe) : bytes(eingabe) {
        modSchnittstelle::SetzePort(&regler);
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        if (NimmByte(bytes) % 2 != 0)
            regler.leitung.Stelle({1, std::chrono::milliseconds(16)});
    }
    ~Reihe() { modSchnittstelle::SetzePort(nullptr); }
    Reihe(const Reihe&) = delete;
    Reihe& operator=(const Reihe&) = delete;

    void Laufe() {
        Schrittfolge folge(ZieheSchritte(), [this] { return ++versuche > MeisteVersuche; });
        folge.VerlangeGewissheit();
        regler.fehler = [this] { return ZieheWiederholung(); };
        Pruefe(folge.Laufe(), "a row comes to its end when the replies come once only");
    }

private:
    static constexpr int MeisteVersuche = 20000;

    /// Selections and, behind each, some reads of the part selected.
    std::vector<Transferschritt> ZieheSchritte() {
        constexpr int anzahlen[] = {1, 1, 2, 18};
        constexpr std::uint8_t meisteLesungen = 12;
        std::vector<Transferschritt> schritte;
        for (int gruppen = 1 + NimmByte(bytes) % 3; gruppen > 0; --gruppen) {
            const std::size_t auswahl = schritte.size();
            const int teil = NimmByte(bytes) % Proberegister::Optikteile;
            schritte.push_back(Schritt([teil] { return modModbus::WaehleOptikteil(teil); }, [] {}));
            for (int lesungen = 1 + NimmByte(bytes) % meisteLesungen; lesungen > 0; --lesungen) {
                const std::uint8_t byte = NimmByte(bytes);
                schritte.push_back(Lesung(0x2000 + byte / 4, anzahlen[byte % 4], teil));
                schritte.back().auswahl = auswahl;
            }
        }
        return schritte;
    }

    Transferschritt Lesung(int adresse, int anzahl, int teil) {
        const auto werte = std::make_shared<Werte>(static_cast<std::size_t>(anzahl));
        return Schritt(
            [=] {
                return modModbus::RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(adresse),
                                                            static_cast<std::uint16_t>(anzahl), *werte);
            },
            [=, this] {
                for (int i = 0; i < anzahl; ++i)
                    Pruefe(werte->at(static_cast<std::size_t>(i)) == regler.speicher.Wert(adresse + i, teil),
                           "what is taken over is the controller's");
            });
    }

    template<class Tausch, class Uebernahme>
    static Transferschritt Schritt(Tausch tausche, Uebernahme uebernimm) {
        return {.zeige = [](int /*versuch*/) {},
                .tausche = [=] { return tausche() != False; },
                .uebernimm = uebernimm};
    }

    /// Most replies come once.
    std::optional<Probefehler> ZieheWiederholung() {
        constexpr std::string_view arten[] = {"repeat", "repeat-twice", "repeat-flip", "repeat-earlier"};
        if (bytes.empty())
            return std::nullopt;
        const std::uint8_t byte = NimmByte(bytes);
        if (byte % 8 >= std::size(arten))
            return std::nullopt;
        const std::string_view art = arten[byte % 8];
        const int millisekunden = 2 * NimmByte(bytes);
        if (art == "repeat" || art == "repeat-twice")
            return Probefehler{.name = art, .wert = millisekunden};
        const int wert = art == "repeat-earlier" ? 1 + byte / 8 % 8 : 8 * byte + NimmByte(bytes) % 8;
        return Probefehler{.name = art, .wert = wert, .nach = millisekunden};
    }

    pruefung::PruefUmgebung umgebung;
    Proberegler regler{umgebung};
    std::string_view bytes;
    int versuche = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const Startzustand anfang;
    constexpr std::size_t hoechstens = 200;
    Reihe(AlsText(daten, std::min(laenge, hoechstens))).Laufe();
    return 0;
}
