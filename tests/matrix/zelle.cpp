#include "zelle.h"

#include "polling.h"
#include "texte.h"
#include "transaktionen.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace varnoth::pruefung {

namespace {

constexpr int Wiederholungen = 5; // how often the user tries again by hand once the fault is over
constexpr int LaengsteFolge = 150000;
constexpr int Gesamtfrist = 60000;

/// Every part has values of its own, so that a mix-up shows.
QByteArray Speicher() {
    QByteArray text = "varnoth-simulator 1\n";
    const auto schreibe = [&text](int teil, int adresse, int wert) {
        text += "specific " + QByteArray::number(teil) + ' ' + QByteArray::number(adresse) + ' ' +
                QByteArray::number(wert) + '\n';
    };
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        schreibe(teil, 13, 5 << teil);
        schreibe(teil, 14, teil);
        for (const int adresse : {19, 24, 25, 26, 27})
            schreibe(teil, adresse, adresse + 10 * teil);
        schreibe(teil, 52, 1 << teil);
    }
    return text + "communication 8 1234\n";
}

/// What comes out of a fault at a place where the general rule does not hold.
struct Ausnahme {
    std::string_view stelle;
    std::string_view fall;
    Wirkung wirkung;
};

constexpr Ausnahme Ausnahmen[] = {
    // Stray bytes in front of an identification are skipped.
    {"identification", "stray bytes", Wirkung::Keine},
    {"editor", "stray bytes", Wirkung::Keine},
    // Whatever address answers is the controller's.
    {"editor", "wrong address", Wirkung::Keine},
    // The answer to an identification may come twice.
    {"identification", "repeat all", Wirkung::Keine},
    {"reset", "repeat all", Wirkung::Keine},
};

/// Function 09 has no reply that could go wrong.
Wirkung Erwartet(const Stelle& stelle, const Stoerfall& fall) {
    if (stelle.name == std::string_view("function 09"))
        return fall.ende.front() == "plug" ? fall.wirkung : Wirkung::Keine;
    for (const auto& [name, stoerung, wirkung] : Ausnahmen)
        if (name == stelle.name && stoerung == fall.name)
            return wirkung;
    return fall.wirkung;
}

} // namespace

Zelle::Zelle(const Stelle& ort, const Stoerfall& stoerfall)
    : betrieb(Speicher(), {}, {"/PVarnoth-Service1"}), stelle(ort), fall(stoerfall), abbild(betrieb.geraet) {
    betrieb.geraet.Befehl("scene freeze");
    abbild.Erlaube();
    regie.SetzeAbbruch([this] { betrieb.Hauptfenster().close(); });
}

Zelle::Ergebnis Zelle::Pruefe() {
    regie.Spiele(Spiele());
    betrieb.LaufeBis([this] { return regie.Zuende(); });
    return {regie.Fehler(), betrieb.puls.GroessteLueckeMs(), betrieb.puls.Wo()};
}

Handlung Zelle::Spiele() {
    co_await Bereite();
    MerkeMeldungen();
    betrieb.puls.Beginne();
    if (fall.wirkung == Wirkung::Reihum)
        co_await StoereReihum();
    else
        co_await Stoere();
    PruefeMeldungen();
    co_await ErholeDich();
}

void Zelle::GibGeraet(const Befehle& befehle) {
    for (const std::string& befehl : befehle)
        betrieb.geraet.Befehl(befehl);
    betrieb.puls.UebergeheLuecke();
}

void Zelle::BeginneMitStoerung(const Befehle& befehle) {
    if (stelle.fenster == nullptr)
        GibGeraet(befehle);
    else
        betrieb.BeiFenster(stelle.fenster, [this, befehle] { GibGeraet(befehle); });
    stelle.beginne(*this);
}

Handlung Zelle::Stoere() {
    const Wirkung wirkung = Erwartet(stelle, fall);
    Befehle befehle = fall.beginn;
    for (std::string& befehl : befehle)
        if (befehl.starts_with("fault"))
            befehl += stelle.belastung.nur;
    BeginneMitStoerung(befehle);
    if (stelle.name == std::string_view("identification") && fall.name == std::string_view("wrong address")) {
        co_await NimmFremdeAdresse();
    } else if (wirkung == Wirkung::Anhaltend) {
        co_await regie.Bis("the fault on the screen", [this] { return stelle.zeigtStoerung(*this); });
    } else if (wirkung == Wirkung::Voruebergehend && stelle.zeigtVersuch != nullptr) {
        co_await regie.Bis("more than one attempt", [this] { return stelle.zeigtVersuch(*this); });
    }
    if (wirkung == Wirkung::Anhaltend)
        GibGeraet(fall.ende);
    co_await WarteAufGutesEnde(wirkung != Wirkung::Keine);
    if (stelle.verlasse != nullptr)
        co_await stelle.verlasse(*this);
}

/// The user's help is to try again where the place does not by itself, or tries in vain.
Handlung Zelle::WarteAufGutesEnde(bool mitHilfe) {
    const bool hilft = mitHilfe && stelle.nochmal != nullptr;
    QElapsedTimer seit;
    seit.start();
    co_await regie.Bis(
        "an end of the place",
        [this, hilft, &seit] {
            return stelle.fertig(*this) ||
                   (hilft && stelle.zeigtStoerung(*this) && seit.hasExpired(stelle.geduldMs));
        },
        LaengsteFolge);
    GibGeraet(fall.ende);
    for (int i = 0; i < Wiederholungen && !stelle.fertig(*this); ++i) {
        abVersuch = betrieb.fahrer.Meldungen().size();
        co_await stelle.nochmal(*this);
        co_await regie.Bis("an end of the repetition",
                           [this] { return stelle.fertig(*this) || stelle.zeigtStoerung(*this); });
    }
    if (!stelle.fertig(*this))
        throw std::runtime_error("does not recover");
}

/// An identification believes the address that answers; the read then asks somebody who is not there, until
/// the user gives up.
Handlung Zelle::NimmFremdeAdresse() {
    static constexpr const char* lesedialog = "frmKonfigurationLesenAusHardware";
    co_await regie.Bis("attempts at the wrong address", [this] {
        return betrieb.Text(lesedialog, "txtLeseversuch").toInt() >= 3 && modModbus::GetSlaveAdresse() == 2;
    });
    Klicke(lesedialog, "cmdCancel");
    co_await regie.Bis("the cancel", [this] { return betrieb.HatRuhe(); });
    GibGeraet(fall.ende);
    co_await stelle.nochmal(*this);
}

Handlung Zelle::StoereReihum() {
    bool bereit = true;
    for (const Befehle& portion : fall.portionen(stelle.belastung)) {
        if (!bereit && stelle.belastung.vonVorn)
            co_await Bereite();
        bereit = false;
        BeginneMitStoerung(portion);
        co_await WarteAufGutesEnde(stelle.nochmal != nullptr);
        if (stelle.verlasse != nullptr && stelle.fenster != nullptr)
            co_await stelle.verlasse(*this);
    }
    if (stelle.verlasse != nullptr && stelle.fenster == nullptr)
        co_await stelle.verlasse(*this);
}

/// What the place changes on its way there is allowed; from then on the image is watched.
Handlung Zelle::Bereite() {
    regie.SetzeWaechter({});
    co_await stelle.bereite(*this);
    abbild.Erlaube();
    betrieb.puls.UebergeheLuecke();
    regie.SetzeWaechter([this] { return abbild.Verstoss(); });
}

/// After the fault live data is there again, and the image is the controller's.
Handlung Zelle::ErholeDich() {
    MerkeMeldungen();
    if (!Betrieb::IstLive())
        co_await GeheLive();
    const unsigned ziel = modPolling::GetDurchgaenge() + 2;
    co_await regie.Bis("live data after the fault", [this, ziel] {
        return modPolling::GetDurchgaenge() >= ziel && betrieb.ZeigtAlleOnline();
    });
    if (!Meldungen().empty())
        throw std::runtime_error("a message after the fault: " + Meldungen().front());
    if (const std::string abweichung = abbild.Abweichung(); !abweichung.empty())
        throw std::runtime_error(abweichung);
    betrieb.puls.UebergeheLuecke();
}

Handlung Zelle::GeheLive() {
    betrieb.Gib([this] { betrieb.programm.Verbinde(); });
    co_await regie.Bis(
        "live data", [this] { return betrieb.HatRuhe() && Betrieb::IstLive(); }, Gesamtfrist);
}

Handlung Zelle::Stoppe() {
    betrieb.Waehle("mnuMessdatenVisualisierenStop");
    co_await regie.Bis("the end of live data",
                       [this] { return betrieb.HatRuhe() && modPolling::GetPollingAktiv() == False; });
}

void Zelle::MerkeMeldungen() {
    abMeldung = abVersuch = betrieb.fahrer.Meldungen().size();
}

std::span<const std::string> Zelle::Meldungen() const {
    return std::span(betrieb.fahrer.Meldungen()).subspan(abMeldung);
}

bool Zelle::HatGemeldet(std::int16_t textId) const {
    const auto meldungen = std::span(betrieb.fahrer.Meldungen()).subspan(abVersuch);
    return std::ranges::find(meldungen, LadeText(textId)) != meldungen.end();
}

/// Only what belongs to the place, and to a fault that lasts.
void Zelle::PruefeMeldungen() const {
    const bool anhaltend = Erwartet(stelle, fall) == Wirkung::Anhaltend;
    for (const std::string& meldung : Meldungen()) {
        const bool frage = stelle.frage != 0 && meldung == LadeText(stelle.frage);
        const bool stoerung =
            anhaltend && stelle.stoermeldung != 0 && meldung == LadeText(stelle.stoermeldung);
        if (!frage && !stoerung)
            throw std::runtime_error("unexpected message: " + meldung);
    }
}

int Zelle::Geraetezahl(const std::string& befehl, const std::string& name) {
    const std::string text = betrieb.geraet.Befehl(befehl);
    const auto stelleImText = text.find(name + '=');
    return stelleImText == std::string::npos ? -1 : std::atoi(text.c_str() + stelleImText + name.size() + 1);
}

} // namespace varnoth::pruefung
