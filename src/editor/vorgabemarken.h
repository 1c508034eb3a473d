#pragma once

#include "vorgabe.h"

#include <QObject>

#include <vector>

namespace varnoth {

class Abweichungsmarke;

/// Marks the controls of a page whose setting differs from the factory default: a small corner, the default
/// in the tool tip and for a screen reader. The context menu of a control leads back to the default. What is
/// disabled is not marked.
class Vorgabemarken : public QObject {
    Q_OBJECT

public:
    explicit Vorgabemarken(QObject* eltern);

    /// Adds a setting. The controls must outlive this object or go together with it.
    void Fuege(Vorgabe vorgabe);
    /// Looks at all settings; needed after what no control tells of.
    void Aktualisiere();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

signals:
    /// The user has gone back to the default of a setting.
    void Zurueckgestellt();

private:
    struct Marke {
        QWidget* element;
        Abweichungsmarke* zeichen;
        std::size_t vorgabe;
    };

    void Beobachte(QWidget& element);
    bool IstMarkiert(const Marke& marke) const;
    QString Tipp(const Marke& marke) const;
    void ZeigeTipp(const Marke& marke, QPoint wo) const;
    void ZeigeMenue(const Marke& marke, QPoint wo);

    std::vector<Vorgabe> vorgaben;
    std::vector<Marke> marken;
};

} // namespace varnoth
