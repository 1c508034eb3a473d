#pragma once

#include "bedienelement.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class QMessageBox;

namespace varnoth::pruefung {

/// The user at the screen. He looks at it every few milliseconds, also while the program waits or shows a
/// dialog: he does what was planned once its time has come, else he writes a message box down and presses its
/// default button, saves no changes, chooses no configuration when none could be read, and closes the list
/// that follows a write.
class Fahrer {
public:
    Fahrer();

    /// Plans an action for the first look at which the condition holds. Actions must not wait for anything.
    void Sobald(std::function<bool()> bedingung, std::function<void()> aktion);
    /// The texts of the message boxes that came so far.
    const std::vector<std::string>& Meldungen() const { return meldungen; }
    /// Whether every planned action was done.
    bool AllesGetan() const { return plan.empty(); }

private:
    void Blicke();
    void Beantworte(QMessageBox& meldung);

    QTimer takt;
    std::vector<std::pair<std::function<bool()>, std::function<void()>>> plan;
    std::vector<std::string> meldungen;
};

/// Clicks a button as soon as the action that asks for it is over: what the click begins may wait for more
/// actions.
void Klicke(QWidget& fenster, const QString& knopf);

/// The visible window of that name, nullptr when there is none.
QWidget* SichtbaresFenster(const QString& name);

} // namespace varnoth::pruefung
