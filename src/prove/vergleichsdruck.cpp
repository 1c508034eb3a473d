#include "vergleichsdruck.h"

#include "berichtsdruck.h"
#include "seiteneinrichtung.h"
#include "texte.h"
#include "umgebung.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace varnoth {

namespace {

constexpr std::int16_t TextName = 9565;
constexpr std::int16_t TextRegister = 9566;
constexpr std::int16_t TextKeinDrucker = 9592;
constexpr std::int16_t TextSeiteVon = 9738;
constexpr std::int16_t TextNichtGedruckt = 9922;

QString Text(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

QString Absatz(const std::string& text) {
    return "<p>" + Text(text) + "</p>";
}

QString Tabellenzeile(const char* zelle, const std::initializer_list<std::string>& texte) {
    const QString marke = QLatin1String(zelle);
    QString html = "<tr>";
    for (const std::string& text : texte)
        html += "<" + marke + ">" + Text(text) + "</" + marke + ">";
    return html + "</tr>";
}

std::string Seitenzeile(const Vergleichsseite& seite) {
    return seite.einzelheit.empty() ? Quellenname(seite.quelle)
                                    : Quellenname(seite.quelle) + ", " + seite.einzelheit;
}

} // namespace

QString AlsDruckseite(const Vergleichspaar& paar, const std::vector<Vergleichsworte>& zeilen) {
    const Vergleichsseite& a = paar.Seite(Seitenwahl::A);
    const Vergleichsseite& b = paar.Seite(Seitenwahl::B);
    QString html =
        "<h2>" + Text(paar.Titel()) + "</h2>" + Absatz(Vergleichsbefund(paar.Ergebnis())) +
        Absatz(Klassenanzahlen(paar.Ergebnis())) +
        "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\"><thead>" +
        Tabellenzeile("th", {LadeText(TextName), Seitenzeile(a), Seitenzeile(b), LadeText(TextRegister)}) +
        "</thead>";
    for (const Vergleichsworte& zeile : zeilen)
        html += Tabellenzeile("td", {zeile.gruppe + ": " + zeile.name, zeile.a, zeile.b, zeile.registertext});
    return html + "</table>";
}

Druckerwahl WahlUeber(QWidget& fenster) {
    return {.drucker = QPrinterInfo::availablePrinterNames, .waehle = [&fenster](QPrinter& drucker) {
                return QPrintDialog(&drucker, &fenster).exec() == QDialog::Accepted;
            }};
}

void DruckeSeite(const QString& html, const QString& titel, const Druckerwahl& wahl) {
    if (wahl.drucker().isEmpty()) {
        ZeigeWarnung(LadeText(TextKeinDrucker), LadeText(TextAchtung));
        return;
    }
    QPrinter drucker(QPrinter::HighResolution);
    RichteSeiteEin(drucker);
    drucker.setDocName(titel);
    if (!wahl.waehle(drucker))
        return;
    if (!Drucke({html, titel, QString::fromStdString(LadeText(TextSeiteVon))}, drucker))
        ZeigeWarnung(LadeText(TextNichtGedruckt), LadeText(TextAchtung));
}

} // namespace varnoth
