#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <string>

class QMessageBox;
class QWidget;

namespace varnoth {

class Hilfedatei;
class frmHilfe;

/// The program's help: one window, opened on the file that the language asks for.
class Hilfe {
public:
    /// @param die gives the path of the help file whenever help is asked for
    explicit Hilfe(std::function<QString()> pfadquelle);
    ~Hilfe();

    /// Shows the contents and the first page. When the file cannot be read, a warning box names it and waits.
    /// @param davor the window in front; while a modal one is open, help is usable beside it
    void ZeigeThemen(QWidget* davor);
    /// Shows the page of the window that the control stands in, at the control's paragraph where there is
    /// one. When the file cannot be read, a warning box names it; the call does not wait for it.
    /// @param stelle the control that help is asked for, or a window; nullptr: the first page
    void ZeigeSeiteZu(QWidget* stelle);

private:
    bool Oeffne();
    std::string Fehlertext() const;
    void ZeigeVor(const QWidget* davor);
    void MeldeOhneZuWarten();

    std::function<QString()> dateipfad;
    QString offenerPfad;
    std::unique_ptr<Hilfedatei> datei;
    std::unique_ptr<frmHilfe> fenster;
    std::unique_ptr<QMessageBox> warnung;
};

} // namespace varnoth
