#pragma once

#include "einstellungen.h"
#include "umgebung.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// An environment without windows: its clock jumps, its boxes are written down and answered from a list.
class PruefUmgebung : public Umgebung {
public:
    PruefUmgebung() { SetzeUmgebung(this); }
    ~PruefUmgebung() override { SetzeUmgebung(nullptr); }

    int LasseEreignisseLaufen() override {
        ++ereignisrunden;
        if (beiEreignissen)
            beiEreignissen();
        return offeneFormulare;
    }
    void NutzeWartezeit() override {
        ErledigeAufgeschobenes();
        LasseEreignisseLaufen();
    }
    bool BrauchtWartezeit() override { return !aufgeschobenes.empty(); }
    void FuerWartezeit(std::function<void()> arbeit) override { aufgeschobenes.push_back(std::move(arbeit)); }
    /// Time passes at once: to the end of the wait, or up to the next planned event.
    void WarteAufEreignis(Zeit hoechstens) override {
        gewartet.push_back(hoechstens);
        const Zeit ende = uhr + hoechstens;
        if (!geplant.empty() && geplant.begin()->first <= ende) {
            auto [wann, was] = *geplant.begin();
            geplant.erase(geplant.begin());
            uhr = std::max(uhr, wann);
            was();
            return;
        }
        uhr = ende;
    }
    Zeit Uhr() override { return uhr; }
    Aufenthalt GetAufenthalt() override { return aufenthalt; }
    /// The window holds the program up for so long, as while it is dragged.
    void HalteAuf(Zeit dauer) {
        uhr += dauer;
        aufenthalt.gesamt += dauer;
    }
    Antwort ZeigeMeldung(const Meldung& meldung) override {
        meldungen.push_back(meldung);
        if (beiMeldung)
            beiMeldung(meldung);
        if (antworten.empty())
            return meldung.knoepfe == Knoepfe::JaNeinAbbrechen ? Antwort::Ja : Antwort::Ok;
        const Antwort antwort = antworten.front();
        antworten.pop_front();
        return antwort;
    }
    void ZeigeStatustext(int feld, const std::string& text) override {
        statustexte.at(static_cast<std::size_t>(feld - 1)) = text;
    }

    /// Does what was put off until the line is busy, and nothing else.
    void ErledigeAufgeschobenes() {
        for (const auto& arbeit : std::exchange(aufgeschobenes, {}))
            arbeit();
    }

    /// Something that happens while the code under test waits, at a time of the clock.
    void Plane(Zeit wann, std::function<void()> was) { geplant.emplace(wann, std::move(was)); }

    Zeit uhr{0};
    Aufenthalt aufenthalt;
    int offeneFormulare = 1;
    int ereignisrunden = 0;
    std::vector<Zeit> gewartet;
    std::vector<Meldung> meldungen;
    std::deque<Antwort> antworten;
    std::array<std::string, 3> statustexte;
    std::multimap<Zeit, std::function<void()>> geplant;
    std::function<void()> beiEreignissen;
    std::vector<std::function<void()>> aufgeschobenes;
    std::function<void(const Meldung&)> beiMeldung;
};

/// Settings in memory.
class PruefEinstellungen : public Einstellungen {
public:
    PruefEinstellungen() { SetzeEinstellungen(this); }
    ~PruefEinstellungen() override { SetzeEinstellungen(nullptr); }

    int LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) override {
        const auto stelle = texte.find({abschnitt, schluessel});
        return stelle == texte.end() ? standard : std::atoi(stelle->second.c_str());
    }
    std::string LiesText(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard) override {
        const auto stelle = texte.find({abschnitt, schluessel});
        return stelle == texte.end() ? standard : stelle->second;
    }
    bool SchreibText(const std::string& abschnitt, const std::string& schluessel,
                     const std::string& text) override {
        texte[{abschnitt, schluessel}] = text;
        ++geschrieben;
        return true;
    }

    std::map<std::pair<std::string, std::string>, std::string> texte;
    int geschrieben = 0;
};

} // namespace varnoth::pruefung
