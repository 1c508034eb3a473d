#include "lokalisiereform.h"

#include "knopfsymbole.h"
#include "texte.h"
#include "zahlen.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>

namespace varnoth {

namespace {

constexpr char TagName[] = "Tag";
constexpr char ToolTipTagName[] = "ToolTipTag";
constexpr int HeaderTagRolle = Qt::UserRole;
/// A form's own Tag up to this number is the index of a view, not a string id.
constexpr double GroessterFormIndex = 10;

double Zahl(const QVariant& tag) {
    return Val(tag.toString().toStdString());
}

/// The text of the id that a tag holds; empty where it holds none or the table does not have it.
QString TextZu(const QVariant& tag) {
    const double id = Zahl(tag);
    if (id < 1 || id > std::numeric_limits<std::int16_t>::max())
        return {};
    return QString::fromStdString(LadeText(static_cast<std::int16_t>(std::lrint(id))));
}

QString TextZuTag(const QObject& element) {
    return TextZu(element.property(TagName));
}

/// Writes a text that is there and differs from the one shown.
template<class Element, class Hole, class Setze>
void SchreibeText(Element& element, Hole hole, Setze setze, const QString& text) {
    if (!text.isEmpty() && std::invoke(hole, element) != text)
        std::invoke(setze, element, text);
}

/// The text for a tool tip that is designed as an id. The id is kept beside it, in a property of the element,
/// for the passes after the first.
QString ToolTipText(QObject& element, const QByteArray& merker, const QString& toolTip) {
    QString text = TextZu(toolTip);
    if (text.isEmpty())
        return TextZu(element.property(merker));
    element.setProperty(merker, toolTip);
    return text;
}

template<class Element>
void LokalisiereToolTip(Element& element) {
    SchreibeText(element, &Element::toolTip, &Element::setToolTip,
                 ToolTipText(element, ToolTipTagName, element.toolTip()));
}

/// A label without a buddy has no mnemonic and would show every "&" of the text: "&&" means one, a single
/// none.
QString OhneMnemonik(const QString& text) {
    QString ergebnis;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && ++i == text.size())
            break;
        ergebnis += text[i];
    }
    return ergebnis;
}

void LokalisiereLabel(QLabel& label) {
    if (label.textFormat() == Qt::AutoText)
        label.setTextFormat(Qt::PlainText);
    const QString text = TextZuTag(label);
    SchreibeText(label, &QLabel::text, &QLabel::setText, label.buddy() ? text : OhneMnemonik(text));
}

/// One tab of a QTabWidget or QTabBar; the id of its tool tip is kept with the element given.
template<class Leiste>
void LokalisiereReiter(Leiste& leiste, int i, const QVariant& tag, QObject& traeger,
                       const QByteArray& merker) {
    if (const QString text = TextZu(tag); !text.isEmpty() && leiste.tabText(i) != text)
        leiste.setTabText(i, text);
    const QString toolTip = ToolTipText(traeger, merker, leiste.tabToolTip(i));
    if (!toolTip.isEmpty() && leiste.tabToolTip(i) != toolTip)
        leiste.setTabToolTip(i, toolTip);
}

void LokalisiereSeiten(QTabWidget& seiten) {
    for (int i = 0; i < seiten.count(); ++i) {
        QWidget& seite = *seiten.widget(i);
        LokalisiereReiter(seiten, i, seite.property(TagName), seite, "ReiterToolTipTag");
    }
}

/// The tool tips' ids are kept under the tab's own id, since tabs come and go.
void LokalisiereReiterleiste(QTabBar& leiste) {
    for (int i = 0; i < leiste.count(); ++i) {
        const QVariant tag = leiste.tabData(i);
        LokalisiereReiter(leiste, i, tag, leiste, ToolTipTagName + ('_' + tag.toByteArray()));
    }
}

void LokalisiereSpalte(QAbstractItemModel& modell, int spalte) {
    const QVariant gezeigt = modell.headerData(spalte, Qt::Horizontal);
    QVariant tag = modell.headerData(spalte, Qt::Horizontal, HeaderTagRolle);
    if (!tag.isValid() && !TextZu(gezeigt).isEmpty()) {
        tag = gezeigt;
        modell.setHeaderData(spalte, Qt::Horizontal, tag, HeaderTagRolle);
    }
    if (const QString text = TextZu(tag); !text.isEmpty() && gezeigt.toString() != text)
        modell.setHeaderData(spalte, Qt::Horizontal, text);
}

void LokalisiereSpalten(QHeaderView& kopf) {
    if (kopf.orientation() != Qt::Horizontal || !kopf.model())
        return;
    for (int spalte = 0; spalte < kopf.count(); ++spalte)
        LokalisiereSpalte(*kopf.model(), spalte);
}

/// A tool button that stands for an action takes its texts from that.
void LokalisiereKnopf(QAbstractButton& knopf) {
    const auto* const werkzeug = qobject_cast<QToolButton*>(&knopf);
    if (werkzeug && werkzeug->defaultAction())
        return;
    SchreibeText(knopf, &QAbstractButton::text, &QAbstractButton::setText, TextZuTag(knopf));
    LokalisiereToolTip<QWidget>(knopf);
}

void LokalisiereRahmen(QGroupBox& rahmen) {
    SchreibeText(rahmen, &QGroupBox::title, &QGroupBox::setTitle, TextZuTag(rahmen));
    LokalisiereToolTip<QWidget>(rahmen);
}

void LokalisiereDock(QDockWidget& dock) {
    SchreibeText(dock, &QWidget::windowTitle, &QWidget::setWindowTitle, TextZuTag(dock));
    LokalisiereToolTip<QWidget>(dock);
}

void LasseAus(QScrollBar& /*balken*/) {}

bool LasseLinieAus(QWidget& element) {
    const auto* const rahmen = qobject_cast<QFrame*>(&element);
    return rahmen && (rahmen->frameShape() == QFrame::HLine || rahmen->frameShape() == QFrame::VLine);
}

/// Whether the element is of that kind; it is then localised.
template<class Art, void (*Lokalisiere)(Art&)>
bool Behandle(QWidget& element) {
    auto* const passend = qobject_cast<Art*>(&element);
    if (passend)
        Lokalisiere(*passend);
    return passend;
}

/// The kinds of controls; the first that fits is taken.
constexpr bool (*Arten[])(QWidget&) = {
    LasseLinieAus,
    Behandle<QScrollBar, LasseAus>,
    Behandle<QLabel, LokalisiereLabel>,
    Behandle<QTabWidget, LokalisiereSeiten>,
    Behandle<QTabBar, LokalisiereReiterleiste>,
    Behandle<QHeaderView, LokalisiereSpalten>,
    Behandle<QAbstractButton, LokalisiereKnopf>,
    Behandle<QGroupBox, LokalisiereRahmen>,
    Behandle<QDockWidget, LokalisiereDock>,
    Behandle<QWidget, LokalisiereToolTip<QWidget>>,
};

void LokalisiereElement(QWidget& element) {
    for (const auto behandle : Arten)
        if (behandle(element))
            return;
}

void LokalisiereAktion(QAction& aktion) {
    if (aktion.isSeparator())
        return;
    if (aktion.property(TagName).toString().isEmpty())
        aktion.setProperty(TagName, aktion.text());
    SchreibeText(aktion, &QAction::text, &QAction::setText, TextZuTag(aktion));
    LokalisiereToolTip(aktion);
}

void LokalisiereAktionen(const QWidget& element) {
    for (QAction* const aktion : element.actions()) {
        LokalisiereAktion(*aktion);
        if (aktion->menu())
            LokalisiereAktionen(*aktion->menu());
    }
}

/// Child windows and dialogs; menus, tool bars and docks belong to their form even where they float.
bool IstEigeneForm(const QWidget& element) {
    const auto art = element.windowType();
    return art == Qt::Window || art == Qt::Dialog || art == Qt::SubWindow;
}

void LokalisiereElemente(const QWidget& eltern) {
    LokalisiereAktionen(eltern);
    for (QObject* const kind : eltern.children()) {
        auto* const element = qobject_cast<QWidget*>(kind);
        if (!element || IstEigeneForm(*element))
            continue;
        LokalisiereElement(*element);
        LokalisiereElemente(*element);
    }
}

} // namespace

void LokalisiereForm(QWidget& form) {
    if (Zahl(form.property(TagName)) > GroessterFormIndex)
        SchreibeText(form, &QWidget::windowTitle, &QWidget::setWindowTitle, TextZuTag(form));
    LokalisiereElemente(form);
    GibKnoepfenSymbole(form);
}

} // namespace varnoth
