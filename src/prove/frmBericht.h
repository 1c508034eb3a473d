#pragma once

#include "berichtsdruck.h"
#include "konfigurationsbericht.h"
#include "registerabbild.h"

#include <QByteArray>
#include <QDialog>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QLineEdit;
class QPrinter;
class QTimer;

namespace varnoth {

namespace Ui {
class frmBericht;
}

/// What the report's window asks of the one who opens it. Texts are UTF-8.
struct Berichtsumfeld {
    /// What the report is about.
    std::function<const Abbild&()> abbild = modDaten::DasAbbild;
    /// What the report says besides the image, all but plant, machine and person.
    std::function<Berichtsangaben()> angaben{};
    std::string name = "Varnoth"; ///< proposed for files, without ending
    /// Asks where a document is to go and writes it there, all questions and messages included. `filter` is
    /// that of a file dialog.
    std::function<void(const std::string& filter, const std::string& name, const std::string& bytes)>
        speichere{};
    /// Replaces the configuration in use by one from a text file, all questions and messages included.
    /// Without it there is no button for it.
    std::function<void()> importiereText{};
    /// Makes a PDF file of the report's pages; empty when that fails.
    std::function<QByteArray(const Berichtsdruck& druck, const QString& titel)> machePdf = AlsPdf;
    /// The names of the printers that there are.
    std::function<QStringList()> drucker{};
    /// Lets the user choose and set up a printer in a dialog above a window; false when he did not.
    std::function<bool(QPrinter& drucker, QWidget& ueber)> waehleDrucker{};
    std::optional<Strahlbericht> strahlen{}; ///< a section that the user may add; nothing: he is not asked
    bool mitStrahlen = false;                ///< whether it is there at first
};

/// Shows the report about the configuration in use as it goes to paper, prints and saves it. Plant, machine
/// and person are remembered in the settings.
class frmBericht : public QDialog {
public:
    explicit frmBericht(Berichtsumfeld neues, QWidget* parent = nullptr);
    ~frmBericht() override;

    void done(int ergebnis) override;

    /// The document as it would be saved now.
    std::string Html() const;

protected:
    void showEvent(QShowEvent* ereignis) override;

private:
    /// The fields and the keys of what is remembered of them.
    std::vector<std::pair<QLineEdit*, const char*>> Eingaben() const;
    void Verbinde();
    Berichtsangaben Angaben() const;
    Berichtsdruck Druck() const;
    void Zeige();
    void NenneSeiten();
    void DruckeAufPapier();
    void SpeicherePdf();
    void ImportiereText();

    Berichtsumfeld umfeld;
    std::unique_ptr<Ui::frmBericht> ui;
    QTimer* verzug;
};

} // namespace varnoth
