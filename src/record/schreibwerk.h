#pragma once

#include "aufzeichnungsform.h"
#include "aufzeichnungswahl.h"
#include "dateiablage.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// A moment, on the clock that never goes back and by the time of day.
struct Augenblick {
    Zeit uhr{};
    Systemzeit zeit{};
};

/// What is to be recorded, where and how.
struct Aufzeichnungsauftrag {
    Aufzeichnungswahl wahl{};
    std::string ordner{};  ///< UTF-8
    std::string name{};    ///< of the first file without ending; those that follow get a number
    Messangaben angaben{}; ///< `beginn` and zone are those of each file
    struct Form {
        std::string endung; ///< ".csv"
        std::function<std::unique_ptr<Aufzeichnungsform>()> mache;
    };
    std::vector<Form> formen{}; ///< each makes a file
};

/// Passes and events of one configuration, in order of time on the clock.
struct Aufnahmestueck {
    std::shared_ptr<const Abbild> konfiguration{}; ///< nullptr: the same as before
    Messpaket inhalt{};                            ///< `laufzeit` of events is the clock too
};

/// How a recording stands.
struct Aufzeichnungsstand {
    Zeit dauer{};
    std::uint64_t bytes = 0;          ///< of all its files
    std::uint64_t durchgaenge = 0;    ///< recorded
    std::uint64_t verworfen = 0;      ///< passes that could not be kept
    int dateien = 0;                  ///< begun so far; none while the first ones are still to be made
    std::vector<std::string> pfade{}; ///< of the newest files, one a form
    int fehler = 0;                   ///< why nothing can be written now; 0 while all is well
    bool wartet = false;              ///< a call to the disk has not come back for long
    bool fertig = false;              ///< the time that was chosen is up
};

/// Writes a recording: which passes, into which files, what becomes of full and of old ones. All of it
/// happens in the calls, in whatever thread makes them.
class Schreibwerk {
public:
    /// `ablage` must outlive this object.
    Schreibwerk(Dateiablage& ablage, Aufzeichnungsauftrag auftrag);
    ~Schreibwerk();

    /// Makes the first files. An error leaves nothing behind.
    int Beginne(Augenblick jetzt, std::shared_ptr<const Abbild> konfiguration);
    /// Hands everything to the system. `verworfene` passes before it were lost on their way. To be called
    /// each second at least, with nothing too.
    void Schreibe(std::vector<Aufnahmestueck> stuecke, std::uint64_t verworfene, Augenblick jetzt);
    /// Ends the files whole.
    void Beende(Augenblick jetzt);

    const Aufzeichnungsstand& Stand() const { return stand; }

private:
    struct Datei {
        std::string pfad;
        std::unique_ptr<Aufzeichnungsform> form;
        std::unique_ptr<Ausgabedatei> ausgabe;
        std::uint64_t bytes = 0;
    };
    /// Files that belong together: the forms of the same stretch of time.
    struct Satz {
        std::vector<Datei> dateien{};
        Augenblick beginn{};
        Zeit ende{};
        Zeit bis{};       ///< from its beginning on, of what it holds
        bool leer = true; ///< holds nothing but its beginning
    };

    std::string Pfad(std::size_t form, int nummer) const;
    int LegeAn(Satz& neuer, int nummer);
    int Eroeffne(Augenblick jetzt);
    int HaengeAn(Datei& datei, const std::string& bytes);
    bool HatZuvieleBytes() const;
    bool IstVoll(Augenblick jetzt) const;
    void Schliesse(Zeit wann);
    void Schreibe(Aufnahmestueck stueck);
    Messpaket AlsPaket(Messpaket inhalt);
    void Stoere(int fehler, Zeit jetzt);
    void VersucheWieder(Augenblick anfang, Zeit jetzt);
    void Verwirf(Messpaket inhalt);
    void MeldeVerworfene(Augenblick jetzt);
    void Sichere(Zeit jetzt);
    void VergissAlte(Zeit jetzt);

    Dateiablage& ablage;
    Aufzeichnungsauftrag auftrag;
    Durchgangsauswahl auswahl;
    Aufzeichnungsstand stand;
    std::shared_ptr<const Abbild> konfiguration;
    Satz laufender;
    std::deque<Satz> alte; ///< those that may have to go
    int nummer = 0;
    Zeit begonnen{};
    Zeit gesichert{};
    Zeit versucht{};
    std::uint64_t zuMelden = 0;             ///< lost passes that no file tells of yet
    std::vector<Messereignis> nachzutragen; ///< what has happened while nothing could be written
};

} // namespace varnoth
