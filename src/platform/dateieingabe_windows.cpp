#include "dateieingabe.h"

#include "dateioeffnung_windows.h"

#include <algorithm>
#include <utility>

#include <windows.h>

namespace varnoth {

namespace {

class Systemeingabe : public Eingabedatei {
public:
    explicit Systemeingabe(Griff offene) : datei(std::move(offene)), groesse(Dateilaenge(datei)) {}

    std::uint64_t Groesse() const override { return groesse; }
    bool Lies(std::uint64_t stelle, std::span<char> ziel) const override {
        constexpr std::size_t hoechstens = std::size_t{1} << 24;
        while (!ziel.empty()) {
            OVERLAPPED wo{};
            wo.Offset = static_cast<DWORD>(stelle);
            wo.OffsetHigh = static_cast<DWORD>(stelle >> 32);
            DWORD gelesen = 0;
            const auto stueck = static_cast<DWORD>(std::min(ziel.size(), hoechstens));
            if (::ReadFile(datei.Wert(), ziel.data(), stueck, &gelesen, &wo) == 0 || gelesen == 0)
                return false;
            stelle += gelesen;
            ziel = ziel.subspan(gelesen);
        }
        return true;
    }

private:
    Griff datei;
    std::uint64_t groesse;
};

} // namespace

Eingabe OeffneEingabe(const std::string& pfad) {
    auto [datei, fehler] = OeffneDatei(pfad, Oeffnung::Lesen);
    if (fehler != 0)
        return {.fehlertext = Dateifehler(fehler)};
    return {.datei = std::make_unique<const Systemeingabe>(std::move(datei))};
}

} // namespace varnoth
