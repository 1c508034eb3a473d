#include "hilfedatei.h"

#include "fenstertest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::unique_ptr<Hilfedatei> Probe() {
    return Hilfedatei::Oeffne(QStringLiteral(HILFEPROBE));
}

QByteArray Inhalt(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

} // namespace

class HilfedateiTest : public testing::Test {
protected:
    QString Datei(const QByteArray& inhalt) const {
        QFile datei(ordner.filePath("datei.hlp"));
        EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt);
        return datei.fileName();
    }

    QTemporaryDir ordner;
};

TEST_F(HilfedateiTest, Gives_its_contents_pages_and_style) {
    const auto datei = Probe();
    ASSERT_NE(datei, nullptr);
    EXPECT_EQ(datei->Inhalt().size(), 6);
    EXPECT_TRUE(datei->Html("dialog").contains("<h1>Ein Dialog</h1>"));
    EXPECT_TRUE(datei->Stil().contains("h1"));
}

TEST_F(HilfedateiTest, Umlauts_come_through) {
    EXPECT_TRUE(Probe()->Html("anfang").contains(QStringLiteral("Prüfgerät")));
}

TEST_F(HilfedateiTest, Gives_a_picture) {
    EXPECT_EQ(Probe()->Bild("bild.png").size(), QSize(40, 30));
}

TEST_F(HilfedateiTest, What_it_does_not_have_is_empty) {
    const auto datei = Probe();
    EXPECT_EQ(datei->Html("nirgends"), QString());
    EXPECT_TRUE(datei->Bild("nirgends.png").isNull());
}

TEST_F(HilfedateiTest, Knows_the_anchors_of_a_page) {
    const auto datei = Probe();
    EXPECT_TRUE(datei->HatAnker("dialog", "txtFeld"));
    EXPECT_FALSE(datei->HatAnker("dialog", "txt"));
    EXPECT_FALSE(datei->HatAnker("haupt", "txtFeld"));
}

TEST_F(HilfedateiTest, Texts_for_the_search_have_no_markup) {
    const Seitentext seite = Probe()->Seitentexte().first();
    EXPECT_EQ(seite.seite, "anfang");
    EXPECT_TRUE(seite.text.contains(QStringLiteral("Prüfgerät und ein Feld.")));
}

TEST_F(HilfedateiTest, Texts_for_the_search_do_not_repeat_the_title) {
    EXPECT_FALSE(Probe()->Seitentexte().first().text.contains("Anfang"));
}

TEST_F(HilfedateiTest, Two_open_files_do_not_mix) {
    const auto deutsch = Probe();
    const auto englisch = Hilfedatei::Oeffne(QStringLiteral(HILFEPROBE_ENGLISCH));
    ASSERT_NE(englisch, nullptr);
    EXPECT_EQ(deutsch->Html("start"), QString());
    EXPECT_NE(englisch->Html("start"), QString());
}

TEST_F(HilfedateiTest, A_missing_file_does_not_open) {
    EXPECT_EQ(Hilfedatei::Oeffne(ordner.filePath("nirgends.hlp")), nullptr);
}

TEST_F(HilfedateiTest, A_folder_does_not_open) {
    EXPECT_EQ(Hilfedatei::Oeffne(ordner.path()), nullptr);
}

TEST_F(HilfedateiTest, An_empty_file_does_not_open) {
    EXPECT_EQ(Hilfedatei::Oeffne(Datei({})), nullptr);
}

TEST_F(HilfedateiTest, Another_kind_of_file_does_not_open) {
    EXPECT_EQ(Hilfedatei::Oeffne(Datei(QByteArray(5000, 'x'))), nullptr);
}

TEST_F(HilfedateiTest, A_file_that_ends_too_early_does_not_open) {
    const QByteArray ganze = Inhalt(QStringLiteral(HILFEPROBE));
    EXPECT_EQ(Hilfedatei::Oeffne(Datei(ganze.first(ganze.size() / 2))), nullptr);
}

TEST_F(HilfedateiTest, The_programs_help_files_hold_all_that_was_written) {
    for (const auto& [sprache, name] : {std::pair("de", "varnoth.hlp"), std::pair("en", "varnothE.hlp")}) {
        const auto datei = Hilfedatei::Oeffne(QDir(HILFEORDNER).filePath(name));
        ASSERT_NE(datei, nullptr) << name;
        const QDir quelle(QDir(HILFEQUELLEN).filePath(sprache));
        for (const Hilfeseite& seite : datei->Inhalt())
            EXPECT_EQ(datei->Html(seite.name).toUtf8(), Inhalt(quelle.filePath(seite.name + ".html")));
        for (const QString& bild : QDir(quelle.filePath("bilder")).entryList(QDir::Files))
            EXPECT_FALSE(datei->Bild(bild).isNull()) << bild.toStdString();
    }
}

} // namespace varnoth
