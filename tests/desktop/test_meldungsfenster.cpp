#include "meldungsfenster.h"

#include "fenstertest.h"
#include "qttexte.h"
#include "symbolbild.h"
#include "texte.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace varnoth {

namespace {

Antwort Beantworte(const Meldung& meldung, const std::function<void(QMessageBox&)>& tat) {
    QTimer::singleShot(0, qApp, [tat] {
        if (auto* fenster = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            tat(*fenster);
    });
    return ZeigeMeldungsfenster(meldung);
}

void Druecke(QMessageBox& fenster, QMessageBox::StandardButton knopf) {
    fenster.button(knopf)->click();
}

} // namespace

TEST(Meldungsfenster, Shows_text_title_and_sign) {
    Beantworte({.text = "Zeile 1\nZeile 2", .titel = "Achtung"}, [](QMessageBox& fenster) {
        EXPECT_EQ(fenster.text(), "Zeile 1\nZeile 2");
        EXPECT_EQ(fenster.windowTitle(), "Achtung");
        EXPECT_EQ(fenster.icon(), QMessageBox::Warning);
        fenster.accept();
    });
}

TEST(Meldungsfenster, A_question_shows_a_question_mark_and_a_plain_notice_no_sign) {
    const std::pair<Symbol, QMessageBox::Icon> faelle[] = {{Symbol::Frage, QMessageBox::Question},
                                                           {Symbol::Ohne, QMessageBox::NoIcon}};
    for (const auto& [symbol, zeichen] : faelle)
        Beantworte({.text = "x", .symbol = symbol}, [z = zeichen](QMessageBox& fenster) {
            EXPECT_EQ(fenster.icon(), z);
            fenster.accept();
        });
}

TEST(Meldungsfenster, Its_sign_is_one_of_the_programs_own_pictures) {
    const std::pair<Symbol, const char*> faelle[] = {{Symbol::Warnung, "warnung"}, {Symbol::Frage, "frage"}};
    for (const auto& [symbol, name] : faelle)
        Beantworte({.text = "x", .symbol = symbol}, [n = name](QMessageBox& fenster) {
            const QImage bild =
                fenster.findChild<QLabel*>("qt_msgboxex_icon_label")->pixmap(Qt::ReturnByValue).toImage();
            EXPECT_EQ(bild, Symbolbild(n).pixmap(bild.size()).toImage());
            EXPECT_GE(bild.width(), 32);
            fenster.accept();
        });
}

TEST(Meldungsfenster, Its_buttons_have_the_programs_own_pictures) {
    Beantworte({.text = "x", .knoepfe = Knoepfe::JaNeinAbbrechen}, [](QMessageBox& fenster) {
        const auto bild = [&fenster](QMessageBox::StandardButton knopf) {
            return fenster.button(knopf)->icon().pixmap(16, 16).toImage();
        };
        EXPECT_EQ(bild(QMessageBox::Yes), Symbolbild("ok").pixmap(16, 16).toImage());
        EXPECT_TRUE(bild(QMessageBox::No).isNull());
        EXPECT_EQ(bild(QMessageBox::Cancel), Symbolbild("abbrechen").pixmap(16, 16).toImage());
        fenster.accept();
    });
}

TEST(Meldungsfenster, Without_a_title_it_bears_the_programs_title) {
    Beantworte({.text = "x"}, [](QMessageBox& fenster) {
        EXPECT_EQ(fenster.windowTitle(), "Varnoth Monitor");
        fenster.accept();
    });
}

TEST(Meldungsfenster, Each_button_gives_its_answer) {
    const Meldung frage{.text = "?", .knoepfe = Knoepfe::JaNeinAbbrechen};
    const std::pair<QMessageBox::StandardButton, Antwort> faelle[] = {
        {QMessageBox::Yes, Antwort::Ja},
        {QMessageBox::No, Antwort::Nein},
        {QMessageBox::Cancel, Antwort::Abbrechen}};
    for (const auto& [knopf, antwort] : faelle)
        EXPECT_EQ(Beantworte(frage, [k = knopf](QMessageBox& fenster) { Druecke(fenster, k); }), antwort);
}

TEST(Meldungsfenster, Shows_what_explains_the_text_and_the_details_as_they_are) {
    const std::string boese = "<b>SN</b><img src=x>";
    const Meldung meldung{.text = boese, .informativtext = boese, .details = boese};
    const Antwort antwort = Beantworte(meldung, [&](QMessageBox& fenster) {
        EXPECT_EQ(fenster.informativeText().toStdString(), boese);
        EXPECT_EQ(fenster.detailedText().toStdString(), boese);
        for (const auto* beschriftung : fenster.findChildren<QLabel*>())
            EXPECT_EQ(beschriftung->textFormat(), Qt::PlainText) << beschriftung->objectName().toStdString();
        fenster.close();
    });
    EXPECT_EQ(antwort, Antwort::Ok) << "the button for the details is none to answer with";
}

TEST(Meldungsfenster, Without_an_explanation_there_is_only_the_text) {
    Beantworte({.text = "x"}, [](QMessageBox& fenster) {
        EXPECT_EQ(fenster.buttons().size(), 1);
        EXPECT_EQ(fenster.findChild<QLabel*>("qt_msgbox_informativelabel"), nullptr);
        fenster.accept();
    });
}

TEST(Meldungsfenster, Closing_a_question_is_a_cancel_and_closing_a_notice_is_an_OK) {
    const auto schliesse = [](QMessageBox& fenster) { fenster.close(); };
    EXPECT_EQ(Beantworte({.text = "?", .knoepfe = Knoepfe::OkAbbrechen}, schliesse), Antwort::Abbrechen);
    EXPECT_EQ(Beantworte({.text = "!"}, schliesse), Antwort::Ok);
}

TEST(Meldungsfenster, Enter_agrees_unless_cancel_is_preset) {
    for (const bool abbrechen : {false, true}) {
        const Meldung frage{.text = "?", .knoepfe = Knoepfe::OkAbbrechen, .abbrechenVorgegeben = abbrechen};
        const Antwort antwort = Beantworte(frage, [](QMessageBox& fenster) {
            QKeyEvent druck(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(&fenster, &druck);
        });
        EXPECT_EQ(antwort, abbrechen ? Antwort::Abbrechen : Antwort::Ok);
    }
}

TEST(Meldungsfenster, Its_buttons_are_in_the_chosen_language) {
    LadeQtTexte(Deutsch);
    Beantworte({.text = "?", .knoepfe = Knoepfe::OkAbbrechen}, [](QMessageBox& fenster) {
        EXPECT_EQ(fenster.button(QMessageBox::Cancel)->text().remove('&'), "Abbrechen");
        fenster.reject();
    });
    LadeQtTexte(Englisch);
    Beantworte({.text = "?", .knoepfe = Knoepfe::OkAbbrechen}, [](QMessageBox& fenster) {
        EXPECT_EQ(fenster.button(QMessageBox::Cancel)->text().remove('&'), "Cancel");
        fenster.reject();
    });
}

} // namespace varnoth
