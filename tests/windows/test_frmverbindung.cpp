#include "verbindungsfenstertest.h"

#include <QTabWidget>
#include <QTest>

namespace varnoth {

using pruefung::EinAdapter;

class FrmVerbindungTest : public pruefung::VerbindungsfensterTest {};

TEST_F(FrmVerbindungTest, It_opens_at_the_page_that_is_wanted) {
    EXPECT_EQ(Teil<QTabWidget>("tbsVerbindung").currentWidget()->objectName(), "Anschlussseite");
    Fenster().Schlage(Verbindungsseite::Suche);
    EXPECT_EQ(Teil<QTabWidget>("tbsVerbindung").currentWidget()->objectName(), "Suchseite");
    Fenster().Schlage(Verbindungsseite::Leitung);
    EXPECT_EQ(Teil<QTabWidget>("tbsVerbindung").currentWidget()->objectName(), "Leitungsseite");
}

TEST_F(FrmVerbindungTest, Closing_it_ends_what_it_has_asked_for) {
    Fenster().close();
    EXPECT_EQ(leitung.abbrueche, 1);
}

TEST_F(FrmVerbindungTest, Escape_closes_it) {
    Fenster().activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([this] { return Fenster().isActiveWindow(); }));
    QTest::keyClick(&Fenster(), Qt::Key_Escape);
    EXPECT_FALSE(Fenster().isVisible());
}

TEST_F(FrmVerbindungTest, It_comes_back_where_it_was) {
    Fenster().resize(790, 590);
    Fenster().close();
    fenster.reset();
    EXPECT_EQ(Fenster().size(), QSize(790, 590));
}

TEST_F(FrmVerbindungTest, All_its_texts_follow_the_language) {
    leitung.ports = {EinAdapter()};
    EXPECT_EQ(Fenster().windowTitle(), "Verbindung einrichten");
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_EQ(Fenster().windowTitle(), "Set up the connection");
    EXPECT_EQ(Teil<QTabWidget>("tbsVerbindung").tabText(1), "&Find controller");
    EXPECT_EQ(Zelle("lstPorts", 0, 2), "free");
    EXPECT_EQ(Text("lblFormatbefund"), "holds for all four");
    EXPECT_EQ(Knopf("cmdGeben").text(), "&Give the chosen device to COM1");
    EXPECT_EQ(Liste("lstPorts").headerItem()->text(1), "What it is");
}

TEST_F(FrmVerbindungTest, Every_control_has_a_name) {
    for (const QWidget* element : Fenster().findChildren<QWidget*>()) {
        const bool bedienbar = qobject_cast<const QAbstractButton*>(element) != nullptr ||
                               qobject_cast<const QComboBox*>(element) != nullptr ||
                               qobject_cast<const QTreeWidget*>(element) != nullptr ||
                               qobject_cast<const QLabel*>(element) != nullptr;
        EXPECT_FALSE(bedienbar && element->objectName().isEmpty()) << element->metaObject()->className();
    }
}

TEST_F(FrmVerbindungTest, No_key_stands_for_two_controls_of_a_page_in_either_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Fenster().Lokalisiere();
        QSet<QKeySequence> rahmen{QKeySequence::mnemonic(Knopf("cmdSchliessen").text())};
        auto& reiter = Teil<QTabWidget>("tbsVerbindung");
        for (int i = 0; i < reiter.count(); ++i)
            rahmen.insert(QKeySequence::mnemonic(reiter.tabText(i)));
        EXPECT_EQ(rahmen.size(), 4);
        for (int i = 0; i < reiter.count(); ++i) {
            QSet<QKeySequence> tasten = rahmen;
            QStringList texte;
            for (const auto* knopf : reiter.widget(i)->findChildren<QPushButton*>())
                texte.append(knopf->text());
            for (const auto* label : reiter.widget(i)->findChildren<QLabel*>())
                if (label->buddy() != nullptr)
                    texte.append(label->text());
            for (const QString& text : texte) {
                const QKeySequence taste = QKeySequence::mnemonic(text);
                EXPECT_FALSE(taste.isEmpty() || tasten.contains(taste)) << text.toStdString();
                tasten.insert(taste);
            }
        }
    }
}

} // namespace varnoth
