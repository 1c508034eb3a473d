#include "frmKonfigurationEdit.h"

#include "dialogtest.h"
#include "konfigurationsdatei.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "zykluszeiten.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTabWidget>

#include <functional>

namespace varnoth {

namespace {

/// Of a sensing distance that the list does not have, nothing is selected.
constexpr const char* DarfOhneAuswahlBleiben = "cboReichweite";
const char* const Texte[] = {"", "-5", "0", "1", "240", "65535", "70000", "-2147483648", "99999999999", "x"};

class EditorwerteTest : public pruefung::DialogTest {
protected:
    /// A fresh editor for four parts.
    void Oeffne() {
        dialog.reset();
        modDaten::LadeStandardkonfiguration();
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            static_cast<void>(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                      spezifisch::Strahlenzahl, 64, teil));
        modHilfsFunktionen::BerechneZykluszeiten();
        ASSERT_TRUE(modDaten::IstPlausibel());
        dialog = std::make_unique<frmKonfigurationEdit>();
        dialog->InitKonfiguration({});
    }
    /// The elements of a kind that a person can set, on the pages that differ: global, first part,
    /// communication.
    template<class Element>
    QStringList Bedienbare() {
        QStringList namen;
        const auto& reiter = Kind<QTabWidget>(*dialog, "tbsOptions");
        for (const int seite : {0, 1, reiter.count() - 1})
            for (const Element* element : reiter.widget(seite)->findChildren<Element*>())
                if (!element->objectName().startsWith("qt_") && !element->isHidden())
                    namen += element->objectName();
        return namen;
    }
    /// Sets something in the editor, applies it, saves the image and opens it again.
    template<class Element>
    void Pruefe(const QString& name, const std::function<void(Element&)>& stelle, const std::string& was) {
        stelle(Kind<Element>(*dialog, name.toUtf8().constData()));
        Kind<QAbstractButton>(*dialog, "cmdUebernehmen").click();
        ++gepruefte;
        EXPECT_TRUE(modDaten::IstPlausibel()) << name.toStdString() << ' ' << was;
        const std::string datei = modDaten::SpeichereKonfigurationsdatei();
        ASSERT_EQ(modDaten::LadeKonfigurationsdatei(datei), True);
        EXPECT_EQ(modDaten::PruefeKonfiguration(), True) << name.toStdString() << ' ' << was;
        EXPECT_TRUE(modDaten::SpeichereKonfigurationsdatei() == datei) << name.toStdString() << ' ' << was;
    }

    std::unique_ptr<frmKonfigurationEdit> dialog;
    int gepruefte = 0;
};

} // namespace

TEST_F(EditorwerteTest, Every_value_of_every_list_is_kept_when_saved_and_opened) {
    Oeffne();
    for (const QString& name : Bedienbare<QComboBox>()) {
        Oeffne();
        const int anzahl = Kind<QComboBox>(*dialog, name.toUtf8().constData()).count();
        for (int auswahl = name == DarfOhneAuswahlBleiben ? -1 : 0; auswahl < anzahl; ++auswahl)
            Pruefe<QComboBox>(
                name, [auswahl](QComboBox& box) { box.setCurrentIndex(auswahl); }, std::to_string(auswahl));
    }
    EXPECT_GT(gepruefte, 50);
}

TEST_F(EditorwerteTest, Every_choice_is_kept_when_saved_and_opened) {
    Oeffne();
    for (const QString& name : Bedienbare<QAbstractButton>())
        if (Kind<QAbstractButton>(*dialog, name.toUtf8().constData()).isCheckable()) {
            Oeffne();
            Pruefe<QAbstractButton>(
                name, [](QAbstractButton& knopf) { knopf.click(); }, "clicked");
        }
    EXPECT_GT(gepruefte, 20);
}

TEST_F(EditorwerteTest, Whatever_is_typed_is_kept_when_saved_and_opened) {
    Oeffne();
    for (const QString& name : Bedienbare<QLineEdit>())
        for (const char* text : Texte)
            Pruefe<QLineEdit>(
                name,
                [text](QLineEdit& feld) {
                    if (feld.isReadOnly())
                        return;
                    feld.setText(QString::fromLatin1(text));
                    QFocusEvent verlassen(QEvent::FocusOut, Qt::TabFocusReason);
                    QCoreApplication::sendEvent(&feld, &verlassen);
                },
                text);
    EXPECT_GE(gepruefte, static_cast<int>(std::size(Texte)));
}

} // namespace varnoth
