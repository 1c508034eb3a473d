#pragma once

#include "geraetepfade.h"
#include "pruefumgebung.h"
#include "qtseriellerport.h"
#include "qtumgebung.h"

#include <gtest/gtest.h>

#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <string>

namespace varnoth::pruefung {

inline constexpr const char* Standard = "38400,n,8,2";

/// A port over a pseudo terminal whose far end the test holds.
class PortTest : public testing::Test {
protected:
    PortTest() {
        char name[128];
        EXPECT_EQ(openpty(&fernesEnde, &nahesEnde, name, nullptr, nullptr), 0);
        termios roh{};
        tcgetattr(nahesEnde, &roh);
        cfmakeraw(&roh);
        tcsetattr(nahesEnde, TCSANOW, &roh);
        SetzeGeraetepfad(name);
        geraet = name;
    }
    ~PortTest() override {
        port.Schliesse();
        ZieheAb();
    }

    void Sende(const std::string& bytes) const {
        EXPECT_EQ(write(fernesEnde, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    std::string Empfange(std::size_t anzahl) const {
        std::string bytes(anzahl, '\0');
        EXPECT_EQ(read(fernesEnde, bytes.data(), anzahl), static_cast<ssize_t>(anzahl));
        return bytes;
    }
    /// Pulls the plug.
    void ZieheAb() {
        for (int* ende : {&nahesEnde, &fernesEnde})
            if (*ende >= 0) {
                close(*ende);
                *ende = -1;
            }
    }

    QtUmgebung umgebung;
    PruefEinstellungen einstellungen;
    QtSeriellerPort port;
    std::string geraet;
    int fernesEnde = -1;
    int nahesEnde = -1;
};

} // namespace varnoth::pruefung
