#include "geraetebefund.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

namespace varnoth {

namespace {

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

} // namespace varnoth
