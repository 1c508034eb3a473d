#include "dateiannahme.h"

#include "rufleitung_posix.h"
#include "rufworte.h"

#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace varnoth {

namespace {

/// Whether the place is free for a socket; an old one goes, anything else stays.
bool MachePlatz(const sockaddr_un& adresse) {
    struct stat stand {};
    if (::lstat(adresse.sun_path, &stand) != 0)
        return errno == ENOENT;
    return S_ISSOCK(stand.st_mode) && ::unlink(adresse.sun_path) == 0;
}

} // namespace

class Dateiannahme::Innen {
public:
    Innen(const QString& ort, Ziel neues) : ziel(std::move(neues)) {
        const auto gesuchte = Rufadresse(ort);
        if (gesuchte && MachePlatz(*gesuchte))
            Hoere(*gesuchte);
    }
    Innen(const Innen&) = delete;
    Innen& operator=(const Innen&) = delete;
    ~Innen() {
        if (melder)
            ::unlink(adresse.sun_path);
    }

    bool Hoert() const { return melder != nullptr; }

private:
    /// Somebody who has called and not yet been answered.
    struct Anruf {
        Deskriptor leitung;
        std::string gelesen{};
        std::unique_ptr<QSocketNotifier> melder{};
        std::unique_ptr<QTimer> frist{};
    };

    void Hoere(const sockaddr_un& wo) {
        const mode_t vorher = ::umask(S_IRWXG | S_IRWXO | S_IXUSR);
        const bool gebunden = ::bind(leitung.Nummer(), AlsAdresse(wo), sizeof wo) == 0;
        ::umask(vorher);
        if (!gebunden || ::listen(leitung.Nummer(), static_cast<int>(HoechstensAnrufe)) != 0)
            return;
        adresse = wo;
        melder = std::make_unique<QSocketNotifier>(leitung.Nummer(), QSocketNotifier::Read);
        QObject::connect(melder.get(), &QSocketNotifier::activated, melder.get(), [this] { NimmAnrufAn(); });
    }

    void NimmAnrufAn() {
        Deskriptor neue(::accept4(leitung.Nummer(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (neue.Nummer() < 0 || !IstDerselbeNutzer(neue) || anrufe.size() >= HoechstensAnrufe)
            return;
        auto& anruf = *anrufe.emplace_back(std::make_unique<Anruf>(Anruf{std::move(neue)}));
        anruf.melder = std::make_unique<QSocketNotifier>(anruf.leitung.Nummer(), QSocketNotifier::Read);
        anruf.frist = std::make_unique<QTimer>();
        anruf.frist->setSingleShot(true);
        QObject::connect(anruf.melder.get(), &QSocketNotifier::activated, anruf.melder.get(),
                         [this, &anruf] { Lies(anruf); });
        QObject::connect(anruf.frist.get(), &QTimer::timeout, anruf.frist.get(),
                         [this, &anruf] { Vergiss(anruf); });
        anruf.frist->start(std::chrono::ceil<std::chrono::milliseconds>(ziel.laengsterSatz));
    }

    void Lies(Anruf& anruf) {
        char puffer[4096];
        const ssize_t stueck = ::read(anruf.leitung.Nummer(), puffer, sizeof puffer);
        if (stueck < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (stueck > 0) {
            anruf.gelesen.append(puffer, static_cast<std::size_t>(stueck));
            if (anruf.gelesen.size() <= LaengsterRuf)
                return;
            anruf.gelesen.clear();
        }
        const auto pfad = stueck < 0 ? std::nullopt : GerufenerPfad(anruf.gelesen);
        const bool gehoert = Beantworte(anruf, pfad && ziel.bereit());
        Vergiss(anruf);
        if (gehoert)
            ziel.oeffne(*pfad);
    }

    /// Whether the file is to be opened: a caller who no longer listens has told the user otherwise.
    static bool Beantworte(const Anruf& anruf, bool nehmen) {
        return Sende(anruf.leitung, nehmen ? RufAngenommen : RufAbgelehnt) && nehmen;
    }

    /// The notifier and the timer may be those whose signal runs just now; they go once the events do that
    /// are served now, which may be long after the file was opened.
    void Vergiss(Anruf& anruf) {
        anruf.melder->setEnabled(false);
        anruf.melder.release()->deleteLater();
        anruf.frist->disconnect();
        anruf.frist.release()->deleteLater();
        std::erase_if(anrufe, [&](const auto& einer) { return einer.get() == &anruf; });
    }

    Ziel ziel;
    Deskriptor leitung = NeueRufleitung();
    sockaddr_un adresse{};
    std::unique_ptr<QSocketNotifier> melder;
    std::vector<std::unique_ptr<Anruf>> anrufe;
};

Dateiannahme::Dateiannahme(const QString& ort, Ziel ziel)
    : innen(std::make_unique<Innen>(ort, std::move(ziel))) {}

Dateiannahme::~Dateiannahme() = default;

bool Dateiannahme::Hoert() const {
    return innen->Hoert();
}

} // namespace varnoth
