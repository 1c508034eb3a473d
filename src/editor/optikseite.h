#pragma once

#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;

namespace varnoth {

namespace Ui {
class Optikseite;
}

struct Auswahlliste;
class Vorgabemarken;

/// The page of an optical part: its evaluation and filter settings.
class Optikseite : public QWidget {
    Q_OBJECT

public:
    explicit Optikseite(QWidget* eltern = nullptr);
    ~Optikseite() override;

    /// Makes it the page of optical part 0..3: the names of its controls end in the number. Comes first, and
    /// once.
    void SetzeOptikteil(int teil);
    /// Lets the labels beside the lists show the values that the selections send.
    void ZeigeUebertrageneWerte();

    /// Shows the registers of the part.
    void Fuelle();
    /// Stores what the controls show.
    void SchreibeZurueck() const;
    /// Looks again at which settings differ from the factory default.
    void AktualisiereMarken();

signals:
    /// The user wants to edit the blanking pattern of this part.
    void BlankingmusterVerlangt(int teil);

private:
    void BaueMarken();
    std::int32_t Wert(const QComboBox& box, const Auswahlliste& liste) const;

    std::unique_ptr<Ui::Optikseite> ui;
    Vorgabemarken* marken;
    std::vector<QComboBox*> boxen; ///< in the order of the lists of an optical part
    int optikteil = 0;
};

} // namespace varnoth
