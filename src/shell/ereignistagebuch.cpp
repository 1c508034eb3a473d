#include "ereignistagebuch.h"

#include "dateien.h"
#include "einstellungen.h"
#include "ereignisse.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"

#include <QDir>
#include <QPointer>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextNichtGeschrieben = 6672, TextVoll = 6673, TextOhneOrdner = 6680;
constexpr const char* Abschnitt = "Ereignisse";
constexpr const char* SchluesselLaeuft = "Tagesdatei";
constexpr const char* SchluesselOrdner = "Ordner";
constexpr int TaktMs = 1000;

std::string Dateiname(const std::string& ordner, const std::string& tag) {
    return QDir(QString::fromStdString(ordner))
        .filePath(QStringLiteral("varnoth-%1.txt").arg(QString::fromStdString(tag)))
        .toStdString();
}

std::string Grenztext(std::size_t grenze, const std::string& datei) {
    constexpr std::size_t Megabyte = std::size_t{1} << 20U;
    return LadeTextMit(TextVoll, {std::to_string(grenze / Megabyte), datei});
}

} // namespace

Ereignistagebuch::Ereignistagebuch(std::size_t hoechstens) : grenze(hoechstens) {
    Einstellungen& einstellungen = DieEinstellungen();
    stand.ordner = einstellungen.LiesText(Abschnitt, SchluesselOrdner, {});
    stand.laeuft = !stand.ordner.empty() && einstellungen.LiesZahl(Abschnitt, SchluesselLaeuft, 0) != 0;
    if (stand.laeuft)
        mitschrift.emplace(modEreignisse::Alle());
    connect(&takt, &QTimer::timeout, this, &Ereignistagebuch::Sieh);
    takt.start(TaktMs);
}

void Ereignistagebuch::Setze(bool laeuft, const std::string& ordner) {
    SchreibeAlles();
    stand = {.laeuft = laeuft && !ordner.empty(), .ordner = ordner};
    mitschrift.reset();
    if (stand.laeuft)
        mitschrift.emplace(modEreignisse::Alle());
    Einstellungen& einstellungen = DieEinstellungen();
    einstellungen.SchreibText(Abschnitt, SchluesselOrdner, ordner);
    einstellungen.SchreibText(Abschnitt, SchluesselLaeuft, stand.laeuft ? "1" : "0");
}

void Ereignistagebuch::Sieh() {
    if (!mitschrift || mitschrift->Faellige().zeilen.empty() || std::exchange(geplant, true))
        return;
    DieUmgebung().FuerWartezeit([buch = QPointer(this)] {
        if (buch == nullptr)
            return;
        buch->geplant = false;
        buch->Schreibe();
    });
}

void Ereignistagebuch::SchreibeAlles() {
    while (Schreibe()) {
    }
}

/// Some lines of one day. False when nothing was due, or could be written.
bool Ereignistagebuch::Schreibe() {
    if (!mitschrift)
        return false;
    const Tageszeilen zeilen = mitschrift->Faellige();
    if (zeilen.zeilen.empty())
        return false;
    if (!QDir(QString::fromStdString(stand.ordner)).exists()) {
        MerkeFehler(LadeText(TextOhneOrdner));
        return false;
    }
    const std::string datei = Dateiname(stand.ordner, zeilen.tag);
    const Anhaengeergebnis ergebnis = HaengeAnDatei(datei, zeilen.zeilen, grenze);
    if (ergebnis.voll || ergebnis.fehlertext.empty())
        mitschrift->Erledige();
    stand.datei = datei;
    MerkeFehler(ergebnis.voll ? Grenztext(grenze, datei) : ergebnis.fehlertext);
    return stand.fehler.empty();
}

/// Said once when it begins, not with each attempt.
void Ereignistagebuch::MerkeFehler(const std::string& fehler) {
    const bool neu = !fehler.empty() && stand.fehler.empty();
    stand.fehler = fehler;
    if (neu)
        DieUmgebung().ZeigeStatustext(FeldMeldungen, LadeTextMit(TextNichtGeschrieben, {fehler}));
}

} // namespace varnoth
