#pragma once

#include "pruefumgebung.h"
#include "schnittstelle.h"
#include "seriellerport.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// A part of a reply and how long after the request it arrives.
struct Stueck {
    Zeit nach{0};
    std::string bytes;
};

/// A port whose far end is a function: it gets each request and gives the pieces of the reply. Time passes on
/// the clock of the scripted environment.
class PruefPort : public SeriellerPort {
public:
    explicit PruefPort(PruefUmgebung& pruefumgebung) : umgebung(pruefumgebung) {
        modSchnittstelle::SetzePort(this);
    }
    ~PruefPort() override { modSchnittstelle::SetzePort(nullptr); }

    bool Oeffne(int nummer, const std::string& einstellungen) override {
        geoeffnet.emplace_back(nummer, einstellungen);
        format = einstellungen;
        offen = oeffnet ? oeffnet(genanntes, einstellungen) : oeffnenGelingt;
        return offen;
    }
    void SetzeGeraet(const std::string& pfad) override { genanntes = pfad; }
    void Schliesse() override {
        ++geschlossen;
        geschlossenUm = umgebung.uhr;
        offen = false;
    }
    bool IstOffen() override { return offen; }
    std::string Fehlertext() const override { return offen ? "" : "no such port"; }
    Anschluss AnschlussVon(int /*nummer*/) const override {
        return genanntes.empty() || anschluss.simuliert ? anschluss : Anschluss{.geraet = genanntes};
    }
    Portbefund BefundVon(int /*nummer*/) const override { return befund; }
    void Verwirf() override {
        NimmAngekommenes();
        ++verworfen;
        eingang.clear();
    }
    std::size_t BytesWartend() override {
        NimmAngekommenes();
        return offen ? eingang.size() : 0;
    }
    std::string LiesAlles() override {
        NimmAngekommenes();
        return std::exchange(eingang, {});
    }
    void Schreibe(std::string_view bytes) override {
        gesendet.emplace_back(bytes);
        sendezeiten.push_back(umgebung.uhr);
        umgebung.ErledigeAufgeschobenes(); // the line is busy
        if (!antworte)
            return;
        for (auto& stueck : antworte(std::string(bytes)))
            unterwegs.emplace(umgebung.uhr + stueck.nach, std::move(stueck.bytes));
    }
    void WarteAufEingang(Zeit hoechstens) override {
        hoechstens = std::min(hoechstens, laengsteWartezeit);
        const Zeit ende = umgebung.uhr + hoechstens;
        const bool kommtEtwas = !unterwegs.empty() && unterwegs.begin()->first <= ende;
        umgebung.WarteAufEreignis(kommtEtwas ? unterwegs.begin()->first - umgebung.uhr : hoechstens);
    }
    void Schlafe(Zeit hoechstens) override {
        constexpr Zeit Fensterblick = std::chrono::milliseconds(4);
        geschlafen.push_back(std::min(hoechstens, Fensterblick));
        umgebung.uhr += geschlafen.back();
    }
    bool LeereSender(Zeit hoechstens) override {
        geleert.emplace_back(umgebung.uhr, hoechstens);
        return true;
    }
    void SetzeEreignisbehandlung(std::function<void(int)> behandlung) override {
        ereignisbehandlung = std::move(behandlung);
    }

    bool offen = false;
    bool oeffnenGelingt = true;
    std::function<bool(const std::string& geraet, const std::string& format)> oeffnet; ///< instead
    std::string genanntes; ///< the device that was named
    std::string format;    ///< of the last opening
    Anschluss anschluss{.geraet = "/dev/pruefung"};
    Portbefund befund;
    Zeit laengsteWartezeit = Zeit::max(); ///< after which a wait comes back
    int geschlossen = 0;
    Zeit geschlossenUm{0};
    int verworfen = 0;
    std::string eingang;
    std::vector<std::pair<int, std::string>> geoeffnet;
    std::vector<std::string> gesendet;
    std::vector<Zeit> sendezeiten;
    std::vector<Zeit> geschlafen;
    std::vector<std::pair<Zeit, Zeit>> geleert; ///< when it was waited for, and for how long at most
    std::function<std::vector<Stueck>(const std::string& anforderung)> antworte;
    std::function<void(int)> ereignisbehandlung;

private:
    void NimmAngekommenes() {
        while (!unterwegs.empty() && unterwegs.begin()->first <= umgebung.uhr) {
            eingang += unterwegs.begin()->second;
            unterwegs.erase(unterwegs.begin());
        }
    }

    PruefUmgebung& umgebung;
    std::multimap<Zeit, std::string> unterwegs;
};

} // namespace varnoth::pruefung
