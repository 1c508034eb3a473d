#include "aufzeichnung.h"

#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

// Short enough that with the writing itself no more than a second is ever missing on the disk.
constexpr auto Schreibabstand = std::chrono::milliseconds(700);
constexpr std::size_t MeisteJeStueck = 1000;

} // namespace

/// What both threads use, and what outlives the one that is left behind.
struct Aufzeichnung::Innen {
    /// What waits to be written.
    struct Wartendes {
        std::vector<Aufnahmestueck> stuecke;
        std::size_t durchgaenge = 0;
        std::uint64_t verworfene = 0;
    };

    Innen(std::shared_ptr<Dateiablage> welche, Aufzeichnungsauftrag auftrag, Uhr welcheUhr)
        : ablage(std::move(welche)), uhr(std::move(welcheUhr)), werk(*ablage, std::move(auftrag)) {}

    Messpaket& LetztesStueck();
    void Laufe(std::shared_ptr<const Abbild> konfiguration);
    bool Beginne(std::shared_ptr<const Abbild> konfiguration);
    void MerkeStand();
    void GibAuf();

    std::shared_ptr<Dateiablage> ablage;
    Uhr uhr;
    Schreibwerk werk; ///< the thread's own while it runs
    std::mutex sperre;
    std::condition_variable wecker;
    Wartendes wartendes;
    Aufzeichnungsstand stand;
    std::condition_variable beginnmelder;
    std::optional<int> beginn;           ///< what came of making the first files
    std::optional<Zeit> beimTraegerSeit; ///< since when the thread has been writing
    std::size_t inArbeit = 0;            ///< passes that are being written
    bool zuEnde = false;
    bool aufgegeben = false; ///< `stand` is the last word
};

Aufzeichnung::Aufzeichnung(std::shared_ptr<Dateiablage> ablage, Aufzeichnungsauftrag auftrag, Uhr uhr)
    : innen(std::make_shared<Innen>(std::move(ablage), std::move(auftrag), std::move(uhr))) {}

Aufzeichnung::~Aufzeichnung() {
    Beende();
}

std::optional<int> Aufzeichnung::Beginne(std::shared_ptr<const Abbild> konfiguration,
                                         std::chrono::milliseconds hoechstens) {
    innen->beimTraegerSeit = innen->uhr().uhr;
    faden.emplace([innen = innen, konfiguration = std::move(konfiguration)] { innen->Laufe(konfiguration); });
    std::unique_lock gesperrt(innen->sperre);
    innen->beginnmelder.wait_for(gesperrt, hoechstens, [this] { return innen->beginn.has_value(); });
    return innen->beginn;
}

bool Aufzeichnung::LassEnden(std::chrono::milliseconds hoechstens) {
    if (!faden)
        return true;
    {
        const std::lock_guard gesperrt(innen->sperre);
        innen->zuEnde = true;
    }
    innen->wecker.notify_one();
    if (!faden->WarteAufEnde(hoechstens))
        return false;
    faden.reset();
    return true;
}

bool Aufzeichnung::Beende(std::chrono::milliseconds hoechstens) {
    if (LassEnden(hoechstens))
        return true;
    innen->GibAuf();
    faden->LasseZurueck();
    faden.reset();
    return false;
}

/// The thread may still write what it has; nobody will hear of it.
void Aufzeichnung::Innen::GibAuf() {
    const std::lock_guard gesperrt(sperre);
    aufgegeben = true;
    stand.verworfen += wartendes.durchgaenge + wartendes.verworfene + inArbeit;
    stand.fehler = ETIMEDOUT;
}

/// What follows belongs to the same stretch as long as the configuration does not change.
Messpaket& Aufzeichnung::Innen::LetztesStueck() {
    const auto istVoll = [](const Messpaket& inhalt) {
        return inhalt.durchgaenge.size() >= MeisteJeStueck || inhalt.ereignisse.size() >= MeisteJeStueck;
    };
    if (wartendes.stuecke.empty() || istVoll(wartendes.stuecke.back().inhalt))
        wartendes.stuecke.emplace_back();
    return wartendes.stuecke.back().inhalt;
}

void Aufzeichnung::Nimm(const Messdurchgang& durchgang) {
    const std::lock_guard gesperrt(innen->sperre);
    Innen::Wartendes& wartendes = innen->wartendes;
    if (wartendes.durchgaenge >= MeisteWartende) {
        ++wartendes.verworfene;
        return;
    }
    innen->LetztesStueck().durchgaenge.push_back(durchgang);
    if (++wartendes.durchgaenge == MeisteWartende / 2)
        innen->wecker.notify_one();
}

void Aufzeichnung::Nimm(Messereignis ereignis) {
    const std::lock_guard gesperrt(innen->sperre);
    innen->LetztesStueck().ereignisse.push_back(std::move(ereignis));
}

void Aufzeichnung::SetzeKonfiguration(std::shared_ptr<const Abbild> konfiguration) {
    const std::lock_guard gesperrt(innen->sperre);
    innen->wartendes.stuecke.push_back({.konfiguration = std::move(konfiguration), .inhalt = {}});
}

Aufzeichnungsstand Aufzeichnung::Stand() const {
    const Zeit jetzt = innen->uhr().uhr;
    const std::lock_guard gesperrt(innen->sperre);
    Aufzeichnungsstand stand = innen->stand;
    const auto seit = innen->beimTraegerSeit;
    stand.wartet = !innen->aufgegeben && seit && jetzt - *seit > Nebenfaden::LaengstesSchweigen;
    return stand;
}

/// Whether there are files to write to.
bool Aufzeichnung::Innen::Beginne(std::shared_ptr<const Abbild> konfiguration) {
    const int fehler = werk.Beginne(uhr(), std::move(konfiguration));
    const std::lock_guard gesperrt(sperre);
    MerkeStand();
    if (!aufgegeben)
        stand.fehler = fehler;
    beginn = fehler;
    beginnmelder.notify_all();
    return fehler == 0;
}

/// The disk has answered.
void Aufzeichnung::Innen::MerkeStand() {
    beimTraegerSeit.reset();
    inArbeit = 0;
    if (!aufgegeben)
        stand = werk.Stand();
}

void Aufzeichnung::Innen::Laufe(std::shared_ptr<const Abbild> konfiguration) {
    if (!Beginne(std::move(konfiguration)))
        return;
    for (bool letztesMal = false; !letztesMal;) {
        Wartendes geholtes;
        {
            std::unique_lock gesperrt(sperre);
            wecker.wait_for(gesperrt, Schreibabstand,
                            [this] { return zuEnde || wartendes.durchgaenge >= MeisteWartende / 2; });
            letztesMal = zuEnde;
            beimTraegerSeit = uhr().uhr;
            geholtes = std::exchange(wartendes, {});
            inArbeit = geholtes.durchgaenge + geholtes.verworfene;
        }
        werk.Schreibe(std::move(geholtes.stuecke), geholtes.verworfene, uhr());
        if (letztesMal)
            werk.Beende(uhr());
        const std::lock_guard gesperrt(sperre);
        MerkeStand();
    }
}

} // namespace varnoth
