#include "dateiuebergabe.h"

#include "dateiannahme.h"
#include "fenstertest.h"
#include "kindprozess.h"
#include "rufleitung_posix.h"
#include "rufworte.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include <poll.h>
#include <sys/stat.h>

namespace varnoth {

using pruefung::AlsNutzer;
using pruefung::WarteBis;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Zeit Kurz = std::chrono::milliseconds(200);

std::string LangerPfad(std::size_t laenge) {
    std::string pfad;
    while (pfad.size() < laenge)
        pfad += "/" + std::string(99, 'x');
    return pfad.substr(0, laenge);
}

/// A call that says what it likes.
class Anrufer {
public:
    explicit Anrufer(const QString& ort) {
        const auto adresse = Rufadresse(ort);
        EXPECT_TRUE(adresse && ::connect(leitung.Nummer(), AlsAdresse(*adresse), sizeof *adresse) == 0);
    }
    void Sage(const std::string& bytes) const { EXPECT_TRUE(Sende(leitung, bytes)); }
    void SageEnde() const { EXPECT_EQ(::shutdown(leitung.Nummer(), SHUT_WR), 0); }
    /// Everything that is answered until the other side hangs up.
    std::string Antwort() const {
        std::string antwort;
        bool ende = false;
        EXPECT_TRUE(WarteBis([&] {
            char puffer[64];
            const ssize_t stueck = ::read(leitung.Nummer(), puffer, sizeof puffer);
            if (stueck > 0)
                antwort.append(puffer, static_cast<std::size_t>(stueck));
            ende = stueck == 0 || (stueck < 0 && errno == ECONNRESET);
            return ende;
        }));
        return antwort;
    }

private:
    Deskriptor leitung = NeueRufleitung();
};

} // namespace

class Dateiuebergabe : public testing::Test {
protected:
    void Hoere(Zeit laengsterSatz = Kurz) {
        annahme.reset();
        annahme = std::make_unique<Dateiannahme>(
            ort, Dateiannahme::Ziel{.bereit = [this] { return bereit; },
                                    .oeffne = [this](const std::string& pfad) { pfade.push_back(pfad); },
                                    .laengsterSatz = laengsterSatz});
    }
    /// What a second start hears, while events run in this one.
    bool Uebergib(const std::string& pfad) {
        auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, pfad); });
        EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
        return antwort.get();
    }
    /// Calls and hangs up until the system lets nobody else wait.
    void LassSoVieleWartenWieMoeglich() const {
        const auto adresse = Rufadresse(ort);
        ASSERT_TRUE(adresse);
        int ergebnis = 0;
        for (int i = 0; i < 1000 && ergebnis == 0; ++i) {
            const Deskriptor leitung = NeueRufleitung();
            ergebnis = ::connect(leitung.Nummer(), AlsAdresse(*adresse), sizeof *adresse);
        }
        EXPECT_EQ(ergebnis, -1);
        EXPECT_EQ(errno, EAGAIN);
    }
    /// Leaves what a program that died leaves.
    void Hinterlasse() const {
        const auto adresse = Rufadresse(ort);
        ASSERT_TRUE(adresse);
        const Deskriptor tote = NeueRufleitung();
        ASSERT_EQ(::bind(tote.Nummer(), AlsAdresse(*adresse), sizeof *adresse), 0);
    }
    mode_t Rechte() const {
        struct stat stand {};
        return lstat(QFile::encodeName(ort).constData(), &stand) == 0 ? stand.st_mode & 0777 : 0;
    }

    QTemporaryDir ordner;
    QString ort = ordner.filePath(QStringLiteral("varnoth.socket"));
    bool bereit = true;
    std::vector<std::string> pfade;
    std::unique_ptr<Dateiannahme> annahme;
};

TEST_F(Dateiuebergabe, A_path_arrives_as_it_was_given_whatever_stands_in_it) {
    const std::vector<std::string> alle{"/a.con", "/a folder/b  c.con", "/Anlage Süd/Prüfung №1.con",
                                        "/two\nlines.con", LangerPfad(4096)};
    Hoere();
    for (const std::string& pfad : alle)
        EXPECT_TRUE(Uebergib(pfad)) << pfad;
    EXPECT_EQ(pfade, alle);
}

TEST_F(Dateiuebergabe, A_program_that_opens_nothing_any_more_refuses) {
    Hoere();
    bereit = false;
    EXPECT_FALSE(Uebergib("/a.con"));
    EXPECT_THAT(pfade, IsEmpty());
}

TEST_F(Dateiuebergabe, Where_nobody_listens_the_wait_ends) {
    EXPECT_FALSE(UebergibDatei(ort, "/a.con", Kurz));
    EXPECT_FALSE(UebergibDatei(QString(), "/a.con", Kurz));
}

TEST_F(Dateiuebergabe, A_program_that_hangs_is_not_waited_for_and_does_not_open_the_file_when_it_wakes) {
    Hoere();
    EXPECT_FALSE(UebergibDatei(ort, "/a.con", Kurz));
    EXPECT_TRUE(Uebergib("/b.con"));
    EXPECT_THAT(pfade, ElementsAre("/b.con"));
}

TEST_F(Dateiuebergabe,
       A_program_that_hangs_with_as_many_waiting_as_can_is_not_waited_for_and_serves_all_when_it_wakes) {
    Hoere();
    LassSoVieleWartenWieMoeglich();
    EXPECT_FALSE(UebergibDatei(ort, "/a.con", Kurz));
    auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, "/b.con"); });
    EXPECT_EQ(antwort.wait_for(Kurz), std::future_status::timeout);
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
    EXPECT_TRUE(antwort.get());
    EXPECT_THAT(pfade, ElementsAre("/b.con"));
}

TEST_F(Dateiuebergabe, A_program_that_is_just_starting_is_waited_for) {
    auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, "/a.con"); });
    EXPECT_EQ(antwort.wait_for(Kurz), std::future_status::timeout);
    Hoere();
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
    EXPECT_TRUE(antwort.get());
}

TEST_F(Dateiuebergabe, A_program_that_starts_where_one_died_is_waited_for) {
    Hinterlasse();
    auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, "/a.con"); });
    EXPECT_EQ(antwort.wait_for(Kurz), std::future_status::timeout);
    Hoere();
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
    EXPECT_TRUE(antwort.get());
}

TEST_F(Dateiuebergabe, What_is_no_path_is_refused) {
    using namespace std::string_literals;
    const std::string gruss(Rufgruss);
    const std::string rufe[] = {"",
                                "/a.con",
                                gruss,
                                gruss + "a.con",
                                gruss + "/a\0b.con"s,
                                gruss + "/a\xFF.con",
                                gruss + LangerPfad(80'000)};
    Hoere();
    for (const std::string& ruf : rufe) {
        const Anrufer anrufer(ort);
        anrufer.Sage(ruf);
        anrufer.SageEnde();
        EXPECT_EQ(anrufer.Antwort(), RufAbgelehnt) << ruf.substr(0, 40);
    }
    EXPECT_THAT(pfade, IsEmpty());
}

TEST_F(Dateiuebergabe, A_caller_who_does_not_come_to_an_end_is_hung_up_on) {
    Hoere();
    const Anrufer stumm(ort);
    const Anrufer halb(ort);
    halb.Sage(std::string(Rufgruss) + "/a.con");
    EXPECT_EQ(stumm.Antwort(), "");
    EXPECT_EQ(halb.Antwort(), "");
    EXPECT_THAT(pfade, IsEmpty());
    EXPECT_TRUE(Uebergib("/b.con"));
}

TEST_F(Dateiuebergabe, Callers_at_the_same_time_are_all_served) {
    Hoere();
    const Anrufer eins(ort);
    const Anrufer zwei(ort);
    eins.Sage(std::string(Rufgruss) + "/eins");
    zwei.Sage(std::string(Rufgruss) + "/zwei.con");
    zwei.SageEnde();
    EXPECT_EQ(zwei.Antwort(), RufAngenommen);
    eins.Sage(".con");
    eins.SageEnde();
    EXPECT_EQ(eins.Antwort(), RufAngenommen);
    EXPECT_THAT(pfade, ElementsAre("/zwei.con", "/eins.con"));
}

TEST_F(Dateiuebergabe, Of_callers_who_say_nothing_only_a_few_are_heard_at_a_time) {
    Hoere(std::chrono::hours(1));
    std::vector<std::unique_ptr<Anrufer>> stumme;
    for (int i = 0; i < 8; ++i)
        stumme.push_back(std::make_unique<Anrufer>(ort));
    EXPECT_EQ(Anrufer(ort).Antwort(), "");
    stumme.pop_back();
    EXPECT_TRUE(WarteBis([&] { return Uebergib("/a.con"); }));
}

TEST_F(Dateiuebergabe, What_a_program_that_died_has_left_is_replaced) {
    Hinterlasse();
    Hoere();
    EXPECT_TRUE(Uebergib("/a.con"));
}

TEST_F(Dateiuebergabe, A_file_or_link_in_its_place_stays_and_nothing_listens) {
    ASSERT_TRUE(QFile(ort).open(QIODevice::WriteOnly));
    Hoere();
    EXPECT_FALSE(annahme->Hoert());
    EXPECT_TRUE(QFile::remove(ort));
    ASSERT_TRUE(QFile::link(ordner.filePath("elsewhere"), ort));
    Hoere();
    EXPECT_FALSE(annahme->Hoert());
    EXPECT_TRUE(QFile::remove(ort));
}

TEST_F(Dateiuebergabe, The_socket_is_this_users_alone_and_goes_with_the_program) {
    Hoere();
    EXPECT_TRUE(annahme->Hoert());
    EXPECT_EQ(Rechte(), 0600U);
    annahme.reset();
    EXPECT_EQ(Rechte(), 0U);
}

TEST_F(Dateiuebergabe, In_a_folder_that_others_can_enter_nothing_listens_and_nothing_is_said) {
    ASSERT_EQ(chmod(QFile::encodeName(ordner.path()).constData(), 0755), 0);
    Hoere();
    EXPECT_FALSE(annahme->Hoert());
    EXPECT_FALSE(UebergibDatei(ort, "/a.con", Kurz));
}

TEST_F(Dateiuebergabe, At_a_place_too_long_for_a_socket_nothing_listens_and_nobody_waits) {
    ort = ordner.filePath(QString(200, 'x'));
    Hoere();
    EXPECT_FALSE(annahme->Hoert());
    EXPECT_FALSE(UebergibDatei(ort, "/a.con", std::chrono::hours(1)));
}

TEST_F(Dateiuebergabe, Another_user_who_gets_at_the_socket_is_turned_away) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may become another user";
    Hoere();
    chmod(QFile::encodeName(ordner.path()).constData(), 0777);
    chmod(QFile::encodeName(ort).constData(), 0777);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::ranges::copy(QFile::encodeName(ort), adresse.sun_path);
    const auto fremder = [&] {
        const Deskriptor leitung = NeueRufleitung();
        if (::connect(leitung.Nummer(), AlsAdresse(adresse), sizeof adresse) != 0)
            return std::string("not connected");
        Sende(leitung, std::string(Rufgruss) + "/a.con");
        ::shutdown(leitung.Nummer(), SHUT_WR);
        pollfd eines{leitung.Nummer(), POLLIN, 0};
        char puffer[16];
        const bool kam = ::poll(&eines, 1, 5000) > 0;
        const ssize_t stueck = ::read(leitung.Nummer(), puffer, sizeof puffer);
        return std::string(kam && stueck <= 0 ? "hung up" : "answered");
    };
    auto antwort = std::async(std::launch::async, [&] { return AlsNutzer(fremder); });
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
    EXPECT_EQ(antwort.get(), "hung up");
    EXPECT_THAT(pfade, IsEmpty());
}

TEST_F(Dateiuebergabe, A_path_is_not_told_to_another_user_who_listens_there) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may become another user";
    const auto adresse = Rufadresse(ort);
    ASSERT_TRUE(adresse);
    const auto rechte = [&](mode_t welche) {
        return chmod(QFile::encodeName(ordner.path()).constData(), welche) == 0;
    };
    ASSERT_TRUE(rechte(0777));
    auto gehoert = std::async(std::launch::async, [&] {
        return AlsNutzer([&] {
            const Deskriptor tuer = NeueRufleitung();
            EXPECT_EQ(::bind(tuer.Nummer(), AlsAdresse(*adresse), sizeof *adresse), 0);
            ::listen(tuer.Nummer(), 1);
            pollfd eines{tuer.Nummer(), POLLIN, 0};
            ::poll(&eines, 1, 5000);
            const Deskriptor leitung(::accept(tuer.Nummer(), nullptr, nullptr));
            char puffer[64];
            const ssize_t stueck = ::read(leitung.Nummer(), puffer, sizeof puffer);
            return std::string(puffer, static_cast<std::size_t>(std::max<ssize_t>(stueck, 0)));
        });
    });
    ASSERT_TRUE(WarteBis([&] { return Rechte() != 0; }));
    ASSERT_TRUE(rechte(0700));
    EXPECT_FALSE(UebergibDatei(ort, "/a.con"));
    EXPECT_EQ(gehoert.get(), "");
    EXPECT_TRUE(QFile::remove(ort));
}

TEST_F(Dateiuebergabe, Opening_a_file_may_take_longer_than_a_call) {
    annahme = std::make_unique<Dateiannahme>(
        ort, Dateiannahme::Ziel{.bereit = [] { return true; },
                                .oeffne =
                                    [this](const std::string& pfad) {
                                        QTimer spaeter;
                                        spaeter.setSingleShot(true);
                                        spaeter.start(2 * std::chrono::ceil<std::chrono::milliseconds>(Kurz));
                                        EXPECT_TRUE(WarteBis([&] { return !spaeter.isActive(); }));
                                        pfade.push_back(pfad);
                                    },
                                .laengsterSatz = Kurz});
    EXPECT_TRUE(Uebergib("/a.con"));
    EXPECT_TRUE(WarteBis([this] { return !pfade.empty(); }));
    EXPECT_THAT(pfade, ElementsAre("/a.con"));
}

} // namespace varnoth
