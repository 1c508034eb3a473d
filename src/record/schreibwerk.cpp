#include "schreibwerk.h"

#include "kalenderzeit.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace varnoth {

namespace {

constexpr Zeit Sicherungsabstand = std::chrono::seconds(10);
constexpr Zeit Versuchsabstand = std::chrono::seconds(5);
constexpr std::uint64_t Megabyte = 1'000'000;
constexpr std::uint64_t Neubeginnplatz = 8 * Megabyte; // else one small file after the other would begin
constexpr std::size_t MeisteNachzutragende = 1000;
constexpr int GroessteNummer = 99'999;
constexpr std::size_t Nummernstellen = 3;

std::string Nummerntext(int nummer) {
    std::string ziffern = std::to_string(nummer);
    if (ziffern.size() < Nummernstellen)
        ziffern.insert(0, Nummernstellen - ziffern.size(), '0');
    return "_" + ziffern;
}

/// When the first of what is to be written was.
Augenblick AnfangVon(const std::vector<Aufnahmestueck>& stuecke, Augenblick jetzt) {
    Zeit anfang = jetzt.uhr;
    for (const Aufnahmestueck& stueck : stuecke) {
        if (!stueck.inhalt.durchgaenge.empty())
            anfang = std::min(anfang, stueck.inhalt.durchgaenge.front().uhr);
        if (!stueck.inhalt.ereignisse.empty())
            anfang = std::min(anfang, stueck.inhalt.ereignisse.front().laufzeit);
    }
    return {.uhr = anfang, .zeit = jetzt.zeit - (jetzt.uhr - anfang)};
}

} // namespace

Schreibwerk::Schreibwerk(Dateiablage& dieAblage, Aufzeichnungsauftrag derAuftrag)
    : ablage(dieAblage), auftrag(std::move(derAuftrag)),
      auswahl(auftrag.wahl.rhythmus, auftrag.wahl.sekunden) {}

Schreibwerk::~Schreibwerk() = default;

int Schreibwerk::Beginne(Augenblick jetzt, std::shared_ptr<const Abbild> neue) {
    konfiguration = std::move(neue);
    begonnen = gesichert = jetzt.uhr;
    return Eroeffne(jetzt);
}

void Schreibwerk::Schreibe(std::vector<Aufnahmestueck> stuecke, std::uint64_t verworfene, Augenblick jetzt) {
    if (stand.fertig)
        return;
    stand.dauer = jetzt.uhr - begonnen;
    stand.verworfen += verworfene;
    zuMelden += verworfene;
    const Augenblick anfang = AnfangVon(stuecke, jetzt);
    if (stand.fehler != 0)
        VersucheWieder(anfang, jetzt.uhr);
    if (stand.fehler == 0 && IstVoll(jetzt)) {
        Schliesse(anfang.uhr);
        if (const int fehler = Eroeffne(anfang); fehler != 0)
            Stoere(fehler, jetzt.uhr);
    }
    MeldeVerworfene(anfang);
    for (Aufnahmestueck& stueck : stuecke)
        Schreibe(std::move(stueck));
    Sichere(jetzt.uhr);
    VergissAlte(jetzt.uhr);
    const Zeit ende = std::chrono::minutes(auftrag.wahl.endeMinuten);
    if (ende > Zeit{} && stand.dauer >= ende) {
        Beende(jetzt);
        stand.fertig = true;
    }
}

void Schreibwerk::Beende(Augenblick jetzt) {
    stand.dauer = jetzt.uhr - begonnen;
    MeldeVerworfene(jetzt);
    Schliesse(jetzt.uhr);
}

std::string Schreibwerk::Pfad(std::size_t form, int welche) const {
    return auftrag.ordner + "/" + auftrag.name + (welche > 1 ? Nummerntext(welche) : std::string()) +
           auftrag.formen[form].endung;
}

/// The files of a number, all or none.
int Schreibwerk::LegeAn(Satz& neuer, int welche) {
    for (std::size_t i = 0; i < auftrag.formen.size(); ++i) {
        Angelegt angelegt = ablage.LegeAn(Pfad(i, welche));
        if (angelegt.datei == nullptr) {
            for (Datei& datei : neuer.dateien)
                datei.ausgabe->Entferne();
            neuer.dateien.clear();
            return angelegt.fehler;
        }
        neuer.dateien.push_back({Pfad(i, welche), auftrag.formen[i].mache(), std::move(angelegt.datei)});
    }
    return 0;
}

/// Begins files of the next number that is free.
int Schreibwerk::Eroeffne(Augenblick jetzt) {
    Satz neuer{.beginn = jetzt, .ende = jetzt.uhr};
    int welche = nummer + 1;
    int fehler = LegeAn(neuer, welche);
    while (fehler == EEXIST && welche < GroessteNummer)
        fehler = LegeAn(neuer, ++welche);
    if (fehler != 0)
        return fehler;
    laufender = std::move(neuer);
    auftrag.angaben.beginn = jetzt.zeit;
    auftrag.angaben.zoneMinuten = Zonenminuten(jetzt.zeit);
    for (Datei& datei : laufender.dateien)
        if (fehler = HaengeAn(datei, datei.form->Beginne(auftrag.angaben, konfiguration)); fehler != 0) {
            for (Datei& eine : laufender.dateien)
                eine.ausgabe->Entferne();
            laufender = {};
            return fehler;
        }
    nummer = welche;
    auswahl.BeginneNeu();
    ++stand.dateien;
    stand.pfade.clear();
    for (const Datei& datei : laufender.dateien)
        stand.pfade.push_back(datei.pfad);
    return 0;
}

int Schreibwerk::HaengeAn(Datei& datei, const std::string& bytes) {
    if (bytes.empty())
        return 0;
    const int fehler = datei.ausgabe->HaengeAn(bytes);
    if (fehler == 0) {
        stand.bytes += bytes.size();
        datei.bytes += bytes.size();
    }
    return fehler;
}

bool Schreibwerk::HatZuvieleBytes() const {
    const std::uint64_t grenze = static_cast<std::uint64_t>(auftrag.wahl.megabyte) * Megabyte;
    return grenze > 0 && std::ranges::any_of(laufender.dateien,
                                             [grenze](const Datei& datei) { return datei.bytes >= grenze; });
}

bool Schreibwerk::IstVoll(Augenblick jetzt) const {
    const Aufzeichnungswahl& wahl = auftrag.wahl;
    if (laufender.leer)
        return false;
    if (HatZuvieleBytes())
        return true;
    if (wahl.mitternacht && Ortstag(jetzt.zeit) != Ortstag(laufender.beginn.zeit))
        return true;
    const auto laenge = Stuecklaenge(wahl.behalteStunden);
    return laenge && jetzt.uhr - laufender.beginn.uhr >= *laenge;
}

/// The files end whole. What an end cannot be written to is readable all the same.
void Schreibwerk::Schliesse(Zeit wann) {
    for (Datei& datei : laufender.dateien) {
        static_cast<void>(HaengeAn(datei, datei.form->Beende()));
        static_cast<void>(datei.ausgabe->Sichere());
        datei.ausgabe->Schliesse();
        datei.form.reset();
    }
    laufender.ende = wann;
    if (auftrag.wahl.behalteStunden > 0 && !laufender.dateien.empty())
        alte.push_back(std::move(laufender));
    laufender = {};
}

void Schreibwerk::Schreibe(Aufnahmestueck stueck) {
    if (stueck.konfiguration != nullptr)
        konfiguration = std::move(stueck.konfiguration);
    if (stand.fehler != 0)
        return Verwirf(std::move(stueck.inhalt));
    Messpaket paket = AlsPaket(std::move(stueck.inhalt));
    if (paket.durchgaenge.empty() && paket.ereignisse.empty())
        return;
    for (Datei& datei : laufender.dateien) {
        const std::string bytes = datei.form->Nimm(paket, konfiguration);
        if (const int fehler = HaengeAn(datei, bytes); fehler != 0) {
            const Zeit wann = laufender.beginn.uhr + paket.spanne.bis;
            Stoere(fehler, wann);
            return Verwirf(std::move(paket));
        }
    }
    laufender.leer = false;
    laufender.bis = paket.spanne.bis;
    stand.durchgaenge += paket.durchgaenge.size();
}

/// What is due of it, with times from the beginning of the file on, which never go back.
Messpaket Schreibwerk::AlsPaket(Messpaket inhalt) {
    if (!inhalt.ereignisse.empty())
        auswahl.BeginneNeu();
    std::erase_if(inhalt.durchgaenge, [this](const Messdurchgang& einer) { return !auswahl.Nimm(einer); });
    const Zeit anfang = laufender.beginn.uhr;
    inhalt.spanne = {laufender.bis, laufender.bis};
    Zeit bis = laufender.bis;
    for (Messdurchgang& durchgang : inhalt.durchgaenge)
        durchgang.uhr = bis = std::max(bis, durchgang.uhr - anfang);
    if (!inhalt.durchgaenge.empty())
        inhalt.spanne = {inhalt.durchgaenge.front().uhr, bis};
    for (Messereignis& ereignis : inhalt.ereignisse) {
        const bool notiz = ereignis.art == Messereignisart::Notiz; // of any time before
        ereignis.laufzeit = std::max(notiz ? Zeit{} : laufender.bis, ereignis.laufzeit - anfang);
        if (!notiz)
            inhalt.spanne = {std::min(inhalt.spanne.von, ereignis.laufzeit),
                             std::max(inhalt.spanne.bis, ereignis.laufzeit)};
    }
    return inhalt;
}

/// Nothing can be written any more. The files stay as they are, except those that hold nothing.
void Schreibwerk::Stoere(int fehler, Zeit jetzt) {
    stand.fehler = fehler;
    versucht = jetzt;
    for (Datei& datei : laufender.dateien) {
        if (laufender.leer)
            datei.ausgabe->Entferne();
        datei.ausgabe->Schliesse();
        datei.form.reset();
    }
    if (laufender.leer) {
        stand.pfade.clear();
    } else if (auftrag.wahl.behalteStunden > 0) {
        laufender.ende = jetzt;
        alte.push_back(std::move(laufender));
    }
    laufender = {};
}

void Schreibwerk::VersucheWieder(Augenblick anfang, Zeit jetzt) {
    if (jetzt - versucht < Versuchsabstand)
        return;
    versucht = jetzt;
    VergissAlte(jetzt);
    if (ablage.FreierPlatz(auftrag.ordner).value_or(Neubeginnplatz) < Neubeginnplatz)
        return;
    stand.fehler = Eroeffne(anfang);
}

/// Passes are gone; what has happened meanwhile is told by the next file.
void Schreibwerk::Verwirf(Messpaket inhalt) {
    stand.verworfen += inhalt.durchgaenge.size();
    zuMelden += inhalt.durchgaenge.size();
    for (Messereignis& ereignis : inhalt.ereignisse)
        if (nachzutragen.size() < MeisteNachzutragende)
            nachzutragen.push_back(std::move(ereignis));
}

/// The file tells how much is missing before what follows.
void Schreibwerk::MeldeVerworfene(Augenblick jetzt) {
    if (stand.fehler != 0 || laufender.dateien.empty() || (zuMelden == 0 && nachzutragen.empty()))
        return;
    Aufnahmestueck stueck;
    stueck.inhalt.ereignisse = std::exchange(nachzutragen, {});
    for (Messereignis& ereignis : stueck.inhalt.ereignisse)
        ereignis.laufzeit = jetzt.uhr;
    if (zuMelden > 0)
        stueck.inhalt.ereignisse.push_back({.art = Messereignisart::Verworfen,
                                            .laufzeit = jetzt.uhr,
                                            .zeit = jetzt.zeit,
                                            .text = std::to_string(std::exchange(zuMelden, 0))});
    Schreibe(std::move(stueck));
}

void Schreibwerk::Sichere(Zeit jetzt) {
    if (stand.fehler != 0 || jetzt - gesichert < Sicherungsabstand)
        return;
    gesichert = jetzt;
    for (Datei& datei : laufender.dateien)
        if (const int fehler = datei.ausgabe->Sichere(); fehler != 0)
            return Stoere(fehler, jetzt);
}

void Schreibwerk::VergissAlte(Zeit jetzt) {
    const Zeit frist = std::chrono::hours(auftrag.wahl.behalteStunden);
    while (!alte.empty() && jetzt - alte.front().ende > frist) {
        for (Datei& datei : alte.front().dateien)
            datei.ausgabe->Entferne();
        alte.pop_front();
    }
}

} // namespace varnoth
