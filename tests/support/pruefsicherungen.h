#pragma once

#include "sicherungen.h"

#include <algorithm>
#include <functional>
#include <ranges>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// Backups in memory. An error text makes every one of them fail.
class PruefSicherungen : public Sicherungen {
public:
    PruefSicherungen() { SetzeSicherungen(this); }
    ~PruefSicherungen() override { SetzeSicherungen(nullptr); }

    std::string Lege(const Abbild& abbild, const Sicherungsangaben& angaben) override {
        if (beimLegen)
            beimLegen();
        if (fehler.empty())
            gelegte.insert(gelegte.begin(), {{"backup " + std::to_string(++nummer), angaben}, abbild});
        return fehler;
    }
    std::vector<Sicherung> Alle() const override {
        const auto alle = gelegte | std::views::keys;
        return {alle.begin(), alle.end()};
    }
    std::optional<Abbild> Lies(const Sicherung& sicherung) const override {
        for (const auto& [eine, abbild] : gelegte)
            if (eine.pfad == sicherung.pfad && !unlesbar)
                return abbild;
        return std::nullopt;
    }
    std::string Kopiere(const Sicherung& sicherung, const std::string& ziel) const override {
        kopiert.emplace_back(sicherung.pfad, ziel);
        return fehler;
    }
    std::string Loesche(const Sicherung& sicherung) override {
        if (fehler.empty())
            std::erase_if(gelegte, [&](const auto& eine) { return eine.first.pfad == sicherung.pfad; });
        return fehler;
    }

    std::vector<std::pair<Sicherung, Abbild>> gelegte; ///< the newest first
    mutable std::vector<std::pair<std::string, std::string>> kopiert;
    std::string fehler;
    bool unlesbar = false;
    std::function<void()> beimLegen;

private:
    int nummer = 0;
};

} // namespace varnoth::pruefung
