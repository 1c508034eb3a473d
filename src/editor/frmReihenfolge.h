#pragma once

#include "datenblock.h"
#include "eingabedialog.h"

#include <QString>
#include <QVariantMap>

#include <array>
#include <memory>

class QButtonGroup;
class QListWidgetItem;

namespace varnoth {

namespace Ui {
class frmReihenfolge;
}

class Verlauf;

/// Edits which values the controller sends in a data block, and in which order. It takes the list from the
/// image when it is made; the list goes back into the image only with OK.
class frmReihenfolge : public Eingabedialog {
public:
    explicit frmReihenfolge(QWidget* parent = nullptr);
    ~frmReihenfolge() override;

protected:
    bool IstGeaendert() const override;

private:
    /// The option groups in the order Option1, Option2, Option3.
    std::array<QButtonGroup*, 3> Gruppen() const;
    void Nummeriere();
    void Verbinde();
    void VerbindeListe();
    void Lade();
    void ZeigeListe(int gewaehlt);
    Eintragswahl Wahl() const;
    void Waehle(Eintragswahl wahl);
    void SperreUnpassende(const Eintragswahl& wahl);
    void FuegeEinBei(int stelle);
    void LoescheGewaehlten();
    void UebernimmWahl(std::int16_t eintrag);
    void SchreibeZurueck();
    void Merke(std::int16_t text, std::int16_t eintrag, int platz);
    QVariantMap Stand() const;
    void StelleHer(const QVariantMap& stand);

    std::unique_ptr<Ui::frmReihenfolge> ui;
    Verlauf* verlauf;
    QString aenderung; ///< what was done last, in words
    Eintragsliste liste{};
    Eintragsliste geladene{}; ///< the list as it came from the image
};

} // namespace varnoth
