#include "dateiuebergabe.h"

#include "dateiannahme.h"
#include "fenstertest.h"
#include "griff_windows.h"
#include "rufrohr_windows.h"
#include "rufworte.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <future>
#include <memory>
#include <string>
#include <vector>

namespace varnoth {

using pruefung::WarteBis;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Zeit Kurz = std::chrono::milliseconds(200);
constexpr Zeit Lang = std::chrono::seconds(30); // on a busy machine Wine takes seconds for a call
constexpr int LangMs = 60000;

std::string LangerPfad(std::size_t laenge) {
    std::string pfad = "C:";
    while (pfad.size() < laenge)
        pfad += "/" + std::string(99, 'x');
    return pfad.substr(0, laenge);
}

Griff Rufe(const QString& ort) {
    return Griff(::CreateFileW(Rohrname(ort).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                               FILE_FLAG_OVERLAPPED, nullptr));
}

/// Not so on Windows; Wine 8 knows no better.
bool ZweiProgrammeKoennenDasselbeRohrHaben() {
    const auto mache = [] {
        return Griff(::CreateNamedPipeW(L"\\\\.\\pipe\\varnoth-test-first",
                                        PIPE_ACCESS_DUPLEX | FILE_FLAG_FIRST_PIPE_INSTANCE, PIPE_TYPE_BYTE, 2,
                                        64, 64, 0, nullptr));
    };
    const Griff erstes = mache();
    return static_cast<bool>(mache());
}

/// A call that says what it likes.
class Anrufer {
public:
    explicit Anrufer(const QString& ort) : ende(Rufe(ort)) {}
    bool IstVerbunden() const { return ende.Wert() != nullptr; }
    /// Whether it could be said before the other side hung up.
    bool Sage(const std::string& bytes) {
        ende.Sende(bytes);
        EXPECT_TRUE(WarteBis([this] { return ende.Stand() != Rufstand::Laeuft; }));
        return ende.Stand() == Rufstand::Fertig;
    }
    /// What is answered until the other side hangs up.
    std::string Antwort() {
        ende.Lies(64);
        EXPECT_TRUE(WarteBis([this] { return ende.Stand() != Rufstand::Laeuft; }));
        return std::string(ende.Gelesenes());
    }

private:
    Rohrende ende;
};

} // namespace

class Rohruebergabe : public testing::Test {
protected:
    void Hoere(Zeit laengsterSatz = std::chrono::seconds(10)) {
        annahme.reset();
        annahme = std::make_unique<Dateiannahme>(ort, Ziel(laengsterSatz));
    }
    Dateiannahme::Ziel Ziel(Zeit laengsterSatz) {
        return {.bereit = [this] { return bereit; },
                .oeffne = [this](const std::string& pfad) { pfade.push_back(pfad); },
                .laengsterSatz = laengsterSatz};
    }
    /// What a second start hears, while events run in this one.
    bool Uebergib(const std::string& pfad) {
        auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, pfad, Lang); });
        EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }, LangMs));
        return antwort.get();
    }

    QTemporaryDir ordner;
    QString ort = ordner.filePath(QStringLiteral("varnoth.socket"));
    bool bereit = true;
    std::vector<std::string> pfade;
    std::unique_ptr<Dateiannahme> annahme;
};

TEST_F(Rohruebergabe, A_path_arrives_as_it_was_given_whatever_stands_in_it) {
    const std::vector<std::string> alle{"C:/a.con", "D:\\a folder\\b  c.con", "C:/Anlage Süd/Prüfung №1.con",
                                        "//server/share/a.con", LangerPfad(4096)};
    Hoere();
    EXPECT_TRUE(annahme->Hoert());
    for (const std::string& pfad : alle)
        EXPECT_TRUE(Uebergib(pfad)) << pfad;
    EXPECT_EQ(pfade, alle);
}

TEST_F(Rohruebergabe, A_program_that_opens_nothing_any_more_refuses) {
    Hoere();
    bereit = false;
    EXPECT_FALSE(Uebergib("C:/a.con"));
    EXPECT_THAT(pfade, IsEmpty());
}

TEST_F(Rohruebergabe, Where_nobody_listens_the_wait_ends) {
    EXPECT_FALSE(UebergibDatei(ort, "C:/a.con", Kurz));
    EXPECT_FALSE(UebergibDatei(QString(), "C:/a.con", std::chrono::hours(1)));
}

TEST_F(Rohruebergabe, A_program_that_hangs_is_not_waited_for_and_does_not_open_the_file_when_it_wakes) {
    Hoere();
    EXPECT_FALSE(UebergibDatei(ort, "C:/a.con", Kurz));
    EXPECT_TRUE(Uebergib("C:/b.con"));
    EXPECT_THAT(pfade, ElementsAre("C:/b.con"));
}

TEST_F(Rohruebergabe, A_program_that_is_just_starting_is_waited_for) {
    auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, "C:/a.con", Lang); });
    EXPECT_EQ(antwort.wait_for(Kurz), std::future_status::timeout);
    Hoere();
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }, LangMs));
    EXPECT_TRUE(antwort.get());
}

TEST_F(Rohruebergabe, What_is_no_path_is_refused) {
    using namespace std::string_literals;
    const std::string gruss(Rufgruss);
    const std::string rufe[] = {"C:/a.con", gruss, gruss + "a.con", gruss + "C:/a\0b.con"s,
                                gruss + "C:/a\xFF.con"};
    Hoere(std::chrono::seconds(10));
    for (const std::string& ruf : rufe) {
        Anrufer anrufer(ort);
        EXPECT_TRUE(anrufer.Sage(ruf));
        EXPECT_EQ(anrufer.Antwort(), RufAbgelehnt) << ruf.substr(0, 40);
    }
    EXPECT_THAT(pfade, IsEmpty());
}

TEST_F(Rohruebergabe, Who_says_more_than_a_path_can_hold_is_hung_up_on) {
    Hoere(std::chrono::seconds(10));
    Anrufer anrufer(ort);
    anrufer.Sage(std::string(Rufgruss) + LangerPfad(80'000));
    EXPECT_NE(anrufer.Antwort(), RufAngenommen);
    EXPECT_THAT(pfade, IsEmpty());
    EXPECT_TRUE(Uebergib("C:/b.con"));
}

TEST_F(Rohruebergabe, A_caller_who_says_nothing_is_hung_up_on) {
    Hoere(Kurz);
    Anrufer stumm(ort);
    ASSERT_TRUE(stumm.IstVerbunden());
    EXPECT_EQ(stumm.Antwort(), "");
    EXPECT_TRUE(Uebergib("C:/b.con"));
    EXPECT_THAT(pfade, ElementsAre("C:/b.con"));
}

TEST_F(Rohruebergabe, Of_callers_who_say_nothing_only_a_few_are_heard_at_a_time) {
    Hoere(std::chrono::hours(1));
    std::vector<std::unique_ptr<Anrufer>> stumme;
    while (stumme.size() < HoechstensAnrufe) {
        std::unique_ptr<Anrufer> naechster;
        ASSERT_TRUE(WarteBis([&] {
            naechster = std::make_unique<Anrufer>(ort);
            return naechster->IstVerbunden();
        }));
        stumme.push_back(std::move(naechster));
    }
    auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, "C:/a.con", Kurz); });
    EXPECT_TRUE(WarteBis([&] { return antwort.wait_for(Zeit(0)) == std::future_status::ready; }));
    EXPECT_FALSE(antwort.get());
    stumme.pop_back();
    EXPECT_TRUE(Uebergib("C:/b.con"));
    EXPECT_THAT(pfade, ElementsAre("C:/b.con"));
}

TEST_F(Rohruebergabe, Where_another_program_listens_already_nothing_listens_until_that_has_gone) {
    if (ZweiProgrammeKoennenDasselbeRohrHaben())
        GTEST_SKIP() << "this system does not keep two programs from making the same pipe";
    Hoere();
    auto zweite = std::make_unique<Dateiannahme>(ort, Ziel(Kurz));
    EXPECT_FALSE(zweite->Hoert());
    annahme.reset();
    zweite = std::make_unique<Dateiannahme>(ort, Ziel(Kurz));
    EXPECT_TRUE(zweite->Hoert());
}

TEST_F(Rohruebergabe, The_place_names_the_pipe_and_no_place_names_none) {
    EXPECT_NE(Rohrname(ort), Rohrname(ordner.filePath("other.socket")));
    EXPECT_EQ(Rohrname(ort), Rohrname(ort.toUpper()));
    EXPECT_EQ(Rohrname(QString()), L"");
    EXPECT_FALSE(Dateiannahme(QString(), Ziel(Kurz)).Hoert());
}

TEST_F(Rohruebergabe, Opening_a_file_may_take_longer_than_a_call) {
    annahme = std::make_unique<Dateiannahme>(
        ort, Dateiannahme::Ziel{.bereit = [] { return true; },
                                .oeffne =
                                    [this](const std::string& pfad) {
                                        QTimer spaeter;
                                        spaeter.setSingleShot(true);
                                        spaeter.start(std::chrono::seconds(3));
                                        EXPECT_TRUE(WarteBis([&] { return !spaeter.isActive(); }));
                                        pfade.push_back(pfad);
                                    },
                                .laengsterSatz = std::chrono::seconds(2)});
    EXPECT_TRUE(Uebergib("C:/a.con"));
    EXPECT_TRUE(WarteBis([this] { return !pfade.empty(); }));
    EXPECT_THAT(pfade, ElementsAre("C:/a.con"));
}

} // namespace varnoth
