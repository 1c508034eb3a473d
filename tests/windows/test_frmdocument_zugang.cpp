// The view as a screen reader gets it.

#include "ansager.h"
#include "frmdocumenttest.h"

#include <QAccessible>

#include <vector>

using namespace varnoth;
using std::chrono::milliseconds;

namespace {

class FrmDocumentZugang : public pruefung::FrmDocumentTest {
protected:
    void Miss(std::int32_t ersterWert) {
        SetzeMesswerte(ersterWert, 20, 30);
        Scan({0, 1}, {3});
    }
    QString Name(const char* feld) {
        return QAccessible::queryAccessibleInterface(&Feld(feld))->text(QAccessible::Name);
    }
    /// Every name below an element of the tree.
    static QStringList AlleNamen(QAccessibleInterface* element) {
        QStringList namen{element->text(QAccessible::Name)};
        for (int kind = 0; kind < element->childCount(); ++kind)
            namen += AlleNamen(element->child(kind));
        return namen;
    }
    void Hoere() {
        Ansager::SetzeHoerer([this](const QAccessibleEvent& ereignis) {
            if (ereignis.type() == QAccessible::NameChanged)
                gehoert.push_back(ereignis.object());
        });
    }
    ~FrmDocumentZugang() override { Ansager::SetzeHoerer({}); }

    std::vector<QObject*> gehoert;
};

} // namespace

TEST_F(FrmDocumentZugang, A_value_is_named_by_caption_number_and_position) {
    Miss(7);
    EXPECT_EQ(Name("lblInhaltTU"), "TU 7, 120 mm");
    EXPECT_EQ(Name("lblInhaltZU"), "ZU 9");
    EXPECT_EQ(Name("lblInhaltBlankingStrahlenMax"), "Anzahl der geblankten Strahlen 1");
}

TEST_F(FrmDocumentZugang, The_number_can_be_got_alone) {
    Miss(7);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Feld("lblInhaltTU"))->text(QAccessible::Value), "7");
}

TEST_F(FrmDocumentZugang, Values_stand_in_the_tree_below_the_view) {
    Zeige();
    Miss(7);
    const QStringList namen = AlleNamen(QAccessible::queryAccessibleInterface(sicht));
    EXPECT_TRUE(namen.contains("TU 7, 120 mm")) << namen.join(" | ").toStdString();
    EXPECT_TRUE(namen.contains("ZNU 12")) << namen.join(" | ").toStdString();
}

TEST_F(FrmDocumentZugang, A_missing_value_is_told_as_missing) {
    EXPECT_EQ(Name("lblInhaltTU"), "TU: Keine aktuellen Werte");
    Miss(7);
    sicht->VerwirfWerte();
    EXPECT_EQ(Name("lblInhaltTU"), "TU: Keine aktuellen Werte");
}

TEST_F(FrmDocumentZugang, An_old_value_is_told_with_its_age) {
    Zeige();
    Miss(7);
    umgebung.uhr += milliseconds(3000);
    ASSERT_TRUE(pruefung::WarteBis([this] { return Balken().Stand() == Datenstand::Veraltet; }, 3000));
    EXPECT_EQ(Name("lblInhaltTU"), "TU 7, 120 mm, vor 3 s");
    Miss(8);
    EXPECT_EQ(Name("lblInhaltTU"), "TU 8, 140 mm");
}

TEST_F(FrmDocumentZugang, A_change_raises_an_event) {
    Zeige();
    Miss(7);
    Hoere();
    umgebung.uhr += milliseconds(600);
    Miss(8);
    EXPECT_TRUE(pruefung::WarteBis(
        [this] { return std::ranges::find(gehoert, &Feld("lblInhaltTU")) != gehoert.end(); }, 3000));
}

TEST_F(FrmDocumentZugang, The_last_change_before_silence_is_told_too) {
    Zeige();
    Miss(7);
    Hoere();
    umgebung.uhr += milliseconds(600);
    ASSERT_TRUE(pruefung::WarteBis([this] { return !gehoert.empty(); }, 3000));
    gehoert.clear();
    sicht->VerwirfWerte();
    EXPECT_FALSE(pruefung::WarteBis([this] { return !gehoert.empty(); }, 700)) << "too early";
    umgebung.uhr += milliseconds(600);
    EXPECT_TRUE(pruefung::WarteBis([this] { return !gehoert.empty(); }, 3000));
}

TEST_F(FrmDocumentZugang, The_beams_are_described_with_the_status) {
    Setze(spezifisch::Optikteilstatus, 4);
    Miss(7);
    const QString text = QAccessible::queryAccessibleInterface(&Balken())->text(QAccessible::Description);
    EXPECT_EQ(text, "Status: Bahn in Mitte; 20 Strahlen; unterbrochen: 3, 5–20; geblankt: 4");
}
