#pragma once

#include "konsole.h"
#include "lauf.h"
#include "parameterstelle.h"
#include "pruefgeraet.h"
#include "pruefsicherungen.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "statusbits.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace varnoth::ctl {

/// A console that writes down what comes, answers questions from a list, and is interrupted when told.
struct PruefKonsole : Konsole {
    void Daten(std::string_view bytes) override { daten += bytes; }
    void Zeile(std::string_view text) override { daten.append(text).append("\n"); }
    bool WirdGelesen() const override { return gelesen; }
    void Meldung(std::string_view text) override { meldungen.append(text).append("\n"); }
    void Fortschritt(std::string_view text) override {
        if (!text.empty())
            fortschritt.emplace_back(text);
        if (beiFortschritt)
            beiFortschritt();
    }
    bool KannFragen() const override { return antwort.has_value(); }
    bool Frage(std::string_view text) override {
        fragen.emplace_back(text);
        return *antwort;
    }
    bool Unterbrochen() const override { return unterbrochen; }

    std::string daten;
    std::string meldungen;
    std::vector<std::string> fortschritt;
    std::vector<std::string> fragen;
    std::optional<bool> antwort; ///< nothing: nobody is there to be asked
    std::function<void()> beiFortschritt;
    bool gelesen = true;
    bool unterbrochen = false;
};

/// Setting of the tests of commands: a controller with one optical part of 32 beams and default values,
/// English texts, a folder for files.
class CtlTest : public testing::Test {
protected:
    CtlTest() {
        SetzeSprachoffset(Englisch);
        geraet.identtext = "Varnoth Probe;4711;(C)";
        Lade(Standardkonfiguration());
        geraet.Register(global::Seriennummer) = '4' * 256 + '7';
        geraet.Register(global::Seriennummer + 1) = '1' * 256 + '1';
        geraet.Spezifisch(0, spezifisch::Strahlenzahl) = 32;
        geraet.Spezifisch(0, spezifisch::Optikteilstatus) = optikteilstatus::Vorhanden | 1;
        std::filesystem::create_directories(ordner);
    }
    ~CtlTest() override { std::filesystem::remove_all(ordner); }

    /// The controller holds the image.
    void Lade(const Abbild& abbild) {
        for (const Parameterstelle& stelle : AlleStellen(IstLesbar)) {
            const Werte werte = abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
            for (int i = 0; i < static_cast<int>(werte.size()); ++i) {
                const int adresse = Geraeteadresse(stelle.bereich, stelle.adresse) + i;
                if (Exemplare(stelle.bereich) > 1)
                    geraet.Spezifisch(stelle.optikteil, stelle.adresse + i) =
                        werte[static_cast<std::size_t>(i)];
                else
                    geraet.Register(adresse) = werte[static_cast<std::size_t>(i)];
            }
        }
    }

    Ende Fuehre(const std::vector<std::string>& worte) {
        konsole.daten.clear();
        konsole.meldungen.clear();
        return FuehreAus(worte, konsole);
    }

    std::string Pfad(const std::string& name) const { return (ordner / name).string(); }
    static std::string Inhalt(const std::string& pfad) {
        std::ifstream strom(pfad, std::ios::binary);
        std::ostringstream inhalt;
        inhalt << strom.rdbuf();
        return inhalt.str();
    }
    static void Schreibe(const std::string& pfad, const std::string& inhalt) {
        std::ofstream(pfad, std::ios::binary) << inhalt;
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    pruefung::PruefSicherungen sicherungen;
    PruefKonsole konsole;
    const std::filesystem::path ordner =
        std::filesystem::path(testing::TempDir()) / ("ctl-" + std::to_string(::getpid()));
};

} // namespace varnoth::ctl
