#include "frmBericht.h"

#include "abbildproben.h"
#include "berichtsdruck.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "seitenvorschau.h"
#include "standtext.h"
#include "untereditortest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPrinter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <optional>

namespace varnoth {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct Dokument {
    std::string filter;
    std::string name;
    std::string bytes;
};

/// How many pages a PDF file has.
std::size_t Pdfseiten(const std::string& pdf) {
    std::size_t anzahl = 0;
    for (auto stelle = pdf.find("/Type /Page\n"); stelle != std::string::npos;
         stelle = pdf.find("/Type /Page\n", stelle + 1))
        ++anzahl;
    return anzahl;
}

} // namespace

/// The report's window over a controller with four parts; what it saves is kept.
class FrmBerichtTest : public pruefung::UntereditorTest {
protected:
    FrmBerichtTest() { modDaten::ErsetzeAbbild(abbildproben::Vierteilig()); }

    frmBericht& Fenster() {
        if (!fenster)
            fenster.emplace(Berichtsumfeld{
                .angaben =
                    [this] {
                        return Berichtsangaben{.ausgestellt = ausgestellt, .programmversion = "1.2.3"};
                    },
                .name = "Halle 3",
                .speichere =
                    [this](const auto& filter, const auto& name, const auto& bytes) {
                        gespeichert.push_back({filter, name, bytes});
                    },
                .importiereText = [this] { modDaten::ErsetzeAbbild(importiert); },
                .machePdf =
                    [this](const auto& druck, const auto& titel) {
                        return pdfGelingt ? AlsPdf(druck, titel) : QByteArray();
                    },
                .drucker = [this] { return drucker; },
                .waehleDrucker =
                    [this](QPrinter& gewaehlter, const QWidget& ueber) {
                        gefragtUeber = &ueber;
                        gewaehlter.setOutputFormat(QPrinter::PdfFormat);
                        gewaehlter.setOutputFileName(ordner.filePath(druckziel));
                        return druckt;
                    }});
        return *fenster;
    }
    Seitenvorschau& Vorschau() { return Kind<Seitenvorschau>(Fenster(), "vorschau"); }
    bool WarteAufVorschau() {
        return pruefung::WarteBis([this] { return Vorschau().Seitenzahl() > 0; });
    }
    void Tippe(const char* feld, const char* text) {
        auto& eingabe = Kind<QLineEdit>(Fenster(), feld);
        eingabe.clear();
        QTest::keyClicks(&eingabe, text);
    }
    const Dokument& NachKlick(const char* knopf) {
        Klicke(Fenster(), knopf);
        return gespeichert.at(0);
    }
    std::string Gedrucktes() {
        QFile datei(ordner.filePath(druckziel));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll().toStdString() : std::string();
    }

    std::vector<Dokument> gespeichert;
    Abbild importiert;
    std::string ausgestellt = "01.02.2026";
    QStringList drucker{"Buero"};
    const QWidget* gefragtUeber = nullptr; ///< the window above which a printer was chosen
    bool druckt = true;
    bool pdfGelingt = true;
    QString druckziel = "gedruckt.pdf";
    QTemporaryDir ordner;
    std::optional<frmBericht> fenster;
};

TEST_F(FrmBerichtTest, The_typed_fields_stand_in_the_report) {
    Tippe("txtAnlage", "Walzwerk");
    Tippe("txtMaschine", "Band");
    Tippe("txtPerson", "Muster");
    for (const char* text : {">Walzwerk</td>", ">Band</td>", ">Muster</td>", ">1.2.3</td>"})
        EXPECT_THAT(Fenster().Html(), HasSubstr(text));
}

TEST_F(FrmBerichtTest, The_fields_are_remembered) {
    Tippe("txtAnlage", "Walzwerk");
    Tippe("txtPerson", "Muster");
    Klicke(Fenster(), "cmdSchliessen");
    fenster.reset();
    EXPECT_EQ(Kind<QLineEdit>(Fenster(), "txtAnlage").text(), "Walzwerk");
    EXPECT_EQ(Kind<QLineEdit>(Fenster(), "txtMaschine").text(), "");
    EXPECT_EQ(Kind<QLineEdit>(Fenster(), "txtPerson").text(), "Muster");
}

TEST_F(FrmBerichtTest, The_preview_follows_what_is_typed) {
    ZeigeAktiv(Fenster());
    ASSERT_TRUE(WarteAufVorschau());
    QSignalSpy gezeigt(&Vorschau(), &Seitenvorschau::Gezeigt);
    const QImage vorher = Vorschau().grab().toImage();
    Tippe("txtAnlage", "W");
    EXPECT_TRUE(pruefung::WarteBis([&] { return !gezeigt.isEmpty(); }));
    EXPECT_NE(Vorschau().grab().toImage(), vorher);
}

TEST_F(FrmBerichtTest, The_number_of_pages_is_told_and_is_that_of_preview_and_file) {
    ZeigeAktiv(Fenster());
    ASSERT_TRUE(WarteAufVorschau());
    const std::string pdf = NachKlick("cmdPdf").bytes;
    const auto seiten = static_cast<int>(Pdfseiten(pdf));
    EXPECT_GE(seiten, 4);
    EXPECT_EQ(Vorschau().Seitenzahl(), seiten);
    EXPECT_EQ(Beschriftung(Fenster(), "lblSeiten"), QStringLiteral("Seiten: %1").arg(seiten));
}

TEST_F(FrmBerichtTest, Nothing_is_said_about_pages_that_are_not_laid_out_yet) {
    EXPECT_EQ(Beschriftung(Fenster(), "lblSeiten"), "");
}

TEST_F(FrmBerichtTest, A_field_is_where_one_types_first_and_the_preview_has_a_name) {
    ZeigeAktiv(Fenster());
    EXPECT_EQ(Fenster().focusWidget(), &Kind<QLineEdit>(Fenster(), "txtAnlage"));
    EXPECT_EQ(Vorschau().accessibleName(), "Vorschau der Seiten");
}

TEST_F(FrmBerichtTest, Html_is_saved_as_the_document_and_is_the_same_at_any_time) {
    const Dokument html = NachKlick("cmdHtml");
    EXPECT_EQ(html.name, "Halle 3.html");
    EXPECT_THAT(html.filter, StartsWith("HTML (*.html)|*.html|"));
    EXPECT_THAT(html.bytes, AllOf(StartsWith("<!DOCTYPE html>"), Not(HasSubstr("http"))));
    ausgestellt = "02.02.2026";
    Klicke(Fenster(), "cmdHtml");
    EXPECT_EQ(gespeichert.at(1).bytes, html.bytes);
}

TEST_F(FrmBerichtTest, Pdf_is_saved_with_a_title) {
    const Dokument& pdf = NachKlick("cmdPdf");
    EXPECT_EQ(pdf.name, "Halle 3.pdf");
    EXPECT_THAT(pdf.filter, StartsWith("PDF (*.pdf)|*.pdf|"));
    EXPECT_THAT(pdf.bytes, StartsWith("%PDF-"));
}

TEST_F(FrmBerichtTest, A_pdf_that_cannot_be_made_is_told_and_no_empty_file_is_saved) {
    pdfGelingt = false;
    Klicke(Fenster(), "cmdPdf");
    EXPECT_TRUE(gespeichert.empty());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text,
              "Die PDF-Datei ließ sich nicht herstellen. Der Bericht lässt sich als HTML speichern.");
}

TEST_F(FrmBerichtTest, The_exported_text_is_the_configuration_without_measured_values) {
    ASSERT_TRUE(modDaten::SetzeParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Messwerte,
                                         Werte(18, 5)));
    const Dokument& text = NachKlick("cmdTextExport");
    EXPECT_EQ(text.name, "Halle 3.txt");
    EXPECT_EQ(LiesStandtext(text.bytes).abbild, abbildproben::Vierteilig());
}

TEST_F(FrmBerichtTest, After_an_import_the_report_is_about_the_new_configuration) {
    Fenster();
    ASSERT_TRUE(WarteAufVorschau());
    const QString vorher = Beschriftung(Fenster(), "lblSeiten");
    Klicke(Fenster(), "cmdTextImport");
    EXPECT_THAT(Fenster().Html(), Not(HasSubstr("VN-&lt;2026&gt;")));
    EXPECT_TRUE(pruefung::WarteBis([&] { return Beschriftung(Fenster(), "lblSeiten") != vorher; }));
}

TEST_F(FrmBerichtTest, Printing_paints_every_page) {
    Klicke(Fenster(), "cmdDrucken");
    const std::string gedruckt = Gedrucktes();
    EXPECT_EQ(gefragtUeber, &Fenster());
    EXPECT_EQ(Pdfseiten(gedruckt), Pdfseiten(NachKlick("cmdPdf").bytes));
    EXPECT_GT(Pdfseiten(gedruckt), 0U);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmBerichtTest, Without_a_printer_a_message_says_so_and_what_can_be_done) {
    drucker.clear();
    Klicke(Fenster(), "cmdDrucken");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text,
              "Auf diesem Rechner ist kein Drucker eingerichtet. Der Bericht lässt sich "
              "als PDF oder HTML speichern.");
    EXPECT_EQ(Gedrucktes(), "");
}

TEST_F(FrmBerichtTest, A_printer_that_was_not_chosen_gets_nothing) {
    druckt = false;
    Klicke(Fenster(), "cmdDrucken");
    EXPECT_EQ(Gedrucktes(), "");
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmBerichtTest, A_printer_that_takes_nothing_is_told) {
    druckziel = "gibt/es/nicht.pdf";
    pruefung::ErwarteWarnung("QPainter::begin");
    Klicke(Fenster(), "cmdDrucken");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(9740));
}

TEST_F(FrmBerichtTest, Paper_is_white_with_black_letters_whatever_the_colours_of_the_screen) {
    const QPalette vorher = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::white, Qt::black));
    const std::string dunkel = NachKlick("cmdPdf").bytes;
    QApplication::setPalette(vorher);
    Klicke(Fenster(), "cmdPdf");
    EXPECT_EQ(dunkel.size(), gespeichert.at(1).bytes.size());
}

TEST_F(FrmBerichtTest, Enter_in_a_field_presses_no_button) {
    ZeigeAktiv(Fenster());
    QTest::keyClick(&Kind<QLineEdit>(Fenster(), "txtAnlage"), Qt::Key_Return);
    EXPECT_TRUE(gespeichert.empty());
    EXPECT_TRUE(Fenster().isVisible());
}

TEST_F(FrmBerichtTest, The_controller_is_no_source_of_pictures_from_elsewhere) {
    EXPECT_EQ(Pdfseiten(AlsPdf({"<img src=\"/etc/hostname\"><img src=\"http://x/y.png\">", "", "%1 %2"}, "")
                            .toStdString()),
              1);
}

TEST_F(FrmBerichtTest, Without_beam_statistics_nobody_is_asked_about_them) {
    EXPECT_TRUE(Kind<QCheckBox>(Fenster(), "chkStrahlstatistik").isHidden());
    EXPECT_THAT(Fenster().Html(), Not(HasSubstr("Strahlstatistik")));
}

TEST_F(FrmBerichtTest, Beam_statistics_are_added_when_they_are_ticked) {
    const Strahlbericht abschnitt{.zeitraum = "von bis"};
    for (const bool anfangs : {false, true}) {
        frmBericht bericht({.angaben = [] { return Berichtsangaben{}; },
                            .drucker = [] { return QStringList(); },
                            .strahlen = abschnitt,
                            .mitStrahlen = anfangs});
        auto& haken = Kind<QCheckBox>(bericht, "chkStrahlstatistik");
        EXPECT_FALSE(haken.isHidden());
        EXPECT_EQ(haken.isChecked(), anfangs);
        for (const bool an : {true, false}) {
            haken.setChecked(an);
            EXPECT_EQ(bericht.Html().find("<h2>Strahlstatistik</h2>") != std::string::npos, an);
        }
    }
}

} // namespace varnoth
