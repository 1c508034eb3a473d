#include "portbenutzer.h"

#include "pseudoterminal.h"
#include "textschutz.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace varnoth {

namespace {

namespace fs = std::filesystem;

using Namen = std::vector<std::string>;

struct Geraet {
    dev_t nummer = 0;      ///< of the device; 0 where there is none
    dev_t dateisystem = 0; ///< in which it stands
    ino_t dateinummer = 0;
};

Geraet LiesGeraet(const std::string& pfad) {
    struct stat da {};
    if (stat(pfad.c_str(), &da) != 0)
        return {};
    return {
        .nummer = S_ISCHR(da.st_mode) ? da.st_rdev : 0, .dateisystem = da.st_dev, .dateinummer = da.st_ino};
}

std::vector<Geraet> LiesGeraete(const std::vector<std::string>& pfade) {
    std::vector<Geraet> geraete;
    std::ranges::transform(pfade, std::back_inserter(geraete), LiesGeraet);
    return geraete;
}

bool IstZahl(const std::string& text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::string Prozessname(const fs::path& prozess) {
    std::string name;
    std::getline(std::ifstream(prozess / "comm"), name);
    // A process may call itself anything; of those of others some systems do not tell the name.
    return (name.empty() ? "?" : Einzeilig(name)) + " (" + prozess.filename().string() + ")";
}

bool IstEigener(const std::string& prozess) {
    return prozess == std::to_string(getpid());
}

/// The numbers of the character devices that a process has open.
std::vector<dev_t> OffeneGeraete(const fs::path& prozess) {
    std::vector<dev_t> offene;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(prozess / "fd", fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        struct stat dahinter {};
        if (stat(eintrag->path().c_str(), &dahinter) == 0 && S_ISCHR(dahinter.st_mode))
            offene.push_back(dahinter.st_rdev);
    }
    return offene;
}

/// A process that holds the far end of pseudo terminals stands for what is connected: it takes nobody's
/// replies.
bool Benutzt(const std::vector<dev_t>& offene, dev_t geraet) {
    const dev_t fernesEnde = makedev(5, 2);
    const auto Hat = [&](dev_t gesucht) { return std::ranges::find(offene, gesucht) != offene.end(); };
    return geraet != 0 && Hat(geraet) && !(IstPseudoterminal(geraet) && Hat(fernesEnde));
}

/// A line of the system's list of locks, such as "1: FLOCK  ADVISORY  WRITE 708 00:13:1234 0 EOF".
struct Sperre {
    std::string prozess;
    dev_t dateisystem = 0;
    ino_t dateinummer = 0;
};

std::optional<Sperre> LiesSperre(const std::string& zeile) {
    std::istringstream worte(zeile);
    std::string nummer, art, weise, zugriff, prozess;
    worte >> nummer >> art >> weise >> zugriff >> prozess;
    unsigned haupt = 0, unter = 0;
    unsigned long datei = 0;
    char trenner = 0;
    worte >> std::hex >> haupt >> trenner >> unter >> trenner >> std::dec >> datei;
    if (!worte || art != "FLOCK" || !IstZahl(prozess))
        return std::nullopt;
    return Sperre{.prozess = prozess, .dateisystem = makedev(haupt, unter), .dateinummer = datei};
}

void Nimm(Namen& namen, const std::string& name) {
    if (std::ranges::find(namen, name) == namen.end())
        namen.push_back(name);
}

} // namespace

std::vector<Namen> ProzesseAnGeraeten(const std::vector<std::string>& pfade, const std::string& proc) {
    const auto geraete = LiesGeraete(pfade);
    std::vector<Namen> prozesse(pfade.size());
    std::error_code fehler;
    for (fs::directory_iterator eintrag(proc, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        const std::string nummer = eintrag->path().filename().string();
        if (!IstZahl(nummer) || IstEigener(nummer))
            continue;
        const auto offene = OffeneGeraete(eintrag->path());
        for (std::size_t i = 0; i < geraete.size(); ++i)
            if (Benutzt(offene, geraete[i].nummer))
                prozesse[i].push_back(Prozessname(eintrag->path()));
    }
    return prozesse;
}

std::vector<Namen> SperrendeAnGeraeten(const std::vector<std::string>& pfade, const std::string& proc) {
    const auto geraete = LiesGeraete(pfade);
    std::vector<Namen> prozesse(pfade.size());
    std::ifstream liste(fs::path(proc) / "locks");
    for (std::string zeile; std::getline(liste, zeile);) {
        const auto sperre = LiesSperre(zeile);
        if (!sperre || IstEigener(sperre->prozess))
            continue;
        for (std::size_t i = 0; i < geraete.size(); ++i)
            if (geraete[i].nummer != 0 && geraete[i].dateisystem == sperre->dateisystem &&
                geraete[i].dateinummer == sperre->dateinummer)
                Nimm(prozesse[i], Prozessname(fs::path(proc) / sperre->prozess));
    }
    return prozesse;
}

std::vector<std::string> ProzesseAn(const std::string& pfad) {
    Namen namen = ProzesseAnGeraeten({pfad}).front();
    const Namen sperrende = SperrendeAnGeraeten({pfad}).front();
    for (const std::string& name : sperrende)
        Nimm(namen, name);
    return namen;
}

} // namespace varnoth
