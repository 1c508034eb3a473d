#include "dateidialog.h"

#include "fenstervorn.h"
#include "knopfsymbole.h"
#include "startzustand.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace varnoth {

namespace {

Dateiantwort dieAntwort;
const Startwert startwert(dieAntwort);

/// "*.*" stands for all files; Qt would leave out those without a dot.
QString QtMuster(const QString& muster) {
    return muster == QLatin1String("*.*") ? QStringLiteral("*") : muster;
}

QString QtFilter(const QString& name, const QString& muster) {
    const QString zusatz = QLatin1Char('(') + QtMuster(muster) + QLatin1Char(')');
    return name.endsWith(zusatz) ? name : name + QLatin1Char(' ') + zusatz;
}

QString Startordner(const Dateifrage& frage) {
    const QFileInfo vorgabe(QString::fromStdString(frage.name));
    if (vorgabe.isAbsolute() && vorgabe.dir().exists())
        return vorgabe.absolutePath();
    return frage.ordner.empty() ? QCoreApplication::applicationDirPath()
                                : QString::fromStdString(frage.ordner);
}

void RichteEin(QFileDialog& dialog, const Dateifrage& frage) {
    const bool speichern = frage.art == Dateiwahl::Speichern;
    dialog.setObjectName(QStringLiteral("Dateidialog"));
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(frage.art == Dateiwahl::Ordner ? QFileDialog::Directory
                       : speichern                    ? QFileDialog::AnyFile
                                                      : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ShowDirsOnly, frage.art == Dateiwahl::Ordner);
    dialog.setWindowTitle(QString::fromStdString(frage.titel));
    dialog.setDirectory(Startordner(frage));
}

void SetzeFilter(QFileDialog& dialog, const QStringList& filter) {
    const auto nimmEndung = [&dialog](const QString& gewaehlt) {
        dialog.setDefaultSuffix(EndungAus(gewaehlt));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, nimmEndung);
    dialog.setNameFilters(filter);
    nimmEndung(filter.value(0));
}

} // namespace

QStringList FilterFuerQt(const std::string& filter) {
    const QStringList teile = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList ergebnis;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2)
        ergebnis += QtFilter(teile[i].trimmed(), teile[i + 1].trimmed());
    return ergebnis;
}

QString EndungAus(const QString& qtFilter) {
    QString muster = qtFilter.section(QLatin1Char('('), -1);
    muster.chop(1);
    return QFileInfo(muster).suffix();
}

std::optional<std::string> FrageNachDatei(const Dateifrage& frage) {
    if (dieAntwort)
        return dieAntwort(frage);
    QFileDialog dialog(FensterVorn());
    RichteEin(dialog, frage);
    if (const auto* const knoepfe = dialog.findChild<QDialogButtonBox*>())
        GibKnoepfenSymbole(*knoepfe);
    if (frage.art != Dateiwahl::Ordner)
        SetzeFilter(dialog, FilterFuerQt(frage.filter));
    if (!frage.name.empty())
        dialog.selectFile(QString::fromStdString(frage.name));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0)).toStdString();
}

void SetzeDateiantwort(Dateiantwort antwort) {
    dieAntwort = std::move(antwort);
}

} // namespace varnoth
