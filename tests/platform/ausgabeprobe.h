#pragma once

#include "dateiausgabe.h"

#include "dateiprobe.h"

#include <string>

namespace varnoth::pruefung {

/// A folder to record into.
class Ausgabeprobe : public Dateiprobe {
protected:
    static void Lege(const std::string& pfad, const std::string& inhalt) { ErsetzeDatei(pfad, inhalt); }

    Dateiausgabe ablage;
};

} // namespace varnoth::pruefung
