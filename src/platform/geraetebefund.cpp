#include "geraetebefund.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#endif

namespace varnoth {

#ifdef Q_OS_UNIX

namespace {

namespace fs = std::filesystem;

std::string Nutzername(uid_t nummer) {
    const passwd* const eintrag = getpwuid(nummer);
    return eintrag != nullptr ? eintrag->pw_name : std::to_string(nummer);
}

std::string Gruppenname(gid_t nummer) {
    const group* const eintrag = getgrgid(nummer);
    return eintrag != nullptr ? eintrag->gr_name : std::to_string(nummer);
}

bool GehoertJetztZu(gid_t gruppe) {
    std::vector<gid_t> gruppen(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
    getgroups(static_cast<int>(gruppen.size()), gruppen.data());
    return getegid() == gruppe || std::ranges::find(gruppen, gruppe) != gruppen.end();
}

/// Whether the system's list names the user as a member: he is one from his next login on.
bool StehtInDerListe(const std::string& nutzer, gid_t gruppe) {
    const group* const eintrag = getgrgid(gruppe);
    if (eintrag == nullptr)
        return false;
    for (char** name = eintrag->gr_mem; *name != nullptr; ++name)
        if (nutzer == *name)
            return true;
    return false;
}

Portbefund OhneRecht(const struct stat& geraet) {
    Portbefund befund{.hindernis = Hindernis::KeinRecht,
                      .eigentuemer = Nutzername(geraet.st_uid),
                      .nutzer = Nutzername(geteuid())};
    constexpr mode_t lesenUndSchreiben = S_IRGRP | S_IWGRP;
    const gid_t gruppe = geraet.st_gid;
    // To join the group of the superuser gives away far more than a port.
    if (gruppe == 0 || (geraet.st_mode & lesenUndSchreiben) != lesenUndSchreiben || GehoertJetztZu(gruppe))
        return befund;
    befund.gruppe = Gruppenname(gruppe);
    befund.gruppeErstNachAnmeldung = StehtInDerListe(befund.nutzer, gruppe);
    return befund;
}

bool IstGeraet(const fs::path& eintrag, dev_t geraet) {
    struct stat dahinter {};
    return stat(eintrag.c_str(), &dahinter) == 0 && S_ISCHR(dahinter.st_mode) && dahinter.st_rdev == geraet;
}

bool IstPseudoterminal(dev_t geraet) {
    constexpr unsigned Erstes = 136, Letztes = 143; // major numbers
    return major(geraet) >= Erstes && major(geraet) <= Letztes;
}

/// A process that holds the far end of pseudo terminals stands for what is connected: it takes nobody's
/// replies.
bool HatOffen(const fs::path& prozess, dev_t geraet) {
    const dev_t fernesEnde = makedev(5, 2);
    bool gefunden = false;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(prozess / "fd", fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        if (IstPseudoterminal(geraet) && IstGeraet(eintrag->path(), fernesEnde))
            return false;
        gefunden = gefunden || IstGeraet(eintrag->path(), geraet);
    }
    return gefunden;
}

bool IstZahl(const std::string& text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::string Prozessname(const fs::path& prozess) {
    std::string name;
    std::getline(std::ifstream(prozess / "comm"), name);
    return name;
}

} // namespace

Portbefund BefundDesGeraets(const std::string& pfad) {
    struct stat geraet {};
    if (stat(pfad.c_str(), &geraet) != 0) {
        if (errno == EACCES)
            return {.hindernis = Hindernis::KeinRecht, .nutzer = Nutzername(geteuid())};
        return {.hindernis = Hindernis::Fehlt};
    }
    if (access(pfad.c_str(), R_OK | W_OK) != 0 && errno == EACCES)
        return OhneRecht(geraet);
    return {};
}

std::vector<std::string> ProzesseAn(const std::string& pfad) {
    struct stat geraet {};
    if (stat(pfad.c_str(), &geraet) != 0 || !S_ISCHR(geraet.st_mode))
        return {};
    std::vector<std::string> prozesse;
    std::error_code fehler;
    for (fs::directory_iterator eintrag("/proc", fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        const std::string nummer = eintrag->path().filename().string();
        if (!IstZahl(nummer) || nummer == std::to_string(getpid()) ||
            !HatOffen(eintrag->path(), geraet.st_rdev))
            continue;
        prozesse.push_back(Prozessname(eintrag->path()) + " (" + nummer + ")");
    }
    return prozesse;
}

#else

Portbefund BefundDesGeraets(const std::string& /*pfad*/) {
    return {};
}

std::vector<std::string> ProzesseAn(const std::string& /*pfad*/) {
    return {};
}

#endif

} // namespace varnoth
