#include "dateiannahme.h"

#include "nutzer_windows.h"
#include "rufrohr_windows.h"
#include "rufworte.h"

#include <QTimer>
#include <QWinEventNotifier>

#include <windows.h>

#include <sddl.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

/// A new end that can be called. The first makes the pipe, this user's alone; it comes to nothing where
/// another program has one of that name.
Griff NeuesRohr(const std::wstring& name, bool erstes) {
    constexpr DWORD wie = PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_REJECT_REMOTE_CLIENTS;
    const std::wstring nutzer = Nutzerkennung();
    const std::wstring rechte = L"O:" + nutzer + L"D:P(A;;GA;;;" + nutzer + L")";
    SECURITY_ATTRIBUTES sicherheit{sizeof sicherheit, nullptr, FALSE};
    if (nutzer.empty() ||
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(
            rechte.c_str(), SDDL_REVISION_1, &sicherheit.lpSecurityDescriptor, nullptr) == 0)
        return {};
    Griff rohr(::CreateNamedPipeW(name.c_str(),
                                  PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED |
                                      (erstes ? FILE_FLAG_FIRST_PIPE_INSTANCE : 0),
                                  wie, HoechstensAnrufe, 256, LaengsterRuf, 0, &sicherheit));
    ::LocalFree(sicherheit.lpSecurityDescriptor);
    return rohr;
}

} // namespace

class Dateiannahme::Innen {
public:
    Innen(const QString& ort, Ziel neues) : name(Rohrname(ort)), ziel(std::move(neues)) {
        if (!name.empty())
            HoereWeiter();
    }

    bool Hoert() const { return !anrufe.empty(); }

private:
    /// Somebody who calls or may call, until he is answered.
    struct Anruf {
        explicit Anruf(Griff offenes) : rohr(std::move(offenes)) {}
        Rohrende rohr;
        std::unique_ptr<QWinEventNotifier> melder{};
        std::unique_ptr<QTimer> frist{};
        bool verbunden = false;
    };

    /// One more may call, as long as not too many do.
    void HoereWeiter() {
        if (anrufe.size() >= HoechstensAnrufe)
            return;
        Griff neues = NeuesRohr(name, anrufe.empty());
        if (!neues)
            return;
        auto& anruf = *anrufe.emplace_back(std::make_unique<Anruf>(std::move(neues)));
        anruf.rohr.WarteAufAnruf();
        anruf.melder = std::make_unique<QWinEventNotifier>(anruf.rohr.Ereignis());
        QObject::connect(anruf.melder.get(), &QWinEventNotifier::activated, anruf.melder.get(),
                         [this, &anruf] { GehWeiter(anruf); });
    }

    void GehWeiter(Anruf& anruf) {
        const Rufstand stand = anruf.rohr.Stand();
        if (stand == Rufstand::Laeuft)
            return;
        if (stand == Rufstand::Gescheitert)
            Vergiss(anruf);
        else if (!anruf.verbunden)
            Begruesse(anruf);
        else
            Beantworte(anruf);
    }

    void Begruesse(Anruf& anruf) {
        anruf.verbunden = true;
        anruf.frist = std::make_unique<QTimer>();
        anruf.frist->setSingleShot(true);
        QObject::connect(anruf.frist.get(), &QTimer::timeout, anruf.frist.get(),
                         [this, &anruf] { Vergiss(anruf); });
        anruf.frist->start(std::chrono::ceil<std::chrono::milliseconds>(ziel.laengsterSatz));
        anruf.rohr.Lies(LaengsterRuf + 1);
        HoereWeiter();
    }

    /// A caller who no longer listens has told the user that the file is not opened.
    void Beantworte(Anruf& anruf) {
        constexpr int AntwortMs = 200; // the pipe takes it at once, as a rule
        const auto ruf = anruf.rohr.Gelesenes();
        const auto pfad = ruf.size() <= LaengsterRuf ? GerufenerPfad(ruf) : std::nullopt;
        const bool nehmen = pfad && ziel.bereit();
        anruf.rohr.Sende(nehmen ? RufAngenommen : RufAbgelehnt);
        const bool gehoert = anruf.rohr.StandNach(AntwortMs) == Rufstand::Fertig;
        Vergiss(anruf);
        if (nehmen && gehoert)
            ziel.oeffne(*pfad);
    }

    /// The notifier and the timer may be those whose signal runs just now.
    void Vergiss(Anruf& anruf) {
        anruf.melder->disconnect();
        anruf.melder->setEnabled(false);
        anruf.melder.release()->deleteLater();
        if (anruf.frist) {
            anruf.frist->disconnect();
            anruf.frist.release()->deleteLater();
        }
        std::erase_if(anrufe, [&](const auto& einer) { return einer.get() == &anruf; });
        if (std::ranges::none_of(anrufe, [](const auto& einer) { return !einer->verbunden; }))
            HoereWeiter();
    }

    std::wstring name;
    Ziel ziel;
    std::vector<std::unique_ptr<Anruf>> anrufe;
};

Dateiannahme::Dateiannahme(const QString& ort, Ziel ziel)
    : innen(std::make_unique<Innen>(ort, std::move(ziel))) {}

Dateiannahme::~Dateiannahme() = default;

bool Dateiannahme::Hoert() const {
    return innen->Hoert();
}

} // namespace varnoth
