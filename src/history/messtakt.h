#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>

class QWidget;

namespace varnoth {

class Messanbieter;

/// Looks ten times a second whether there is more of the past to draw, as long as a window is shown. What it
/// tells of is done while the line is busy anyway, so that live data does not wait for it.
class Messtakt : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this object.
    Messtakt(Messanbieter& anbieter, QWidget& fenster);

    /// Looks now.
    void Sieh();

signals:
    /// Another source is looked at than before.
    void Ersetzt();
    /// The source holds more, or less, than before, or a replay stands elsewhere.
    void Gewachsen();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    struct Gesehenes {
        int quelle = 0;
        std::uint64_t erstes = 0;
        std::uint64_t ende = 0;
        std::int64_t bis = 0;
        std::int64_t jetzt = 0;

        bool operator==(const Gesehenes&) const = default;
    };

    Gesehenes Lage() const;

    Messanbieter& anbieter;
    QTimer uhrwerk;
    Gesehenes gesehen;
    bool geplant = false;
};

} // namespace varnoth
