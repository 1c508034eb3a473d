#pragma once

#include "messanbieter.h"
#include "messhoerer.h"
#include "messspeicher.h"

#include <QWidget>

#include <algorithm>
#include <functional>
#include <memory>
#include <typeindex>
#include <vector>

namespace varnoth {

/// A record that is shown as if it were live.
class Wiedergabestand {
public:
    Wiedergabestand() = default;
    Wiedergabestand(const Wiedergabestand&) = delete;
    Wiedergabestand& operator=(const Wiedergabestand&) = delete;
    virtual ~Wiedergabestand() = default;

    virtual const Messquelle& Quelle() const = 0;
    /// Where it stands.
    virtual Zeit Jetzt() const = 0;
    /// Goes on from a time.
    virtual void SpringeZu(Zeit laufzeit) = 0;
};

/// The past as the main window keeps it: the memory of this run, which always listens to live data, and the
/// windows that show it, or a record in its place.
class Messablauf : public Messanbieter, private Messhoerer {
public:
    /// Hears of a note: the clock and the time of day that it is for.
    using Notizhoerer = std::function<void(Zeit uhr, Systemzeit zeit, const std::string& text)>;

    Messablauf();
    ~Messablauf() override;

    /// Shows a window of the past, which is made when it is first needed: a class that is made with a
    /// Messanbieter and has ZeigeVor and Lokalisiere, and Braucht where it needs parts that no view shows.
    template<class Fenster>
    void Zeige() {
        auto stelle = std::ranges::find(fenster, std::type_index(typeid(Fenster)), &Gezeigtes::art);
        if (stelle == fenster.end())
            stelle = fenster.insert(stelle, Neues<Fenster>());
        stelle->zeigeVor();
    }
    /// Fills all texts of the windows in the current language again.
    void Lokalisiere();
    /// The program ends: the windows close.
    void Schliesse();

    /// The memory of this run, whatever is looked at.
    const Messspeicher& Speicher() const { return speicher; }
    /// Lets a record be looked at in place of memory; nullptr: memory again. It must live until then.
    void SetzeWiedergabe(Wiedergabestand* neue);
    /// Sets who hears of notes on live data.
    void SetzeNotizhoerer(Notizhoerer neuer) { notizhoerer = std::move(neuer); }
    /// Sets what opens the blanking editor with a suggestion.
    void SetzeBlankingweg(std::function<void(int teil, const Werte& muster)> neuer) {
        blankingweg = std::move(neuer);
    }

    /// Sets what shows the report with a section about beams.
    void SetzeBerichtsweg(std::function<void(const Strahlbericht& abschnitt)> neuer) {
        berichtsweg = std::move(neuer);
    }

    const Messquelle& Quelle() override;
    int Quellenzahl() override { return quellenzahl; }
    bool IstWiedergabe() override { return wiedergabe != nullptr; }
    Zeit Jetzt() override;
    void SpringeZu(Zeit laufzeit) override;
    /// A record that is looked at stays as it is.
    void Notiere(Zeit laufzeit, const std::string& text) override;
    std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& filter,
                                              const std::string& name) override;
    bool Schreibe(const std::string& pfad, const std::string& bytes) override;
    void SchlageBlankingVor(int teil, const Werte& muster) override;
    void BerichteStrahlen(const Strahlbericht& abschnitt) override;

private:
    struct Gezeigtes {
        std::type_index art;
        std::unique_ptr<QWidget> fenster;
        std::function<void()> zeigeVor;
        std::function<void()> lokalisiere;
        std::function<bool(int teil)> braucht = [](int /*teil*/) { return false; };
    };

    template<class Fenster>
    Gezeigtes Neues() {
        auto neues = std::make_unique<Fenster>(static_cast<Messanbieter&>(*this));
        Fenster* const dieses = neues.get();
        Gezeigtes gezeigtes{typeid(Fenster), std::move(neues), [dieses] { dieses->ZeigeVor(); },
                            [dieses] { dieses->Lokalisiere(); }};
        if constexpr (requires(int teil) { dieses->Braucht(teil); })
            gezeigtes.braucht = [dieses](int teil) { return dieses->Braucht(teil); };
        return gezeigtes;
    }

    void Hoere(const Messdurchgang& durchgang) override;
    void Hoere(const Liveereignis& ereignis) override;
    bool Braucht(int teil) const override;
    void MerkeGeraet();
    void MerkeKonfiguration();

    Messspeicher speicher;
    Abbild konfiguration; ///< that the memory has, without what is measured
    bool hatKonfiguration = false;
    Zeit zuletztGesehen{}; ///< the clock when it was last compared with the one in use
    Wiedergabestand* wiedergabe = nullptr;
    int quellenzahl = 1;
    Notizhoerer notizhoerer;
    std::function<void(int, const Werte&)> blankingweg;
    std::function<void(const Strahlbericht&)> berichtsweg;
    std::vector<Gezeigtes> fenster;
};

} // namespace varnoth
