#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnoth {

// Paths and error texts are UTF-8.

/// What came of reading a file: its bytes, or the system's error text.
struct Leseergebnis {
    bool gelungen = false;
    std::string bytes{};
    std::string fehlertext{};
};

/// Reads a file from its beginning: all of it, or the given number of bytes where it is longer. A folder or
/// a device is an error.
Leseergebnis LiesDatei(const std::string& pfad, std::size_t hoechstens);

/// Whether the path leads to something that exists, a folder included.
bool GibtEsDatei(const std::string& pfad);

/// Whether it leads to a file that keeps bytes: no folder, no device.
bool IstGewoehnlicheDatei(const std::string& pfad);

/// Whether two paths lead to the same file, folder or device that is there, be it under two names.
bool IstDieselbeDatei(const std::string& eine, const std::string& andere);

/// Puts a file with these bytes in place of the one that is there, or creates it. At every moment, also when
/// the program or the computer dies, the path leads to the old file or the new one, whole; what a program
/// that died has left beside it goes with a later call. Gives the system's error text, empty when all went
/// well and the disk holds the new file; after an error the old one is still there.
std::string ErsetzeDatei(const std::string& pfad, std::string_view bytes);

/// What came of appending to a file: nothing, the system's error text, or that it would have become too long.
struct Anhaengeergebnis {
    bool voll = false;
    std::string fehlertext{};
};

/// Appends bytes to a file, which is created where it is missing; never a part of them, and nothing where the
/// file would become longer than `hoechstens` bytes. It does not wait for the disk.
Anhaengeergebnis HaengeAnDatei(const std::string& pfad, std::string_view bytes, std::size_t hoechstens);

/// Removes a file. Gives the system's error text, empty when it is gone or was not there.
std::string EntferneDatei(const std::string& pfad);

} // namespace varnoth
