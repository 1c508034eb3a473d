#include "fahrer.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace varnoth::pruefung {

namespace {
constexpr int TaktMs = 5;
}

Fahrer::Fahrer() {
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Blicke(); });
    takt.start(TaktMs);
}

void Fahrer::Sobald(std::function<bool()> bedingung, std::function<void()> aktion) {
    plan.emplace_back(std::move(bedingung), std::move(aktion));
}

void Fahrer::Blicke() {
    const auto faellig = std::ranges::find_if(plan, [](const auto& vorhaben) { return vorhaben.first(); });
    if (faellig != plan.end()) {
        const auto aktion = std::move(faellig->second);
        plan.erase(faellig);
        aktion();
    } else if (auto* meldung = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        Beantworte(*meldung);
    } else if (auto* frage =
                   qobject_cast<QDialog*>(SichtbaresFenster(QStringLiteral("frmKeinKonturAngeschlossen")))) {
        frage->reject();
    } else if (auto* liste = qobject_cast<QDialog*>(SichtbaresFenster(QStringLiteral("frmRegisterliste")))) {
        liste->reject();
    }
}

void Fahrer::Beantworte(QMessageBox& meldung) {
    meldungen.push_back(meldung.text().toStdString());
    QAbstractButton* knopf = meldung.button(QMessageBox::No);
    if (knopf == nullptr)
        knopf = meldung.button(QMessageBox::Ok);
    (knopf != nullptr ? knopf : meldung.buttons().constFirst())->click();
}

void Klicke(QWidget& fenster, const QString& knopf) {
    QMetaObject::invokeMethod(&Kind<QAbstractButton>(fenster, knopf), &QAbstractButton::click,
                              Qt::QueuedConnection);
}

QWidget* SichtbaresFenster(const QString& name) {
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() && fenster->objectName() == name)
            return fenster;
    return nullptr;
}

} // namespace varnoth::pruefung
