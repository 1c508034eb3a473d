#include "allefenster.h"

#include "ereignisanbieter.h"
#include "ereignisse.h"
#include "frmAufzeichnung.h"
#include "frmBericht.h"
#include "frmBlankingmuster.h"
#include "frmBusprotokoll.h"
#include "frmDocument.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmEreignisse.h"
#include "frmHilfe.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInfo.h"
#include "frmInitHardware.h"
#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmRegisterliste.h"
#include "frmReihenfolge.h"
#include "frmResetHardware.h"
#include "frmSicherungen.h"
#include "frmSimulation.h"
#include "frmSplash.h"
#include "frmStrahlenBestimmen.h"
#include "frmVerbindung.h"
#include "frmVergleich.h"
#include "frmVerlauf.h"
#include "frmWasserfall.h"
#include "frmWiedergabe.h"
#include "leitungspruefung.h"
#include "mithoeren.h"
#include "protokollanbieter.h"
#include "pruefdurchgaenge.h"
#include "pruefmessanbieter.h"
#include "pruefsicherungen.h"
#include "pruefverbindung.h"
#include "rahmen.h"
#include "standardkonfiguration.h"
#include "vergleichsanbieter.h"
#include "wiedergabesteuerung.h"

namespace varnoth::pruefung {

namespace {

/// A window together with what must outlive it.
template<class Fenster, class... Umfeld>
class MitUmfeld : private std::tuple<Umfeld...>, public Fenster {
public:
    template<class... Argumente>
    explicit MitUmfeld(Argumente&&... argumente)
        : Fenster(std::get<Umfeld>(*this)..., std::forward<Argumente>(argumente)...) {}
};

struct Anbieter : Vergleichsanbieter {
    std::vector<Vergleichsquelle> Fragbare() override { return {Vergleichsquelle::Datei}; }
    void Verlange(Vergleichsquelle, Seitenwahl) override {}
    void SpeichereText(const std::string&) override {}
};

struct KeinProtokollziel : Protokollanbieter {
    std::optional<std::string> FrageNachDatei(const std::string&, const std::string&,
                                              const std::string&) override {
        return {};
    }
    bool Schreibe(const std::string&, const std::string&) override { return false; }
    Supportangaben Angaben() override { return {}; }
};

struct KeineAufzeichnung : Aufzeichnungsanbieter {
    Aufzeichnungslage Lage() override {
        return {.laeuft = true, .stand = {.pfade = {TextMitTags}}, .hindernis = TextMitTags};
    }
    std::string Standtext() override { return TextMitTags; }
    Aufzeichnungswahl Wahl() override { return {}; }
    void Waehle(const Aufzeichnungswahl&) override {}
    std::string Ordner() override { return TextMitTags; }
    void WaehleOrdner(const std::string&) override {}
    std::string Namensvorschlag() override { return TextMitTags; }
    void Beginne(const std::string&) override {}
    void Beende() override {}
    std::optional<std::string> FrageNachOrdner(const std::string&, const std::string&) override { return {}; }
    void ZeigeOrdner(const std::string&) override {}
    Flugschreiber DerFlugschreiber() override { return {}; }
    void Waehle(const Flugschreiber&) override {}
    std::string ImSpeicher() override { return TextMitTags; }
    void SichereSpeicher(int) override {}
    Speicherlage Sicherung() override { return {}; }
};

struct StehendeWiedergabe : Wiedergabesteuerung {
    const Messquelle& Quelle() const override { return quelle; }
    Wiedergabe& Stand() override { return stand; }
    Wiedergabelage Zeige() override { return {}; }
    void Verlasse() override {}
    void BerichteKonfiguration() override {}
    void VergleicheKonfiguration() override {}
    void SpeichereKonfiguration() override {}

    PruefMessquelle quelle;
    Wiedergabe stand{quelle};
};

struct EineSicherung : PruefSicherungen {
    EineSicherung() {
        Lege(Standardkonfiguration(), {.zeit = {},
                                       .anlass = Sicherungsanlass::VorDemSchreiben,
                                       .seriennummer = TextMitTags,
                                       .softwareversion = TextMitTags,
                                       .strahlen = TextMitTags,
                                       .programm = TextMitTags});
    }
};

template<class Fenster>
std::unique_ptr<QWidget> Einfach() {
    return std::make_unique<Fenster>();
}

std::unique_ptr<QWidget> Bericht() {
    const std::string boese = TextMitTags;
    return std::make_unique<frmBericht>(Berichtsumfeld{
        .angaben =
            [boese] { return Berichtsangaben{.quelle = boese, .geraetename = boese, .copyright = boese}; },
        .name = boese,
        .drucker = [] { return QStringList(); }});
}

std::unique_ptr<QWidget> Blankingmuster() {
    auto fenster = std::make_unique<frmBlankingmuster>();
    fenster->InitFormBlankingmuster(0);
    return fenster;
}

/// A refusal from somebody who is no controller of ours.
std::unique_ptr<QWidget> Busprotokollfenster() {
    auto fenster = std::make_unique<MitUmfeld<frmBusprotokoll, KeinProtokollziel>>();
    fenster->show();
    modMithoeren::Gesendet(Zeit(0));
    modMithoeren::Empfangen(TextMitTags, Zeit(1000));
    modMithoeren::Endet(Austauschart::Auftrag, LeseAnforderung(1, 5, 1), modMithoeren::Ausgang::Ausgeblieben,
                        true);
    return fenster;
}

/// A source that calls itself something with tags.
std::unique_ptr<QWidget> Strahlverlauf() {
    struct Boeser : PruefMessanbieter {
        Boeser() { quelle.angaben.bezeichnung = quelle.angaben.seriennummer = TextMitTags; }
    };
    return std::make_unique<MitUmfeld<frmWasserfall, Boeser>>();
}

struct BoeseMitschrift : Ereignisanbieter {
    Mitschriftstand Mitschrift() override {
        return {.laeuft = true, .ordner = TextMitTags, .fehler = TextMitTags};
    }
    void SetzeMitschrift(bool, const std::string&) override {}
    std::optional<std::string> FrageNachOrdner(const std::string&, const std::string&) override { return {}; }
};

std::unique_ptr<QWidget> Ereignisfenster() {
    modEreignisse::Merke({.art = Ereignisart::Meldung, .text = TextMitTags});
    return std::make_unique<MitUmfeld<frmEreignisse, PruefMessanbieter, BoeseMitschrift>>();
}

std::unique_ptr<QWidget> Ansicht() {
    auto fenster = std::make_unique<frmDocument>(0);
    fenster->InitfrmDocument();
    return fenster;
}

std::unique_ptr<QWidget> Editor() {
    auto fenster = std::make_unique<frmKonfigurationEdit>();
    fenster->InitKonfiguration({.zeigeUebertrageneWerte = true});
    return fenster;
}

std::unique_ptr<QWidget> Registerliste() {
    const std::string boese = TextMitTags;
    const Registerzeile zeile{{}, boese, boese, boese, boese, boese};
    return std::make_unique<frmRegisterliste>(
        Registerbefund{boese, boese, boese, boese, {100, zeile}, boese});
}

std::unique_ptr<QWidget> Sicherungsfenster() {
    return std::make_unique<MitUmfeld<frmSicherungen, EineSicherung>>(Sicherungsbefehle{});
}

/// A port and a controller that call themselves what they like, and a device that cannot be had.
struct BoeseLeitung : PruefVerbindung {
    BoeseLeitung() {
        const std::string boese = TextMitTags;
        ports = {{.geraet = boese,
                  .bezeichnung = boese,
                  .seriennummer = boese,
                  .stabileNamen = {boese},
                  .befund = {.hindernis = Hindernis::Belegt, .prozesse = {boese}},
                  .verzoegerungsdatei = boese,
                  .verzoegerungMs = 16}};
        stand.wahl.geraete.fill(boese);
        stand.wahl.format = boese;
        stand.geraetDiesesLaufs = boese;
        FolgeNamen();
    }
};

std::unique_ptr<QWidget> Verbindungsfenster() {
    auto fenster = std::make_unique<MitUmfeld<frmVerbindung, BoeseLeitung>>();
    Suchfund fund = EinFund(TextMitTags);
    fund.ident.text1 = fund.ident.text2 = fund.text = TextMitTags;
    fenster->ZeigeVersuch({.nummer = 1,
                           .anzahl = 1,
                           .versuch = {TextMitTags, TextMitTags},
                           .ergebnis = Suchergebnis::PortVerschlossen,
                           .text = TextMitTags});
    fenster->BeendeSuche(fund);
    Pruefbefund befund;
    befund.geraet = befund.format = TextMitTags;
    fenster->BeendePruefung(befund);
    return fenster;
}

/// A past with a note that somebody has written.
struct BoeseVergangenheit : PruefMessanbieter {
    BoeseVergangenheit() {
        const std::string boese = TextMitTags;
        quelle.angaben = {.bezeichnung = boese, .seriennummer = boese, .programm = boese};
        Messpaket paket = PaketMit(Zeit(0), 10, std::chrono::milliseconds(100));
        paket.ereignisse = {{.art = Messereignisart::Notiz, .laufzeit = Zeit(0), .text = boese}};
        quelle.Nimm(std::move(paket));
    }
};

std::unique_ptr<QWidget> Verlaufsfenster() {
    return std::make_unique<MitUmfeld<frmVerlauf, BoeseVergangenheit>>();
}

std::unique_ptr<QWidget> Vergleich() {
    auto fenster = std::make_unique<MitUmfeld<frmVergleich, Anbieter>>();
    fenster->Setze(
        Seitenwahl::A,
        {Vergleichsquelle::Datei, std::string("/").append(TextMitTags), Standardkonfiguration(), {}});
    return fenster;
}

} // namespace

const std::vector<Fensterprobe>& AlleFenster() {
    static const std::vector<Fensterprobe> alle{
        {"frmBericht", Bericht},
        {"frmBlankingmuster", Blankingmuster},
        {"frmAufzeichnung", [] { return std::make_unique<MitUmfeld<frmAufzeichnung, KeineAufzeichnung>>(); }},
        {"frmBusprotokoll", Busprotokollfenster},
        {"frmWasserfall", Strahlverlauf},
        {"frmDocument", Ansicht},
        {"frmEinzelwerteLesenSchreiben", Einfach<frmEinzelwerteLesenSchreiben>},
        {"frmEreignisse", Ereignisfenster},
        {"frmHilfe", Einfach<frmHilfe>},
        {"frmHoleLichtleistenInfo", Einfach<frmHoleLichtleistenInfo>},
        {"frmIdentifikationsAnforderung", Einfach<frmIdentifikationsAnforderung>},
        {"frmInfo", [] { return std::make_unique<frmInfo>(nullptr); }},
        {"frmInitHardware", Einfach<frmInitHardware>},
        {"frmKeinKonturAngeschlossen", Einfach<frmKeinKonturAngeschlossen>},
        {"frmKonfigurationEdit", Editor},
        {"frmKonfigurationLesenAusHardware", Einfach<frmKonfigurationLesenAusHardware>},
        {"frmKonfigurationSchreibenInHardware", Einfach<frmKonfigurationSchreibenInHardware>},
        {"frmRegisterliste", Registerliste},
        {"frmReihenfolge", Einfach<frmReihenfolge>},
        {"frmResetHardware", Einfach<frmResetHardware>},
        {"frmSicherungen", Sicherungsfenster},
        {"frmSimulation", Einfach<frmSimulation>},
        {"frmSplash", Einfach<frmSplash>},
        {"frmStrahlenBestimmen", Einfach<frmStrahlenBestimmen>},
        {"frmVerbindung", Verbindungsfenster},
        {"frmVergleich", Vergleich},
        {"frmVerlauf", Verlaufsfenster},
        {"frmWiedergabe", [] { return std::make_unique<MitUmfeld<frmWiedergabe, StehendeWiedergabe>>(); }},
    };
    return alle;
}

} // namespace varnoth::pruefung
