// What goes over the line while nobody asks for backups, comparisons or checks.

#include "programmtest.h"

#include "trace.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <gmock/gmock.h>

#include <algorithm>

namespace varnoth::pruefung {

using testing::IsEmpty;

namespace {

QStringList Zeilen(const QString& pfad) {
    QFile datei(pfad);
    EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << pfad.toStdString();
    return QString::fromLatin1(datei.readAll()).split('\n', Qt::SkipEmptyParts);
}

/// The requests that the byte trace holds, each as its line.
QStringList Anforderungen(const QString& trace) {
    QStringList anforderungen;
    for (const QString& zeile : Zeilen(trace))
        if (const auto stelle = zeile.indexOf(QLatin1String("Write: ")); stelle >= 0)
            anforderungen += zeile.mid(stelle + 7).trimmed();
    return anforderungen;
}

} // namespace

class VerkehrWieImmer : public ProgrammTest {
protected:
    void SchreibeMitReichweite(int posten, bool speichern) {
        fahrer.Sobald(
            [] {
                QWidget* editor = SichtbaresFenster("frmKonfigurationEdit");
                return editor != nullptr && Kind<QAbstractButton>(*editor, "cmdDownLoad").isEnabled();
            },
            [posten] {
                QWidget& editor = *SichtbaresFenster("frmKonfigurationEdit");
                Kind<QComboBox>(editor, "cboReichweite_0").setCurrentIndex(posten);
                Klicke(editor, "cmdDownLoad");
            });
        InFenster("frmKonfigurationSchreibenInHardware", [speichern](QWidget& dialog) {
            Kind<QAbstractButton>(dialog, "chkSpeichern").setChecked(speichern);
            Klicke(dialog, "cmdStart");
        });
        ASSERT_TRUE(FuehreAus("mnuAnzeigeKonfiguration"));
    }
    void Einzelwert(const QString& inhalt, const QString& knopf) {
        InFenster("frmEinzelwerteLesenSchreiben", [inhalt, knopf](QWidget& dialog) {
            Kind<QAbstractButton>(dialog, "OptAdressOffset_2").click();
            Kind<QLineEdit>(dialog, "txtAdresse").setText("8");
            Kind<QLineEdit>(dialog, "txtInhalt").setText(inhalt);
            Klicke(dialog, knopf);
        });
        fahrer.Sobald(
            [inhalt] {
                QWidget* dialog = SichtbaresFenster("frmEinzelwerteLesenSchreiben");
                return dialog != nullptr && Kind<QLineEdit>(*dialog, "txtInhalt").text() != inhalt;
            },
            [] { Klicke(*SichtbaresFenster("frmEinzelwerteLesenSchreiben"), "cmdCancel"); });
        ASSERT_TRUE(FuehreAus("mnuEinzelwerteLesenSchreiben"));
    }
};

TEST_F(VerkehrWieImmer, Connecting_polling_writing_storing_single_values_and_reset_send_the_same_bytes) {
    const QString zuvor = QDir::currentPath();
    QDir::setCurrent(ordner.path());
    SchliesseGeraetAn({"--beams", "32,16,0,0", "--store", Pfad("speicher")});
    Starte({"/PVarnoth-Service1", "/Tlogfile"});
    QDir::setCurrent(zuvor);
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(LaufeDurchgaenge(2));
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    SchreibeMitReichweite(4, true);
    SchreibeMitReichweite(2, false);
    Einzelwert("&H123", "cmdSchreiben");
    Einzelwert("", "cmdLesen");
    InFenster("frmResetHardware", [](QWidget& dialog) { Klicke(dialog, "cmdOK"); });
    ASSERT_TRUE(FuehreAus("mnuResetHardware"));
    modTrace::Schliesse();
    const QStringList gesendet = Anforderungen(Pfad(modTrace::Dateiname));
    const QStringList immer = Zeilen(QStringLiteral(VERKEHRSLISTE));
    const auto [hier, dort] = std::ranges::mismatch(gesendet, immer);
    EXPECT_TRUE(hier == gesendet.end() && dort == immer.end())
        << "request " << hier - gesendet.begin() << ": "
        << (hier == gesendet.end() ? "nothing" : hier->toStdString()) << " instead of "
        << (dort == immer.end() ? "nothing" : dort->toStdString());
    EXPECT_GT(immer.size(), 500);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

} // namespace varnoth::pruefung
