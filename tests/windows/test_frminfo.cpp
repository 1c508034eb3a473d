#include "frmInfo.h"

#include "dateisicherungen.h"
#include "programmversion.h"
#include "servicetext.h"
#include "supporttext.h"
#include "texte.h"
#include "versionstext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using testing::HasSubstr;
using testing::Not;

class FrmInfo : public testing::Test {
protected:
    static std::string Text(const QWidget& dialog, const char* name) {
        return dialog.findChild<QLabel*>(QLatin1String(name))->text().toStdString();
    }
    static std::string Zwischenablage() { return QGuiApplication::clipboard()->text().toStdString(); }
};

TEST_F(FrmInfo, Shows_product_and_owner_as_ever_and_what_the_program_was_built_with) {
    const frmInfo dialog(nullptr);
    EXPECT_EQ(Text(dialog, "Label1"), "Varnoth  Softwareversion " + std::string(Programmversion()));
    EXPECT_EQ(Text(dialog, "Label2"), Eigentuemerzeile().toStdString());
    EXPECT_EQ(Text(dialog, "lblQt"), "Qt " + std::string(qVersion()) + ", gebaut mit Qt " QT_VERSION_STR);
    EXPECT_THAT(Text(dialog, "lblCompiler"), HasSubstr(__VERSION__));
}

TEST_F(FrmInfo, The_button_copies_what_support_asks_for_and_says_so) {
    QGuiApplication::clipboard()->clear();
    frmInfo dialog(nullptr, "/home/somebody/.config/varnoth/varnoth.ini");
    dialog.show();
    const auto& kopiert = *dialog.findChild<QLabel*>("lblKopiert");
    const QSize vorher = dialog.size();
    EXPECT_FALSE(kopiert.isVisible());
    dialog.findChild<QPushButton*>("cmdKopieren")->click();
    EXPECT_TRUE(kopiert.isVisible());
    EXPECT_EQ(dialog.size(), vorher);
    EXPECT_EQ(Zwischenablage(), Supporttext("/home/somebody/.config/varnoth/varnoth.ini").toStdString());
}

TEST_F(FrmInfo, The_text_for_support_names_versions_system_screen_language_and_places_in_both_languages) {
    for (const auto sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        const std::string text = Supporttext("/place/varnoth.ini").toStdString();
        for (const std::string& teil :
             {std::string(Programmversion()), std::string(qVersion()), std::string(__VERSION__),
              QSysInfo::kernelVersion().toStdString(), QSysInfo::prettyProductName().toStdString(),
              std::string("offscreen, 800 x 800 (1)"), std::string("/place/varnoth.ini"),
              UeblicherDatenordner().toStdString(), QLocale::system().name().toStdString(),
              std::string(sprache == Deutsch ? "Sprache: Deutsch" : "Language: English")})
            EXPECT_THAT(text, HasSubstr(teil));
        EXPECT_EQ(std::ranges::count(text, '\n'), 8);
    }
}

TEST_F(FrmInfo, The_service_password_does_not_stand_in_the_text_for_support) {
    modService::SetzeServiceText("geheim-1234     ");
    EXPECT_THAT(Supporttext("/place/varnoth.ini").toStdString(), Not(HasSubstr("geheim")));
}

} // namespace varnoth
