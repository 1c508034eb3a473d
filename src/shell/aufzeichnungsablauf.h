#pragma once

#include "abbild.h"
#include "aufzeichnung.h"
#include "aufzeichnungsanbieter.h"
#include "aufzeichnungstexte.h"
#include "messhoerer.h"
#include "speichersicherung.h"

#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QStatusBar;

namespace varnoth {

class Aufzeichnungsmarke;
class Messspeicher;
class frmAufzeichnung;

/// Recordings as the main window runs them: it hears of the passes and hands them to the recording that runs,
/// shows its mark in the status bar, and has the window of recordings.
class Aufzeichnungsablauf : private Messhoerer, private Aufzeichnungsanbieter {
public:
    /// What it needs of the main window.
    struct Ziel {
        QStatusBar& leiste;
        std::function<void()> zeige;             ///< asks for the window of recordings
        std::function<void(bool laeuft)> laeuft; ///< a recording has begun or ended
        const Messspeicher* speicher = nullptr;  ///< the memory of this run, if there is one
        Aufzeichnung::Uhr uhr{}; ///< the clock of the passes for another thread; nothing: the system's
        std::shared_ptr<Dateiablage> ablage{};   ///< where recordings go; nothing: the system's files
        Speichersicherung::Schreiber schreibe{}; ///< of what memory holds; nothing: likewise
    };

    explicit Aufzeichnungsablauf(Ziel ziel);
    ~Aufzeichnungsablauf() override;

    /// Begins a recording under the name that is proposed, or ends the one that runs. It counts as running
    /// until its disk has taken the rest, or has not answered for long.
    void Schalte();
    bool Laeuft() const { return aufzeichnung != nullptr; }
    /// Keeps a note in the recording that runs.
    void Notiere(Zeit uhr, Systemzeit zeit, const std::string& text);
    /// Shows the window.
    void Zeige();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends: so does a recording, without a word. A disk that does not answer is left to itself.
    void Schliesse();

private:
    void Hoere(const Messdurchgang& durchgang) override;
    void Hoere(const Liveereignis& ereignis) override;
    bool Braucht(int teil) const override;
    bool LaeuftAllein() const override { return Nimmt(); }

    Aufzeichnungslage Lage() override;
    std::string Standtext() override;
    Aufzeichnungswahl Wahl() override;
    void Waehle(const Aufzeichnungswahl& wahl) override;
    std::string Ordner() override;
    void WaehleOrdner(const std::string& ordner) override;
    std::string Namensvorschlag() override;
    void Beginne(const std::string& name) override;
    void Beende() override;
    std::optional<std::string> FrageNachOrdner(const std::string& titel, const std::string& anfang) override;
    void ZeigeOrdner(const std::string& ordner) override;
    Flugschreiber DerFlugschreiber() override { return flugschreiber; }
    void Waehle(const Flugschreiber& wahl) override;
    std::string ImSpeicher() override;
    void SichereSpeicher(int minuten) override;
    Speicherlage Sicherung() override;

    Aufzeichnungsauftrag Auftrag(const std::string& name);
    bool Nimmt() const { return Laeuft() && !endetSeit; }
    bool FolgeKonfiguration();
    void BlickeNach();
    void BlickeNachDemEnde(std::chrono::milliseconds hoechstens);
    void SchliesseAb(bool ganz);
    void MerkeBeginn(const Aufzeichnungsstand& stand);
    void MeldeKeinenBeginn(int fehler);
    std::string Hindernis() const;
    void MeldeAenderung(const Aufzeichnungslage& lage);
    void MeldeWarten(const Aufzeichnungslage& lage);
    void MerkeEnde(bool ganz);
    void PlaneSicherung();
    void SichereWeiter();
    void BeendeSicherung(const std::string& fehler);
    std::string AmEnde(bool fertig) const;

    Ziel ziel;
    std::unique_ptr<Aufzeichnung> aufzeichnung;
    Aufzeichnungsstand letzter; ///< of the last recording, or of the one that runs
    Aufzeichnungsrate rate;
    std::shared_ptr<const Abbild> konfiguration; ///< in use, without what is measured
    Flugschreiber flugschreiber;
    bool beginnGemerkt = false;
    bool wartenGemeldet = false;
    int gemeldeterFehler = 0;
    std::optional<Zeit> endetSeit;                ///< since when the disk has been asked to take the rest
    std::shared_ptr<Speichersicherung> sicherung; ///< of the memory, while it runs
    std::string gesichert;                        ///< the path of the last one that was saved
    QTimer takt;
    QTimer sicherungstakt;
    Aufzeichnungsmarke* marke;
    std::unique_ptr<frmAufzeichnung> fenster;
};

} // namespace varnoth
