#pragma once

#include "abbild.h"
#include "blankingvorschlag.h"
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
class Verlauf;

/// What the main window has to do with the editor.
struct Editorumfeld {
    bool zeigeUebertrageneWerte = false; ///< labels beside the lists show the values that selections send
    std::function<void(bool startbar)> autosendStartbar{}; ///< hears whether sending can be started
    std::optional<Blankingvorschlag> blankingvorschlag{};  ///< is shown in its sub-editor at once
};

/// Edits the configuration in the register image: filled when it begins, written back by the two buttons that
/// apply. With a controller at the line it can only be left by applying and sending, or by cancelling; so it
/// asks once, while the user works already, whether one is there. The port is open from then on until it
/// closes.
class frmKonfigurationEdit : public Eingabedialog {
public:
    explicit frmKonfigurationEdit(QWidget* parent = nullptr);
    ~frmKonfigurationEdit() override;

    /// Shows the image; call it once, before the dialog is shown.
    void InitKonfiguration(Editorumfeld neues);
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
    void VerfolgeAenderungen();
    Abbild Geschriebenes();
    QVariantMap Stand() const;
    void StelleHer(const QVariantMap& stand);
    QString Aenderung();
    void Uebernimm(Boolean mitDownload);
    void SucheGeraet();
    void OeffneBlanking(int teil, const std::optional<Werte>& vorschlag = {});
    void ZeigeBlankingvorschlag();
    void ErlaubeDownload();
    void GibPortFrei();

    std::unique_ptr<Ui::frmKonfigurationEdit> ui;
    std::array<Optikseite*, 4> optikseiten;
    Editorumfeld umfeld;
    Verlauf* verlauf;
    Abbild gemerktes;         ///< what the dialog would have written when a change was last noted
    QVariantMap anfangsstand; ///< what the controls held when they were filled
    Boolean DownloadAngefordert = False;
    bool angestossen = false;
    bool sucht = false;
    bool portBelegt = false;
    std::optional<int> schliesseMit; ///< the result with which it closes once the search has returned
};

} // namespace varnoth
