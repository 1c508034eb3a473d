#pragma once

#include "abbild.h"
#include "endecode.h"
#include "json.h"
#include "konfigurationstransfer.h"
#include "leitungszugang.h"
#include "lesart.h"
#include "werte.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnoth::ctl {

struct Lauf;

/// Registers of the controller, and what their words depend on.
class Registerlesung {
public:
    /// Reads these registers, and beam counts and bus type with them.
    Ende Lies(const Lauf& lauf, const Leitungszugang& zugang,
              const std::vector<Transferparameter>& parameter);

    /// The values of registers that were read.
    const Werte& WerteVon(const Transferparameter& parameter) const;
    /// Values in words; those of no parameter as numbers.
    std::string Worte(const Transferparameter& parameter, const Werte& werte) const;
    /// The values that the words mean for these registers; a plain number is understood as well.
    std::optional<Werte> WerteAus(const Transferparameter& parameter, std::string_view worte) const;
    /// What can be chosen for these registers, field by field; empty where there is no list.
    std::string Auswahl(const Transferparameter& parameter) const;
    /// {"words": ..., "values": [...]}
    Json AlsJson(const Transferparameter& parameter, const Werte& werte) const;

private:
    Lesart LesartVon(const Transferparameter& parameter) const;

    Abbild abbild{};
    std::vector<std::pair<Transferparameter, Werte>> gelesene{};
};

/// Whether these values may stand in the registers.
bool SindPlausibel(const Transferparameter& parameter, const Werte& werte);

} // namespace varnoth::ctl
