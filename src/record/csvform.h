#pragma once

#include "aufzeichnungsform.h"
#include "aufzeichnungswahl.h"

#include <array>
#include <cstddef>
#include <vector>

namespace varnoth {

/// The words of a CSV file.
struct Csvworte {
    std::vector<std::string> spalten; ///< the headings, all of them
    std::array<std::string, 6>
        ereignisse{}; ///< what has happened, in the order of Messereignisart; %1 its text
};

/// The words in the current language.
Csvworte LadeCsvworte();

/// A line for each present part of each pass, and one for each event, in order of time. Lines end with CR LF,
/// the text is UTF-8.
class Csvform : public Aufzeichnungsform {
public:
    Csvform(Csvart welche, Csvworte dieWorte);

    std::string Beginne(const Messangaben& angaben, std::shared_ptr<const Abbild> konfiguration) override;
    std::string Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> konfiguration) override;
    std::string Beende() override { return {}; }

private:
    std::string Zeitfelder(Systemzeit zeit, Zeit laufzeit) const;
    void Schreibe(std::string& ziel, const Messdurchgang& durchgang, const Abbild* konfiguration) const;
    void SchreibeTeil(std::string& ziel, const Messdurchgang& durchgang, int teil,
                      const Abbild* konfiguration) const;
    void Schreibe(std::string& ziel, const Messereignis& ereignis) const;

    Csvart art;
    char trenner;
    Csvworte worte;
};

/// A time as ISO 8601 has it, with milliseconds and the offset of the zone: "2026-03-01T14:05:09.123+01:00".
std::string Isozeit(Systemzeit zeit, int zoneMinuten);

/// A text field between quotation marks, which no spreadsheet takes for a formula.
std::string Textfeld(const std::string& text);

/// The beams of a part as hexadecimal digits behind "0x", the first beam as the highest bit of the first
/// digit, 1 free. The last digit is filled up with 0.
std::string Strahlhex(const Teilmessung& messung);

/// How many of a part's beams are blanked by a configuration.
int GeblankteStrahlen(const Abbild& konfiguration, int teil, int strahlen);

} // namespace varnoth
