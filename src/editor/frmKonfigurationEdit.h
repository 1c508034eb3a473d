#pragma once

#include "boolean.h"
#include "eingabedialog.h"

#include <QVariantMap>

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class frmKonfigurationEdit;
}

class Optikseite;

/// The two editors that the configuration editor opens; they show the image and write into it themselves.
struct Untereditoren {
    std::function<void(QWidget* eltern, int optikteil)> blankingmuster;
    std::function<void(QWidget* eltern)> reihenfolge;
};

/// What the main window has to do with the editor.
struct Editorumfeld {
    bool zeigeUebertrageneWerte = false; ///< labels beside the lists show the values that selections send
    std::function<void(bool startbar)> autosendStartbar{}; ///< hears whether sending can be started
};

/// Edits the configuration in the register image: filled when it begins, written back by the two buttons that
/// apply. With a controller at the line it can only be left by applying and sending, or by cancelling; so it
/// asks once, while the user works already, whether one is there. The port is open from then on until it
/// closes.
class frmKonfigurationEdit : public Eingabedialog {
public:
    explicit frmKonfigurationEdit(QWidget* parent = nullptr);
    ~frmKonfigurationEdit() override;

    /// Opens others in place of its own two; both must be given.
    void SetzeUntereditoren(Untereditoren die) { untereditoren = std::move(die); }
    /// Shows the image; call it once, before the dialog is shown.
    void InitKonfiguration(Editorumfeld das);
    /// True when the user asked to send the configuration to the controller.
    Boolean GetButtonDownLoad() const { return DownloadAngefordert; }

    void done(int ergebnis) override;

protected:
    void showEvent(QShowEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool IstGeaendert() const override;

private:
    void VerbindeKnoepfe();
    void EntferneFehlendeTeile();
    void SeitenFuellen();
    void SeitenZurueckschreiben();
    void Uebernimm(Boolean mitDownload);
    void SucheGeraet();
    void ErlaubeDownload();
    void GibPortFrei();

    std::unique_ptr<Ui::frmKonfigurationEdit> ui;
    std::array<Optikseite*, 4> optikseiten;
    Untereditoren untereditoren;
    Editorumfeld umfeld;
    QVariantMap anfangsstand; ///< what the controls held when they were filled
    Boolean DownloadAngefordert = False;
    bool angestossen = false;
    bool sucht = false;
    bool portBelegt = false;
    std::optional<int> schliesseMit; ///< the result with which it closes once the search has returned
};

} // namespace varnoth
