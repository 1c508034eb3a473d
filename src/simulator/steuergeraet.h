#pragma once

#include "dauerspeicher.h"
#include "optik.h"
#include "protokoll.h"

namespace varnoth::simulator {

/// The controller's program: takes whole requests, works on the registers and answers.
class Steuergeraet {
public:
    /// Switches the controller on.
    /// @throws std::runtime_error when the store cannot be understood
    Steuergeraet(const Aufbau& aufbau, Optik& dieOptik, Protokoll& dasProtokoll, Zaehlwerk& dasZaehlwerk);
    Steuergeraet(const Steuergeraet&) = delete;
    Steuergeraet& operator=(const Steuergeraet&) = delete;

    /// The station address in force. A new one in the configuration holds from the next start on.
    int Adresse() const { return adresse; }
    bool Autosend() const { return autosend; }
    Registerspeicher& Speicher() { return speicher; }
    /// Brings the registers that show the scene up to the given time.
    void Aktualisiere(Zeit wann) { optik.Aktualisiere(speicher, wann); }

    /// Whether the request is one that this controller replies to.
    bool WirdBeantwortet(std::span<const std::uint8_t> anfrage) const;
    /// Carries a whole request out, checksum included and right. Gives the reply with its checksum, or
    /// nothing.
    Bytes Bearbeite(std::span<const std::uint8_t> anfrage, Zeit zeit);
    /// Starts as at power-up: the stored configuration, nothing selected, no minima and maxima.
    void Neustart();
    /// Another number of beams in a part: shown, and reported in the device status until it is stored.
    void SetzeStrahlenzahl(int teil, int anzahl);
    void SetzeVorhanden(int teil, bool vorhanden);

private:
    enum class Ablehnung : std::uint8_t { Keine = 0, Funktion = 1, Adresse = 2, Wert = 3, Geraet = 4 };
    using Anfrage = std::span<const std::uint8_t>;
    struct Funktion {
        std::uint8_t code;
        Ablehnung (Steuergeraet::*fuehreAus)(Anfrage anfrage, Bytes& antwort);
    };
    static std::span<const Funktion> Funktionen();

    Ablehnung FuehreAus(Anfrage anfrage, Bytes& antwort);
    Ablehnung Lies(Anfrage anfrage, Bytes& antwort);
    Ablehnung Schreibe(Anfrage anfrage, Bytes& antwort);
    Ablehnung MeldeKennung(Anfrage anfrage, Bytes& antwort);
    Ablehnung NimmKommando09(Anfrage anfrage, Bytes& antwort);
    Ablehnung PruefeSchreiben(Ort ort, std::span<const std::uint16_t> werte) const;
    Ablehnung Wirke(Ort ort, std::span<const std::uint16_t> werte);
    Ablehnung FuehreKommandoAus(std::uint16_t kommando);
    bool PasswortStimmt() const;
    void LoeschePasswort();
    void ZeigeStrahlenzahlen();
    int Optikteil() const { return speicher.Global(reg::Optikteilauswahl); }

    std::string passwort;
    Optik& optik;
    Protokoll& protokoll;
    Zaehlwerk& zaehlwerk;
    const Registerspeicher werk;
    Dauerspeicher dauerspeicher;
    Registerspeicher speicher{};
    int adresse;
    bool autosend = false;
    Zeit jetzt{0};
};

} // namespace varnoth::simulator
