#pragma once

#include "eingabedatei.h"

#include <memory>
#include <string>

namespace varnoth {

/// What came of opening a file to read: the file, or the system's error text.
struct Eingabe {
    std::unique_ptr<const Eingabedatei> datei{};
    std::string fehlertext{};
};

/// Opens a file (UTF-8 path) to read it here and there. A folder or a device is an error.
Eingabe OeffneEingabe(const std::string& pfad);

} // namespace varnoth
