#include "adapterverzoegerung.h"

#include "kindprozess.h"
#include "texte.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <iterator>

namespace varnoth {

class Adapterverzoegerung : public testing::Test {
protected:
    Adapterverzoegerung() {
        SetzeSprachoffset(Englisch);
        std::ofstream(datei) << "16\n";
    }
    ~Adapterverzoegerung() override { SetzeSprachoffset(Deutsch); }

    std::string Inhalt() const {
        std::ifstream strom(datei);
        return {std::istreambuf_iterator<char>(strom), {}};
    }

    QTemporaryDir ordner;
    std::string datei = ordner.filePath(QStringLiteral("latency_timer")).toStdString();
    Portangabe port{.geraet = "/dev/ttyUSB0", .verzoegerungsdatei = datei, .verzoegerungMs = 16};
};

TEST_F(Adapterverzoegerung, Is_set_to_1_ms) {
    EXPECT_EQ(VerkuerzeVerzoegerung(port), "");
    EXPECT_EQ(Inhalt().substr(0, 2), "1\n");
}

TEST_F(Adapterverzoegerung, Of_an_administrator_is_told_with_the_command_that_sets_it) {
    chmod(ordner.path().toLocal8Bit().constData(), 0755);
    chmod(datei.c_str(), 0444);
    EXPECT_EQ(pruefung::AlsNutzer([this] { return VerkuerzeVerzoegerung(port); }),
              datei +
                  " cannot be changed: No permission for it. An administrator of the computer can: “echo 1 | "
                  "sudo tee " +
                  datei + "”.");
    EXPECT_EQ(Inhalt(), "16\n");
}

TEST_F(Adapterverzoegerung, That_an_adapter_does_not_have_is_said) {
    EXPECT_EQ(VerkuerzeVerzoegerung({.geraet = "/dev/ttyS0"}), "/dev/ttyS0 has no timer that could be set.");
}

TEST_F(Adapterverzoegerung, Of_an_adapter_that_was_pulled_out_makes_no_file) {
    const std::string weg = datei + "weg";
    port.verzoegerungsdatei = weg;
    EXPECT_NE(VerkuerzeVerzoegerung(port), "");
    EXPECT_FALSE(std::ifstream(weg).is_open());
}

} // namespace varnoth
