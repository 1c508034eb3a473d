#pragma once

#include "betrieb.h"

#include <QDialog>

#include <map>
#include <random>
#include <string>

class QMenu;

namespace varnoth::pruefung {

/// A user without a plan: chooses commands, opens, changes and cancels dialogs, closes, minimises and opens
/// views, whatever the program is doing, and changes and clicks what the windows of the past offer. He never
/// ends it.
class Zufallsbenutzer {
public:
    Zufallsbenutzer(Betrieb& bedienter, unsigned seed);

    /// Does one thing.
    void Handle();
    /// Whether he had a hand in what the controller or the image holds since he was last asked.
    bool HatEingegriffen();
    /// How often he did what.
    const std::map<std::string, int>& Taten() const { return taten; }

private:
    struct Tat;

    void BedieneMenue(QMenu& menue);
    void BedieneDialog(QDialog& dialog);
    void BedieneFenster();
    void BedieneVergangenheit();
    void WaehleCommand();
    void AendereFeld(QWidget& dialog);
    void Zaehle(const std::string& was) { ++taten[was]; }
    int Zufall(int anzahl);

    Betrieb& betrieb;
    std::mt19937 zufall;
    std::map<std::string, int> taten;
    bool eingegriffen = false;
};

} // namespace varnoth::pruefung
