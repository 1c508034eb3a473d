// The help as it was written: what its makers can get wrong without seeing it.

#include "hilfeseiten.h"

#include <QImage>
#include <QSet>
#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

using pruefung::Hilfeblatt;
using pruefung::Hilfequelle;
using pruefung::LiesHilfequelle;

namespace {

constexpr int GroessteBildbreite = 900;

QStringList Seitennamen(const Hilfequelle& quelle) {
    QStringList namen;
    for (const Hilfeseite& seite : quelle.inhalt)
        namen.append(seite.name);
    return namen;
}

QStringList Sortiert(QStringList liste) {
    liste.sort();
    return liste;
}

std::string Text(const QStringList& liste) {
    return liste.join(u'\n').toStdString();
}

/// "page.html#anchor", "page.html" or "#anchor", seen from a page.
bool FuehrtWohin(const Hilfequelle& quelle, const QString& von, const QString& verweis) {
    const QString datei = verweis.section(u'#', 0, 0);
    const QString anker = verweis.section(u'#', 1);
    if (!datei.isEmpty() && !datei.endsWith(".html"))
        return false;
    const QString seite = datei.isEmpty() ? von : datei.chopped(5);
    return quelle.blaetter.contains(seite) &&
           (anker.isEmpty() || quelle.blaetter.value(seite).anker.contains(anker));
}

/// Collects what a check finds on each page, as "page: find".
template<class Pruefung>
std::string AufJederSeite(const Hilfequelle& quelle, Pruefung pruefung) {
    QStringList funde;
    for (auto blatt = quelle.blaetter.begin(); blatt != quelle.blaetter.end(); ++blatt)
        for (const QString& fund : pruefung(blatt.key(), blatt.value()))
            funde.append(blatt.key() + ": " + fund);
    return Text(funde);
}

} // namespace

class Hilfeseiten : public testing::TestWithParam<const char*> {
protected:
    const Hilfequelle quelle = LiesHilfequelle(QLatin1String(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(, Hilfeseiten, testing::Values("de", "en"),
                         [](const auto& sprache) { return std::string(sprache.param); });

TEST_P(Hilfeseiten, The_contents_and_the_folder_name_the_same_pages) {
    EXPECT_EQ(Text(Sortiert(Seitennamen(quelle))), Text(QStringList(quelle.blaetter.keys())));
}

TEST_P(Hilfeseiten, Every_page_is_well_formed) {
    EXPECT_EQ(AufJederSeite(quelle,
                            [](const QString&, const Hilfeblatt& blatt) {
                                return blatt.fehler.isEmpty() ? QStringList() : QStringList{blatt.fehler};
                            }),
              "");
}

TEST_P(Hilfeseiten, Every_page_has_one_heading_of_the_first_rank) {
    EXPECT_EQ(AufJederSeite(quelle,
                            [](const QString&, const Hilfeblatt& blatt) {
                                const auto anzahl = blatt.elemente.count("h1");
                                return anzahl == 1 ? QStringList() : QStringList{QString::number(anzahl)};
                            }),
              "");
}

TEST_P(Hilfeseiten, Pages_hold_only_what_the_window_can_show) {
    static const QSet<QString> erlaubt{"html", "head", "title", "body",  "h1",  "h2", "h3", "p",
                                       "ul",   "ol",   "li",    "table", "tr",  "th", "td", "b",
                                       "i",    "code", "pre",   "a",     "img", "br"};
    EXPECT_EQ(AufJederSeite(quelle,
                            [](const QString&, const Hilfeblatt& blatt) {
                                QStringList funde = blatt.fremdes;
                                for (const QString& element : blatt.elemente)
                                    if (!erlaubt.contains(element))
                                        funde.append(element);
                                return funde;
                            }),
              "");
}

TEST_P(Hilfeseiten, Every_link_leads_to_a_page_and_a_place_on_it) {
    EXPECT_EQ(AufJederSeite(quelle,
                            [this](const QString& seite, const Hilfeblatt& blatt) {
                                QStringList funde;
                                for (const QString& verweis : blatt.verweise)
                                    if (!FuehrtWohin(quelle, seite, verweis))
                                        funde.append(verweis);
                                return funde;
                            }),
              "");
}

TEST_P(Hilfeseiten, No_anchor_stands_twice_on_a_page) {
    EXPECT_EQ(AufJederSeite(quelle,
                            [](const QString&, const Hilfeblatt& blatt) {
                                QStringList funde;
                                for (const QString& anker : QSet(blatt.anker.begin(), blatt.anker.end()))
                                    if (blatt.anker.count(anker) > 1)
                                        funde.append(anker);
                                return funde;
                            }),
              "");
}

TEST_P(Hilfeseiten, Every_picture_is_there_and_none_lies_about) {
    QSet<QString> gezeigt;
    for (const Hilfeblatt& blatt : quelle.blaetter)
        gezeigt.unite(QSet(blatt.bilder.begin(), blatt.bilder.end()));
    EXPECT_EQ(Text(Sortiert(gezeigt.values())), Text(Sortiert(quelle.bilder)));
}

TEST_P(Hilfeseiten, Every_picture_has_a_text_for_those_who_cannot_see_it) {
    EXPECT_EQ(AufJederSeite(quelle, [](const QString&, const Hilfeblatt& blatt) { return blatt.ohneErsatz; }),
              "");
}

TEST_P(Hilfeseiten, Pictures_fit_into_the_window) {
    for (const QString& bild : quelle.bilder) {
        const QImage gelesen(quelle.ordner + '/' + bild);
        EXPECT_FALSE(gelesen.isNull()) << bild.toStdString();
        EXPECT_LE(gelesen.width(), GroessteBildbreite) << bild.toStdString();
    }
}

TEST_P(Hilfeseiten, Every_example_stands_in_the_table_of_examples) {
    const QStringList verweise = quelle.blaetter.value("beispiele").verweise;
    QStringList fehlende;
    for (const QString& seite : quelle.blaetter.keys())
        if (seite.startsWith("beispiel_") && !verweise.contains(seite + ".html"))
            fehlende.append(seite);
    EXPECT_FALSE(verweise.isEmpty());
    EXPECT_EQ(Text(fehlende), "");
}

TEST_P(Hilfeseiten, Every_box_about_backups_report_comparison_and_import_has_an_entry) {
    const QStringList anker = quelle.blaetter.value("meldungen").anker;
    for (const int id : {8486, 9591, 9592, 9600, 9660, 9661, 9662, 9663, 9664, 9665, 9666, 9667, 9668, 9669,
                         9670, 9671, 9672, 9673, 9739, 9740, 9762, 9763, 9825, 9920, 9921, 9922, 9923})
        EXPECT_TRUE(anker.contains(QStringLiteral("m%1").arg(id))) << id;
}

TEST_P(Hilfeseiten, Every_form_of_the_program_has_a_page) {
    QStringList ohne;
    for (const QString& formular : pruefung::Formulare())
        if (SeiteZuFenster(quelle.inhalt, formular) == nullptr)
            ohne.append(formular);
    EXPECT_EQ(Text(ohne), "");
}

TEST_P(Hilfeseiten, No_window_leads_to_two_pages) {
    QStringList fenster;
    for (const Hilfeseite& seite : quelle.inhalt)
        fenster += seite.fenster;
    EXPECT_EQ(fenster.removeDuplicates(), 0);
}

TEST_P(Hilfeseiten, Every_setting_of_the_editor_has_a_paragraph) {
    const std::pair<const char*, const char*> seiten[] = {
        {"globalseite.ui", "einstellungen_global"},
        {"optikseite.ui", "einstellungen_optik"},
        {"kommunikationsseite.ui", "einstellungen_kommunikation"},
    };
    for (const auto& [formular, seite] : seiten)
        for (const QString& name : pruefung::Bedienelemente(QLatin1String(formular)))
            EXPECT_TRUE(quelle.blaetter.value(QLatin1String(seite)).anker.contains(OhneIndex(name)))
                << seite << ": " << name.toStdString();
}

TEST(Hilfesprachen, Both_languages_have_the_same_pages_in_the_same_order) {
    EXPECT_EQ(Text(Seitennamen(LiesHilfequelle("de"))), Text(Seitennamen(LiesHilfequelle("en"))));
}

TEST(Hilfesprachen, Both_languages_lead_the_same_windows_to_the_same_pages) {
    const Hilfequelle deutsch = LiesHilfequelle("de");
    const Hilfequelle englisch = LiesHilfequelle("en");
    EXPECT_TRUE(
        std::ranges::equal(deutsch.inhalt, englisch.inhalt, {}, &Hilfeseite::fenster, &Hilfeseite::fenster));
}

TEST(Hilfesprachen, Both_languages_have_the_same_anchors) {
    const Hilfequelle deutsch = LiesHilfequelle("de");
    const Hilfequelle englisch = LiesHilfequelle("en");
    for (auto blatt = deutsch.blaetter.begin(); blatt != deutsch.blaetter.end(); ++blatt)
        EXPECT_EQ(Text(Sortiert(blatt->anker)), Text(Sortiert(englisch.blaetter.value(blatt.key()).anker)))
            << blatt.key().toStdString();
}

} // namespace varnoth
