// Records of made-up passes over four parts of 128 beams: how large they are, how long they take to open, to
// jump in and to look at, and the memory that they need while they are open.

#include "bericht.h"
#include "dateieingabe.h"
#include "messspeicher.h"
#include "probedurchgaenge.h"
#include "statistik.h"
#include "vrecform.h"
#include "vrecleser.h"

#include <QFile>
#include <QTemporaryDir>

#include <random>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

constexpr int DurchgaengeJePaket = 6;
constexpr int VerschiedenePakete = 600;
constexpr double MegabyteJeByte = 1e-6;

/// Passes that repeat after ten minutes, so that making them takes no longer than writing them.
std::vector<Messpaket> MachePakete() {
    std::vector<Messpaket> pakete;
    for (int i = 0; i < VerschiedenePakete; ++i)
        pakete.push_back(pruefung::LebhaftesPaket(i * DurchgaengeJePaket, DurchgaengeJePaket));
    return pakete;
}

/// Writes a record of some hours; gives its bytes.
double Schreibe(const QString& pfad, int stunden, const std::vector<Messpaket>& pakete) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly))
        Scheitere(QStringLiteral("no file can be written"));
    Vrecform form;
    const auto haengeAn = [&datei](const std::string& bytes) {
        datei.write(bytes.data(), static_cast<qint64>(bytes.size()));
    };
    haengeAn(form.Beginne({.beginn = pruefung::Probebeginn}, std::make_shared<Abbild>()));
    const Zeit dauer = pruefung::Durchgangsdauer * DurchgaengeJePaket;
    for (int i = 0; dauer * i < std::chrono::hours(stunden); ++i) {
        Messpaket paket = pakete[static_cast<std::size_t>(i % VerschiedenePakete)];
        const Zeit spaeter = dauer * (i / VerschiedenePakete * VerschiedenePakete);
        paket.spanne = {paket.spanne.von + spaeter, paket.spanne.bis + spaeter};
        for (Messdurchgang& durchgang : paket.durchgaenge) {
            durchgang.uhr += spaeter;
            durchgang.zeit += spaeter;
        }
        haengeAn(form.Nimm(paket, nullptr));
    }
    haengeAn(form.Beende());
    return static_cast<double>(datei.pos());
}

/// Megabytes of this process.
double Speicher() {
    QFile stand(QStringLiteral("/proc/self/status"));
    if (stand.open(QIODevice::ReadOnly))
        for (const QByteArray& zeile : stand.readAll().split('\n'))
            if (zeile.startsWith("VmRSS:"))
                return zeile.mid(6).replace("kB", "").trimmed().toDouble() / 1024;
    return 0;
}

struct Oeffnung {
    double brauchbar = 0; ///< seconds until packets can be read
    double ganz = 0;      ///< until all is known
    double laengste = 0;  ///< of its slices
};

Oeffnung Oeffne(Vrecleser& leser) {
    Oeffnung oeffnung;
    const double beginn = Uhrzeit();
    for (bool weiter = true; weiter;) {
        const double vorher = Uhrzeit();
        weiter = leser.Arbeite();
        oeffnung.laengste = std::max(oeffnung.laengste, Uhrzeit() - vorher);
        if (oeffnung.brauchbar == 0 && leser.IstBrauchbar())
            oeffnung.brauchbar = Uhrzeit() - beginn;
    }
    oeffnung.ganz = Uhrzeit() - beginn;
    if (leser.Zustand().befund != Vrecbefund::Gut || leser.Zustand().beschaedigte > 0)
        Scheitere(QStringLiteral("the record is not read"));
    return oeffnung;
}

/// The longest of many jumps to a place with all of a screen around it, ten seconds.
double Spruenge(const Vrecleser& leser) {
    constexpr int Anzahl = 200;
    constexpr std::uint64_t PaketeUmher = 10;
    std::minstd_rand zufall(1);
    double laengster = 0;
    for (int i = 0; i < Anzahl; ++i) {
        const Zeit ziel = leser.Spanne().bis / 1000 * static_cast<int>(zufall() % 1000);
        const double beginn = Uhrzeit();
        const std::uint64_t nummer = leser.PaketUm(ziel);
        for (std::uint64_t n = nummer; n < std::min(nummer + PaketeUmher, leser.Ende()); ++n)
            if (leser.Lies(n) == nullptr)
                Scheitere(QStringLiteral("a packet is not read"));
        laengster = std::max(laengster, Uhrzeit() - beginn);
    }
    return laengster;
}

/// What keeping a pass in memory costs whoever polls.
void MissSpeicher(const std::vector<Messpaket>& pakete) {
    Messspeicher speicher({}, Zeit(0));
    const double beginn = Uhrzeit();
    for (const Messpaket& paket : pakete)
        for (const Messdurchgang& durchgang : paket.durchgaenge)
            speicher.Nimm(durchgang);
    const double je = (Uhrzeit() - beginn) / (VerschiedenePakete * DurchgaengeJePaket);
    const auto bytes = static_cast<double>(speicher.Bytes()) / (VerschiedenePakete * DurchgaengeJePaket);
    Berichte(QStringLiteral("a pass kept in memory"), 1e6 * je, QStringLiteral("us"), Ziel::Hoechstens, 20,
             QStringLiteral("%1 bytes").arg(bytes, 0, 'f', 0));
}

void Miss(int stunden, const QString& ordner, const std::vector<Messpaket>& pakete) {
    const QString pfad = ordner + QStringLiteral("/%1.vrec").arg(stunden);
    const double bytes = Schreibe(pfad, stunden, pakete);
    const double vorher = Speicher();
    Vrecleser leser(OeffneEingabe(pfad.toStdString()).datei);
    const Oeffnung oeffnung = Oeffne(leser);
    const double laengster = Spruenge(leser);
    const double belegt = Speicher() - vorher;
    const QString was = QStringLiteral("record of %1 h: ").arg(stunden);
    const bool uebliche = stunden == 8;
    if (uebliche) {
        Berichte(was + "size", bytes * MegabyteJeByte, QStringLiteral("MB"), Ziel::Hoechstens, 60,
                 QStringLiteral("%1 bytes a second").arg(bytes / stunden / 3600, 0, 'f', 0));
        Berichte(was + "open", 1e3 * oeffnung.ganz, QStringLiteral("ms"), Ziel::Hoechstens, 1000,
                 QStringLiteral("longest slice %1 ms").arg(1e3 * oeffnung.laengste, 0, 'f', 1));
    } else {
        Berichte(was + "open, packets can be read", 1e3 * oeffnung.brauchbar, QStringLiteral("ms"),
                 Ziel::Hoechstens, 1000,
                 QStringLiteral("all known after %1 ms").arg(1e3 * oeffnung.ganz, 0, 'f', 0));
    }
    Berichte(was + "jump", 1e3 * laengster, QStringLiteral("ms"), Ziel::Hoechstens, 50,
             QStringLiteral("longest of 200, ten seconds each"));
    Berichte(was + "memory", belegt, QStringLiteral("MB"), Ziel::Hoechstens, 200,
             QStringLiteral("beside what the program needs without it"));
    QFile::remove(pfad);
}

} // namespace

int main() {
    const QTemporaryDir ordner;
    const auto pakete = MachePakete();
    MissSpeicher(pakete);
    for (const int stunden : {8, 200})
        Miss(stunden, ordner.path(), pakete);
    return 0;
}
