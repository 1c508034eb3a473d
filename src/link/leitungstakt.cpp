#include "leitungstakt.h"

#include "porteinstellungen.h"

#include <algorithm>
#include <chrono>

namespace varnoth {

namespace {

constexpr double Ganggenauigkeit = 0.97; // the other side's clock may run so much faster
constexpr double Schlafanteil = 0.99;    // of the time that what is missing takes; waking takes time as well
constexpr int Bewaehrung = 20;           // replies after which a line is known to keep its pace
constexpr int Widerlegung = 3;           // so many too early in a row are no accident
constexpr int Verlangsamung = 5;         // so many late ones are none either
constexpr Zeit Spielraum = std::chrono::milliseconds(10);         // between times that are alike
constexpr Zeit KuerzesterSchlaf = std::chrono::microseconds(100); // waking takes about as long

} // namespace

void Leitungstakt::Stelle(std::string_view porteinstellungen) {
    if (empfangen > 0)
        Bewerte();
    const auto gelesen = LiesPorteinstellungen(porteinstellungen);
    const double neue = gelesen ? Zeichendauer(*gelesen) : 0;
    Leitungstakt neuer;
    neuer.zeichendauer = neue;
    if (neue == zeichendauer) {
        neuer.imTakt = imTakt;
        neuer.uebliche = uebliche;
        neuer.gesehene = gesehene;
    }
    *this = neuer;
}

Zeit Leitungstakt::Dauer(std::size_t zeichen) const {
    return std::chrono::ceil<Zeit>(
        std::chrono::duration<double, Zeit::period>(zeichendauer * static_cast<double>(zeichen)));
}

/// What the last reply tells of the line.
void Leitungstakt::Bewerte() {
    BewerteAntwortzeit();
    zuFruehe = schneller ? zuFruehe + 1 : 0;
    if (!schneller)
        imTakt = std::min(imTakt + 1, Bewaehrung);
    else if (imTakt < Bewaehrung || zuFruehe == Widerlegung)
        imTakt = 0;
}

/// How long nothing came: a program that was held up does not make a reply late.
Zeit Leitungstakt::Antwortzeit() const {
    return std::max(zuletztNichts - sendeende, Zeit{0});
}

bool Leitungstakt::KamSpaet() const {
    return gesehene == Bewaehrung && Antwortzeit() > 2 * uebliche + Spielraum;
}

/// What comes late counts only when it stays so.
void Leitungstakt::BewerteAntwortzeit() {
    constexpr int Traegheit = 8;
    spaete = KamSpaet() ? spaete + 1 : 0;
    if (spaete == Verlangsamung || gesehene == 0)
        uebliche = Antwortzeit();
    else if (spaete == 0)
        uebliche += (Antwortzeit() - uebliche) / Traegheit;
    gesehene = std::min(gesehene + 1, Bewaehrung);
}

void Leitungstakt::Gesendet(Zeit wann, std::size_t zeichen) {
    if (empfangen > 0)
        Bewerte();
    kamZuFrueh = false;
    sendeende = std::max(sendeende, wann) + Dauer(zeichen);
    sendebeginn = zuletztNichts = wann;
    gesendet = zeichen;
    empfangen = 0;
    schneller = false;
}

void Leitungstakt::NochNichts(Zeit wann) {
    if (empfangen == 0)
        zuletztNichts = wann;
}

void Leitungstakt::Empfangen(Zeit wann, std::size_t zeichen) {
    if (zeichen == 0)
        return;
    if (empfangen == 0) {
        ersterEingang = wann;
        zuerst = zeichen;
    }
    empfangen += zeichen;
    // Nothing of a reply can be there before the request and so much of the reply have passed the line.
    schneller = schneller || wann - sendebeginn < Dauer(gesendet + empfangen) * Ganggenauigkeit;
    kamZuFrueh = schneller && imTakt == Bewaehrung;
}

Zeit Leitungstakt::Schlafdauer(Zeit jetzt, std::size_t fehlende) const {
    if (schneller || empfangen == 0 || fehlende <= 1)
        return Zeit{0};
    // What is read after a sleep arrived some time before; only the first bytes tell when they came. The last
    // character is waited for awake.
    const std::size_t seitdem = empfangen - zuerst + fehlende - 1;
    const auto bis = ersterEingang + std::chrono::floor<Zeit>(Dauer(seitdem) * Schlafanteil);
    return bis - jetzt < KuerzesterSchlaf ? Zeit{0} : bis - jetzt;
}

} // namespace varnoth
