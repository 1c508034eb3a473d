#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varnoth::pruefung {

class Simulatorprozess;

/// Watches that the image holds only values that the controller has sent or the program started from.
class Abbildpruefung {
public:
    /// Which registers `Verstoss` looks at: all, or those that only polling ever writes.
    enum class Umfang { Alles, Livedaten };

    explicit Abbildpruefung(Simulatorprozess& simulator, Umfang umfang = Umfang::Alles);

    /// From now on every register may also hold what it holds now, what the controller would send for it now,
    /// or the 0 of a cleared image.
    void Erlaube();
    /// The first register with a value that was not allowed; empty when there is none.
    std::string Verstoss();
    /// The first register in which image and controller differ; empty when there is none.
    std::string Abweichung() const;

private:
    bool IstGesendet(std::size_t stelle, std::int32_t wert);

    Simulatorprozess& geraet;
    std::vector<std::size_t> gefragte; ///< the places of the registers that the program reads
    std::vector<std::size_t> bewachte; ///< and of those that `Verstoss` looks at
    std::vector<std::vector<std::int32_t>> erlaubt;
    std::vector<std::int32_t> zuletztGut;
};

} // namespace varnoth::pruefung
