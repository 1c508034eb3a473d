#include "befehle.h"

#include "registername.h"
#include "wortleser.h"

#include <algorithm>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

using Woerterliste = std::span<const std::string_view>;

struct Befehl {
    std::string_view wort;
    std::string_view gebrauch;
    std::size_t wenigstens; ///< words after the first
    std::size_t hoechstens;
    std::string (*fuehreAus)(const Werkbank& werkbank, Woerterliste woerter);
};

int LiesTeil(std::string_view wort) {
    return LiesZahl(wort, "part", 0, Optikteile - 1);
}

/// True for the first of two words, False for the second.
bool Waehle(std::string_view wort, std::string_view ja, std::string_view nein) {
    if (wort != ja && wort != nein)
        throw std::invalid_argument("\"" + std::string(wort) + "\" is neither " + std::string(ja) + " nor " +
                                    std::string(nein));
    return wort == ja;
}

std::string Fehler(const Werkbank& bank, Woerterliste woerter) {
    if (woerter[0] == "none")
        bank.stoerungen.Loesche();
    else
        bank.stoerungen.Fuege(LiesStoerung(woerter[0]));
    return {};
}

std::string Teil(const Werkbank& bank, Woerterliste woerter) {
    bank.geraet.SetzeVorhanden(LiesTeil(woerter[0]), Waehle(woerter[1], "add", "remove"));
    return {};
}

std::string Strahlen(const Werkbank& bank, Woerterliste woerter) {
    bank.geraet.SetzeStrahlenzahl(LiesTeil(woerter[0]), LiesZahl(woerter[1], "beams", 1, MaxStrahlen));
    return {};
}

std::string Neustart(const Werkbank& bank, Woerterliste) {
    bank.geraet.Neustart();
    return {};
}

std::string Hole(const Werkbank& bank, Woerterliste woerter) {
    const Registername name = LiesRegistername(woerter);
    bank.optik.Aktualisiere(bank.geraet.Speicher(), bank.jetzt);
    return std::to_string(bank.geraet.Speicher().Block(name.ort, name.teil, 1)[0]);
}

std::string Setze(const Werkbank& bank, Woerterliste woerter) {
    const Registername name = LiesRegistername(woerter);
    if (woerter.size() != 1)
        throw std::invalid_argument("set: the value is missing");
    if (IstLebend(name.ort))
        throw std::invalid_argument("this register shows the scene: fix it with scene beams");
    bank.geraet.Speicher().Block(name.ort, name.teil, 1)[0] =
        static_cast<std::uint16_t>(LiesZahl(woerter[0], "value", 0, 0xFFFF));
    bank.optik.Erneuere();
    return {};
}

/// Clears the beams of a list like "3-7,9", counted from 1.
void Unterbrich(Strahlenbild& bild, std::string_view liste) {
    for (const std::string_view stueck : Teile(liste, ',')) {
        const auto grenzen = Teile(stueck, '-');
        const int von = LiesZahl(grenzen.front(), "beam", 1, MaxStrahlen);
        const int bis = LiesZahl(grenzen.back(), "beam", von, MaxStrahlen);
        for (int strahl = von; strahl <= bis; ++strahl)
            bild.reset(static_cast<std::size_t>(strahl - 1));
    }
}

std::optional<Strahlenbild> LiesBild(Woerterliste woerter) {
    if (woerter[0] == "auto")
        return std::nullopt;
    Strahlenbild bild = ~Strahlenbild{};
    if (!Waehle(woerter[0], "free", "interrupted"))
        Unterbrich(bild, woerter.size() > 1 ? woerter[1] : "1-512");
    return bild;
}

std::string Stelle(const Werkbank& bank, Woerterliste woerter) {
    if (woerter.size() < 3)
        throw std::invalid_argument("scene beams PART free|interrupted [LIST]|auto");
    bank.optik.Stelle(LiesTeil(woerter[1]), LiesBild(woerter.subspan(2)));
    return {};
}

std::string SzenenBefehl(const Werkbank& bank, Woerterliste woerter) {
    if (woerter[0] == "beams")
        return Stelle(bank, woerter);
    if (Waehle(woerter[0], "freeze", "run"))
        bank.optik.HalteAn(bank.jetzt);
    else
        bank.optik.LasseLaufen(bank.jetzt);
    return {};
}

std::string ProtokollBefehl(const Werkbank& bank, Woerterliste woerter) {
    bank.protokoll.Stelle(Waehle(woerter[0], "on", "off"));
    return {};
}

std::string Statistik(const Werkbank& bank, Woerterliste woerter) {
    const Zaehlwerk stand = bank.zaehlwerk;
    if (!woerter.empty()) {
        Waehle(woerter[0], "clear", "clear");
        bank.zaehlwerk = {};
    }
    const auto zahl = [&stand](std::size_t funktion) { return std::to_string(stand.anfragen[funktion]); };
    return "03=" + zahl(0x03) + " 09=" + zahl(0x09) + " 10=" + zahl(0x10) + " 11=" + zahl(0x11) +
           " refused=" + std::to_string(stand.abgelehnte) + " broken=" + std::to_string(stand.gebrochene) +
           " foreign=" + std::to_string(stand.fremde);
}

std::string Zustand(const Werkbank& bank, Woerterliste) {
    std::string text = "address=" + std::to_string(bank.geraet.Adresse()) + " beams=";
    for (int teil = 0; teil < Optikteile; ++teil)
        text += (teil == 0 ? "" : ",") +
                std::to_string(bank.optik.IstVorhanden(teil) ? bank.optik.Strahlenzahl(teil) : 0);
    return text + " selected=" + std::to_string(bank.geraet.Speicher().Global(reg::Optikteilauswahl)) +
           " autosend=" + (bank.geraet.Autosend() ? "on" : "off");
}

std::string Hilfe(const Werkbank& bank, Woerterliste woerter);

constexpr Befehl Befehle[] = {
    {"fault", "fault NAME[=ARGUMENT[,MS]][:COUNT][@FUNCTION]|none", 1, 1, Fehler},
    {"part", "part PART add|remove", 2, 2, Teil},
    {"beams", "beams PART COUNT", 2, 2, Strahlen},
    {"restart", "restart", 0, 0, Neustart},
    {"get", "get global|specific PART|communication ADDRESS", 2, 3, Hole},
    {"set", "set global|specific PART|communication ADDRESS VALUE", 3, 4, Setze},
    {"scene", "scene freeze|run|beams PART free|interrupted [LIST]|auto", 1, 4, SzenenBefehl},
    {"log", "log on|off", 1, 1, ProtokollBefehl},
    {"stats", "stats [clear]", 0, 1, Statistik},
    {"state", "state", 0, 0, Zustand},
    {"help", "help", 0, 0, Hilfe},
};

std::string Hilfe(const Werkbank&, Woerterliste) {
    std::string text;
    for (const Befehl& befehl : Befehle)
        text += (text.empty() ? "" : "; ") + std::string(befehl.gebrauch);
    return text;
}

std::string Fuehre(const Werkbank& werkbank, std::string_view zeile) {
    const auto woerter = Woerter(zeile);
    const auto befehl =
        woerter.empty() ? std::end(Befehle) : std::ranges::find(Befehle, woerter.front(), &Befehl::wort);
    if (befehl == std::end(Befehle))
        throw std::invalid_argument("unknown command, try help");
    const auto rest = Woerterliste(woerter).subspan(1);
    if (rest.size() < befehl->wenigstens || rest.size() > befehl->hoechstens)
        throw std::invalid_argument("usage: " + std::string(befehl->gebrauch));
    return befehl->fuehreAus(werkbank, rest);
}

} // namespace

std::string FuehreBefehlAus(const Werkbank& werkbank, std::string_view zeile) {
    try {
        const std::string ergebnis = Fuehre(werkbank, zeile);
        return ergebnis.empty() ? "ok" : "ok " + ergebnis;
    } catch (const std::invalid_argument& fehler) {
        return "error " + std::string(fehler.what());
    }
}

} // namespace varnoth::simulator
