#include "hilfeseiten.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

#include <functional>

namespace varnoth::pruefung {

namespace {

const QString Quellen = QStringLiteral(VARNOTH_QUELLEN);

QByteArray Lies(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

using Elementbesuch = std::function<void(const QString& element, const QXmlStreamAttributes& attribute)>;

/// Walks through all elements of an XML text; gives what is wrong with it.
QString Besuche(const QByteArray& xml, const Elementbesuch& besuch) {
    QXmlStreamReader leser(xml);
    while (!leser.atEnd())
        if (leser.readNext() == QXmlStreamReader::StartElement)
            besuch(leser.name().toString(), leser.attributes());
    if (leser.hasError())
        return QStringLiteral("line %1: %2").arg(leser.lineNumber()).arg(leser.errorString());
    return {};
}

/// The attributes that an element of a page may have; all others are foreign.
const QSet<QString> Erlaubt{"p.class", "table.class", "img.src",    "img.alt",    "a.href",
                            "a.name",  "td.colspan",  "th.colspan", "td.rowspan", "th.rowspan"};

void NimmElement(Hilfeblatt& blatt, const QString& element, const QXmlStreamAttributes& attribute) {
    blatt.elemente.append(element);
    for (const auto& attribut : attribute)
        if (const QString name = element + u'.' + attribut.name().toString(); !Erlaubt.contains(name))
            blatt.fremdes.append(name);
    if (attribute.hasAttribute("name"))
        blatt.anker.append(attribute.value("name").toString());
    if (attribute.hasAttribute("href"))
        blatt.verweise.append(attribute.value("href").toString());
    if (element != "img")
        return;
    blatt.bilder.append(attribute.value("src").toString());
    if (attribute.value("alt").isEmpty())
        blatt.ohneErsatz.append(attribute.value("src").toString());
}

Hilfeblatt LiesBlatt(const QString& pfad) {
    Hilfeblatt blatt;
    blatt.fehler = Besuche(Lies(pfad), [&](const auto& element, const auto& attribute) {
        NimmElement(blatt, element, attribute);
    });
    return blatt;
}

QString Wurzelname(const QString& formular) {
    QString name;
    Besuche(Lies(formular), [&](const QString& element, const QXmlStreamAttributes& attribute) {
        if (name.isEmpty() && element == "widget")
            name = attribute.value("name").toString();
    });
    return name;
}

QStringList Formulardateien() {
    QStringList dateien;
    QDirIterator suche(Quellen, {"*.ui"}, QDir::Files, QDirIterator::Subdirectories);
    while (suche.hasNext())
        dateien.append(suche.next());
    return dateien;
}

} // namespace

Hilfequelle LiesHilfequelle(const QString& sprache) {
    Hilfequelle quelle;
    quelle.ordner = Quellen + "/help/" + sprache;
    const QDir ordner(quelle.ordner);
    quelle.inhalt = LiesInhalt(Lies(ordner.filePath("inhalt.tsv")));
    for (const QString& datei : ordner.entryList({"*.html"}))
        quelle.blaetter.insert(datei.chopped(5), LiesBlatt(ordner.filePath(datei)));
    for (const QString& datei : QDir(ordner.filePath("bilder")).entryList(QDir::Files))
        quelle.bilder.append("bilder/" + datei);
    return quelle;
}

QStringList Formulare() {
    QStringList namen;
    for (const QString& datei : Formulardateien())
        namen.append(Wurzelname(datei));
    return namen;
}

QStringList Bedienelemente(const QString& formular) {
    static const QSet<QString> arten{"QComboBox", "QRadioButton", "QCheckBox", "QLineEdit", "QSpinBox"};
    QStringList namen;
    for (const QString& datei : Formulardateien().filter('/' + formular))
        Besuche(Lies(datei), [&](const QString& element, const QXmlStreamAttributes& attribute) {
            if (element == "widget" && arten.contains(attribute.value("class").toString()))
                namen.append(attribute.value("name").toString());
        });
    return namen;
}

} // namespace varnoth::pruefung
