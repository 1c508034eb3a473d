#pragma once

#include "blankingmuster.h"
#include "eingabedialog.h"

#include <cstdint>
#include <memory>

namespace varnoth {

namespace Ui {
class frmBlankingmuster;
}

class Verlauf;

/// Lets the user choose beam by beam what an optical part blanks. The caller makes it, runs
/// InitFormBlankingmuster and then exec(). The pattern goes into the image only with OK; the window's place
/// is kept in the settings file.
class frmBlankingmuster : public Eingabedialog {
public:
    explicit frmBlankingmuster(QWidget* parent = nullptr);
    ~frmBlankingmuster() override;

    /// Takes over the optical part (0..3) that is edited: its beams, its resolution and its pattern.
    void InitFormBlankingmuster(std::int32_t Index);

    /// Shows another pattern (32 registers) as a change of the user's that was suggested to him.
    void SchlageVor(const Werte& muster);

    void done(int ergebnis) override;

protected:
    void showEvent(QShowEvent* ereignis) override;
    bool IstGeaendert() const override;
    bool eventFilter(QObject* element, QEvent* ereignis) override;

private:
    void Verbinde();
    void Fuelle();
    void Zeige(const Geblankte& geblankte);
    Geblankte Gezeigte() const;
    void ZeigeAnzahl();
    void SetzeBedienart(int art);
    void SchreibeZurueck();
    void SpeicherePlatz() const;
    QVariantMap Stand() const;
    void StelleHer(const QVariantMap& stand);
    QString Aenderung();

    std::unique_ptr<Ui::frmBlankingmuster> ui;
    Verlauf* verlauf;
    Geblankte anfangs;  ///< what was shown at first
    Geblankte gemerkte; ///< what was shown when a change was last noted
    std::int16_t Optikteil = 0;
    bool warSichtbar = false;
};

} // namespace varnoth
