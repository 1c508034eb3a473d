#pragma once

#include "messanbieter.h"
#include "pruefmessquelle.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// What the windows of the past ask of the program, scripted. `Jetzt` is the end of the source unless a test
/// sets it.
struct PruefMessanbieter : Messanbieter {
    const Messquelle& Quelle() override { return quelle; }
    int Quellenzahl() override { return quellenzahl; }
    bool IstWiedergabe() override { return wiedergabe; }
    Zeit Jetzt() override { return jetzt.value_or(quelle.Spanne().bis); }
    void SpringeZu(Zeit laufzeit) override {
        if (wiedergabe)
            jetzt = laufzeit;
        spruenge.push_back(laufzeit);
    }
    void Notiere(Zeit laufzeit, const std::string& text) override { notizen.emplace_back(laufzeit, text); }
    std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& filter,
                                              const std::string& name) override {
        fragen.push_back({titel, filter, name});
        return datei;
    }
    bool Schreibe(const std::string& pfad, const std::string& bytes) override {
        geschrieben.emplace_back(pfad, bytes);
        return schreibbar;
    }
    void SchlageBlankingVor(int teil, const Werte& muster) override {
        vorschlaege.emplace_back(teil, muster);
    }

    struct Frage {
        std::string titel, filter, name;
    };

    PruefMessquelle quelle;
    int quellenzahl = 1;
    bool wiedergabe = false;
    std::optional<Zeit> jetzt;
    std::optional<std::string> datei = "/tmp/datei"; ///< the answer to FrageNachDatei
    bool schreibbar = true;
    std::vector<Frage> fragen;
    std::vector<std::pair<std::string, std::string>> geschrieben;
    std::vector<std::pair<Zeit, std::string>> notizen;
    std::vector<Zeit> spruenge;
    std::vector<std::pair<int, Werte>> vorschlaege;
};

} // namespace varnoth::pruefung
