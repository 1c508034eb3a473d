#include "speichersicherung.h"

#include "fenstertest.h"
#include "pruefdurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(SpeichersicherungTest, What_the_disk_has_already_is_not_waited_for) {
    pruefung::PruefMessquelle quelle;
    pruefung::FuelleSekunden(quelle, 2);
    std::string geschrieben;
    Speichersicherung sicherung(quelle, quelle.Spanne(), "/x.vrec",
                                [&](const std::string& pfad, std::string_view bytes) {
                                    geschrieben = pfad + std::string(bytes);
                                    return std::string();
                                });
    while (sicherung.Arbeite(std::chrono::seconds(1))) {
    }
    EXPECT_FALSE(sicherung.Arbeite(std::chrono::seconds(1))) << "all that is left is the disk's";
    ASSERT_TRUE(pruefung::WarteBis([&] { return sicherung.IstFertig(); }));
    EXPECT_GT(geschrieben.size(), std::string("/x.vrec").size());
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_TRUE(sicherung.Beende(std::chrono::seconds(20)));
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(10));
}

} // namespace varnoth
