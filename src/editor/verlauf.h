#pragma once

#include <QObject>
#include <QUndoStack>
#include <QVariantMap>

#include <functional>

class QBoxLayout;
class QDialog;
class QPushButton;

namespace varnoth {

/// What the changes of a dialog are made of.
struct Verlaufszugang {
    std::function<QVariantMap()> stand{};                  ///< what can be undone, as it is now
    std::function<void(const QVariantMap& stand)> zeige{}; ///< shows a state again
    std::function<QString()> worte{}; ///< what has changed since `Merke` last found the state the same
};

/// The changes since a dialog was opened: Ctrl+Z undoes them, Ctrl+Y does them again, and a button that
/// appears with the first of them lists them. A text field that has something of its own to undo comes first.
class Verlauf : public QObject {
public:
    /// The button stands in front in `knopfreihe`. What `zugang` uses must live as long as the dialog.
    Verlauf(QDialog& dialog, QBoxLayout& knopfreihe, Verlaufszugang zugang);

    /// Begins with the state of this moment.
    void Beginne();
    /// Makes a step of what has changed since the last one, if anything has.
    void Merke();
    /// The same, once the event that is under way has been handled.
    void MerkeDanach();

    bool eventFilter(QObject* element, QEvent* ereignis) override;

private:
    class Schritt;

    void Gehe(void (QUndoStack::*weiter)());
    void Stelle(const QVariantMap& stand);
    void ZeigeKnopf();

    QDialog& dialog;
    Verlaufszugang zugang;
    QUndoStack stapel;
    QPushButton* knopf;
    QVariantMap letzter;
    bool laeuft = false; ///< changes are followed: begun, and none of them is just being undone
};

} // namespace varnoth
