#include "motivwiedergabe.h"

#include "dateidialog.h"
#include "messhoerer.h"
#include "polling.h"
#include "pruefmessquelle.h"
#include "registerabbild.h"
#include "texte.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include <memory>

namespace varnoth::hilfebilder {

namespace {

constexpr int Durchgaenge = 400;
constexpr int NotizBei = 150;
constexpr int VerlorenAb = 250, ZurueckBei = 300;
constexpr QSize Groesse(900, 640);

/// Keeps live data as a recording does.
struct Mitschnitt : Messhoerer {
    Mitschnitt() { modMesshoerer::MeldeAn(*this); }
    ~Mitschnitt() override { modMesshoerer::MeldeAb(*this); }

    void Hoere(const Messdurchgang& durchgang) override {
        const int nummer = gesehene++;
        if (nummer >= VerlorenAb && nummer < ZurueckBei)
            return;
        if (nummer == 0)
            beginn = durchgang.uhr;
        Messpaket paket{.durchgaenge = {durchgang}};
        paket.durchgaenge[0].uhr -= beginn;
        paket.spanne = {paket.durchgaenge[0].uhr, paket.durchgaenge[0].uhr};
        const auto merke = [&](Messereignisart art, const std::string& text) {
            paket.ereignisse.push_back({.art = art, .laufzeit = paket.spanne.bis, .text = text});
        };
        if (nummer == NotizBei)
            merke(Messereignisart::Notiz, GetSprachoffset() == Englisch ? "Web changed" : "Bahn gewechselt");
        if (nummer + 1 == VerlorenAb)
            merke(Messereignisart::Verloren, {});
        if (nummer == ZurueckBei)
            merke(Messereignisart::Zurueck, {});
        quelle->konfiguration = modDaten::DasAbbild();
        quelle->Nimm(std::move(paket));
    }
    void Hoere(const Liveereignis& /*ereignis*/) override {}

    std::shared_ptr<pruefung::PruefMessquelle> quelle = std::make_shared<pruefung::PruefMessquelle>();
    int gesehene = 0;
    Zeit beginn{0};
};

std::shared_ptr<pruefung::PruefMessquelle> NimmAuf(Buehne& buehne) {
    buehne.Hauptfenster();
    Mitschnitt mitschnitt;
    modPolling::StartePolling();
    for (int i = 0; i < Durchgaenge; ++i)
        modPolling::PollingZyklus();
    buehne.HalteAn();
    mitschnitt.quelle->angaben = {.beginn = std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} +
                                            std::chrono::hours(2),
                                  .zoneMinuten = 60,
                                  .bezeichnung = "Varnoth",
                                  .seriennummer = "SIM-0001"};
    return mitschnitt.quelle;
}

} // namespace

QImage Wiedergabebild(Buehne& buehne) {
    const auto quelle = NimmAuf(buehne);
    frmMain& fenster = buehne.Hauptfenster();
    const QSize vorher = fenster.size();
    fenster.resize(Groesse);
    SetzeDateiantwort([](const Dateifrage&) { return "/home/varnoth/SIM-0001_2026-03-17.vrec"; });
    fenster.SetzeAufzeichnungsleser(
        [quelle](const std::string&, const auto&) { return GeoeffneteAufzeichnung{.quelle = quelle}; });
    Kind<QAction>(fenster, "tlbWiedergabe").trigger();
    fenster.MenuAusführen();
    SetzeDateiantwort({});
    fenster.Ordne(Anordnung::Nebeneinander);
    auto& leiste = Kind<QWidget>(fenster, "frmWiedergabe");
    Kind<QComboBox>(leiste, "cboEreignis").setCurrentIndex(5);
    Kind<QPushButton>(leiste, "cmdEreignisVor").click();
    auto& meldung = Kind<QLabel>(leiste, "lblMeldung");
    const auto steht = [&] { return meldung.text().contains(QLatin1Char(':')); };
    QImage bild = [&] {
        while (!steht())
            QCoreApplication::processEvents();
        return Foto(fenster);
    }();
    Kind<QPushButton>(leiste, "cmdVerlassen").click();
    fenster.MenuAusführen();
    fenster.resize(vorher);
    return bild;
}

} // namespace varnoth::hilfebilder
