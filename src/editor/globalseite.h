#pragma once

#include <QWidget>

#include <memory>

namespace varnoth {

namespace Ui {
class Globalseite;
}

class Vorgabemarken;

/// The page of the whole device: what it is, and what its switching output does.
class Globalseite : public QWidget {
public:
    explicit Globalseite(QWidget* eltern = nullptr);
    ~Globalseite() override;

    /// Shows the registers.
    void Fuelle();
    /// Stores what the options of the switching output say.
    void SchreibeZurueck() const;

private:
    void BaueMarken();
    void ZeigeGeraet();

    std::unique_ptr<Ui::Globalseite> ui;
    Vorgabemarken* marken;
};

} // namespace varnoth
