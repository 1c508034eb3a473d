#include "proberegler.h"

#include "pruefgeraet.h"

#include <algorithm>
#include <chrono>

namespace varnoth::pruefung {

namespace {

constexpr Zeit Fensterblick = std::chrono::milliseconds(4); // waits come back so often

bool HatGueltigePruefsumme(const std::string& rahmen) {
    return rahmen.size() > 2 && MitPruefsumme(rahmen.substr(0, rahmen.size() - 2)) == rahmen;
}

simulator::Bytes AlsBytes(const std::string& text) {
    return {text.begin(), text.end()};
}

/// A fault of the request itself; the rest are faults of its reply or of the time it takes.
bool TrifftAnforderung(std::string& anforderung, const Probefehler& fehler) {
    if (fehler.name == "lost")
        anforderung.clear();
    else if (fehler.name == "garbled")
        anforderung.at(static_cast<std::size_t>(fehler.wert) % anforderung.size()) ^= 0x10;
    else
        return false;
    return true;
}

} // namespace

/// Time in milliseconds, what happens, the fault and its figures, the bytes.
void Proberegler::Schreibmit(std::string_view was, std::string_view bytes, const Probefehler& dazu) {
    if (!mitschrift)
        return;
    constexpr double MikrosekundenJeMillisekunde = 1000;
    std::string zeile =
        std::to_string(static_cast<double>(umgebung.uhr.count()) / MikrosekundenJeMillisekunde) + ' ';
    zeile += was;
    if (!dazu.name.empty())
        zeile += " [" + std::string(dazu.name) + ' ' + std::to_string(dazu.wert) + ' ' +
                 std::to_string(dazu.nach) + ']';
    for (const char byte : bytes) {
        constexpr std::string_view Ziffern = "0123456789abcdef";
        const auto zahl = static_cast<unsigned char>(byte);
        zeile += {' ', Ziffern[zahl / 16U], Ziffern[zahl % 16U]};
    }
    mitschrift(zeile);
}

void Proberegler::Verwirf() {
    Verarbeite();
    leitung.Verwirf();
}

std::size_t Proberegler::BytesWartend() {
    Verarbeite();
    return offen ? leitung.Wartend() : 0;
}

std::string Proberegler::LiesAlles() {
    Verarbeite();
    std::string bytes = leitung.LiesAlles(umgebung.uhr);
    gelesen += bytes.size();
    if (!bytes.empty())
        Schreibmit("read", bytes);
    return bytes;
}

void Proberegler::WarteAufEingang(Zeit hoechstens) {
    Verarbeite();
    Zeit naechstes = umgebung.uhr + std::min(hoechstens, Fensterblick);
    if (!wartende.empty())
        naechstes = std::min(naechstes, wartende.front().faellig);
    naechstes = std::min(naechstes, leitung.NaechsteFaelligkeit().value_or(naechstes));
    umgebung.uhr = std::max(umgebung.uhr, naechstes);
}

void Proberegler::Schlafe(Zeit hoechstens) {
    umgebung.uhr += std::min(hoechstens, Fensterblick);
}

void Proberegler::Schreibe(std::string_view bytes) {
    ++anforderungen;
    gelesen = 0;
    letzteSendung = bytes;
    letzteSendezeit = umgebung.uhr;
    identifikationen += letzteSendung.at(1) == 0x11 ? 1 : 0;
    std::string anforderung(bytes);
    auto einer = fehler ? fehler() : std::nullopt;
    Schreibmit("sent", bytes, einer.value_or(Probefehler{}));
    // A whole identification from another address is true for all that anybody can tell.
    if (einer && einer->name == "address" && anforderung.at(1) == 0x11)
        einer->name = "crc";
    if (einer && TrifftAnforderung(anforderung, *einer))
        einer.reset();
    const Zeit angekommen = umgebung.uhr + Probeleitung::Dauer(bytes.size());
    frei = std::max(frei, angekommen);
    if (einer && einer->name == "busy") {
        frei += std::chrono::milliseconds(einer->wert);
        einer.reset();
    }
    if (HatGueltigePruefsumme(anforderung))
        wartende.push_back({frei, anforderung, einer});
}

void Proberegler::Verarbeite() {
    for (; !wartende.empty() && wartende.front().faellig <= umgebung.uhr; wartende.pop_front())
        Beantworte(wartende.front());
    leitung.Uebergib(umgebung.uhr);
}

void Proberegler::Beantworte(const Wartende& eine) {
    auto stoerung = eine.fehler ? std::optional(simulator::LiesStoerung(eine.fehler->name)) : std::nullopt;
    const bool lehntAb = stoerung && stoerung->art->lehntAb;
    simulator::Sendung sendung(1);
    sendung[0].zeichen = AlsBytes(lehntAb ? eine.anforderung.substr(0, 2) : Antwort(eine.anforderung));
    antwortlaenge = sendung[0].zeichen.size();
    if (antwortlaenge == 0)
        return;
    verlauf.Nimm(sendung[0].zeichen);
    if (stoerung) {
        stoerung->wert = eine.fehler->wert;
        stoerung->nach = eine.fehler->nach;
        stoerung->Verfaelsche(sendung, verlauf);
    }
    const bool verspaetet = eine.fehler && (eine.fehler->name == "late" || eine.fehler->name == "pieces");
    for (const auto& stueck : sendung)
        Schreibmit("  answered after " + std::to_string(stueck.pause.count()),
                   {reinterpret_cast<const char*>(stueck.zeichen.data()), stueck.zeichen.size()});
    leitung.Sende(sendung, eine.faellig, ausserDerReihe && verspaetet);
}

std::string Proberegler::Antwort(const std::string& anforderung) {
    switch (anforderung.at(1)) {
    case 0x03:
        return Lies(anforderung);
    case 0x10:
        return Schreib(anforderung);
    case 0x11:
        return MitPruefsumme(Bytes({Slaveadresse, 0x11, static_cast<int>(Identtext.size()) + 2, 7, 50}) +
                             std::string(Identtext));
    default:
        return {};
    }
}

std::string Proberegler::Lies(const std::string& anforderung) {
    const int adresse = Wort(anforderung, 2), anzahl = Wort(anforderung, 4);
    if (anforderung.at(0) != Slaveadresse || !Proberegister::GibtEs(adresse, anzahl))
        return {};
    std::string antwort = Bytes({Slaveadresse, 0x03, 2 * anzahl});
    for (int i = 0; i < anzahl; ++i) {
        const int wert = speicher.Wert(adresse + i, speicher.Auswahl());
        antwort += Bytes({wert / 256, wert % 256});
    }
    return MitPruefsumme(antwort);
}

std::string Proberegler::Schreib(const std::string& anforderung) {
    const int adresse = Wort(anforderung, 2), anzahl = Wort(anforderung, 4);
    if (anforderung.at(0) != Slaveadresse || !Proberegister::GibtEs(adresse, anzahl))
        return {};
    ++ausgefuehrte[anforderung];
    const int teil = speicher.Auswahl();
    for (int i = 0; i < anzahl; ++i)
        speicher.Wert(adresse + i, teil) =
            static_cast<std::uint16_t>(Wort(anforderung, 7 + 2 * static_cast<std::size_t>(i)));
    return MitPruefsumme(anforderung.substr(0, 6));
}

} // namespace varnoth::pruefung
