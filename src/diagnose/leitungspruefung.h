#pragma once

#include "portangabe.h"
#include "umgebung.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// How an identification of the line check has ended.
enum class Pruefende {
    Beantwortet,
    Nichts,       ///< no byte came
    FalscheSumme, ///< a whole reply whose checksum is wrong
    Halb,         ///< a reply that ends too early
    Fremdes,      ///< bytes that are no reply
    Echo,         ///< what was sent came back
};
inline constexpr std::size_t Pruefenden = 6;

/// What is to be checked and how.
struct Pruefauftrag {
    int anzahl = 200;  ///< identifications
    Portangabe port{}; ///< of the device, for what it tells of the adapter; may be empty
};

struct Pruefbefund {
    std::string geraet{};                 ///< the device that was checked; empty where there is none
    std::string format{};                 ///< its line format
    Portangabe port{};                    ///< as in the order
    int gesendet = 0;                     ///< identifications that were sent and have ended
    std::array<int, Pruefenden> anzahl{}; ///< by Pruefende
    /// Of those that were answered, rising: from the handing over of the request to the end of the reply.
    std::vector<Zeit> umlaufzeiten{};
    std::size_t antwortlaenge = 0; ///< bytes of the last reply
    int spaete = 0;                ///< replies that came when they were not waited for any more
    int ungefragte = 0;            ///< exchanges before whose request other bytes had come
    int beigaben = 0;              ///< replies with other bytes beside them
    int fremdeAnfragen = 0;        ///< exchanges in which another master's request was heard
    int datenbloecke = 0;          ///< exchanges in which a data block was heard that nobody had asked for
    int gebrochene = 0;            ///< replies that failed with bytes that the system marked as broken ("?")
    bool abgebrochen = false;
    bool portVerloren = false; ///< the line disappeared
    std::string portfehler{};  ///< why the port could not be opened, in words; empty when it could

    int Anzahl(Pruefende ende) const { return anzahl.at(static_cast<std::size_t>(ende)); }
};

/// Who watches a line check.
class Pruefzeiger {
public:
    Pruefzeiger() = default;
    Pruefzeiger(const Pruefzeiger&) = delete;
    Pruefzeiger& operator=(const Pruefzeiger&) = delete;
    virtual ~Pruefzeiger() = default;

    /// Another identification has ended.
    virtual void Zeige(const Pruefbefund& bisher) = 0;
    /// Whether the check is to end now.
    virtual bool Abgebrochen() = 0;
};

/// Asks for so many identifications on the port in use, which it opens and closes. Nothing else is sent.
/// Stops early when told to, and when the line disappears. Must not run while the port is in use.
Pruefbefund PruefeLeitung(const Pruefauftrag& auftrag, Pruefzeiger& zeiger);

/// The round trip that so many per cent (0 to 100) of the replies did not exceed; nothing where there is
/// none.
std::optional<Zeit> Umlaufzeit(const Pruefbefund& befund, int prozent);

/// A line of numbers, in the current language.
struct Pruefzeile {
    std::string name;
    std::string wert;
    std::string schluessel; ///< its name for programs, in English; the same in both languages

    bool operator==(const Pruefzeile&) const = default;
};
std::vector<Pruefzeile> Pruefzeilen(const Pruefbefund& befund);

/// What the numbers mean.
enum class Deutungsart {
    InOrdnung,      ///< all was answered
    NichtGeoeffnet, ///< the port could not be opened
    NichtsGesendet, ///< ended before the first reply
    PortVerloren,   ///< the line disappeared
    KeineAntwort,   ///< never anything came
    Echo,           ///< what is sent comes back
    ZweiterMaster,  ///< another master is on the line
    Autosend,       ///< somebody sends unasked, most likely the controller itself
    Format,         ///< speed or parity is wrong
    Reflexion,      ///< replies arrive damaged
    Spaet,          ///< replies come late
    Aussetzer,      ///< replies are missing now and then
    Verzoegerung,   ///< the adapter holds bytes back
};

/// One thing that the numbers say, in plain words of the current language.
struct Deutung {
    Deutungsart art;
    std::string text;

    bool operator==(const Deutung&) const = default;
};

/// What the check says, the gravest first; never empty.
std::vector<Deutung> Deute(const Pruefbefund& befund);

/// Numbers and meaning as text, for the clipboard.
std::string Pruefbericht(const Pruefbefund& befund);

} // namespace varnoth
