#pragma once

#include "fensterumgebung.h"
#include "frmMain.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

namespace varnoth {

/// Watches the program connect by itself: when live data of every present part has flowed for a while it
/// saves a picture of the main window, prints what was identified, read and measured, and ends the program. A
/// message at any time from start-up on, or a long time without live data, ends it as failed.
class Selbsttest {
public:
    /// From now on messages open no box; the first one is the reason of the failure.
    Selbsttest(Fensterumgebung& umgebung, const QString& ordner);
    ~Selbsttest();

    /// Watches from now on what the main window, which must outlive this object, shows.
    void Beobachte(frmMain& hauptfenster);

    /// Exit code: 0 when all went well, else 1.
    int Ergebnis() const { return gelungen ? 0 : 1; }

private:
    void Pruefe();
    bool LiveDatenFliessen() const;
    void Berichte();
    void Scheitere(const QString& grund);
    void Beende();

    frmMain* fenster = nullptr;
    Fensterumgebung& umgebung;
    QString bildordner;
    QTimer takt;
    QElapsedTimer seitStart;
    QElapsedTimer seitLiveDaten;
    bool gelungen = false;
    bool beendet = false;
};

} // namespace varnoth
