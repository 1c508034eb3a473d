#include "qtumgebung.h"

#include "feinschlaf.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace varnoth {

namespace {

// Timers of the event loop count whole milliseconds. Waits that end sooner than this sleep to the
// microsecond; a window's painting does not fit into them.
constexpr Zeit Feinwartezeit = std::chrono::microseconds(2500);
constexpr int Weckgedaechtnis = 8; // sleeps that the time for waking is averaged over
// Between a reply and the next request events are let run several times; each round costs processor time,
// the first after a sleep most of all.
constexpr Zeit Rundenabstand = std::chrono::milliseconds(3);

} // namespace

QtUmgebung::QtUmgebung() {
    WeckePuenktlich();
    SetzeUmgebung(this);
}

QtUmgebung::~QtUmgebung() {
    SetzeUmgebung(nullptr);
}

int QtUmgebung::LasseEreignisseLaufen() {
    LasseFaelligesLaufen();
    return formularzaehler ? formularzaehler() : 0;
}

template<class Runde>
void QtUmgebung::Messe(Zeit wartezeit, Runde runde) {
    messer.Beginnt(Uhr(), wartezeit);
    runde();
    messer.Endet(Uhr());
}

/// Runs pending events unless that was done a moment ago.
void QtUmgebung::LasseFaelligesLaufen() {
    if (Uhr() < naechsteRunde)
        return;
    Messe(Zeit{0}, [this] { pumpe.LaufeOhneAufgeschobenes(); });
    naechsteRunde = Uhr() + Rundenabstand;
}

void QtUmgebung::NutzeWartezeit() {
    Messe(Zeit{0}, [this] { pumpe.LaufeMitAllem(); });
    naechsteRunde = Uhr() + Rundenabstand;
}

void QtUmgebung::FuerWartezeit(std::function<void()> arbeit) {
    pumpe.SchiebeAuf(std::move(arbeit));
}

void QtUmgebung::WarteAufEreignis(Zeit hoechstens) {
    const Zeit ende = Uhr() + hoechstens;
    if (hoechstens < Feinwartezeit) {
        LasseFaelligesLaufen();
        SchlafeBis(ende);
        return;
    }
    Messe(hoechstens, [&] { pumpe.WarteAufEreignis(hoechstens); });
    naechsteRunde = Zeit{0};
}

/// Sleeps a little shorter by what waking took lately, and watches the clock for the rest.
void QtUmgebung::SchlafeBis(Zeit ende) {
    const Zeit weckzeit = ende - weckdauer;
    const Zeit jetzt = Uhr();
    if (weckzeit > jetzt) {
        SchlafeFein(weckzeit - jetzt);
        const Zeit verspaetung = std::min(Uhr() - weckzeit, LaengsteWeckdauer());
        weckdauer += (verspaetung - weckdauer) / Weckgedaechtnis;
    }
    while (Uhr() < ende)
        std::this_thread::yield();
}

Zeit QtUmgebung::Uhr() {
    return std::chrono::duration_cast<Zeit>(std::chrono::steady_clock::now().time_since_epoch());
}

Antwort QtUmgebung::ZeigeMeldung(const Meldung& meldung) {
    if (meldungszeuge)
        meldungszeuge(meldung);
    return meldungsweg ? meldungsweg(meldung) : Frage(meldung);
}

Antwort QtUmgebung::Frage(const Meldung& meldung) {
    return meldung.knoepfe == Knoepfe::Ok ? Antwort::Ok : Antwort::Abbrechen;
}

void QtUmgebung::ZeigeStatustext(int feld, const std::string& text) {
    if (statusanzeige)
        statusanzeige(feld, text);
}

void QtUmgebung::SetzeFormularzaehler(std::function<int()> zaehler) {
    formularzaehler = std::move(zaehler);
}

void QtUmgebung::SetzeStatusanzeige(std::function<void(int, const std::string&)> anzeige) {
    statusanzeige = std::move(anzeige);
}

void QtUmgebung::SetzeMeldungsweg(std::function<Antwort(const Meldung&)> weg) {
    meldungsweg = std::move(weg);
}

void QtUmgebung::SetzeMeldungszeuge(std::function<void(const Meldung&)> zeuge) {
    meldungszeuge = std::move(zeuge);
}

} // namespace varnoth
