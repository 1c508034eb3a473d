#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varnoth {

/// Which requests may still be answered. A reply carries no number: one that comes after its time-out looks
/// like the reply to every later request of the same shape. The controller answers in the order it was asked,
/// so an accepted reply settles whatever was sent before the oldest request it can belong to; requests that
/// nothing has settled yet are "open". Requests are whole frames.
class Zuordnung {
public:
    /// More different requests than this are not kept open; the oldest is forgotten.
    static constexpr std::size_t Hoechstzahl = 32;

    /// The request went out: it is open.
    void Gesendet(const std::string& anforderung);
    /// A valid reply to this request, which was sent, has come.
    void Beantwortet(const std::string& anforderung);
    /// Bytes came that nobody was waiting for: the request answered last may be answered once more.
    void Ueberzaehliges();

    /// Whether every request is settled.
    bool Leer() const { return offene.empty(); }
    /// Whether the reply to an open request could be taken for the reply to this one and would be wrong for
    /// it. A retry of an open request may take the older answer, unless something was written in between or
    /// the open one is left over from an exchange that succeeded.
    bool Verwechselbar(const std::string& anforderung) const;

private:
    struct Offene {
        std::string anforderung;
        int anzahl = 1;      ///< how often it was sent in a row
        bool uebrig = false; ///< whether an exchange has succeeded since
    };

    std::vector<Offene> offene; ///< in the order of sending
    std::string zuletztBeantwortet;
};

} // namespace varnoth
