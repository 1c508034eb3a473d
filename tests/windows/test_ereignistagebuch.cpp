#include "ereignistagebuch.h"

#include "ereignisse.h"
#include "fenstertest.h"
#include "pruefumgebung.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string_view>

namespace varnoth {

using pruefung::WarteBis;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class EreignistagebuchTest : public testing::Test {
protected:
    static void Notiere(const std::string& text) {
        modEreignisse::Merke({.art = Ereignisart::Notiz, .text = text});
    }
    std::string Ordner() const { return ordner.filePath("tage").toStdString(); }
    std::string Inhalt() const {
        std::string alles;
        for (const QString& name : QDir(ordner.filePath("tage")).entryList({"varnoth-*.txt"})) {
            QFile datei(ordner.filePath("tage/" + name));
            if (datei.open(QIODevice::ReadOnly))
                alles += datei.readAll().toStdString();
        }
        return alles;
    }
    /// Looks, and waits for what is written then.
    void Sieh(Ereignistagebuch& buch) {
        buch.Sieh();
        umgebung.ErledigeAufgeschobenes();
        EXPECT_TRUE(WarteBis([&] { return !buch.Schreibt(); }));
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    QTemporaryDir ordner;
    bool angelegt = QDir(ordner.path()).mkdir("tage");
};

TEST_F(EreignistagebuchTest, Writes_nothing_unless_it_is_asked_to) {
    Ereignistagebuch buch;
    Notiere("a");
    Sieh(buch);
    EXPECT_FALSE(buch.Stand().laeuft);
    EXPECT_EQ(Inhalt(), "");
}

TEST_F(EreignistagebuchTest, Appends_what_happens_from_now_on_while_the_line_is_busy_and_not_before) {
    Notiere("vorher");
    Ereignistagebuch buch;
    buch.Setze(true, Ordner());
    Notiere("a");
    buch.Sieh();
    EXPECT_EQ(Inhalt(), "");
    umgebung.ErledigeAufgeschobenes();
    EXPECT_TRUE(WarteBis([&] { return Inhalt().ends_with("  Notiz: a\n"); }));
    EXPECT_TRUE(WarteBis([&] { return !buch.Schreibt(); }));
    Notiere("b");
    Sieh(buch);
    EXPECT_THAT(Inhalt(), HasSubstr("  Notiz: a\n"));
    EXPECT_THAT(Inhalt(), EndsWith("  Notiz: b\n"));
    EXPECT_THAT(Inhalt(), Not(HasSubstr("vorher")));
    EXPECT_THAT(buch.Stand().datei, HasSubstr("/tage/varnoth-20"));
}

TEST_F(EreignistagebuchTest, Goes_on_in_a_later_run_until_it_is_ended) {
    Ereignistagebuch().Setze(true, Ordner());
    Ereignistagebuch spaeteres;
    EXPECT_TRUE(spaeteres.Stand().laeuft);
    Notiere("a");
    Sieh(spaeteres);
    EXPECT_THAT(Inhalt(), EndsWith("  Notiz: a\n"));
    Notiere("b");
    spaeteres.Setze(false, Ordner());
    EXPECT_THAT(Inhalt(), EndsWith("  Notiz: b\n"));
    Notiere("c");
    Sieh(spaeteres);
    EXPECT_THAT(Inhalt(), Not(HasSubstr("  Notiz: c\n")));
    EXPECT_FALSE(Ereignistagebuch().Stand().laeuft);
    EXPECT_EQ(Ereignistagebuch().Stand().ordner, Ordner());
}

TEST_F(EreignistagebuchTest, Says_once_that_it_cannot_write_and_writes_all_when_it_can_again) {
    Ereignistagebuch buch;
    buch.Setze(true, Ordner());
    QDir(ordner.path()).rmdir("tage");
    Notiere("a");
    Sieh(buch);
    EXPECT_EQ(buch.Stand().fehler, "Der Ordner ist nicht vorhanden.");
    EXPECT_EQ(umgebung.statustexte[FeldMeldungen - 1],
              "Tagesdatei nicht geschrieben: Der Ordner ist nicht vorhanden.");
    umgebung.statustexte[FeldMeldungen - 1] = "etwas anderes";
    Notiere("b");
    Sieh(buch);
    EXPECT_EQ(umgebung.statustexte[FeldMeldungen - 1], "etwas anderes");
    EXPECT_TRUE(umgebung.meldungen.empty());
    QDir(ordner.path()).mkdir("tage");
    Sieh(buch);
    EXPECT_EQ(buch.Stand().fehler, "");
    EXPECT_THAT(Inhalt(), HasSubstr("  Notiz: a\n"));
    EXPECT_THAT(Inhalt(), EndsWith("  Notiz: b\n"));
}

TEST_F(EreignistagebuchTest, A_full_file_is_said_and_stays_as_it_is) {
    Ereignistagebuch buch(60);
    buch.Setze(true, Ordner());
    Notiere("a");
    Sieh(buch);
    const std::string vorher = Inhalt();
    EXPECT_THAT(vorher, EndsWith("  Notiz: a\n"));
    Notiere(std::string(50, 'b'));
    Sieh(buch);
    EXPECT_EQ(Inhalt(), vorher);
    EXPECT_THAT(buch.Stand().fehler, HasSubstr("Die Tagesdatei ist voll (0 MB): "));
}

TEST_F(EreignistagebuchTest, Writes_all_that_is_due_at_the_end_of_the_program) {
    Ereignistagebuch buch;
    buch.Setze(true, Ordner());
    for (int i = 0; i < 1200; ++i)
        Notiere(std::to_string(i));
    buch.SchreibeAlles();
    EXPECT_THAT(Inhalt(), EndsWith("  Notiz: 1199\n"));
    EXPECT_THAT(Inhalt(), HasSubstr("  Notiz: 0\n"));
}

/// A disk that answers once it is let go, and notes what it was given.
struct StummePlatte {
    Anhaengeergebnis Nimm(std::string_view bytes) {
        const std::lock_guard gesperrt(tor);
        inhalt += bytes;
        return {};
    }
    std::mutex tor;
    std::string inhalt;
};

class StummesTagebuchTest : public EreignistagebuchTest {
protected:
    Tagebuchschreiber::Weg Weg() const {
        return [platte = platte](const std::string&, std::string_view bytes, std::size_t) {
            return platte->Nimm(bytes);
        };
    }

    const std::shared_ptr<StummePlatte> platte = std::make_shared<StummePlatte>();
    std::unique_lock<std::mutex> stumm{platte->tor};
};

TEST_F(StummesTagebuchTest, A_disk_that_does_not_answer_holds_up_nobody_and_is_told_once) {
    umgebung.uhr = std::chrono::hours(1);
    Ereignistagebuch buch(Ereignistagebuch::GroessteDatei, Weg());
    buch.Setze(true, Ordner());
    Notiere("a");
    buch.Sieh();
    umgebung.ErledigeAufgeschobenes();
    EXPECT_TRUE(buch.Schreibt());
    buch.Sieh();
    EXPECT_EQ(buch.Stand().fehler, "") << "not for long";
    umgebung.uhr += std::chrono::seconds(4);
    buch.Sieh();
    EXPECT_EQ(buch.Stand().fehler, "Der Datenträger antwortet nicht.");
    EXPECT_EQ(umgebung.statustexte[FeldMeldungen - 1],
              "Tagesdatei nicht geschrieben: Der Datenträger antwortet nicht.");
    umgebung.statustexte[FeldMeldungen - 1] = "etwas anderes";
    Notiere("b");
    buch.Sieh();
    EXPECT_EQ(umgebung.statustexte[FeldMeldungen - 1], "etwas anderes");
    stumm.unlock();
    ASSERT_TRUE(WarteBis([&] {
        buch.Sieh();
        umgebung.ErledigeAufgeschobenes();
        const std::lock_guard gesperrt(platte->tor);
        return platte->inhalt.ends_with("  Notiz: b\n") && !buch.Schreibt();
    }));
    EXPECT_EQ(buch.Stand().fehler, "");
    EXPECT_EQ(std::ranges::count(platte->inhalt, '\n'), 2) << "each once";
}

TEST_F(StummesTagebuchTest, It_holds_up_the_end_of_the_program_for_seconds_only) {
    QElapsedTimer vergangen;
    {
        Ereignistagebuch buch(Ereignistagebuch::GroessteDatei, Weg());
        buch.Setze(true, Ordner());
        Notiere("a");
        vergangen.start();
        buch.SchreibeAlles();
        EXPECT_EQ(buch.Stand().fehler, "Der Datenträger antwortet nicht.");
    }
    EXPECT_LT(vergangen.elapsed(), 10'000);
}

TEST_F(StummesTagebuchTest, One_that_is_known_to_be_silent_is_not_waited_for_when_writing_ends) {
    Ereignistagebuch buch(Ereignistagebuch::GroessteDatei, Weg());
    buch.Setze(true, Ordner());
    Notiere("a");
    buch.Sieh();
    umgebung.ErledigeAufgeschobenes();
    umgebung.uhr += std::chrono::seconds(4);
    QElapsedTimer vergangen;
    vergangen.start();
    buch.Setze(false, Ordner());
    EXPECT_LT(vergangen.elapsed(), 2'000);
    EXPECT_FALSE(buch.Stand().laeuft);
}

} // namespace varnoth
