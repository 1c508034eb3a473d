#include "knopfsymbole.h"

#include "lokalisiereform.h"
#include "symbolbild.h"

#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace varnoth {

namespace {

QPushButton& Knopf(QWidget& form, const char* name) {
    auto* const knopf = new QPushButton(&form);
    knopf->setObjectName(QString::fromUtf8(name));
    return *knopf;
}

} // namespace

TEST(Knopfsymbole, Every_push_button_of_a_form_has_a_picture_that_is_there) {
    const QRegularExpression knopf(QStringLiteral("class=\"QPushButton\" name=\"([^\"]+)\""));
    int gefunden = 0;
    for (const auto& eintrag : std::filesystem::recursive_directory_iterator(VARNOTH_QUELLEN)) {
        if (eintrag.path().extension() != ".ui")
            continue;
        QFile datei(QString::fromStdString(eintrag.path().string()));
        ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
        auto treffer = knopf.globalMatch(QString::fromUtf8(datei.readAll()));
        while (treffer.hasNext()) {
            const std::string name = treffer.next().captured(1).toStdString();
            const auto symbol = SymbolFuerKnopf(eintrag.path().stem().string(), name);
            EXPECT_FALSE(Symbolbild(QString::fromStdString(std::string(symbol))).isNull())
                << name << " in " << eintrag.path().filename();
            ++gefunden;
        }
    }
    EXPECT_GT(gefunden, 20);
}

TEST(Knopfsymbole, A_form_gives_its_buttons_their_pictures_with_its_texts) {
    QDialog form;
    const QPushButton& ok = Knopf(form, "cmdOK");
    const QPushButton& fremd = Knopf(form, "cmdIrgendwas");
    LokalisiereForm(form);
    EXPECT_FALSE(ok.icon().isNull());
    EXPECT_TRUE(fremd.icon().isNull());
}

TEST(Knopfsymbole, One_of_several_buttons_has_the_picture_of_all) {
    EXPECT_EQ(SymbolFuerKnopf("frmX", "cmdBlankingmuster_2"), "blanking");
    EXPECT_EQ(SymbolFuerKnopf("frmX", "cmdBlankingmuster_x"), "");
}

TEST(Knopfsymbole, A_name_that_says_nothing_counts_in_its_form_alone) {
    EXPECT_EQ(SymbolFuerKnopf("frmInfo", "Command1"), "ok");
    EXPECT_EQ(SymbolFuerKnopf("frmReihenfolge", "Command1"), "davor");
    EXPECT_EQ(SymbolFuerKnopf("frmX", "Command1"), "");
}

TEST(Knopfsymbole, A_button_that_has_a_picture_keeps_it) {
    QDialog form;
    QPushButton& ok = Knopf(form, "cmdOK");
    ok.setIcon(Symbolbild("hilfe"));
    const auto vorher = ok.icon().cacheKey();
    GibKnoepfenSymbole(form);
    EXPECT_EQ(ok.icon().cacheKey(), vorher);
}

TEST(Knopfsymbole, A_dialog_inside_a_form_is_left_to_its_own_call) {
    QDialog form;
    QDialog innen(&form);
    const QPushButton& ok = Knopf(innen, "cmdOK");
    GibKnoepfenSymbole(form);
    EXPECT_TRUE(ok.icon().isNull());
}

} // namespace varnoth
