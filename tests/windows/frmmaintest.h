#pragma once

#include "beambarcontrol.h"
#include "fenstertest.h"
#include "frmDocument.h"
#include "frmMain.h"
#include "pruefgeraet.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <stdexcept>

namespace varnoth::pruefung {

/// The main window with a small controller at the far end of its port; time jumps.
class FrmMainTest : public testing::Test {
protected:
    frmMain& Fenster() {
        if (!fenster) {
            fenster = std::make_unique<frmMain>();
            fenster->show();
        }
        return *fenster;
    }
    QAction& Aktion(const char* name) {
        auto* aktion = Fenster().findChild<QAction*>(QString::fromUtf8(name));
        if (aktion == nullptr)
            throw std::out_of_range(name);
        return *aktion;
    }
    void Waehle(const char* name) {
        Aktion(name).trigger();
        Fenster().MenuAusführen();
    }
    /// A controller with these beam counts; 0 = no part.
    void SchliesseAn(std::array<int, AnzahlOptikteile> strahlen) {
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            const int anzahl = strahlen.at(static_cast<std::size_t>(teil));
            geraet.Spezifisch(teil, spezifisch::Strahlenzahl) = anzahl;
            geraet.Spezifisch(teil, spezifisch::Aufloesung) = 5;
            geraet.Spezifisch(teil, spezifisch::Filterdurchlaeufe) = 1;
            geraet.Spezifisch(teil, spezifisch::Gruppenzaehler) = 1;
            geraet.Spezifisch(teil, spezifisch::MinMaxHaltezeit) = 1;
            geraet.Spezifisch(teil, spezifisch::Lochgroesse) = 1;
            geraet.Spezifisch(teil, spezifisch::Mittentoleranz) = 1;
            geraet.Spezifisch(teil, spezifisch::Optikteilstatus) = anzahl > 0 ? 0x80 : 0;
        }
        geraet.Register(0x4000 + kommunikation::Stationsadresse) = 1;
        geraet.Register(0x4000 + kommunikation::Autosend) = 259;
        geraet.Register(0x4000 + kommunikation::Datenblock) = 20;
    }
    /// Does something with the dialog of this name as soon as it is shown.
    void Sobald(const char* dialogname, const std::function<void(QDialog&)>& tat) {
        auto* blick = new QTimer(&Fenster());
        QObject::connect(blick, &QTimer::timeout, blick, [=] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog->objectName() != QLatin1String(dialogname))
                return;
            blick->stop();
            tat(*dialog);
        });
        blick->start(1);
    }
    /// Live data runs, nothing is changed, and from now on the controller is silent.
    void GeheLiveUndVerstumme() {
        geraet.schweige = nullptr;
        SchliesseAn({32, 0, 0, 0});
        Fenster().Autostart();
        modDaten::LoescheGeaendert();
        geraet.schweige = [](const std::string&) { return true; };
    }
    /// Runs a command whose first request to the silent controller is cut short by a click on the close box.
    /// @return the dialog that showed nevertheless; it is closed
    QString DialogNachSchliessen(const char* befehl) {
        QString gezeigt;
        QTimer blick;
        QObject::connect(&blick, &QTimer::timeout, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                gezeigt = dialog->objectName();
                dialog->reject();
            }
        });
        blick.start(1);
        umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(300), [this] { Fenster().close(); });
        Waehle(befehl);
        return gezeigt;
    }
    /// Live data of a controller with these beams, one pass of it.
    void MissEinmal(std::array<int, AnzahlOptikteile> strahlen) {
        SchliesseAn(strahlen);
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            geraet.Spezifisch(teil, spezifisch::Messwerte) = 7;
        Fenster().Autostart();
        modPolling::PollingZyklus();
    }
    /// The visible window of that name; nullptr without one.
    static QWidget* Offenes(const char* name) {
        for (QWidget* const eines : QApplication::topLevelWidgets())
            if (eines->isVisible() && eines->objectName() == QLatin1String(name))
                return eines;
        return nullptr;
    }
    QString GezeigterWert(int teil) {
        return Fenster().Fenster(teil).findChild<QLabel*>("lblInhaltTU")->text();
    }
    bool ZeigtKeineWerte(int teil) {
        const auto& ansicht = Fenster().Fenster(teil);
        return GezeigterWert(teil) == "–" && ansicht.findChild<QLabel*>("sbStatusBar_1")->text().isEmpty() &&
               ansicht.findChild<BeamBarControl*>()->Stand() == Datenstand::Ungueltig;
    }
    QString Titel(int teil) { return Fenster().Fenster(teil).windowTitle(); }
    QLabel& Statusfeld(int nummer) {
        return *Fenster().statusBar()->findChild<QLabel*>(QStringLiteral("sbStatusBar_%1").arg(nummer));
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    PruefPort port{umgebung};
    PruefGeraet geraet{port};
    std::unique_ptr<frmMain> fenster;
};

} // namespace varnoth::pruefung
