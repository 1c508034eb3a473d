#include "portzeile.h"

#include "texte.h"
#include "textmitwerten.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextFrei = 8315;
constexpr std::int16_t TextBelegtVon = 8316;
constexpr std::int16_t TextBelegt = 8317;
constexpr std::int16_t TextKeinRecht = 8318;
constexpr std::int16_t TextSelbstOffen = 8319;
constexpr std::int16_t TextFehlt = 8320;
constexpr std::int16_t TextUnbrauchbar = 8321;
constexpr std::int16_t TextEingetragen = 8322;
constexpr std::int16_t TextPort = 8323;
constexpr std::int16_t TextMitNummer = 8324;
constexpr std::int16_t TextVorhanden = 6790;
constexpr std::int16_t TextKeineBerechtigung = 9251;
constexpr std::int16_t TextKeineSchnittstelle = 9265;

bool Heisst(const Portangabe& port, const std::string& name) {
    return port.geraet == name || std::ranges::find(port.stabileNamen, name) != port.stabileNamen.end();
}

std::string Liste(const std::vector<std::string>& teile) {
    std::string text;
    for (const std::string& teil : teile)
        text += (text.empty() ? "" : ", ") + teil;
    return text;
}

std::string Bezeichnung(const Portangabe& port) {
    if (!port.bezeichnung.empty())
        return port.bezeichnung;
    return port.hersteller.empty() ? LadeText(TextPort) : port.hersteller;
}

std::string WasEsIst(const Portangabe& port) {
    const std::string was = Bezeichnung(port);
    return port.seriennummer.empty() ? was : LadeTextMit(TextMitNummer, {was, port.seriennummer});
}

bool IstSelbstOffen(const Portangabe& port, const Anschlussstand& stand) {
    if (stand.offen.empty())
        return false;
    return Heisst(port, stand.offen) || std::ranges::any_of(ComZu(port, stand), [&](int nummer) {
               return stand.wahl.Geraet(nummer) == stand.offen;
           });
}

std::string Zustand(const Portbefund& befund) {
    switch (befund.hindernis) {
    case Hindernis::Fehlt:
        return LadeText(TextFehlt);
    case Hindernis::KeinRecht:
        return LadeText(TextKeinRecht);
    case Hindernis::Einstellung:
    case Hindernis::Systemfehler:
        return LadeText(TextUnbrauchbar);
    case Hindernis::Belegt:
    case Hindernis::Keines:
        break;
    }
    if (!befund.prozesse.empty())
        return LadeTextMit(TextBelegtVon, {Liste(befund.prozesse)});
    if (befund.hindernis == Hindernis::Belegt)
        return LadeText(TextBelegt);
    return LadeText(befund.benutzungUnbekannt ? TextVorhanden : TextFrei);
}

std::string Zustand(const Portangabe& port, const Anschlussstand& stand) {
    return IstSelbstOffen(port, stand) ? LadeText(TextSelbstOffen) : Zustand(port.befund);
}

std::string Comnamen(const std::vector<int>& nummern) {
    std::vector<std::string> namen(nummern.size());
    std::ranges::transform(nummern, namen.begin(), Comname);
    return Liste(namen);
}

std::string AlleNamenVon(const Portangabe& port) {
    std::string namen = port.geraet;
    for (const std::string& name : port.stabileNamen)
        namen += "\n" + name;
    return namen;
}

std::string Abhilfe(const Portangabe& port) {
    const bool schnittstelle = port.befund.hindernis != Hindernis::Systemfehler;
    return Portursache(port.geraet, port.befund,
                       LadeText(schnittstelle ? TextKeineBerechtigung : TextKeineSchnittstelle));
}

bool StehtNichtImWeg(const Portbefund& befund) {
    return befund.hindernis == Hindernis::Keines && befund.prozesse.empty();
}

} // namespace

const Portangabe* BenutzterPort(const std::vector<Portangabe>& ports, const Anschlussstand& stand) {
    const std::string geraet = stand.Geraet();
    const auto port = std::ranges::find_if(ports, [&](const Portangabe& einer) {
        const auto nummern = ComZu(einer, stand);
        const bool ueberCom =
            stand.geraetDiesesLaufs.empty() && std::ranges::find(nummern, stand.wahl.nummer) != nummern.end();
        return Heisst(einer, geraet) || (ueberCom && !geraet.empty());
    });
    return port == ports.end() ? nullptr : &*port;
}

std::vector<int> ComZu(const Portangabe& port, const Anschlussstand& stand) {
    std::vector<int> nummern;
    for (int nummer = 1; nummer <= AnzahlCom; ++nummer) {
        const auto stelle = static_cast<std::size_t>(nummer - 1);
        if (Heisst(port, stand.wahl.geraete.at(stelle)) || Heisst(port, stand.ziele.at(stelle)))
            nummern.push_back(nummer);
    }
    return nummern;
}

Portzeile Zeile(const Portangabe& port, const Anschlussstand& stand) {
    const bool selbst = IstSelbstOffen(port, stand);
    return {.geraet = port.geraet,
            .was = WasEsIst(port),
            .zustand = Zustand(port, stand),
            .com = Comnamen(ComZu(port, stand)),
            .abhilfe = selbst ? std::string() : Abhilfe(port),
            .tipp = AlleNamenVon(port),
            .benutzbar = selbst || StehtNichtImWeg(port.befund)};
}

std::string BesterName(const Portangabe& port) {
    return port.stabileNamen.empty() ? port.geraet : port.stabileNamen.front();
}

std::vector<std::string> AlleNamen(const std::vector<Portangabe>& ports) {
    std::vector<std::string> namen;
    for (const Portangabe& port : ports) {
        namen.insert(namen.end(), port.stabileNamen.begin(), port.stabileNamen.end());
        namen.push_back(port.geraet);
    }
    return namen;
}

std::vector<Portangabe> MitEingetragenen(std::vector<Portangabe> ports, const Anschlussstand& stand) {
    for (std::size_t stelle = 0; stelle < stand.ziele.size(); ++stelle) {
        const std::string& name = stand.wahl.geraete.at(stelle);
        const Portbefund& befund = stand.befunde.at(stelle);
        const bool gelistet = std::ranges::any_of(ports, [&](const Portangabe& port) {
            return Heisst(port, name) || Heisst(port, stand.ziele.at(stelle));
        });
        if (gelistet || !stand.eingetragen.at(stelle) || befund.hindernis == Hindernis::Fehlt)
            continue;
        Portangabe port;
        port.geraet = name;
        port.bezeichnung = LadeText(TextEingetragen);
        port.befund = befund;
        ports.push_back(std::move(port));
    }
    return ports;
}

std::string Comtext(const std::string& name, const Portbefund& befund, const std::vector<Portangabe>& ports,
                    const Anschlussstand& stand) {
    const auto port =
        std::ranges::find_if(ports, [&](const Portangabe& eines) { return Heisst(eines, name); });
    if (port == ports.end())
        return Zustand(befund);
    return Zustand(*port, stand) + ", " + Bezeichnung(*port);
}

} // namespace varnoth
