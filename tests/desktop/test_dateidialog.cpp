#include "dateidialog.h"

#include "fenstertest.h"
#include "qttexte.h"
#include "symbolbild.h"
#include "texte.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <tuple>

namespace varnoth {

namespace {

constexpr std::int16_t TextDateifilter = 2000;

} // namespace

class Dateidialog : public testing::Test {
protected:
    /// Asks, and does something with the dialog once it stands.
    static std::optional<std::string> Frage(const Dateifrage& frage,
                                            const std::function<void(QFileDialog&)>& tat) {
        QTimer::singleShot(0, qApp, [tat] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->objectName() == QLatin1String("Dateidialog"))
                tat(*dialog);
        });
        return FrageNachDatei(frage);
    }
    static void TippeUndNimm(QFileDialog& dialog, const QString& name) {
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        static_cast<QDialog&>(dialog).accept();
    }
    static void WaehleFilter(QFileDialog& dialog, int index) {
        dialog.selectNameFilter(dialog.nameFilters().at(index));
        emit dialog.filterSelected(dialog.nameFilters().at(index));
    }
    Dateifrage Speicherfrage() const {
        return {.art = Dateiwahl::Speichern,
                .titel = "Titel",
                .filter = LadeText(TextDateifilter),
                .ordner = ordner.path().toStdString()};
    }
    std::string Pfad(const char* name) const {
        return QDir::toNativeSeparators(ordner.filePath(QString::fromUtf8(name))).toStdString();
    }
    void LegeAn(const char* name) const {
        QFile datei(QString::fromStdString(Pfad(name)));
        EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
    }

    QTemporaryDir ordner;
};

TEST_F(Dateidialog, The_filters_are_turned_into_those_of_the_dialog) {
    EXPECT_EQ(FilterFuerQt("Konfiguration (*.con)|*.con|Alle Dateien|*.*"),
              (QStringList{"Konfiguration (*.con)", "Alle Dateien (*)"}));
    EXPECT_EQ(FilterFuerQt("Configuration (*.con)|*.con|All Files   |*.*"),
              (QStringList{"Configuration (*.con)", "All Files (*)"}));
    EXPECT_EQ(FilterFuerQt("Text|*.txt"), QStringList{"Text (*.txt)"});
    EXPECT_EQ(FilterFuerQt(""), QStringList());
    EXPECT_EQ(FilterFuerQt("alone"), QStringList());
}

TEST_F(Dateidialog, A_filter_gives_its_extension_and_the_one_of_all_files_none) {
    EXPECT_EQ(EndungAus("Konfiguration (*.con)"), "con");
    EXPECT_EQ(EndungAus("Alle Dateien (*)"), "");
    EXPECT_EQ(EndungAus(""), "");
}

TEST_F(Dateidialog, Its_buttons_have_the_programs_own_pictures) {
    for (const auto& [art, knopf, bild] : {std::tuple{Dateiwahl::Oeffnen, QDialogButtonBox::Open, "oeffnen"},
                                           {Dateiwahl::Speichern, QDialogButtonBox::Save, "speichern"},
                                           {Dateiwahl::Oeffnen, QDialogButtonBox::Cancel, "abbrechen"}})
        Frage({.art = art, .ordner = ordner.path().toStdString()},
              [k = knopf, b = bild](QFileDialog& dialog) {
                  const QIcon gezeigt = dialog.findChild<QDialogButtonBox*>()->button(k)->icon();
                  EXPECT_EQ(gezeigt.pixmap(16, 16).toImage(), Symbolbild(b).pixmap(16, 16).toImage()) << b;
                  static_cast<QDialog&>(dialog).reject();
              });
}

TEST_F(Dateidialog, It_shows_title_filters_folder_and_the_first_filter) {
    Frage(Speicherfrage(), [this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Titel");
        EXPECT_EQ(dialog.nameFilters(), (QStringList{"Konfiguration (*.con)", "Alle Dateien (*)"}));
        EXPECT_EQ(dialog.selectedNameFilter(), "Konfiguration (*.con)");
        EXPECT_EQ(dialog.directory().absolutePath(), ordner.path());
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
}

TEST_F(Dateidialog, Without_a_folder_it_starts_in_the_programs_own) {
    Frage({.filter = LadeText(TextDateifilter)}, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), QCoreApplication::applicationDirPath());
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
}

TEST_F(Dateidialog, A_preset_name_with_a_path_starts_in_its_folder) {
    Dateifrage frage = Speicherfrage();
    frage.ordner.clear();
    frage.name = Pfad("Prüfstand 1.con");
    EXPECT_EQ(Frage(frage,
                    [this](QFileDialog& dialog) {
                        EXPECT_EQ(dialog.directory().absolutePath(), ordner.path());
                        static_cast<QDialog&>(dialog).accept();
                    }),
              frage.name);
}

TEST_F(Dateidialog, A_preset_name_whose_folder_is_gone_starts_in_the_given_folder) {
    Dateifrage frage = Speicherfrage();
    frage.name = Pfad("weg/a.con");
    Frage(frage, [this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), ordner.path());
        dialog.reject();
    });
}

TEST_F(Dateidialog, Cancelling_gives_nothing) {
    EXPECT_EQ(Frage(Speicherfrage(), [](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(Dateidialog, An_existing_file_is_chosen_for_saving_without_a_question_of_the_dialog) {
    LegeAn("da.con");
    EXPECT_EQ(Frage(Speicherfrage(), [](QFileDialog& dialog) { TippeUndNimm(dialog, "da.con"); }),
              Pfad("da.con"));
}

TEST_F(Dateidialog, A_name_without_extension_gets_the_one_of_the_filter) {
    EXPECT_EQ(Frage(Speicherfrage(), [](QFileDialog& dialog) { TippeUndNimm(dialog, "neu"); }),
              Pfad("neu.con"));
}

TEST_F(Dateidialog, A_name_without_extension_stays_so_under_all_files) {
    EXPECT_EQ(Frage(Speicherfrage(),
                    [](QFileDialog& dialog) {
                        WaehleFilter(dialog, 1);
                        TippeUndNimm(dialog, "neu");
                    }),
              Pfad("neu"));
}

TEST_F(Dateidialog, A_name_with_umlauts_blanks_and_200_characters_is_given_as_typed) {
    const QString name = QStringLiteral("Größe ü ") + QString(190, QLatin1Char('x')) + QStringLiteral(".con");
    EXPECT_EQ(Frage(Speicherfrage(), [name](QFileDialog& dialog) { TippeUndNimm(dialog, name); }),
              QDir::toNativeSeparators(ordner.filePath(name)).toStdString());
}

TEST_F(Dateidialog, Its_own_texts_are_in_the_chosen_language) {
    LadeQtTexte(Deutsch);
    Frage(Speicherfrage(), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject).remove('&'), "Abbrechen");
        dialog.reject();
    });
    LadeQtTexte(Englisch);
    Frage(Speicherfrage(), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject).remove('&'), "Cancel");
        dialog.reject();
    });
}

TEST_F(Dateidialog, A_test_can_answer_in_its_place) {
    Dateifrage gefragt;
    SetzeDateiantwort([&gefragt](const Dateifrage& frage) {
        gefragt = frage;
        return std::optional<std::string>("/x.con");
    });
    EXPECT_EQ(FrageNachDatei(Speicherfrage()), "/x.con");
    EXPECT_EQ(gefragt, Speicherfrage());
}

} // namespace varnoth
