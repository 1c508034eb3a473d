// Kills a recording at random moments and looks at what it has left: abschuesse [--kills N] [--seed S]. Each
// file has to open, and of what was handed over earlier than a second before the kill nothing may be missing.

#include "aufzeichnung.h"
#include "csvform.h"
#include "dateiausgabe.h"
#include "dateieingabe.h"
#include "vrecform.h"
#include "vrecleser.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>

namespace varnoth {

namespace {

using namespace std::chrono_literals;

constexpr auto Durchgangszeit = 2ms;
constexpr auto LaengsterVerlust = 1000ms;
constexpr int Zaehlstellen = 3; // values that hold the number of the pass, of which 16 bits are enough

Zeit Uhr() {
    return std::chrono::floor<Zeit>(std::chrono::steady_clock::now().time_since_epoch());
}

Augenblick Jetzt() {
    return {.uhr = Uhr(), .zeit = std::chrono::system_clock::now()};
}

/// Four parts, every beam and value of which follows from the number of the pass.
Messdurchgang Durchgang(std::uint32_t nummer) {
    Messdurchgang durchgang{.zeit = std::chrono::system_clock::now(), .uhr = Uhr(), .anzahlTeile = 4};
    std::minstd_rand zufall(nummer + 1);
    for (Teilmessung& teil : durchgang.teile) {
        teil = {.vorhanden = true, .gemessen = true, .status = 0x80, .strahlen = 128};
        for (int i = 0; i < Zaehlstellen; ++i)
            teil.werte.at(static_cast<std::size_t>(i)) = static_cast<std::uint16_t>(nummer);
        for (int i = 0; i < teil.strahlen / 16; ++i)
            teil.strahlregister.at(static_cast<std::size_t>(i)) = static_cast<std::uint16_t>(zufall());
    }
    return durchgang;
}

/// What the recording process says of each pass: its number, and when it was handed over.
struct Wort {
    std::uint32_t nummer;
    std::int64_t uhr;
};

[[noreturn]] void ZeichneAuf(const std::string& ordner, int rohr) {
    Aufzeichnungsauftrag auftrag{.wahl = {.megabyte = 1}, .ordner = ordner, .name = "r"};
    auftrag.formen.push_back({".vrec", [] { return std::make_unique<Vrecform>(); }});
    auftrag.formen.push_back(
        {".csv", [worte = LadeCsvworte()] { return std::make_unique<Csvform>(Csvart::Standard, worte); }});
    Aufzeichnung aufzeichnung(std::make_shared<Dateiausgabe>(), auftrag, Jetzt);
    if (aufzeichnung.Beginne(std::make_shared<Abbild>()) != 0)
        std::_Exit(1);
    for (std::uint32_t nummer = 0;; ++nummer) {
        aufzeichnung.Nimm(Durchgang(nummer));
        const Wort wort{nummer, Uhr().count()};
        if (::write(rohr, &wort, sizeof wort) != sizeof wort)
            std::_Exit(1);
        std::this_thread::sleep_for(Durchgangszeit);
    }
}

/// What is wrong with a run; empty when nothing is.
struct Befund {
    std::string fehler;
    std::uint32_t uebergeben = 0;
    std::uint32_t fehlen = 0;
    int dateien = 0;
};

/// The numbers of the passes of a CSV file, one for each part; a line that was cut off does not count.
bool LiesCsv(const std::string& pfad, std::vector<std::uint32_t>& nummern) {
    std::ifstream datei(pfad, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(datei)), {});
    std::size_t anfang = text.find("\r\n");
    for (anfang += 2; anfang < text.size();) {
        const std::size_t ende = text.find("\r\n", anfang);
        if (ende == std::string::npos)
            break;
        std::istringstream zeile(text.substr(anfang, ende - anfang));
        std::vector<std::string> felder;
        for (std::string feld; std::getline(zeile, feld, ',');)
            felder.push_back(feld);
        if (felder.size() < 5)
            return false;
        if (felder[2] == "4")
            nummern.push_back(static_cast<std::uint32_t>(std::stoul(felder[4])));
        anfang = ende + 2;
    }
    return true;
}

bool LiesVrec(const std::string& pfad, std::vector<std::uint32_t>& nummern, bool& stimmt) {
    Eingabe eingabe = OeffneEingabe(pfad);
    if (eingabe.datei == nullptr)
        return false;
    Vrecleser leser(std::move(eingabe.datei));
    while (leser.Arbeite()) {
    }
    const auto befund = leser.Zustand().befund;
    if (befund != Vrecbefund::Gut && befund != Vrecbefund::OhneDurchgaenge)
        return false;
    for (std::uint64_t i = leser.Erstes(); i < leser.Ende(); ++i) {
        const auto paket = leser.Lies(i);
        if (paket == nullptr)
            return false;
        for (const Messdurchgang& durchgang : paket->durchgaenge) {
            nummern.push_back(durchgang.teile[0].werte[0]);
            stimmt = stimmt && durchgang.teile == Durchgang(nummern.back()).teile;
        }
    }
    return true;
}

/// The files of one form in the order in which they were begun.
std::set<std::string> Dateien(const std::string& ordner, std::string_view endung) {
    std::set<std::string> pfade;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner))
        if (eintrag.path().extension() == endung)
            pfade.insert(eintrag.path().string());
    return pfade;
}

/// A sentence when the numbers are not those from 0 to one that is late enough.
std::string Pruefe(const std::vector<std::uint32_t>& nummern, std::uint32_t mindestens, const char* form) {
    for (std::size_t i = 0; i < nummern.size(); ++i)
        if (nummern[i] != i)
            return std::string(form) + ": pass " + std::to_string(i) + " is missing";
    if (nummern.size() < mindestens)
        return std::string(form) + ": " + std::to_string(nummern.size()) + " of at least " +
               std::to_string(mindestens) + " passes";
    return {};
}

Befund Betrachte(const std::string& ordner, std::uint32_t uebergeben, std::uint32_t mindestens) {
    Befund befund{.fehler = {}, .uebergeben = uebergeben};
    std::vector<std::uint32_t> csv;
    std::vector<std::uint32_t> vrec;
    bool stimmt = true;
    for (const std::string& pfad : Dateien(ordner, ".csv")) {
        ++befund.dateien;
        if (!LiesCsv(pfad, csv))
            befund.fehler = pfad + " is broken";
    }
    for (const std::string& pfad : Dateien(ordner, ".vrec")) {
        ++befund.dateien;
        if (!LiesVrec(pfad, vrec, stimmt))
            befund.fehler = pfad + " does not open";
    }
    if (!stimmt)
        befund.fehler = "a pass is not what was handed over";
    for (const std::string& satz : {Pruefe(csv, mindestens, "csv"), Pruefe(vrec, mindestens, "vrec")})
        if (!satz.empty())
            befund.fehler = satz;
    befund.fehlen =
        uebergeben - static_cast<std::uint32_t>(std::min({csv.size(), vrec.size(), std::size_t{uebergeben}}));
    return befund;
}

Befund Schiesse(std::chrono::milliseconds wann) {
    std::string ordner = (std::filesystem::temp_directory_path() / "varnoth-kills-XXXXXX").string();
    if (::mkdtemp(ordner.data()) == nullptr)
        return {.fehler = "no folder"};
    int rohr[2] = {-1, -1};
    if (::pipe(rohr) != 0)
        return {.fehler = "no pipe"};
    const ::pid_t kind = ::fork();
    if (kind == 0)
        ZeichneAuf(ordner, rohr[1]);
    ::close(rohr[1]);
    std::vector<Wort> worte;
    Wort wort{};
    const Zeit anfang = Uhr();
    while (Uhr() - anfang < wann && ::read(rohr[0], &wort, sizeof wort) == sizeof wort)
        worte.push_back(wort);
    const Zeit schuss = Uhr();
    ::kill(kind, SIGKILL);
    while (::read(rohr[0], &wort, sizeof wort) == sizeof wort)
        worte.push_back(wort);
    ::close(rohr[0]);
    int zustand = 0;
    ::waitpid(kind, &zustand, 0);
    const auto sicher = std::ranges::count_if(
        worte, [&](const Wort& eines) { return Zeit(eines.uhr) <= schuss - LaengsterVerlust; });
    Befund befund = worte.empty() ? Befund{.fehler = "nothing was recorded"}
                                  : Betrachte(ordner, static_cast<std::uint32_t>(worte.size()),
                                              static_cast<std::uint32_t>(sicher));
    std::filesystem::remove_all(ordner);
    return befund;
}

int Laufe(int anzahl, unsigned saat) {
    std::mt19937 zufall(saat);
    std::uniform_int_distribution<int> moment(50, 4000);
    std::uint64_t durchgaenge = 0;
    std::uint32_t groessterVerlust = 0;
    int dateien = 0;
    int fehler = 0;
    for (int i = 0; i < anzahl; ++i) {
        const std::chrono::milliseconds wann(moment(zufall));
        const Befund befund = Schiesse(wann);
        durchgaenge += befund.uebergeben;
        dateien += befund.dateien;
        groessterVerlust = std::max(groessterVerlust, befund.fehlen);
        if (!befund.fehler.empty() && ++fehler != 0)
            std::printf("killed after %d ms: %s\n", static_cast<int>(wann.count()), befund.fehler.c_str());
    }
    std::printf(
        "%d kills, %llu passes handed over, %d files: at most %u passes (%lld ms) missing, %d failures\n",
        anzahl, static_cast<unsigned long long>(durchgaenge), dateien, groessterVerlust,
        static_cast<long long>(groessterVerlust) * Durchgangszeit.count(), fehler);
    return fehler == 0 && durchgaenge > 0 ? 0 : 1;
}

} // namespace

} // namespace varnoth

int main(int anzahl, char** worte) {
    int kills = 100;
    unsigned saat = 1;
    for (int i = 1; i + 1 < anzahl; i += 2) {
        const std::string_view wort = worte[i];
        if (wort == "--kills")
            kills = std::atoi(worte[i + 1]);
        else if (wort == "--seed")
            saat = static_cast<unsigned>(std::atoi(worte[i + 1]));
    }
    return varnoth::Laufe(kills, saat);
}
