#pragma once

#include "dateideskriptor.h"
#include "zeichenformat.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace varnoth::simulator {

/// The socket the master's cable goes into: a pseudo terminal in raw mode, with a symbolic link to it.
class Ptyserver {
public:
    /// @param linkpfad path of the link, empty = none
    explicit Ptyserver(std::string linkpfad) : verknuepfung(std::move(linkpfad)) {}
    Ptyserver(const Ptyserver&) = delete;
    Ptyserver& operator=(const Ptyserver&) = delete;
    ~Ptyserver() { Ziehe(); }

    /// Opens a new terminal and makes the link; nothing when it is open already. Of what stands in the link's
    /// place only a link of this program's own making, of an earlier run, is replaced.
    /// @throws std::runtime_error with a sentence for the user
    void Stecke();
    /// Closes the terminal, so that whoever has it open is hung up, and removes the link.
    void Ziehe();
    /// The terminal's path, empty while unplugged.
    const std::string& Geraet() const { return geraet; }
    /// Descriptor of the controller's end for poll(), -1 while unplugged.
    int Deskriptor() const { return master.Nummer(); }
    /// Whether the master has set the terminal to the speed and parity of the format; not while unplugged.
    /// Stop bits do not matter, since a receiver looks at the first alone.
    bool IstEingestelltAuf(const Zeichenformat& format) const;
    /// Takes what the master has sent.
    std::vector<std::uint8_t> Lies();
    /// Hands bytes to the master. What it leaves unread beyond the terminal's buffer is lost, as on a real
    /// line.
    void Schreibe(std::span<const std::uint8_t> zeichen);

private:
    void Verknuepfe() const;
    bool VerknuepfungFuehrtHierher() const;

    std::string verknuepfung;
    std::string geraet;
    Dateideskriptor master;
    Dateideskriptor slave; ///< kept open, so that a client may close and come again
};

} // namespace varnoth::simulator
