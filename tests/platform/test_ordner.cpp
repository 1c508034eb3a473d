#include "ordner.h"

#include "dateiprobe.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace varnoth {

class Ordner : public pruefung::Dateiprobe {};

TEST_F(Ordner, Is_made_with_all_above_it_and_is_no_error_when_it_is_there) {
    EXPECT_EQ(LegeOrdnerAn(Pfad("Süd/b/c")), 0);
    EXPECT_TRUE(QDir(QString::fromStdString(Pfad("Süd/b/c"))).exists());
    EXPECT_EQ(LegeOrdnerAn(Pfad("Süd/b/c")), 0);
    EXPECT_EQ(LegeOrdnerAn(Pfad("Süd/b/d/")), 0);
}

TEST_F(Ordner, Where_a_file_stands_in_its_way_that_is_said) {
    ErsetzeDatei(Pfad("a"), "x");
    EXPECT_EQ(LegeOrdnerAn(Pfad("a")), ENOTDIR);
    EXPECT_EQ(LegeOrdnerAn(Pfad("a/b/c")), ENOTDIR);
}

TEST_F(Ordner, Can_be_written_where_files_can_be_made_and_nothing_is_left_of_the_question) {
    EXPECT_TRUE(IstBeschreibbar(ordner.path()));
    EXPECT_TRUE(Namen().isEmpty());
    EXPECT_FALSE(IstBeschreibbar(ordner.filePath(QStringLiteral("not-there"))));
}

} // namespace varnoth
