#pragma once

#include "boolean.h"

#include <QDialog>

class QPushButton;

namespace varnoth {

/// A modal dialog that runs a procedure against the controller. It has the port open from the time it is made
/// until it closes. While the procedure runs, every way to close the dialog (cancel, Escape, close box,
/// reject() from outside) only asks the procedure to end; the dialog closes once the procedure has returned.
///
/// The caller makes it, may call SetWeiter, runs exec() and asks GetCancel.
class Ablaufdialog : public QDialog {
public:
    ~Ablaufdialog() override;

    /// True once the user has cancelled or the procedure did not reach its end.
    Boolean GetCancel() const { return abbruch; }
    /// True: the dialog closes by itself when the procedure has reached its end.
    void SetWeiter(Boolean par) { weiter = par; }
    /// True once the procedure has reached its end.
    Boolean GetVollstaendig() const { return vollstaendig; }

    void reject() override;
    void done(int ergebnis) override;

protected:
    /// When the procedure starts: by itself once the dialog is shown, or when the dialog calls FuehreAus.
    enum class Beginn { BeimZeigen, AufKnopfdruck };

    Ablaufdialog(Beginn wann, QWidget* parent);

    /// Localises the form, shows read-only fields as texts with room for what they will hold, and opens the
    /// port; the last step of a dialog's constructor. `abbrechen` is the cancel button, which gets the focus:
    /// once the procedure has reached its end, closing the dialog is a cancel only while it is enabled.
    void Lade(QPushButton& abbrechen);
    /// Runs the procedure, then closes the dialog where nothing is left to be seen.
    void FuehreAus();
    void showEvent(QShowEvent* ereignis) override;

private:
    /// The procedure. False when it did not reach its end.
    virtual bool Ablauf() = 0;

    void Entlade();

    Beginn beginn;
    QPushButton* abbruchknopf = nullptr;
    bool geladen = false;
    bool angestossen = false;
    bool laeuft = false;
    Boolean abbruch = False;
    Boolean weiter = False;
    Boolean vollstaendig = False;
};

} // namespace varnoth
