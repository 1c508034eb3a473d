#include "frmHilfe.h"

#include "fensterplatz.h"
#include "funddarstellung.h"
#include "hilfedatei.h"
#include "lokalisiereform.h"
#include "ui_frmHilfe.h"

#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QWindow>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextInhalt = 1711;
constexpr int SeitennameRolle = Qt::UserRole;
constexpr QSize Anfangsgroesse(1240, 780);
constexpr int Inhaltsbreite = 280;
constexpr int Seitenrand = 14;

QTreeWidgetItem* NeuerEintrag(const Hilfeseite& seite) {
    auto* const eintrag = new QTreeWidgetItem({seite.titel});
    eintrag->setData(0, SeitennameRolle, seite.name);
    return eintrag;
}

QString Seitenname(const QUrl& adresse) {
    return adresse.fileName().section(u'.', 0, 0);
}

/// Every place of the words in the page, in the colours of a selection.
QList<QTextEdit::ExtraSelection> Stellen(const QTextDocument& dokument, const QString& wort,
                                         const QTextCharFormat& format) {
    QList<QTextEdit::ExtraSelection> stellen;
    QTextCursor stelle = dokument.find(wort);
    while (!stelle.isNull()) {
        stellen.append({stelle, format});
        stelle = dokument.find(wort, stelle);
    }
    return stellen;
}

} // namespace

frmHilfe::frmHilfe() : ui(std::make_unique<Ui::frmHilfe>()) {
    ui->setupUi(this);
    ui->trvInhalt->setHeaderLabel(QString::number(TextInhalt));
    resize(Anfangsgroesse.boundedTo(screen()->availableSize()));
    ui->Teiler->setSizes({Inhaltsbreite, width() - Inhaltsbreite});
    ui->lstFunde->setItemDelegate(new Funddarstellung(this));
    ui->lstFunde->hide();
    ui->brwSeite->document()->setDocumentMargin(Seitenrand);
    connect(ui->cmdZurück, &QPushButton::clicked, ui->brwSeite, &QTextBrowser::backward);
    connect(ui->cmdVor, &QPushButton::clicked, ui->brwSeite, &QTextBrowser::forward);
    connect(ui->brwSeite, &QTextBrowser::backwardAvailable, ui->cmdZurück, &QWidget::setEnabled);
    connect(ui->brwSeite, &QTextBrowser::forwardAvailable, ui->cmdVor, &QWidget::setEnabled);
    connect(ui->brwSeite, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& adresse) { MarkiereImInhalt(Seitenname(adresse)); });
    connect(ui->trvInhalt, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* eintrag) {
        ZeigeSeite(eintrag->data(0, SeitennameRolle).toString());
    });
    connect(ui->txtSuchen, &QLineEdit::textChanged, this, [this](const QString& text) { SucheSeiten(text); });
    connect(ui->txtSuchen, &QLineEdit::returnPressed, this, [this] { ui->lstFunde->setCurrentRow(0); });
    connect(ui->lstFunde, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* fund) { ZeigeFund(fund); });
    VerbindeTasten();
}

frmHilfe::~frmHilfe() = default;

void frmHilfe::VerbindeTasten() {
    const std::pair<QKeySequence, std::function<void()>> tasten[] = {
        {Qt::ALT | Qt::Key_Left, [this] { ui->brwSeite->backward(); }},
        {Qt::ALT | Qt::Key_Right, [this] { ui->brwSeite->forward(); }},
        {QKeySequence::Find, [this] { ui->txtSuchen->setFocus(), ui->txtSuchen->selectAll(); }},
        {Qt::Key_Escape, [this] { close(); }},
    };
    for (const auto& [taste, tat] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, tat);
}

void frmHilfe::NimmDatei(const Hilfedatei& neue) {
    datei = &neue;
    LokalisiereForm(*this);
    ui->txtSuchen->clear();
    ui->brwSeite->document()->setDefaultStyleSheet(neue.Stil());
    FuelleInhalt();
    ZeigeSeite(neue.Inhalt().constFirst().name);
    ui->brwSeite->clearHistory();
    ui->brwSeite->setFocus();
}

void frmHilfe::FuelleInhalt() {
    const QSignalBlocker stumm(ui->trvInhalt);
    ui->trvInhalt->clear();
    for (const Hilfeseite& seite : datei->Inhalt()) {
        const int kapitel = ui->trvInhalt->topLevelItemCount();
        if (seite.ebene == 0 || kapitel == 0)
            ui->trvInhalt->addTopLevelItem(NeuerEintrag(seite));
        else
            ui->trvInhalt->topLevelItem(kapitel - 1)->addChild(NeuerEintrag(seite));
    }
    ui->trvInhalt->expandAll();
}

void frmHilfe::ZeigeSeite(const QString& seite, const QString& anker) {
    ui->brwSeite->setSource(datei->Adresse(seite, anker));
}

QString frmHilfe::Seite() const {
    return Seitenname(ui->brwSeite->source());
}

void frmHilfe::MarkiereImInhalt(const QString& seite) {
    ui->brwSeite->setExtraSelections({});
    const QSignalBlocker stumm(ui->trvInhalt);
    for (QTreeWidgetItemIterator i(ui->trvInhalt); *i != nullptr; ++i)
        if ((*i)->data(0, SeitennameRolle) == seite)
            ui->trvInhalt->setCurrentItem(*i);
}

void frmHilfe::SucheSeiten(const QString& eingabe) {
    const QStringList worte = Suchworte(eingabe);
    ui->lstFunde->setVisible(!worte.isEmpty());
    ui->trvInhalt->setVisible(worte.isEmpty());
    const QSignalBlocker stumm(ui->lstFunde);
    ui->lstFunde->clear();
    for (const Fundstelle& fund : Suche(datei->Seitentexte(), worte)) {
        auto* const eintrag = new QListWidgetItem(fund.titel, ui->lstFunde);
        eintrag->setData(Funddarstellung::AuszugRolle, fund.auszug);
        eintrag->setData(SeitennameRolle, fund.seite);
    }
}

void frmHilfe::ZeigeFund(const QListWidgetItem* fund) {
    if (fund == nullptr)
        return;
    ZeigeSeite(fund->data(SeitennameRolle).toString());
    HebeHervor(Suchworte(ui->txtSuchen->text()));
}

void frmHilfe::HebeHervor(const QStringList& worte) {
    QTextCharFormat format;
    format.setBackground(palette().highlight());
    format.setForeground(palette().highlightedText());
    QList<QTextEdit::ExtraSelection> stellen;
    for (const QString& wort : worte)
        stellen += Stellen(*ui->brwSeite->document(), wort, format);
    ui->brwSeite->setExtraSelections(stellen);
    const auto erste = std::ranges::min_element(
        stellen, {}, [](const QTextEdit::ExtraSelection& stelle) { return stelle.cursor.position(); });
    if (erste == stellen.end())
        return;
    QTextCursor anfang = erste->cursor;
    anfang.clearSelection();
    ui->brwSeite->setTextCursor(anfang);
}

void frmHilfe::ZeigeVor(const QWidget* davor) {
    if (davor != this)
        GehoereZu(davor != nullptr && davor->isModal() ? davor->windowHandle() : nullptr);
    HoleNachVorn(*this);
}

/// Window managers learn whom a window belongs to when it is shown.
void frmHilfe::GehoereZu(QWindow* besitzer) {
    winId(); // makes the window handle
    if (windowHandle()->transientParent() == besitzer)
        return;
    hide();
    windowHandle()->setTransientParent(besitzer);
}

} // namespace varnoth
