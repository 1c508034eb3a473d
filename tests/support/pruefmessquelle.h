#pragma once

#include "messquelle.h"
#include "uebersicht.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// A past of packets that a test gives.
struct PruefMessquelle : Messquelle {
    /// Adds a packet behind those that are there. A span of 0 is that of its passes.
    void Nimm(Messpaket paket) {
        if (paket.spanne == Zeitspanne{} && !paket.durchgaenge.empty())
            paket.spanne = {paket.durchgaenge.front().uhr, paket.durchgaenge.back().uhr};
        uebersicht.Nimm(paket);
        pakete.push_back(std::move(paket));
    }
    /// The oldest packet goes.
    void Vergiss() {
        pakete.erase(pakete.begin());
        ++erstes;
    }

    std::uint64_t Erstes() const override { return erstes; }
    std::uint64_t Ende() const override { return erstes + pakete.size(); }
    Zeitspanne Spanne() const override {
        return pakete.empty() ? Zeitspanne{}
                              : Zeitspanne{pakete.front().spanne.von, pakete.back().spanne.bis};
    }
    Zeitspanne Spanne(std::uint64_t nummer) const override { return Paket(nummer).spanne; }
    std::uint64_t PaketUm(Zeit laufzeit) const override {
        const auto danach = std::ranges::upper_bound(pakete, laufzeit, {},
                                                     [](const Messpaket& eines) { return eines.spanne.von; });
        return erstes + static_cast<std::uint64_t>(std::max<std::ptrdiff_t>(danach - pakete.begin(), 1) - 1);
    }
    std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const override {
        ++gelesen;
        if (nummer < Erstes() || nummer >= Ende() || beschaedigte.contains(nummer))
            return nullptr;
        return std::make_shared<Messpaket>(Paket(nummer));
    }
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t /*nummer*/) const override {
        return std::make_shared<Abbild>(konfiguration);
    }
    const Uebersicht& DieUebersicht() const override { return uebersicht; }
    Messangaben Angaben() const override { return angaben; }

    const Messpaket& Paket(std::uint64_t nummer) const {
        return pakete.at(static_cast<std::size_t>(nummer - erstes));
    }

    std::vector<Messpaket> pakete;
    std::uint64_t erstes = 0;
    std::set<std::uint64_t> beschaedigte; ///< numbers that cannot be read
    Abbild konfiguration;
    Messangaben angaben;
    Uebersicht uebersicht;
    mutable int gelesen = 0; ///< calls of Lies
};

} // namespace varnoth::pruefung
