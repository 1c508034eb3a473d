#include "hilfedatei.h"

#include <QFile>
#include <QFileInfo>
#include <QResource>
#include <QTextDocumentFragment>

#include <utility>

namespace varnoth {

namespace {

constexpr const char* Inhaltsdatei = "inhalt.tsv";
constexpr const char* Stildatei = "stil.css";

/// Every open file has a root of its own, so that two of them never mix.
QString NeueWurzel() {
    static int zaehler = 0;
    return QStringLiteral("/hilfe%1").arg(++zaehler);
}

QString TextOhneTitel(const QString& html, const QString& titel) {
    const QString text = QTextDocumentFragment::fromHtml(html).toPlainText();
    return text.startsWith(titel) ? text.mid(titel.size()) : text;
}

} // namespace

std::unique_ptr<Hilfedatei> Hilfedatei::Oeffne(const QString& pfad) {
    const QString wurzel = NeueWurzel();
    if (QFileInfo(pfad).size() == 0 || !QResource::registerResource(pfad, wurzel))
        return nullptr;
    std::unique_ptr<Hilfedatei> datei(new Hilfedatei(pfad, wurzel));
    return datei->Inhalt().isEmpty() ? nullptr : std::move(datei);
}

Hilfedatei::Hilfedatei(QString dateipfad, QString dateiwurzel)
    : pfad(std::move(dateipfad)), wurzel(std::move(dateiwurzel)),
      inhalt(LiesInhalt(Lies(QLatin1String(Inhaltsdatei)).toUtf8())) {}

Hilfedatei::~Hilfedatei() {
    QResource::unregisterResource(pfad, wurzel);
}

QString Hilfedatei::Lies(const QString& name) const {
    QFile datei(u':' + wurzel + u'/' + name);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

QUrl Hilfedatei::Adresse(const QString& seite, const QString& anker) const {
    QUrl adresse(QStringLiteral("qrc:%1/%2.html").arg(wurzel, seite));
    if (!anker.isEmpty())
        adresse.setFragment(anker);
    return adresse;
}

QString Hilfedatei::Html(const QString& seite) const {
    return Lies(seite + QStringLiteral(".html"));
}

bool Hilfedatei::HatAnker(const QString& seite, const QString& anker) const {
    return Html(seite).contains(QStringLiteral("<a name=\"%1\"").arg(anker));
}

QString Hilfedatei::Stil() const {
    return Lies(QLatin1String(Stildatei));
}

QImage Hilfedatei::Bild(const QString& name) const {
    return QImage(QStringLiteral(":%1/bilder/%2").arg(wurzel, name));
}

const QList<Seitentext>& Hilfedatei::Seitentexte() const {
    if (seitentexte.isEmpty())
        for (const Hilfeseite& seite : inhalt)
            seitentexte.append({seite.name, seite.titel, TextOhneTitel(Html(seite.name), seite.titel)});
    return seitentexte;
}

} // namespace varnoth
