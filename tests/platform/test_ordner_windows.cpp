#include "ordner.h"

#include "dateiprobe.h"
#include "inieinstellungen.h"

#include <gtest/gtest.h>

namespace varnoth {

/// With the temporary folder in the place where programs are installed.
class OrdnerUnterWindows : public pruefung::Dateiprobe {
protected:
    OrdnerUnterWindows() {
        qputenv("ProgramFiles", QDir::toNativeSeparators(ordner.path()).toUtf8());
        qputenv("APPDATA", QDir::toNativeSeparators(ordner.filePath("Roaming")).toUtf8());
    }
    ~OrdnerUnterWindows() override {
        qputenv("ProgramFiles", programme);
        qputenv("APPDATA", eigene);
    }

    const QByteArray programme = qgetenv("ProgramFiles");
    const QByteArray eigene = qgetenv("APPDATA");
};

TEST_F(OrdnerUnterWindows, Below_the_installed_programs_nothing_is_written_even_where_it_could_be) {
    ASSERT_TRUE(QDir().mkpath(ordner.filePath("Varnoth")));
    EXPECT_FALSE(IstBeschreibbar(ordner.filePath("Varnoth")));
    EXPECT_FALSE(IstBeschreibbar(ordner.filePath("Varnoth").toUpper()));
    EXPECT_FALSE(IstBeschreibbar(ordner.path()));
}

TEST_F(OrdnerUnterWindows, Settings_of_a_program_installed_there_lie_among_those_of_the_user) {
    ASSERT_TRUE(QDir().mkpath(ordner.filePath("Varnoth")));
    EXPECT_EQ(Einstellungspfad(ordner.filePath("Varnoth"), QStringLiteral("varnoth")),
              ordner.filePath("Roaming/varnoth/varnoth.ini"));
    EXPECT_TRUE(QDir(ordner.filePath("Roaming/varnoth")).exists());
}

TEST_F(OrdnerUnterWindows, A_program_anywhere_else_keeps_its_settings_beside_it) {
    const QTemporaryDir stick;
    EXPECT_EQ(Einstellungspfad(stick.path(), QStringLiteral("varnoth")), stick.filePath("varnoth.ini"));
}

} // namespace varnoth
