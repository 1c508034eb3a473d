// Files that come to the main window from outside: dropped on it, named at the start, handed over by a second
// start.

#include "dateiabwurf.h"
#include "frmMain.h"
#include "konfigurationsablauf.h"
#include "konfigurationsbefehle.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"
#include "wiedergabeablauf.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextWartetAufDialog = 8811;

std::string Dateiname(const std::string& pfad) {
    return QFileInfo(QString::fromStdString(pfad)).fileName().toStdString();
}

} // namespace

/// The command that opens them waits like any other; where another one waits already, it comes after that.
void frmMain::Uebergib(std::vector<std::string> dateien) {
    if (dateien.empty() || Beendet())
        return;
    if (QApplication::activeModalWidget() != nullptr)
        ZeigeStatustext(FeldMeldungen, LadeTextMit(TextWartetAufDialog, {Dateiname(dateien.front())}));
    uebergebene.push_back(std::move(dateien));
    StelleUebergebeneAn();
}

void frmMain::StelleUebergebeneAn() {
    if (uebergebene.empty() || befehle.Wartet())
        return;
    const auto& dateien = uebergebene.front();
    const bool istAufzeichnung = dateien.size() == 1 && Wiedergabeablauf::IstAufzeichnung(dateien.front());
    befehle.Klick(istAufzeichnung ? Befehl::UebergebeneAufzeichnung : Befehl::UebergebeneDateien);
}

void frmMain::OeffneUebergebeneDateien() {
    if (uebergebene.empty())
        return;
    const auto dateien = std::move(uebergebene.front());
    uebergebene.pop_front();
    ZeigeStatustext(FeldMeldungen, "");
    if (dateien.size() > 1)
        ZeigeMehrereDateien();
    else
        LadeVonAussen(dateien.front());
}

/// Who opens a configuration wants to see it.
void frmMain::LadeVonAussen(const std::string& pfad) {
    BeendeWiedergabe();
    LadeDatei(pfad);
}

void frmMain::OeffneUebergebeneAufzeichnung() {
    if (uebergebene.empty())
        return;
    const auto dateien = std::move(uebergebene.front());
    uebergebene.pop_front();
    ZeigeStatustext(FeldMeldungen, "");
    wiedergabe->Oeffne(dateien.front());
}

void frmMain::KommNachVorn() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    QWidget* const dialog = QApplication::activeModalWidget();
    for (QWidget* fenster : {static_cast<QWidget*>(this), dialog})
        if (fenster != nullptr) {
            fenster->raise();
            fenster->activateWindow();
        }
}

void frmMain::dragEnterEvent(QDragEnterEvent* ereignis) {
    if (!GezogeneDateien(*ereignis->mimeData()).empty())
        ereignis->acceptProposedAction();
}

/// Whoever drags waits for the end of this, so nothing is asked or shown here.
void frmMain::dropEvent(QDropEvent* ereignis) {
    Uebergib(GezogeneDateien(*ereignis->mimeData()));
    ereignis->acceptProposedAction();
}

} // namespace varnoth
