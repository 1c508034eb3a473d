#include "verbindungstexte.h"

#include "anschluss.h"
#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

constexpr std::array<std::int16_t, 8> TexteDerZustaende{9100, 9101, 9102, 9103, 9104, 9105, 9106, 6500};
constexpr std::int16_t TextSimuliert = 9107;
constexpr std::int16_t TextSimuliertUnd = 9108;
constexpr std::int16_t TextDurchgaenge = 9109;
constexpr std::int16_t TextFehler = 9110;
constexpr std::int16_t TextPort = 9111;
constexpr std::int16_t TextFormat = 9112;
constexpr std::int16_t TextSteuergeraet = 9113;
constexpr std::int16_t TextSeriennummer = 9114;
constexpr std::int16_t TextDurchgaengeJeSekunde = 9115;
constexpr std::int16_t TextFehlschlaege = 9116;
constexpr std::int16_t TextEingebaut = 9117;
constexpr std::int16_t TextAufzeichnung = 6502;

/// The time of day, with the date where it is another day's.
std::string Zeitpunkt(const QDateTime& wann, const QDateTime& jetzt) {
    const bool englisch = GetSprachoffset() == Englisch;
    const QString datum = wann.date() == jetzt.date() ? QString()
                          : englisch                  ? QStringLiteral("yyyy-MM-dd ")
                                                      : QStringLiteral("dd.MM.yyyy ");
    return wann.toString(datum + QStringLiteral("hh:mm")).toStdString();
}

/// One decimal below ten, none from there on.
std::string Rate(double jeSekunde) {
    QString text = QString::number(jeSekunde, 'f', jeSekunde < 9.95 ? 1 : 0);
    if (GetSprachoffset() != Englisch)
        text.replace('.', ',');
    return text.toStdString();
}

bool IstBeimGeraet(Verbindungszustand zustand) {
    return zustand == Verbindungszustand::Live || zustand == Verbindungszustand::Wartet;
}

void HaengeAn(std::string& text, const std::string& trenner, const std::string& teil) {
    text += (text.empty() ? "" : trenner) + teil;
}

std::string EineZeile(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

void NenneSteuergeraet(std::string& text, const Verbindungsgegenstand& gegenstand) {
    if (!gegenstand.bezeichnung.empty())
        HaengeAn(text, "\n", LadeTextMit(TextSteuergeraet, {EineZeile(gegenstand.bezeichnung)}));
    if (!gegenstand.seriennummer.empty())
        HaengeAn(text, "\n", LadeTextMit(TextSeriennummer, {EineZeile(gegenstand.seriennummer)}));
}

} // namespace

std::string Zustandstext(const Verbindungsbild& bild, const QDateTime& jetzt) {
    if (bild.simuliert && bild.zustand == Verbindungszustand::Live)
        return LadeText(TextSimuliert);
    const std::string wert =
        bild.seit.isNull() ? std::to_string(bild.dauer.count()) : Zeitpunkt(bild.seit, jetzt);
    const std::string text =
        LadeTextMit(TexteDerZustaende.at(static_cast<std::size_t>(bild.zustand)), {wert});
    return bild.simuliert ? LadeTextMit(TextSimuliertUnd, {text}) : text;
}

std::string Zahlentext(const Verbindungsbild& bild) {
    std::string text;
    if (bild.durchgaengeJeSekunde > 0)
        text = LadeTextMit(TextDurchgaenge, {Rate(bild.durchgaengeJeSekunde)});
    if (bild.fehlschlaege > 0 || IstBeimGeraet(bild.zustand))
        HaengeAn(text, ", ", LadeTextMit(TextFehler, {std::to_string(bild.fehlschlaege)}));
    return text;
}

std::string Verbindungshinweis(const Verbindungsbild& bild, const Verbindungsgegenstand& gegenstand,
                               const QDateTime& jetzt) {
    std::string text = Zustandstext(bild, jetzt);
    if (bild.zustand == Verbindungszustand::Wiedergabe) {
        HaengeAn(text, "\n", LadeTextMit(TextAufzeichnung, {EineZeile(gegenstand.aufzeichnung)}));
        NenneSteuergeraet(text, gegenstand);
        return text;
    }
    if (bild.simuliert)
        HaengeAn(text, "\n", LadeText(TextEingebaut));
    else
        HaengeAn(text, "\n",
                 LadeTextMit(TextPort, {Portname(gegenstand.port, EineZeile(gegenstand.geraet))}));
    HaengeAn(text, "\n", LadeTextMit(TextFormat, {EineZeile(gegenstand.format)}));
    NenneSteuergeraet(text, gegenstand);
    if (bild.durchgaengeJeSekunde > 0)
        HaengeAn(text, "\n", LadeTextMit(TextDurchgaengeJeSekunde, {Rate(bild.durchgaengeJeSekunde)}));
    HaengeAn(text, "\n", LadeTextMit(TextFehlschlaege, {std::to_string(bild.fehlschlaege)}));
    return text;
}

} // namespace varnoth
