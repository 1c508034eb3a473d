#pragma once

#include "blockgang.h"
#include "paketmerker.h"
#include "uebersicht.h"

#include <deque>
#include <map>
#include <optional>

namespace varnoth {

/// What came of opening a record.
enum class Vrecbefund { Gut, Leer, KeineAufzeichnung, NeuereVersion, NichtLesbar, OhneDurchgaenge };

struct Vreczustand {
    Vrecbefund befund = Vrecbefund::Gut;
    int version = vrec::Version;
    std::uint64_t durchgaenge = 0;  ///< seen so far
    std::uint64_t beschaedigte = 0; ///< places that cannot be read, and appear as gaps
    bool beendet = false;           ///< whether it was ended
    bool zuLang = false;            ///< whether only its beginning is there
};

/// A record (`*.vrec`) that is looked at. It is opened step by step: where its index is good, packets can be
/// read as soon as that is known; what they hold goes into the overview while the file is walked through.
/// Without an index the walk also finds the packets. A damaged packet is a gap.
class Vrecleser : public Messquelle {
public:
    static constexpr std::size_t Uebersichtsbytes = std::size_t{32} << 20U;
    /// The most packets that are looked at, a month of them; what follows is left out.
    static constexpr std::size_t MeistePakete = 2'500'000;

    explicit Vrecleser(std::unique_ptr<const Eingabedatei> datei, std::size_t meistePakete = MeistePakete);

    /// Opens a bit more of it, some milliseconds. False once all is done; `Zustand` then tells what came of
    /// it. Whoever gives up just lets it be.
    bool Arbeite();
    /// How much of the opening is done, 0 to 1.
    double Anteil() const;
    /// Whether packets can be read already.
    bool IstBrauchbar() const;
    const Vreczustand& Zustand() const { return zustand; }

    std::uint64_t Erstes() const override { return 0; }
    std::uint64_t Ende() const override { return pakete.size(); }
    Zeitspanne Spanne() const override;
    Zeitspanne Spanne(std::uint64_t nummer) const override;
    std::uint64_t PaketUm(Zeit laufzeit) const override;
    std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const override;
    bool HatEreignisse(std::uint64_t nummer) const override;
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t nummer) const override;
    const Uebersicht& DieUebersicht() const override { return uebersicht; }
    Messangaben Angaben() const override { return angaben; }

private:
    enum class Schritt { Kennung, Verzeichnis, Gang, Fertig };
    struct Paketstelle {
        Zeitspanne spanne;
        std::uint64_t stelle;
        std::uint32_t laenge;
        bool hatEreignisse;
    };
    struct Konfigurationsstelle {
        std::uint64_t paket; ///< the first that it is in use for
        std::uint64_t stelle;
        std::uint32_t laenge;
    };

    void PruefeKennung();
    Vrecbefund Kennungsbefund();
    void SucheVerzeichnis();
    void LiesVerzeichnis();
    bool NimmVerzeichnis();
    bool NimmEintrag(const vrec::Eintrag& eintrag);
    void GeheOhneVerzeichnis();
    void GeheVonVorn();
    void Gehe();
    bool Nimm(vrec::Blockgang::Schritt gangschritt);
    void NimmBlock();
    void NimmPaket();
    bool Lege(const Messpaket& paket);
    void NimmNachtraege(const Messpaket& paket);
    void NimmKonfiguration();
    void Beschaedigt();
    void SchliesseAb();
    Messpaket MitNachtraegen(std::uint64_t nummer, Messpaket paket) const;
    std::optional<std::string> LiesBlock(std::uint64_t stelle, std::uint32_t laenge,
                                         vrec::Blockart art) const;

    std::unique_ptr<const Eingabedatei> datei;
    std::size_t meistePakete;
    Schritt schritt = Schritt::Kennung;
    std::optional<vrec::Blockgang> gang;
    Vreczustand zustand;
    bool hatAngaben = false;
    bool mitVerzeichnis = false;
    std::uint64_t verzeichnisstelle = 0;
    std::uint64_t naechstes = 0; ///< the packet that the walk has not met yet
    Messangaben angaben;
    std::deque<Paketstelle> pakete;
    std::deque<Konfigurationsstelle> konfigurationen;
    std::multimap<std::uint64_t, Messereignis> nachtraege; ///< notes of a time before their packet, by the
                                                           ///< packet of that time
    Uebersicht uebersicht;
    mutable Paketmerker gelesene;
    mutable std::uint64_t gelesenerStand = 0; ///< place of the configuration that was read last
    mutable std::shared_ptr<const Abbild> gelesenesAbbild;
};

} // namespace varnoth
