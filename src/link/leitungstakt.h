#pragma once

#include "umgebung.h"

#include <cstddef>
#include <string_view>

namespace varnoth {

/// The pace of the line: when a request has left, and for how long the rest of its reply cannot be there yet.
/// A line that was seen to be faster than its settings say (a pseudo terminal) has no pace until the next
/// request.
class Leitungstakt {
public:
    /// Sets the line's speed and format by a port settings string; one that cannot be read means no pace.
    /// What is known of a line stays while its settings do.
    void Stelle(std::string_view porteinstellungen);
    /// A request of so many characters was handed to the port.
    void Gesendet(Zeit wann, std::size_t zeichen);
    /// Nothing of the reply has come by now.
    void NochNichts(Zeit wann);
    /// So many characters came out of the port, all that were there at that time.
    void Empfangen(Zeit wann, std::size_t zeichen);

    /// Whether something came since the request that is too early for a reply to it, on a line that is
    /// known to keep its pace.
    bool KamZuFrueh() const { return kamZuFrueh; }
    /// Whether the reply to the last request began so much later than those before it that it may not be its
    /// own; never before enough replies were seen.
    bool KamSpaet() const;
    /// When the last character handed over has left, reckoned at the line's pace.
    Zeit Sendeende() const { return sendeende; }
    /// How long nothing needs looking for while so many characters of the reply are missing. 0 until the
    /// first has come, and shortly before the last can.
    Zeit Schlafdauer(Zeit jetzt, std::size_t fehlende) const;

private:
    Zeit Dauer(std::size_t zeichen) const;
    Zeit Antwortzeit() const;
    void Bewerte();
    void BewerteAntwortzeit();

    double zeichendauer = 0; ///< microseconds; 0: no pace
    Zeit sendebeginn{0};
    Zeit sendeende{0};
    Zeit zuletztNichts{0};     ///< when nothing of the reply had come yet
    Zeit ersterEingang{0};     ///< of the reply
    std::size_t zuerst = 0;    ///< characters that came then
    std::size_t empfangen = 0; ///< since the request
    std::size_t gesendet = 0;  ///< characters of the request
    bool schneller = false;
    bool kamZuFrueh = false;
    int imTakt = 0;   ///< replies that kept the pace since it was lost
    int zuFruehe = 0; ///< replies in a row that did not
    Zeit uebliche{0}; ///< until a reply begins, as seen lately
    int gesehene = 0; ///< replies that it was learned from
    int spaete = 0;   ///< replies in a row that came late
};

} // namespace varnoth
