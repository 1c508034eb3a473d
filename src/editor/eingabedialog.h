#pragma once

#include <QDialog>

namespace varnoth {

/// A dialog whose controls hold what is only stored by one of its buttons. Enter leads on to the next control
/// and presses nothing: no button is a default. Escape and the close box ask before they give up changes; its
/// own cancel button and whoever closes it from outside do not.
class Eingabedialog : public QDialog {
public:
    using QDialog::QDialog;

protected:
    /// Takes the default away from every button; to be called when the form is set up.
    void NimmVorgabenWeg();
    /// Whether the controls differ from what was shown at first.
    virtual bool IstGeaendert() const = 0;

    void keyPressEvent(QKeyEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    bool DarfSchliessen() const;
};

} // namespace varnoth
