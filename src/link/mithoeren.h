#pragma once

#include "umgebung.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

/// Why something went over the line.
enum class Austauschart : std::uint8_t {
    Auftrag,     ///< the program asked or told the controller something
    Klaerung,    ///< an identification that settles whose turn it is
    OhneAntwort, ///< a frame that has no reply
    Ungefragt,   ///< bytes came that nobody was waiting for
};

/// What became of it.
enum class Austauschergebnis : std::uint8_t {
    Beantwortet,
    Zeitueberschreitung, ///< nothing came, or not all of the reply
    Pruefsumme,          ///< a reply came broken
    Verspaetet,          ///< a reply came too late to be believed, or to be waited for
    Fremd,               ///< something came that is no reply to the request
    Echo,                ///< what was sent came back
    Abgelehnt,           ///< the controller refused the request
    Gesendet,            ///< sent, and no reply is expected
    NichtGesendet,       ///< the line could not be got ready for the request
    KeinPort,            ///< there was no open port, or its line disappeared
};

/// One exchange as it was on the line. The bytes live as long as the call that hands them over.
struct Mitschnitt {
    Austauschart art{};
    Austauschergebnis ergebnis{};
    std::string_view anforderung{}; ///< what was sent or, when it was not sent, was to be
    std::string_view empfangen{};   ///< all that came for it, in the order of arrival
    Zeit gesendet{};                ///< when the request was handed to the port; unasked: the first arrival
    Zeit letztesByte{};             ///< when the last of what came was read; `gesendet` when nothing came
    bool aufgehalten{}; ///< the window held the program up meanwhile: it may have come long before
};

/// Hears of every exchange when it has ended. It must be quick, as the next request waits for it, and must
/// neither talk to the controller nor run events.
class Mithoerer {
public:
    Mithoerer() = default;
    Mithoerer(const Mithoerer&) = delete;
    Mithoerer& operator=(const Mithoerer&) = delete;
    virtual ~Mithoerer() = default;

    virtual void Hoere(const Mitschnitt& mitschnitt) = 0;
};

/// Who listens at the line. While nobody does, nothing is gathered.
namespace modMithoeren {

/// Adds a listener; it hears of the exchanges that begin from now on, until it is taken out.
void MeldeAn(Mithoerer& mithoerer);
/// Takes a listener out; harmless when it is none.
void MeldeAb(Mithoerer& mithoerer);

/// How an exchange has ended for whoever asked for it.
enum class Ausgang {
    Gelungen,
    NichtBereit,  ///< the request was not sent
    Ausgeblieben, ///< nothing came that could be taken for its reply
    Pruefsumme,   ///< its reply came, with a wrong checksum
    ZuFrueh,      ///< a reply came before its request can have passed the line
    ZuSpaet,      ///< a reply came too late to be believed
};

// Reported by the port module, the exchanges, and whoever asks for an identification past them.

/// A request or frame was handed to the port.
void Gesendet(Zeit wann);
/// Bytes have arrived, wanted or not.
void Empfangen(std::string_view bytes, Zeit wann);
/// The exchange that was under way has ended; one that sent nothing is told all the same.
void Endet(Austauschart art, const std::string& anforderung, Ausgang ausgang, bool portOffen);

} // namespace modMithoeren

} // namespace varnoth
