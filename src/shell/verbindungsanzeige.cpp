#include "verbindungsanzeige.h"

#include "anschluss.h"
#include "identifikation.h"
#include "kurzlabel.h"
#include "leitungsstatistik.h"
#include "polling.h"
#include "schnittstelle.h"
#include "seriennummer.h"
#include "texte.h"
#include "tipptext.h"
#include "transaktionen.h"
#include "verbindungssymbol.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStatusBar>

#include <utility>

namespace varnoth {

namespace {

constexpr int TaktMs = 250;
constexpr int Zustandszeichen = 26; // the seconds of a wait are in view, the figures go first
constexpr std::int16_t TextStart = 9118;
constexpr std::int16_t TextStartHinweis = 9119;
constexpr std::int16_t TextSuchen = 8309;
constexpr std::int16_t TextSuchenHinweis = 8302;

Verbindungstatsachen Tatsachen(bool verbindet) {
    const auto& leitung = modLeitungsstatistik::GetStand();
    return {.jetzt = DieUmgebung().Uhr(),
            .uhrzeit = QDateTime::currentDateTime(),
            .verbindet = verbindet,
            .liveDaten = modPolling::GetPollingAktiv() != False,
            .verloren = modPolling::VerbindungVerloren(),
            .portOffen = modSchnittstelle::GetPortIstOffen() != False,
            .simuliert = modSchnittstelle::GetAnschluss().simuliert,
            .fehlgeschlagen = leitung.letztesEnde && *leitung.letztesEnde != Austauschende::Gelungen,
            .unterwegs = leitung.unterwegs,
            .aufgehalten = DieUmgebung().GetAufenthalt().dauertAn,
            .letzteAntwort = leitung.letzteAntwort,
            .wartetSeit = modLeitungsstatistik::WartetSeit(),
            .durchgaenge = modPolling::GetDurchgaenge(),
            .fehlschlaege = modLeitungsstatistik::FehlschlaegeDerLetztenMinute()};
}

Verbindungsgegenstand Gegenstand() {
    using namespace modSchnittstelle;
    Verbindungsgegenstand gegenstand{.port = "COM" + std::to_string(GetComPort()),
                                     .geraet = GetAnschluss().geraet,
                                     .format = GetComSettings()};
    if (modModbus::GetIdentGueltig() != True)
        return gegenstand;
    gegenstand.bezeichnung = IdenttextAlsUtf8(modModbus::GetIdentText1());
    gegenstand.seriennummer = GeraeteSeriennummer();
    return gegenstand;
}

void SetzeText(QLabel& label, const std::string& text) {
    if (const QString neu = QString::fromStdString(text); label.text() != neu)
        label.setText(neu);
}

void SetzeHinweis(QWidget& stelle, const std::string& text) {
    if (const QString neu = AlsTipp(QString::fromStdString(text)); stelle.toolTip() != neu)
        stelle.setToolTip(neu);
}

void Biete(QPushButton& knopf, bool ob, std::int16_t text, std::int16_t hinweis) {
    knopf.setVisible(ob);
    if (!ob)
        return;
    knopf.setText(QString::fromStdString(LadeText(text)));
    SetzeHinweis(knopf, LadeText(hinweis));
}

} // namespace

Verbindungsanzeige::Verbindungsanzeige(QStatusBar& leiste, const std::function<void()>& starte,
                                       const std::function<void()>& suche)
    : QWidget(&leiste), symbol(new Verbindungssymbol(this)),
      zustandstext(new Kurzlabel(this, Zustandszeichen)), zahlen(new Kurzlabel(this)),
      start(MacheKnopf(QStringLiteral("cmdVerbindungStart"), starte)),
      suchen(MacheKnopf(QStringLiteral("cmdVerbindungSuchen"), suche)) {
    setObjectName(QStringLiteral("Verbindungsanzeige"));
    symbol->setObjectName(QStringLiteral("symVerbindung"));
    zustandstext->setObjectName(QStringLiteral("lblVerbindung"));
    zahlen->setObjectName(QStringLiteral("lblVerbindungszahlen"));
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(4, 0, 4, 0);
    for (QWidget* teil :
         {static_cast<QWidget*>(symbol), static_cast<QWidget*>(zustandstext), static_cast<QWidget*>(start),
          static_cast<QWidget*>(suchen), static_cast<QWidget*>(zahlen)})
        reihe->addWidget(teil);
    leiste.addPermanentWidget(this);
    connect(&takt, &QTimer::timeout, this, &Verbindungsanzeige::Aktualisiere);
    takt.start(TaktMs);
    Aktualisiere();
}

/// A button that the keyboard passes over: the key of its command does the same.
QPushButton* Verbindungsanzeige::MacheKnopf(const QString& name, const std::function<void()>& tat) {
    auto* const knopf = new QPushButton(this);
    knopf->setObjectName(name);
    knopf->setFocusPolicy(Qt::NoFocus);
    knopf->setAutoDefault(false);
    connect(knopf, &QPushButton::clicked, this, tat);
    return knopf;
}

void Verbindungsanzeige::SetzeVerbindet(bool ob) {
    verbindet = ob;
    Aktualisiere();
}

void Verbindungsanzeige::SetzeWiedergabe(std::optional<Verbindungsgegenstand> woraus) {
    wiedergabe = std::move(woraus);
    Aktualisiere();
}

void Verbindungsanzeige::Aktualisiere() {
    const Verbindungstatsachen tatsachen = Tatsachen(verbindet);
    Inhalt inhalt{.bild = regel.Betrachte(tatsachen),
                  .gegenstand = Gegenstand(),
                  .tag = tatsachen.uhrzeit.date(),
                  .sprache = GetSprachoffset()};
    if (wiedergabe) {
        inhalt.bild = {.zustand = Verbindungszustand::Wiedergabe};
        inhalt.gegenstand = *wiedergabe;
    }
    if (inhalt != gezeigt) {
        MerkeZustand(inhalt);
        Zeige(inhalt, tatsachen.uhrzeit);
    }
    gezeigt = inhalt;
}

/// Every new state is kept, with the line that it is about.
void Verbindungsanzeige::MerkeZustand(const Inhalt& inhalt) {
    if (gezeigt && gezeigt->bild.zustand == inhalt.bild.zustand)
        return;
    const Verbindungsgegenstand& gegenstand = inhalt.gegenstand;
    const bool wiedergegeben = inhalt.bild.zustand == Verbindungszustand::Wiedergabe;
    merker.Merke({.art = Ereignisart::Zustand,
                  .zeit = std::chrono::system_clock::now(),
                  .laufzeit = DieUmgebung().Uhr(),
                  .alt = inhalt.bild.simuliert ? 1 : 0,
                  .neu = static_cast<int>(inhalt.bild.zustand),
                  .text = wiedergegeben
                              ? gegenstand.aufzeichnung
                              : Portname(gegenstand.port, gegenstand.geraet) + ", " + gegenstand.format});
}

void Verbindungsanzeige::Zeige(const Inhalt& inhalt, const QDateTime& jetzt) {
    const Verbindungsbild& bild = inhalt.bild;
    symbol->Zeige(bild.zustand, bild.simuliert);
    SetzeText(*zustandstext, Zustandstext(bild, jetzt));
    SetzeText(*zahlen, Zahlentext(bild));
    zahlen->setVisible(!zahlen->text().isEmpty());
    Biete(*start, bild.startBieten, TextStart, TextStartHinweis);
    Biete(*suchen, bild.sucheBieten, TextSuchen, TextSuchenHinweis);
    SetzeHinweis(*this, Verbindungshinweis(bild, inhalt.gegenstand, jetzt));
    setAccessibleName(zustandstext->text());
}

} // namespace varnoth
