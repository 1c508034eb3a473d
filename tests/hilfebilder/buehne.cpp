#include "buehne.h"

#include "polling.h"
#include "qttexte.h"
#include "schnittstelle.h"
#include "texte.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPixmap>

namespace varnoth::hilfebilder {

namespace {

constexpr QSize Fenstergroesse(590, 660);
constexpr int Durchgaenge = 30;
constexpr Zeit LaengsteWartezeit = std::chrono::minutes(1);
constexpr Zeit Schritt = std::chrono::milliseconds(10);

} // namespace

Buehnenumgebung::Buehnenumgebung() {
    beiEreignissen = [] { QCoreApplication::processEvents(); };
}

void Buehnenumgebung::WarteAufEreignis(Zeit hoechstens) {
    PruefUmgebung::WarteAufEreignis(hoechstens);
    ErledigeAufgeschobenes();
    beiEreignissen();
}

void Buehnenumgebung::ZeigeStatustext(int feld, const std::string& text) {
    if (hauptfenster != nullptr)
        hauptfenster->ZeigeStatustext(feld, text);
}

QImage Foto(QWidget& fenster) {
    QCoreApplication::processEvents();
    return fenster.grab().toImage();
}

Buehne::Buehne(std::int16_t sprachoffset) {
    SetzeSprachoffset(sprachoffset);
    LadeQtTexte(sprachoffset);
    QLocale::setDefault(QLocale(sprachoffset == Englisch ? QLocale::English : QLocale::German));
    modSchnittstelle::SetzePort(&port);
}

Buehne::~Buehne() {
    umgebung.hauptfenster = nullptr;
    hauptfenster.reset();
    modSchnittstelle::SetzePort(nullptr);
}

frmMain& Buehne::Hauptfenster() {
    if (hauptfenster)
        return *hauptfenster;
    hauptfenster = std::make_unique<frmMain>(QString());
    umgebung.hauptfenster = hauptfenster.get();
    hauptfenster->resize(Fenstergroesse);
    hauptfenster->show();
    hauptfenster->Autostart();
    hauptfenster->resize(Fenstergroesse);
    // The second time scroll bars that the first has made superfluous take no room.
    for (int mal = 0; mal < 2; ++mal) {
        hauptfenster->Ordne(Anordnung::Nebeneinander);
        QCoreApplication::processEvents();
    }
    for (int durchgang = 0; durchgang < Durchgaenge; ++durchgang)
        modPolling::PollingZyklus();
    return *hauptfenster;
}

void Buehne::HalteAn() {
    Hauptfenster().SubMessdatenVisualisierenStop();
}

/// Takes the picture at the first event that finds the condition true.
void Buehne::Fotografiere(QWidget& fenster, const std::function<bool()>& bedingung, QImage& bild) {
    if (!bild.isNull() || !bedingung())
        return;
    bild = Foto(fenster);
    fenster.close();
}

QImage Buehne::Bild(QWidget& fenster, const std::function<bool()>& bedingung) {
    QImage bild;
    const Zeit ende = umgebung.Uhr() + LaengsteWartezeit;
    const auto vorher = umgebung.beiEreignissen;
    umgebung.beiEreignissen = [&] {
        vorher();
        Fotografiere(fenster, bedingung, bild);
    };
    fenster.show();
    while (bild.isNull() && umgebung.Uhr() < ende) {
        umgebung.WarteAufEreignis(Schritt);
        umgebung.LasseEreignisseLaufen();
    }
    umgebung.beiEreignissen = vorher;
    if (bild.isNull())
        throw std::runtime_error("no picture of " + fenster.objectName().toStdString());
    return bild;
}

QImage Buehne::BildNach(QWidget& fenster, Zeit dauer) {
    const Zeit dann = umgebung.Uhr() + dauer;
    return Bild(fenster, [this, dann] { return umgebung.Uhr() >= dann; });
}

std::string Buehne::Zwischenfall() const {
    return umgebung.meldungen.empty() ? std::string() : umgebung.meldungen.front().text;
}

} // namespace varnoth::hilfebilder
