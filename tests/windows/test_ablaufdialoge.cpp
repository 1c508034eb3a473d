// What all dialogs that run a procedure against the controller have in common.

#include "dialogtest.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInitHardware.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmResetHardware.h"
#include "texte.h"

#include <QKeyEvent>

#include <algorithm>

namespace varnoth {

namespace {

template<class Art>
struct Merkmale;

template<>
struct Merkmale<frmIdentifikationsAnforderung> {
    static constexpr auto name = "frmIdentifikationsAnforderung";
    static constexpr auto bestaetigen = "cmdWeiter";
    static constexpr std::int16_t titel = 7200;
    static constexpr auto tabfolge = "cmdWeiter cmdCancel";
};
template<>
struct Merkmale<frmKonfigurationLesenAusHardware> {
    static constexpr auto name = "frmKonfigurationLesenAusHardware";
    static constexpr auto bestaetigen = "cmdOK";
    static constexpr std::int16_t titel = 7000;
    static constexpr auto tabfolge = "cmdOK cmdCancel";
};
template<>
struct Merkmale<frmHoleLichtleistenInfo> {
    static constexpr auto name = "frmHoleLichtleistenInfo";
    static constexpr auto bestaetigen = "cmdWeiter";
    static constexpr std::int16_t titel = 7400;
    static constexpr auto tabfolge = "cmdWeiter cmdCancel";
};

void Druecke(QWidget& fenster, Qt::Key taste) {
    QWidget* const ziel = fenster.focusWidget() ? fenster.focusWidget() : &fenster;
    QKeyEvent druck(QEvent::KeyPress, taste, Qt::NoModifier);
    QCoreApplication::sendEvent(ziel, &druck);
    QKeyEvent los(QEvent::KeyRelease, taste, Qt::NoModifier);
    QCoreApplication::sendEvent(ziel, &los);
}

/// The ways to close a dialog from inside and outside.
const std::vector<std::pair<std::string, std::function<void(QDialog&)>>> AlleSchliesswege{
    {"cancel", [](QDialog& dialog) { dialog.findChild<QPushButton*>("cmdCancel")->click(); }},
    {"Escape", [](QDialog& dialog) { Druecke(dialog, Qt::Key_Escape); }},
    {"close box", [](QDialog& dialog) { dialog.close(); }},
    {"reject", [](QDialog& dialog) { dialog.reject(); }},
    {"done", [](QDialog& dialog) { dialog.done(QDialog::Accepted); }},
};

} // namespace

template<class Art>
class AblaufdialogTest : public pruefung::DialogTest {};

using Dialoge =
    testing::Types<frmIdentifikationsAnforderung, frmKonfigurationLesenAusHardware, frmHoleLichtleistenInfo>;

struct Dialognamen {
    template<class Art>
    static std::string GetName(int /*nummer*/) {
        return Merkmale<Art>::name;
    }
};

TYPED_TEST_SUITE(AblaufdialogTest, Dialoge, Dialognamen);

TYPED_TEST(AblaufdialogTest, The_port_is_open_from_load_until_the_dialog_closes) {
    TypeParam dialog;
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    this->ZeigeBisFertig(dialog);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
    dialog.accept();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TYPED_TEST(AblaufdialogTest, A_dialog_that_was_never_shown_closes_the_port_when_it_goes) {
    { const TypeParam dialog; }
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    EXPECT_EQ(this->AnzahlAnforderungen(), 0);
}

TYPED_TEST(AblaufdialogTest, A_dialog_that_has_closed_leaves_the_port_to_the_next) {
    auto erster = std::make_unique<TypeParam>();
    erster->reject();
    const TypeParam zweiter;
    erster.reset();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), True);
}

TYPED_TEST(AblaufdialogTest, The_title_is_in_the_language_of_the_moment) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        const TypeParam dialog;
        EXPECT_EQ(dialog.windowTitle().toStdString(), LadeText(Merkmale<TypeParam>::titel));
    }
}

TYPED_TEST(AblaufdialogTest, It_opens_over_the_middle_of_its_window) {
    QWidget fenster;
    fenster.setGeometry(200, 250, 560, 440);
    fenster.show();
    TypeParam dialog(&fenster);
    dialog.show();
    const QPoint abstand = dialog.geometry().center() - fenster.geometry().center();
    EXPECT_LE(abstand.manhattanLength(), 60);
}

TYPED_TEST(AblaufdialogTest, While_the_procedure_runs_only_cancel_is_enabled) {
    TypeParam dialog;
    bool bestaetigen = true;
    bool abbrechen = false;
    this->BeiAnforderung([&](int) {
        bestaetigen = this->Bereit(dialog, Merkmale<TypeParam>::bestaetigen);
        abbrechen = this->Bereit(dialog, "cmdCancel");
    });
    this->ZeigeBisFertig(dialog);
    EXPECT_FALSE(bestaetigen);
    EXPECT_TRUE(abbrechen);
}

TYPED_TEST(AblaufdialogTest, A_finished_dialog_waits_with_its_default_button_focused) {
    TypeParam dialog;
    this->ZeigeBisFertig(dialog);
    const auto& knopf = this->template Kind<QPushButton>(dialog, Merkmale<TypeParam>::bestaetigen);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(knopf.isEnabled());
    EXPECT_TRUE(knopf.isDefault());
    EXPECT_EQ(dialog.focusWidget(), &knopf);
}

TYPED_TEST(AblaufdialogTest, Enter_confirms_a_finished_dialog) {
    TypeParam dialog;
    this->ZeigeBisFertig(dialog);
    Druecke(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TYPED_TEST(AblaufdialogTest, Enter_does_not_cancel_a_running_procedure) {
    TypeParam dialog;
    dialog.SetWeiter(True);
    this->BeiAnforderung([&](int) { Druecke(dialog, Qt::Key_Return); });
    dialog.exec();
    EXPECT_EQ(dialog.GetCancel(), False);
}

TYPED_TEST(AblaufdialogTest, With_Weiter_the_dialog_closes_by_itself_after_success) {
    TypeParam dialog;
    dialog.SetWeiter(True);
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(dialog.GetVollstaendig(), True);
}

TYPED_TEST(AblaufdialogTest, However_it_is_closed_a_running_dialog_ends_after_the_request_in_progress) {
    for (const auto& [name, schliesse] : AlleSchliesswege) {
        SCOPED_TRACE(name);
        this->port.gesendet.clear();
        TypeParam dialog;
        dialog.SetWeiter(True);
        bool danachSichtbar = false;
        this->Schweige([&](int) {
            schliesse(dialog);
            danachSichtbar = dialog.isVisible();
        });
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        EXPECT_TRUE(danachSichtbar);
        EXPECT_EQ(this->AnzahlAnforderungen(), 1);
        EXPECT_EQ(dialog.GetCancel(), True);
        EXPECT_EQ(dialog.GetVollstaendig(), False);
        EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    }
}

TYPED_TEST(AblaufdialogTest, A_cancel_while_a_request_waits_lets_it_wait_to_its_end) {
    TypeParam dialog;
    this->Schweige();
    const Zeit beginn = this->umgebung.uhr;
    this->umgebung.Plane(beginn + std::chrono::milliseconds(500), [&] { dialog.reject(); });
    dialog.exec();
    EXPECT_EQ(this->AnzahlAnforderungen(), 1);
    EXPECT_GE(this->umgebung.uhr - beginn, std::chrono::seconds(1));
}

TYPED_TEST(AblaufdialogTest, A_cancel_is_acknowledged_at_once_by_a_disabled_button) {
    TypeParam dialog;
    bool danach = true;
    this->Schweige([&](int) {
        this->template Kind<QPushButton>(dialog, "cmdCancel").click();
        danach = this->Bereit(dialog, "cmdCancel");
    });
    dialog.exec();
    EXPECT_FALSE(danach);
}

TYPED_TEST(AblaufdialogTest, Closing_again_and_again_while_the_procedure_runs_is_harmless) {
    TypeParam dialog;
    this->Schweige([&](int) {
        for (const auto& weg : AlleSchliesswege)
            weg.second(dialog);
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(this->AnzahlAnforderungen(), 1);
}

TYPED_TEST(AblaufdialogTest, A_dialog_rejected_between_showing_and_starting_sends_nothing) {
    TypeParam dialog;
    dialog.show();
    dialog.reject();
    QCoreApplication::processEvents();
    EXPECT_EQ(this->AnzahlAnforderungen(), 0);
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_FALSE(dialog.isVisible());
}

TYPED_TEST(AblaufdialogTest, A_dialog_rejected_before_exec_ends_at_once_and_sends_nothing) {
    TypeParam dialog;
    dialog.reject();
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(this->AnzahlAnforderungen(), 0);
}

TYPED_TEST(AblaufdialogTest, Hiding_and_showing_the_dialog_does_not_start_the_procedure_twice) {
    TypeParam dialog;
    this->ZeigeBisFertig(dialog);
    const int anforderungen = this->AnzahlAnforderungen();
    dialog.hide();
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(this->AnzahlAnforderungen(), anforderungen);
}

TYPED_TEST(AblaufdialogTest, A_line_pulled_and_plugged_in_again_is_survived) {
    TypeParam dialog;
    dialog.SetWeiter(True);
    this->BeiAnforderung([this](int anforderung) {
        if (anforderung != 1)
            return;
        this->port.offen = false;
        this->port.oeffnenGelingt = false;
        this->umgebung.Plane(this->umgebung.uhr + std::chrono::milliseconds(2500),
                             [this] { this->port.oeffnenGelingt = true; });
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.GetCancel(), False);
}

TYPED_TEST(AblaufdialogTest, A_cancel_with_the_line_pulled_closes_the_dialog) {
    TypeParam dialog;
    this->Schweige([&](int) {
        this->port.offen = false;
        this->port.oeffnenGelingt = false;
        this->umgebung.Plane(this->umgebung.uhr + std::chrono::milliseconds(3300), [&] { dialog.reject(); });
    });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(dialog.GetCancel(), True);
}

TYPED_TEST(AblaufdialogTest, No_text_is_cut_off_in_either_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        TypeParam dialog;
        this->BeiAnforderung([&](int) {
            for (const auto* feld : dialog.template findChildren<QLineEdit*>()) {
                const int breite = feld->fontMetrics().horizontalAdvance(feld->text());
                EXPECT_LT(breite, feld->width() - 8) << feld->text().toStdString();
            }
        });
        this->ZeigeBisFertig(dialog);
        for (const auto* zeile : dialog.template findChildren<QLabel*>())
            EXPECT_LE(zeile->sizeHint().width(), zeile->width()) << zeile->text().toStdString();
        for (const auto* knopf : dialog.template findChildren<QPushButton*>())
            EXPECT_LE(knopf->minimumSizeHint().width(), knopf->width()) << knopf->text().toStdString();
    }
}

TYPED_TEST(AblaufdialogTest, The_size_stays_the_same_while_the_procedure_shows_its_steps) {
    TypeParam dialog;
    dialog.show();
    const QSize davor = dialog.size();
    this->ZeigeBisFertig(dialog);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.size(), davor);
}

TYPED_TEST(AblaufdialogTest, Tab_leads_to_confirm_and_cancel_and_to_no_field_that_only_shows) {
    TypeParam dialog;
    EXPECT_EQ(this->Tabfolge(dialog), Merkmale<TypeParam>::tabfolge);
}

TYPED_TEST(AblaufdialogTest, Fields_that_only_show_look_like_text_and_can_be_copied) {
    TypeParam dialog;
    for (const auto* feld : dialog.template findChildren<QLineEdit*>()) {
        ASSERT_TRUE(feld->isReadOnly());
        EXPECT_FALSE(feld->hasFrame()) << feld->objectName().toStdString();
        EXPECT_EQ(feld->palette().color(QPalette::Base).alpha(), 0);
        EXPECT_EQ(feld->focusPolicy(), Qt::ClickFocus);
    }
}

TYPED_TEST(AblaufdialogTest, The_form_has_its_own_name) {
    const TypeParam dialog;
    EXPECT_EQ(dialog.objectName(), Merkmale<TypeParam>::name);
}

/// The dialogs that change the controller, each with the button that does.
class AenderndeDialogeTest : public pruefung::DialogTest {
protected:
    static bool Aendert(const std::string& anforderung) {
        constexpr char Schreiben = 0x10;
        return anforderung.size() > 1 && anforderung[1] == Schreiben;
    }
    int Schreibvorgaenge() const { return static_cast<int>(std::ranges::count_if(port.gesendet, Aendert)); }
    /// Presses Enter in every control that can have the focus.
    void DrueckeUeberallEnter(QDialog& dialog) {
        dialog.show();
        Druecke(dialog, Qt::Key_Return);
        for (auto* const element : dialog.findChildren<QWidget*>())
            if (element->isVisible() && element->isEnabled() && element->focusPolicy() != Qt::NoFocus) {
                element->setFocus();
                Druecke(dialog, Qt::Key_Return);
            }
    }
    pruefung::PruefEinstellungen einstellungen;
};

TEST_F(AenderndeDialogeTest, Enter_never_changes_the_controller) {
    frmResetHardware reset;
    frmInitHardware werksdaten;
    frmKonfigurationSchreibenInHardware schreiben;
    frmEinzelwerteLesenSchreiben einzelwerte;
    const std::pair<QDialog*, const char*> dialoge[] = {
        {&reset, "cmdOK"}, {&werksdaten, "cmdSchreiben"}, {&schreiben, "cmdStart"}};
    for (const auto& [dialog, name] : dialoge) {
        DrueckeUeberallEnter(*dialog);
        EXPECT_EQ(Schreibvorgaenge(), 0) << name;
        EXPECT_FALSE(Kind<QPushButton>(*dialog, name).isDefault()) << name;
        EXPECT_TRUE(dialog->isVisible()) << name;
    }
    auto& knopf = Kind<QPushButton>(einzelwerte, "cmdSchreiben");
    einzelwerte.show();
    knopf.setFocus();
    Druecke(einzelwerte, Qt::Key_Return);
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_FALSE(knopf.isDefault());
}

} // namespace varnoth
