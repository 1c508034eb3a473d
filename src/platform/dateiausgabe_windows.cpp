#include "dateiausgabe.h"

#include "dateioeffnung_windows.h"
#include "fehlernummer_windows.h"
#include "ordner.h"
#include "systempfad_windows.h"

#include <cerrno>
#include <utility>

#include <windows.h>

namespace varnoth {

namespace {

class Systemdatei : public Ausgabedatei {
public:
    Systemdatei(std::wstring woher, Griff offene)
        : pfad(std::move(woher)), datei(std::move(offene)), eigene(DateikennungVon(datei)) {}

    int HaengeAn(std::string_view bytes) override {
        const int fehler = SchreibeAb(datei, laenge, bytes);
        if (fehler == 0)
            laenge += bytes.size();
        return fehler;
    }
    int Sichere() override { return IstNochDa() ? BringeAufDatentraeger(datei) : ENOENT; }
    void Schliesse() override { datei.Schliesse(); }
    void Entferne() override {
        const bool istUnsere = IstNochDa();
        Schliesse();
        if (istUnsere)
            ::DeleteFileW(pfad.c_str());
    }

private:
    bool IstNochDa() const { return eigene && DateikennungDort(pfad, false) == eigene; }

    std::wstring pfad;
    Griff datei;
    std::optional<Dateikennung> eigene;
    std::uint64_t laenge = 0;
};

/// The folder of a path, as the path names it.
std::string OrdnerVon(const std::string& pfad) {
    const auto trenner = pfad.find_last_of("/\\");
    return trenner == std::string::npos ? std::string(".") : pfad.substr(0, trenner + 1);
}

} // namespace

Angelegt Dateiausgabe::LegeAn(const std::string& pfad) {
    const int ordnerfehler = LegeOrdnerAn(OrdnerVon(pfad));
    auto [datei, fehler] = OeffneDatei(pfad, Oeffnung::Neu);
    if (fehler != 0)
        return {.fehler = ordnerfehler != 0 ? ordnerfehler : fehler == KeineDatei ? ENXIO : fehler};
    return {.datei = std::make_unique<Systemdatei>(Systempfad(pfad), std::move(datei))};
}

std::optional<std::uint64_t> Dateiausgabe::FreierPlatz(const std::string& ordner) {
    ULARGE_INTEGER frei{};
    if (::GetDiskFreeSpaceExW(Systempfad(ordner).c_str(), &frei, nullptr, nullptr) == 0)
        return std::nullopt;
    return frei.QuadPart;
}

} // namespace varnoth
