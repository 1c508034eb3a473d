#include "geraetepfade.h"
#include "kindprozess.h"
#include "pruefumgebung.h"
#include "qtseriellerport.h"
#include "qtumgebung.h"
#include "schnittstelle.h"
#include "texte.h"
#include "transaktionen.h"
#include "verbindungsauskunft.h"

#include <QTimer>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <grp.h>
#include <pty.h>
#include <pwd.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace varnoth {

/// A serial port over a pseudo terminal; what keeps the connection from coming about is made for real.
class Verbindungsursachen : public testing::Test {
protected:
    Verbindungsursachen() {
        SetzeSprachoffset(Englisch);
        char pfad[128];
        EXPECT_EQ(openpty(&fern, &nah, pfad, nullptr, nullptr), 0);
        geraet = pfad;
        termios roh{};
        tcgetattr(nah, &roh);
        cfmakeraw(&roh);
        tcsetattr(nah, TCSANOW, &roh);
        fcntl(fern, F_SETFL, O_NONBLOCK);
        SetzeGeraetepfad(geraet);
        modSchnittstelle::SetzePort(&port);
    }
    ~Verbindungsursachen() override {
        modSchnittstelle::SetzePort(nullptr);
        SetzeGeraetepfad({});
        SetzeSprachoffset(Deutsch);
        close(fern);
        close(nah);
    }

    static std::string UrsacheBeimOeffnen() {
        modSchnittstelle::OpenCommPort();
        return LiesVerbindungsauskunft().ursache;
    }
    static std::string UrsacheNachAnfrage() {
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        return LiesVerbindungsauskunft().ursache;
    }
    /// Whenever something has arrived at the far end, the function's result is sent back.
    void Erwidere(std::function<std::string(std::string)> antwort) {
        QObject::connect(&blick, &QTimer::timeout, &blick, [this, antwort = std::move(antwort)] {
            char puffer[256];
            const ssize_t n = read(fern, puffer, sizeof puffer);
            if (n <= 0)
                return;
            const std::string zurueck = antwort(std::string(puffer, static_cast<std::size_t>(n)));
            EXPECT_EQ(write(fern, zurueck.data(), zurueck.size()), static_cast<ssize_t>(zurueck.size()));
        });
        blick.start(2);
    }

    QtUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    QtSeriellerPort port;
    QTimer blick;
    int fern = -1;
    int nah = -1;
    std::string geraet;
};

TEST_F(Verbindungsursachen, A_device_that_is_not_there) {
    SetzeGeraetepfad("/dev/pts/nothing");
    EXPECT_TRUE(UrsacheBeimOeffnen().starts_with("There is no device /dev/pts/nothing."));
}

TEST_F(Verbindungsursachen, A_device_that_another_user_may_not_open) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    ASSERT_EQ(chown(geraet.c_str(), 0, getgrnam("dialout")->gr_gid), 0);
    ASSERT_EQ(chmod(geraet.c_str(), 0660), 0);
    const std::string nutzer = getpwuid(65534)->pw_name;
    EXPECT_EQ(pruefung::AlsNutzer(UrsacheBeimOeffnen),
              nutzer + " may not open " + geraet +
                  "; the group dialout may. Remedy: “sudo usermod -aG dialout " + nutzer +
                  "”, then log in again.");
}

TEST_F(Verbindungsursachen, A_device_that_is_held_by_one_program_alone) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root opens a device for another user";
    ASSERT_EQ(chmod(geraet.c_str(), 0666), 0);
    ASSERT_EQ(ioctl(nah, TIOCEXCL), 0);
    const std::string ursache = pruefung::AlsNutzer(UrsacheBeimOeffnen);
    EXPECT_TRUE(ursache.starts_with(geraet + " is in use by")) << ursache;
}

TEST_F(Verbindungsursachen, A_device_that_another_process_reads_from) {
    const pruefung::Kind kind([this](int rohr) {
        close(fern);
        const bool gesagt = write(rohr, "!", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    const std::string ursache = UrsacheBeimOeffnen();
    EXPECT_TRUE(ursache.starts_with(geraet + " is in use by: seriellerport_t (")) << ursache;
    kind.Toete();
    kind.Ende();
}

TEST_F(Verbindungsursachen,
       A_device_that_a_program_of_ours_has_locked_names_it_to_every_user_and_stays_as_it_was) {
    ASSERT_EQ(chmod(geraet.c_str(), 0666), 0);
    const pruefung::Kind kind([this](int rohr) {
        close(fern);
        close(nah);
        QtSeriellerPort andere;
        const bool gesagt = write(rohr, andere.Oeffne(1, "9600,n,8,2") ? "!" : "?", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    const std::string ursache = pruefung::AlsNutzer(UrsacheBeimOeffnen);
    EXPECT_TRUE(ursache.starts_with(geraet + " is in use by: seriellerport_t (")) << ursache;
    EXPECT_TRUE(UrsacheBeimOeffnen().starts_with(geraet + " is in use by: seriellerport_t ("));
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False) << "not even the superuser opens it";
    termios stand{};
    tcgetattr(nah, &stand);
    EXPECT_EQ(cfgetospeed(&stand), static_cast<speed_t>(B9600)) << "its speed is that of the other program";
    kind.Toete();
    kind.Ende();
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True) << "the lock goes with its process";
}

TEST_F(Verbindungsursachen, A_port_that_is_closed_is_locked_no_more) {
    QtSeriellerPort andere;
    modSchnittstelle::OpenCommPort();
    EXPECT_FALSE(andere.Oeffne(1, "38400,n,8,2"));
    EXPECT_EQ(andere.Fehlertext(), "Another program is using it.");
    EXPECT_EQ(andere.BefundVon(1).hindernis, Hindernis::Belegt);
    modSchnittstelle::CloseCommPort();
    EXPECT_TRUE(andere.Oeffne(1, "38400,n,8,2"));
}

TEST_F(Verbindungsursachen, A_named_device_is_the_one_that_is_opened_and_told_of) {
    modSchnittstelle::SetzeGeraet("/dev/pts/nothing");
    EXPECT_TRUE(UrsacheBeimOeffnen().starts_with("There is no device /dev/pts/nothing."));
    modSchnittstelle::SetzeGeraet("");
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    EXPECT_EQ(modSchnittstelle::GetAnschluss().geraet, geraet);
}

TEST_F(Verbindungsursachen, A_line_on_which_nothing_answers) {
    EXPECT_TRUE(UrsacheNachAnfrage().starts_with("Nothing answers."));
}

TEST_F(Verbindungsursachen, A_controller_at_another_speed) {
    Erwidere([](const std::string&) { return "\xE0\x1C\xFE\x80\x03\x0E"; });
    EXPECT_TRUE(UrsacheNachAnfrage().starts_with("Something answers that cannot be understood."));
}

TEST_F(Verbindungsursachen, A_line_that_sends_back_what_was_sent) {
    Erwidere([](std::string bytes) { return bytes; });
    EXPECT_TRUE(UrsacheNachAnfrage().starts_with("What is sent comes back (echo)."));
}

TEST_F(Verbindungsursachen, A_settings_string_that_is_no_line_format) {
    modSchnittstelle::SetzeComSettings("fast");
    EXPECT_TRUE(UrsacheBeimOeffnen().starts_with("“fast” is no line format."));
}

TEST_F(Verbindungsursachen, A_file_that_is_no_port) {
    SetzeGeraetepfad("/dev/null");
    const std::string ursache = UrsacheBeimOeffnen();
    EXPECT_EQ(ursache, "/dev/null cannot be opened: It is not a serial port.");
    SetzeSprachoffset(Deutsch);
    EXPECT_EQ(LiesVerbindungsauskunft().ursache,
              "/dev/null lässt sich nicht öffnen: Das ist keine serielle Schnittstelle.");
}

} // namespace varnoth
