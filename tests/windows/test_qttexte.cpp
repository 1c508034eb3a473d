#include "qttexte.h"

#include "texte.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::string BeschriftungVon(QMessageBox::StandardButton knopf) {
    QMessageBox box;
    box.setStandardButtons(knopf);
    return box.button(knopf)->text().toStdString();
}

} // namespace

TEST(QtTexte, The_buttons_of_message_boxes_are_German) {
    LadeQtTexte(Deutsch);
    EXPECT_EQ(BeschriftungVon(QMessageBox::Yes), "&Ja");
    EXPECT_EQ(BeschriftungVon(QMessageBox::No), "&Nein");
    EXPECT_EQ(BeschriftungVon(QMessageBox::Cancel), "Abbrechen");
}

TEST(QtTexte, The_buttons_of_message_boxes_are_English) {
    LadeQtTexte(Deutsch);
    LadeQtTexte(Englisch);
    EXPECT_EQ(BeschriftungVon(QMessageBox::Yes), "&Yes");
    EXPECT_EQ(BeschriftungVon(QMessageBox::No), "&No");
    EXPECT_EQ(BeschriftungVon(QMessageBox::Cancel), "Cancel");
}

TEST(QtTexte, An_open_box_follows_the_language) {
    LadeQtTexte(Englisch);
    QDialogButtonBox knoepfe(QDialogButtonBox::Cancel);
    LadeQtTexte(Deutsch);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(knoepfe.button(QDialogButtonBox::Cancel)->text().toStdString(), "Abbrechen");
}

TEST(QtTexte, Any_other_offset_counts_as_German) {
    LadeQtTexte(7);
    EXPECT_EQ(BeschriftungVon(QMessageBox::Yes), "&Ja");
}

TEST(QtTexte, Choosing_German_twice_and_English_once_ends_in_English) {
    LadeQtTexte(Deutsch);
    LadeQtTexte(Deutsch);
    LadeQtTexte(Englisch);
    EXPECT_EQ(BeschriftungVon(QMessageBox::Yes), "&Yes");
}

} // namespace varnoth
