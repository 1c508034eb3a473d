#include "verlauf.h"

#include "texte.h"
#include "textmitwerten.h"
#include "zeilenhoehe.h"

#include <QBoxLayout>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QUndoView>
#include <QWidgetAction>

namespace varnoth {

namespace {

constexpr std::int16_t TextAnzahl = 9860;
constexpr std::int16_t TextAnfang = 9861;
constexpr std::int16_t TextTipp = 9862;

constexpr QSize Listengroesse(460, 220);

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

/// The list of steps, which opens below the button.
QMenu* Liste(QPushButton& knopf, QUndoStack& stapel) {
    auto* const ansicht = new QUndoView(&stapel);
    ansicht->setObjectName("lstVerlauf");
    ansicht->setEmptyLabel(Text(TextAnfang));
    ansicht->setMinimumSize(Listengroesse);
    GibZeilenLuft(*ansicht);
    auto* const menue = new QMenu(&knopf);
    auto* const eintrag = new QWidgetAction(menue);
    eintrag->setDefaultWidget(ansicht);
    menue->addAction(eintrag);
    return menue;
}

/// Whether the key undoes or does again something that is not the field's own.
bool GehtAmFeldVorbei(const QLineEdit& feld, const QKeyEvent& taste) {
    return (taste.matches(QKeySequence::Undo) && !feld.isUndoAvailable()) ||
           (taste.matches(QKeySequence::Redo) && !feld.isRedoAvailable());
}

} // namespace

/// From one state to the next. What is made a step of has happened already.
class Verlauf::Schritt : public QUndoCommand {
public:
    Schritt(Verlauf& ganzer, const QString& worte, QVariantMap von, QVariantMap nach)
        : QUndoCommand(worte), verlauf(ganzer), vorher(std::move(von)), nachher(std::move(nach)) {}

    void undo() override { verlauf.Stelle(vorher); }
    void redo() override {
        if (geschehen)
            verlauf.Stelle(nachher);
        geschehen = true;
    }

private:
    Verlauf& verlauf;
    QVariantMap vorher;
    QVariantMap nachher;
    bool geschehen = false;
};

Verlauf::Verlauf(QDialog& zu, QBoxLayout& knopfreihe, Verlaufszugang neuer)
    : QObject(&zu), dialog(zu), zugang(std::move(neuer)), knopf(new QPushButton(&zu)) {
    knopf->setObjectName("cmdVerlauf");
    knopf->setAutoDefault(false);
    knopf->setToolTip(Text(TextTipp));
    knopf->setMenu(Liste(*knopf, stapel));
    knopf->setFocusPolicy(Qt::NoFocus);
    knopf->hide();
    knopfreihe.insertWidget(0, knopf);
    connect(&stapel, &QUndoStack::indexChanged, this, &Verlauf::ZeigeKnopf);
    connect(new QShortcut(QKeySequence::Undo, &dialog), &QShortcut::activated, this,
            [this] { Gehe(&QUndoStack::undo); });
    for (const QKeySequence& tasten :
         {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)})
        connect(new QShortcut(tasten, &dialog), &QShortcut::activated, this,
                [this] { Gehe(&QUndoStack::redo); });
    for (QLineEdit* const feld : dialog.findChildren<QLineEdit*>())
        feld->installEventFilter(this);
}

void Verlauf::Beginne() {
    stapel.clear();
    letzter = zugang.stand();
    laeuft = true;
}

void Verlauf::Merke() {
    if (!laeuft)
        return;
    QVariantMap jetzt = zugang.stand();
    if (jetzt == letzter)
        return;
    stapel.push(new Schritt(*this, zugang.worte(), letzter, jetzt));
    letzter = std::move(jetzt);
}

void Verlauf::MerkeDanach() {
    QMetaObject::invokeMethod(this, &Verlauf::Merke, Qt::QueuedConnection);
}

void Verlauf::Gehe(void (QUndoStack::*weiter)()) {
    Merke();
    (stapel.*weiter)();
}

void Verlauf::Stelle(const QVariantMap& stand) {
    laeuft = false;
    zugang.zeige(stand);
    letzter = zugang.stand();
    laeuft = true;
}

void Verlauf::ZeigeKnopf() {
    knopf->setText(QString::fromStdString(LadeTextMit(TextAnzahl, {std::to_string(stapel.index())})));
    knopf->setFocusPolicy(stapel.count() > 0 ? Qt::TabFocus : Qt::NoFocus);
    knopf->setVisible(stapel.count() > 0);
}

bool Verlauf::eventFilter(QObject* element, QEvent* ereignis) {
    if (ereignis->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(element, ereignis);
    const auto* const feld = qobject_cast<QLineEdit*>(element);
    if (feld == nullptr || !GehtAmFeldVorbei(*feld, *static_cast<QKeyEvent*>(ereignis)))
        return false;
    ereignis->ignore();
    return true;
}

} // namespace varnoth
