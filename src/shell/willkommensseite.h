#pragma once

#include "menuebefehle.h"

#include <QScrollArea>

#include <functional>
#include <string>
#include <vector>

class QGridLayout;
class QLabel;
class QMdiArea;
class QPushButton;
class QWidget;

namespace varnoth {

/// What the empty area of the main window shows: what can be done now, and the files used last. Its buttons
/// do what the menu items of the same commands do. It covers the area as long as it is shown.
class Willkommensseite : public QScrollArea {
    Q_OBJECT

public:
    using Klick = std::function<void(Befehl befehl, int index)>;

    /// Makes the page in the area, with its texts in the current language.
    Willkommensseite(QMdiArea& bereich, const Klick& klick);

    /// Shows or hides the page; a page that appears shows these files (UTF-8 paths), the newest first.
    void Zeige(bool sichtbar, const std::vector<std::string>& dateien);

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void BaueKnoepfe(QGridLayout& raster, const Klick& klick);
    void BaueDateien(QGridLayout& raster, const Klick& klick);
    void ZeigeDateien(const std::vector<std::string>& dateien);
    void FolgeFlaeche();

    struct Dateizeile {
        QPushButton* knopf;
        QLabel* ordner;
    };

    QMdiArea& bereich;
    QWidget* dateikopf = nullptr;
    std::vector<Dateizeile> dateizeilen;
};

} // namespace varnoth
