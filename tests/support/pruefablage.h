#pragma once

#include "dateiablage.h"

#include <cerrno>
#include <condition_variable>
#include <cstddef>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <utility>

namespace varnoth::pruefung {

/// A disk in memory that fails, or does not answer, when it is told to. May be looked at while a thread
/// writes.
class PruefAblage : public Dateiablage {
public:
    Angelegt LegeAn(const std::string& pfad) override {
        std::unique_lock gesperrt(sperre);
        WarteAufLos(gesperrt);
        ++versuche;
        if (fehler != 0)
            return {.fehler = fehler};
        if (dateien.contains(pfad))
            return {.fehler = EEXIST};
        dateien[pfad];
        return {.datei = std::make_unique<Datei>(*this, pfad)};
    }
    std::optional<std::uint64_t> FreierPlatz(const std::string& /*ordner*/) override {
        const std::lock_guard gesperrt(sperre);
        return platz;
    }

    /// What a file holds; empty when there is none.
    std::string Inhalt(const std::string& pfad) const {
        const std::lock_guard gesperrt(sperre);
        const auto da = dateien.find(pfad);
        return da == dateien.end() ? std::string() : da->second;
    }
    std::set<std::string> Pfade() const {
        const std::lock_guard gesperrt(sperre);
        std::set<std::string> pfade;
        for (const auto& [pfad, inhalt] : dateien)
            pfade.insert(pfad);
        return pfade;
    }
    void LegeHin(const std::string& pfad, const std::string& inhalt) { dateien[pfad] = inhalt; }
    /// From now on everything fails with this error; 0: no more.
    void Versage(int mit) {
        const std::lock_guard gesperrt(sperre);
        fehler = mit;
    }

    /// From now on nothing that is made or written comes to an end until it is let go.
    void Halte() {
        const std::lock_guard gesperrt(sperre);
        haelt = true;
    }
    void LasseLos() {
        const std::lock_guard gesperrt(sperre);
        haelt = false;
        losgelassen.notify_all();
    }
    bool AllesGeschlossen() const {
        const std::lock_guard gesperrt(sperre);
        return offene.empty();
    }
    /// Whether somebody waits for what is held.
    bool HaeltJemanden() const {
        const std::lock_guard gesperrt(sperre);
        return wartende > 0;
    }

    std::uint64_t platz = std::numeric_limits<std::uint64_t>::max();
    int versuche = 0; ///< to make a file
    int fehlerBeimAnhaengen = 0;
    int sicherungen = 0;
    std::set<std::string> offene; ///< never closed so far

private:
    class Datei : public Ausgabedatei {
    public:
        Datei(PruefAblage& welche, std::string woher) : ablage(welche), pfad(std::move(woher)) {
            ablage.offene.insert(pfad);
        }
        int HaengeAn(std::string_view bytes) override {
            std::unique_lock gesperrt(ablage.sperre);
            ablage.WarteAufLos(gesperrt);
            const int dieser = ablage.fehler != 0 ? ablage.fehler : ablage.fehlerBeimAnhaengen;
            if (dieser == 0)
                ablage.dateien[pfad] += bytes;
            return dieser;
        }
        int Sichere() override {
            const std::lock_guard gesperrt(ablage.sperre);
            ++ablage.sicherungen;
            return ablage.fehler;
        }
        void Schliesse() override {
            const std::lock_guard gesperrt(ablage.sperre);
            ablage.offene.erase(pfad);
        }
        void Entferne() override {
            const std::lock_guard gesperrt(ablage.sperre);
            ablage.dateien.erase(pfad);
        }

    private:
        PruefAblage& ablage;
        std::string pfad;
    };

    void WarteAufLos(std::unique_lock<std::mutex>& gesperrt) {
        ++wartende;
        losgelassen.wait(gesperrt, [this] { return !haelt; });
        --wartende;
    }

    mutable std::mutex sperre;
    std::map<std::string, std::string> dateien;
    int fehler = 0;
    std::condition_variable losgelassen;
    bool haelt = false;
    int wartende = 0;
};

} // namespace varnoth::pruefung
