#pragma once

#include "paketmerker.h"
#include "paketsammler.h"
#include "uebersicht.h"

#include <deque>

namespace varnoth {

/// The past of this run, in memory. What is gathered for the newest packet can be read at once: that packet
/// grows until the next begins, so whoever keeps packets reads the newest again when the span of the source
/// has grown. When the memory given is used up, the oldest packets go.
class Messspeicher : public Messquelle {
public:
    static constexpr std::size_t UeblicheBytes = std::size_t{64} << 20U;

    /// @param angaben of the source; its beginning is that of this memory
    /// @param beginnUhr the clock at that time
    Messspeicher(Messangaben angaben, Zeit beginnUhr, std::size_t hoechstensBytes = UeblicheBytes);

    /// The time of the source that a reading of the clock is.
    Zeit Laufzeit(Zeit uhr) const { return uhr - beginn; }

    /// Takes a pass, its `uhr` being a reading of the clock.
    void Nimm(const Messdurchgang& durchgang);
    void Nimm(const Liveereignis& ereignis);
    /// Takes a note of a time of the source; what comes before the oldest packet goes to its beginning.
    void Notiere(Zeit laufzeit, Systemzeit zeit, const std::string& text);
    /// The configuration in use from now on.
    void SetzeKonfiguration(const Abbild& neue);
    /// What the controller calls itself, both UTF-8.
    void SetzeGeraet(const std::string& bezeichnung, const std::string& seriennummer);
    /// Bytes in use for packets.
    std::size_t Bytes() const { return belegt; }

    std::uint64_t Erstes() const override { return erstes; }
    std::uint64_t Ende() const override;
    Zeitspanne Spanne() const override;
    Zeitspanne Spanne(std::uint64_t nummer) const override;
    std::uint64_t PaketUm(Zeit laufzeit) const override;
    std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const override;
    bool HatEreignisse(std::uint64_t nummer) const override;
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t nummer) const override;
    const Uebersicht& DieUebersicht() const override { return uebersicht; }
    Messangaben Angaben() const override { return angaben; }

private:
    struct Eintrag {
        Zeitspanne spanne;
        bool hatEreignisse;
        std::string bytes;
        std::shared_ptr<const Abbild> konfiguration;
    };

    void Nimm(const Messereignis& ereignis);
    bool IstOffen(std::uint64_t nummer) const { return nummer == erstes + pakete.size(); }
    const Eintrag& Paket(std::uint64_t nummer) const;
    void Schliesse();
    void TrageNach(const Messereignis& notiz);
    void Lege(Eintrag& eintrag, const Messpaket& paket);
    static std::size_t Bytes(const Eintrag& eintrag);

    Messangaben angaben;
    Zeit beginn;
    std::size_t hoechstens;
    std::size_t belegt = 0;
    std::uint64_t erstes = 0;
    std::deque<Eintrag> pakete; ///< those that grow no more
    Paketsammler offenes;       ///< the newest
    std::shared_ptr<const Abbild> konfiguration;
    Uebersicht uebersicht;
    mutable Paketmerker gelesene;
    mutable std::shared_ptr<const Messpaket> gelesenesOffenes;
};

} // namespace varnoth
