#pragma once

namespace varnoth::ctl {

/// How a command ends; the program's exit codes.
enum class Ende : int {
    Erledigt = 0,
    Unterschiede = 1, ///< a comparison found differences, or could not compare everything
    Bedienung = 2,    ///< the command line makes no sense
    Port = 3,         ///< the port cannot be opened, or its line is gone
    KeineAntwort = 4, ///< the controller does not answer
    Abgelehnt = 5, ///< the controller does not carry out what was asked, or holds something else afterwards
    Datei = 6,     ///< a file cannot be read or written, or holds no configuration
    Unterbrochen = 130 ///< by a signal
};

} // namespace varnoth::ctl
