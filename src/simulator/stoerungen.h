#pragma once

#include "geraetecrc.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <optional>
#include <string_view>
#include <vector>

namespace varnoth::simulator {

/// Bytes that leave in one go, after a pause.
struct Stueck {
    std::chrono::milliseconds pause{0};
    Bytes zeichen{};
};

/// A reply on its way: usually one piece without a pause; none at all is silence.
using Sendung = std::vector<Stueck>;

/// The last whole replies as they should have been, the newest at the end.
class Antwortverlauf {
public:
    static constexpr std::size_t Laenge = 32;

    void Nimm(const Bytes& antwort);
    /// The reply before the newest one by so many, from 1; nullptr when there is none.
    const Bytes* Frueher(int zurueck) const;

private:
    std::deque<Bytes> antworten;
};

/// What a fault does its work with.
struct Umstaende {
    int wert;                       ///< the argument
    std::chrono::milliseconds nach; ///< after which a repeated reply comes
    const Antwortverlauf& verlauf;  ///< its newest reply is the one that goes wrong
};

/// Where a fault strikes: at the reply, or at a write that touches the register its argument names, which is
/// confirmed all the same.
enum class Eingriff {
    Antwort,
    Vergessen, ///< the register keeps what it held
    Neustart,  ///< the controller starts anew just before it takes the write
};

/// A way for a reply to go wrong.
struct Stoerungsart {
    std::string_view name;
    int vorgabe;  ///< argument when none is given
    int groesste; ///< greatest argument
    void (*verfaelsche)(Sendung& sendung, const Umstaende& umstaende);
    bool lehntAb;          ///< the request is refused and not carried out
    int vorgabeNach = 0;   ///< milliseconds when none are given
    int groesstesNach = 0; ///< 0 = it takes none
    Eingriff eingriff = Eingriff::Antwort;
};

/// One fault on demand.
struct Stoerung {
    const Stoerungsart* art;
    int wert;
    std::optional<int> anzahl{};   ///< for so many replies, without a number until it is taken back
    std::optional<int> funktion{}; ///< only for replies to this function
    int nach = 0;                  ///< milliseconds; of a fault at a write: how many it still lets pass

    void Verfaelsche(Sendung& sendung, const Antwortverlauf& verlauf) const;
};

/// Reads "NAME[=ARGUMENT[,MS]][:COUNT][@FUNCTION]", for example "late=1500:3@0x03". Names: silence, crc,
/// address, exception=CODE, stray=BYTES, pieces=MS, surplus=BYTES, late=MS, flip=BIT, and what sends a reply
/// again behind itself: repeat=MS, repeat-twice=MS, repeat-flip=BIT,MS (with one bit changed),
/// repeat-earlier=BACK,MS (the one sent so many replies earlier). At a write that touches a device address:
/// forget=ADDRESS,PASS, restart-at=ADDRESS,PASS, the first PASS such writes going undisturbed.
/// @throws std::invalid_argument with a sentence for the user
Stoerung LiesStoerung(std::string_view text);

/// The faults in force. The oldest that fits a reply is the one it suffers.
class Stoerungen {
public:
    void Fuege(const Stoerung& stoerung) { liste.push_back(stoerung); }
    void Loesche() { liste.clear(); }
    /// The fault for the next reply to a function, counted down.
    std::optional<Stoerung> Nimm(int funktion);
    /// The registers of a write of so many from a device address on at which such a fault strikes, each
    /// counted down.
    std::vector<int> NimmSchreibend(Eingriff eingriff, int adresse, int anzahl);

private:
    void ZaehleHerunter(std::vector<Stoerung>::iterator stoerung);

    std::vector<Stoerung> liste;
};

} // namespace varnoth::simulator
