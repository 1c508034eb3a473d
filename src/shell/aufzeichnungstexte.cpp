#include "aufzeichnungstexte.h"

#include "csvform.h"
#include "kalenderzeit.h"
#include "texte.h"
#include "textmitwerten.h"
#include "textschutz.h"

#include <QString>

#include <array>
#include <cstdio>
#include <string_view>

namespace varnoth {

namespace {

constexpr std::int16_t TextAufzeichnung = 6224, TextRate = 6225, TextOhneLiveDaten = 6226,
                       TextVerworfen = 6227, TextWartet = 6228;
constexpr Zeit Ratenfenster = std::chrono::seconds(2);
constexpr std::size_t LaengsteSeriennummer = 40;
constexpr double Kilobyte = 1000;
constexpr double Megabyte = 1'000'000;
constexpr const char* Trennung = " · ";

/// With one decimal, as readers of the language write it.
std::string MitEinerStelle(double zahl) {
    std::array<char, 32> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%.1f", zahl);
    std::string text = puffer.data();
    if (GetSprachoffset() != Englisch)
        for (char& zeichen : text)
            zeichen = zeichen == '.' ? ',' : zeichen;
    return text;
}

bool IstNamenszeichen(char zeichen) {
    return (zeichen >= '0' && zeichen <= '9') || (zeichen >= 'A' && zeichen <= 'Z') ||
           (zeichen >= 'a' && zeichen <= 'z') || zeichen == '-';
}

} // namespace

std::string Aufnahmedauer(Zeit dauer) {
    const auto sekunden = std::chrono::floor<std::chrono::seconds>(dauer).count();
    std::array<char, 32> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%02lld:%02lld:%02lld",
                  static_cast<long long>(sekunden / 3600), static_cast<long long>(sekunden / 60 % 60),
                  static_cast<long long>(sekunden % 60));
    return puffer.data();
}

std::string Groessentext(std::uint64_t bytes) {
    const auto zahl = static_cast<double>(bytes);
    if (zahl < Megabyte)
        return std::to_string(static_cast<std::uint64_t>((zahl + Kilobyte / 2) / Kilobyte)) + " KB";
    return MitEinerStelle(zahl / Megabyte) + " MB";
}

std::string Markentext(const Aufzeichnungslage& lage, bool liveDaten) {
    std::string text = LadeTextMit(TextAufzeichnung, {Aufnahmedauer(lage.stand.dauer)}) + Trennung +
                       Groessentext(lage.stand.bytes);
    if (!lage.hindernis.empty())
        text += Trennung + LadeTextMit(TextWartet, {lage.hindernis});
    else if (liveDaten)
        text += Trennung + LadeTextMit(TextRate, {MitEinerStelle(lage.durchgaengeJeSekunde)});
    else
        text += Trennung + LadeText(TextOhneLiveDaten);
    if (lage.stand.verworfen > 0)
        text += Trennung + LadeTextMit(TextVerworfen, {std::to_string(lage.stand.verworfen)});
    return text;
}

std::string Aufzeichnungsname(const std::string& seriennummer, Systemzeit zeit) {
    constexpr std::size_t sekundenstellen = 19;
    std::string name;
    for (const char zeichen : seriennummer)
        if (name.size() < LaengsteSeriennummer)
            name += IstNamenszeichen(zeichen) ? zeichen : '_';
    if (name.empty())
        name = "Varnoth";
    std::string wann = Isozeit(zeit, Zonenminuten(zeit)).substr(0, sekundenstellen);
    for (char& zeichen : wann)
        zeichen = zeichen == 'T' ? '_' : zeichen == ':' ? '-' : zeichen;
    return name + "_" + wann;
}

std::string Dateinamensteil(const std::string& getipptes) {
    constexpr std::string_view verbotene = "/\\:*?\"<>|";
    constexpr std::size_t laengster = 100;
    std::string name = Einzeilig(getipptes);
    for (char& zeichen : name)
        if (verbotene.find(zeichen) != std::string_view::npos)
            zeichen = '_';
    if (name.starts_with('.'))
        name.front() = '_';
    if (name.size() > laengster)
        name = QString::fromStdString(name).left(laengster / 4).toStdString();
    return name;
}

double Aufzeichnungsrate::Betrachte(const Aufzeichnungsstand& stand) {
    if (stand.dauer < neuer.dauer)
        *this = {};
    if (stand.dauer - neuer.dauer < Ratenfenster)
        return rate;
    alter = neuer;
    neuer = {stand.dauer, stand.durchgaenge};
    const double sekunden = std::chrono::duration<double>(neuer.dauer - alter.dauer).count();
    rate = static_cast<double>(neuer.durchgaenge - alter.durchgaenge) / sekunden;
    return rate;
}

} // namespace varnoth
