// A frame of the trend over a past of a million passes: worked out and drawn anew, and while it follows.

#include "bericht.h"
#include "statistik.h"

#include "messanbieter.h"
#include "uebersicht.h"
#include "verlaufsbild.h"

#include <QApplication>
#include <QImage>
#include <QWheelEvent>

#include <cmath>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

constexpr QSize Groesse(1600, 800);
constexpr int Durchgaenge = 1'000'000;
constexpr int JePaket = 12;
constexpr Zeit Takt = std::chrono::milliseconds(60);

/// Four parts whose values swing; each packet is made when it is asked for.
class Rechenquelle : public Messquelle {
public:
    void Wachse() { uebersicht.Nimm(Paket(ende++)); }

    std::uint64_t Erstes() const override { return 0; }
    std::uint64_t Ende() const override { return ende; }
    Zeitspanne Spanne() const override { return {Zeit(0), Spanne(ende - 1).bis}; }
    Zeitspanne Spanne(std::uint64_t nummer) const override {
        const Zeit von = static_cast<std::int64_t>(nummer) * JePaket * Takt;
        return {von, von + (JePaket - 1) * Takt};
    }
    std::uint64_t PaketUm(Zeit laufzeit) const override {
        const auto nummer = std::max<std::int64_t>(0, laufzeit / (JePaket * Takt));
        return std::min(static_cast<std::uint64_t>(nummer), ende - 1);
    }
    std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const override {
        return std::make_shared<Messpaket>(Paket(nummer));
    }
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t /*nummer*/) const override { return abbild; }
    const Uebersicht& DieUebersicht() const override { return uebersicht; }
    Messangaben Angaben() const override { return {}; }

private:
    Messpaket Paket(std::uint64_t nummer) const {
        Messpaket paket{.spanne = Spanne(nummer), .durchgaenge = {}, .ereignisse = {}};
        for (int i = 0; i < JePaket; ++i) {
            Messdurchgang durchgang;
            durchgang.uhr = paket.spanne.von + i * Takt;
            durchgang.anzahlTeile = AnzahlOptikteile;
            const auto stelle = static_cast<double>(nummer) * JePaket + i;
            for (Teilmessung& teil : durchgang.teile) {
                teil.vorhanden = teil.gemessen = true;
                teil.strahlen = 128;
                const auto tu = static_cast<std::uint16_t>(40 + 20 * std::sin(stelle / 900) + i % 3);
                teil.werte = {tu,  static_cast<std::uint16_t>(tu + 30 + i % 5),
                              30,  1,
                              128, 98,
                              0,   0,
                              0,   1,
                              1,   1,
                              128, 128,
                              128, 128,
                              128, 128};
            }
            paket.durchgaenge.push_back(durchgang);
        }
        return paket;
    }

    std::uint64_t ende = 0;
    Uebersicht uebersicht;
    std::shared_ptr<const Abbild> abbild = std::make_shared<Abbild>();
};

struct Anbieter : Messanbieter {
    const Messquelle& Quelle() override { return quelle; }
    int Quellenzahl() override { return 1; }
    bool IstWiedergabe() override { return false; }
    Zeit Jetzt() override { return quelle.Spanne().bis; }
    void SpringeZu(Zeit /*laufzeit*/) override {}
    void Notiere(Zeit /*laufzeit*/, const std::string& /*text*/) override {}
    std::optional<std::string> FrageNachDatei(const std::string&, const std::string&,
                                              const std::string&) override {
        return {};
    }
    bool Schreibe(const std::string&, const std::string&) override { return false; }
    void SchlageBlankingVor(int, const Werte&) override {}

    Rechenquelle quelle;
};

/// Does at once what was put off, so that it counts as part of the frame.
struct Sofortumgebung : Umgebung {
    Sofortumgebung() { SetzeUmgebung(this); }
    ~Sofortumgebung() override { SetzeUmgebung(nullptr); }

    int LasseEreignisseLaufen() override { return 1; }
    void NutzeWartezeit() override {
        for (const auto& arbeit : std::exchange(aufgeschobenes, {}))
            arbeit();
    }
    bool BrauchtWartezeit() override { return !aufgeschobenes.empty(); }
    void FuerWartezeit(std::function<void()> arbeit) override { aufgeschobenes.push_back(std::move(arbeit)); }
    void WarteAufEreignis(Zeit /*hoechstens*/) override {}
    Zeit Uhr() override { return Zeit(std::llround(1e6 * Uhrzeit())); }
    Antwort ZeigeMeldung(const Meldung& /*meldung*/) override { return Antwort::Ok; }
    void ZeigeStatustext(int /*feld*/, const std::string& /*text*/) override {}

    std::vector<std::function<void()>> aufgeschobenes;
};

template<class Schritt>
void Miss(const QString& was, Verlaufsbild& bild, Schritt schritt) {
    constexpr int Bilder = 100;
    QImage flaeche(Groesse, QImage::Format_RGB32);
    std::vector<double> dauern;
    for (int i = 0; i < Bilder; ++i) {
        const double beginn = Uhrzeit();
        schritt(i);
        bild.render(&flaeche);
        dauern.push_back(1e3 * (Uhrzeit() - beginn));
    }
    Berichte(was, Median(dauern), QStringLiteral("ms"), Ziel::Hoechstens, 16,
             QStringLiteral("95 % %1 ms").arg(Quantil(dauern, 0.95), 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    Sofortumgebung umgebung;
    Anbieter anbieter;
    for (int i = 0; i < Durchgaenge / JePaket; ++i)
        anbieter.quelle.Wachse();
    Verlaufsbild bild;
    bild.resize(Groesse);
    Verlaufswahl wahl = AnfangswahlFuer(0);
    wahl.Setze({1, 0}, true);
    bild.SetzeWahl(wahl);
    bild.SetzeAnbieter(anbieter);
    bild.ZeigeAlles();
    Miss(QStringLiteral("trend frame of 1,000,000 points, drawn anew"), bild, [&](int i) {
        bild.SetzeBreite(anbieter.Jetzt() - std::chrono::seconds(i + 1));
        umgebung.NutzeWartezeit();
    });
    bild.SetzeBreite(std::chrono::minutes(5));
    while (!bild.IstFertig())
        umgebung.NutzeWartezeit();
    Miss(QStringLiteral("trend frame while it follows, five minutes"), bild, [&](int) {
        anbieter.quelle.Wachse();
        bild.Erneuere();
        umgebung.NutzeWartezeit();
    });
    return 0;
}
