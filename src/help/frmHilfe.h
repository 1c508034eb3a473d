#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class QListWidgetItem;
class QTreeWidgetItem;
class QWindow;

namespace varnoth {

namespace Ui {
class frmHilfe;
}

class Hilfedatei;

/// The help window: contents and finds on the left, the page on the right. It remembers nothing.
class frmHilfe : public QWidget {
    Q_OBJECT

public:
    frmHilfe();
    ~frmHilfe() override;

    /// Shows another help file from its first page, with the window's own texts in the current language. The
    /// file must live until the next one is shown or the window goes.
    void NimmDatei(const Hilfedatei& neue);
    /// Shows a page, at a place of it or from its top.
    void ZeigeSeite(const QString& seite, const QString& anker = {});
    /// Name of the page that is shown.
    QString Seite() const;
    /// Comes to the front. A modal window blocks all windows but those that belong to it: help then belongs
    /// to the one given, as long as that lives.
    void ZeigeVor(const QWidget* davor);

private:
    void VerbindeTasten();
    void FuelleInhalt();
    void MarkiereImInhalt(const QString& seite);
    void SucheSeiten(const QString& eingabe);
    void ZeigeFund(const QListWidgetItem* fund);
    void GehoereZu(QWindow* besitzer);
    void HebeHervor(const QStringList& worte);

    std::unique_ptr<Ui::frmHilfe> ui;
    const Hilfedatei* datei = nullptr;
};

} // namespace varnoth
