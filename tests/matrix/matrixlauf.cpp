#include "matrixlauf.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <iomanip>
#include <memory>
#include <sstream>
#include <string_view>

namespace varnoth::pruefung {

namespace {

constexpr qint64 LaengsteZelleMs = 300000;
constexpr int BlickMs = 20;
constexpr int Zeilenkopf = 15;
constexpr int Spalte = 15;

struct Zellenprozess {
    Zellenbericht* bericht;
    std::unique_ptr<QProcess> prozess;
    QElapsedTimer seit;
};

Zellenprozess Starte(Zellenbericht& zelle, const QString& programm) {
    Zellenprozess lauf{&zelle, std::make_unique<QProcess>(), {}};
    lauf.prozess->start(programm, {"--cell", zelle.fall->name, zelle.stelle->name});
    lauf.seit.start();
    return lauf;
}

/// The last line of what the process printed, or what became of it instead.
void Werte(Zellenprozess& lauf) {
    const auto zeilen = lauf.prozess->readAllStandardOutput().trimmed().split('\n');
    if (lauf.prozess->error() == QProcess::FailedToStart)
        lauf.bericht->fehler = "cannot be started";
    else if (lauf.prozess->exitStatus() == QProcess::CrashExit)
        lauf.bericht->fehler = "crashed";
    else
        LiesBerichtzeile(zeilen.back().toStdString(), *lauf.bericht);
    const QByteArray fehlerausgabe = lauf.prozess->readAllStandardError().trimmed();
    if (!lauf.bericht->fehler.empty() && !fehlerausgabe.isEmpty())
        lauf.bericht->fehler += "\n" + fehlerausgabe.toStdString();
}

bool IstZuende(Zellenprozess& lauf) {
    if (lauf.prozess->state() == QProcess::NotRunning || lauf.prozess->waitForFinished(BlickMs)) {
        Werte(lauf);
        return true;
    }
    if (!lauf.seit.hasExpired(LaengsteZelleMs))
        return false;
    lauf.prozess->kill();
    lauf.prozess->waitForFinished();
    lauf.bericht->fehler = "hangs";
    return true;
}

void Laufe(const std::vector<Zellenbericht*>& zellen, const QString& programm, int zugleich) {
    std::vector<Zellenprozess> laufende;
    for (auto naechste = zellen.begin(); naechste != zellen.end() || !laufende.empty();) {
        while (naechste != zellen.end() && std::ssize(laufende) < zugleich)
            laufende.push_back(Starte(**naechste++, programm));
        std::erase_if(laufende, IstZuende);
    }
}

std::string Zellentext(const Zellenbericht& zelle, qint64 laengsteLueckeMs) {
    if (!zelle.fehler.empty())
        return "FAILED";
    return (zelle.lueckeMs > laengsteLueckeMs ? "SLOW " : "ok ") + std::to_string(zelle.lueckeMs);
}

template<class Element>
std::vector<const Element*> Verschiedene(const std::vector<Zellenbericht>& zellen,
                                         const Element* Zellenbericht::*was) {
    std::vector<const Element*> liste;
    for (const Zellenbericht& zelle : zellen)
        if (std::ranges::find(liste, zelle.*was) == liste.end())
            liste.push_back(zelle.*was);
    return liste;
}

} // namespace

std::string AlsBerichtzeile(const Zellenbericht& bericht) {
    return (bericht.fehler.empty() ? "ok " : "failed ") + std::to_string(bericht.lueckeMs) + ' ' +
           bericht.wo + '|' + bericht.fehler;
}

void LiesBerichtzeile(const std::string& zeile, Zellenbericht& bericht) {
    std::istringstream strom(zeile);
    std::string ergebnis;
    strom >> ergebnis >> bericht.lueckeMs >> std::ws;
    std::getline(strom, bericht.wo, '|');
    std::getline(strom, bericht.fehler);
    if (ergebnis != "ok" && bericht.fehler.empty())
        bericht.fehler = "no report";
}

bool IstGut(const Zellenbericht& zelle, qint64 laengsteLueckeMs) {
    return zelle.fehler.empty() && zelle.lueckeMs <= laengsteLueckeMs;
}

std::vector<Zellenbericht> LaufeZellen(std::vector<Zellenbericht> zellen, const Matrixlauf& lauf) {
    std::vector<Zellenbericht*> alle;
    for (Zellenbericht& zelle : zellen)
        alle.push_back(&zelle);
    Laufe(alle, lauf.programm, lauf.zugleich);
    std::erase_if(alle, [&lauf](const Zellenbericht* zelle) {
        return !zelle->fehler.empty() || IstGut(*zelle, lauf.laengsteLueckeMs);
    });
    Laufe(alle, lauf.programm, 1);
    return zellen;
}

std::string Tabelle(const std::vector<Zellenbericht>& zellen, qint64 laengsteLueckeMs) {
    std::ostringstream text;
    text << std::left << std::setw(Zeilenkopf) << "ms";
    for (const Stelle* stelle : Verschiedene(zellen, &Zellenbericht::stelle))
        text << std::setw(Spalte) << stelle->name;
    const Stoerfall* fall = nullptr;
    for (const Zellenbericht& zelle : zellen) {
        if (fall != zelle.fall)
            text << '\n' << std::setw(Zeilenkopf) << zelle.fall->name;
        fall = zelle.fall;
        text << std::setw(Spalte) << Zellentext(zelle, laengsteLueckeMs);
    }
    text << '\n';
    for (const Zellenbericht& zelle : zellen)
        if (!IstGut(zelle, laengsteLueckeMs))
            text << "\n"
                 << zelle.fall->name << " x " << zelle.stelle->name << ": "
                 << (zelle.fehler.empty() ? "no click was served for a while at " + zelle.wo : zelle.fehler);
    return text.str();
}

} // namespace varnoth::pruefung
