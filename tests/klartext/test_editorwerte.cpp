#include "abbild.h"
#include "auswahlliste.h"
#include "autosend.h"
#include "bustyp.h"
#include "datenblock.h"
#include "gruppenzaehler.h"
#include "konfigurationsdatei.h"
#include "pausenzeit.h"
#include "plausibilitaet.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gtest/gtest.h>

#include <array>

namespace varnoth {

namespace {

/// Whether a default configuration with this one register changed is kept when it is saved and opened again.
bool BleibtErhalten(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert) {
    Abbild geschrieben = Standardkonfiguration();
    Werte parameter = geschrieben.HoleParameter(bereich, adresse);
    if (parameter.empty())
        return false;
    parameter[0] = wert;
    if (!geschrieben.SetzeParameter(bereich, adresse, parameter))
        return false;
    Abbild gelesen;
    return ZerlegeKonfigurationsdatei(AlsKonfigurationsdatei(geschrieben), gelesen) == Dateibefund::Gut &&
           gelesen == geschrieben && IstPlausibel(gelesen);
}

void ErwarteErhalten(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert) {
    EXPECT_TRUE(BleibtErhalten(bereich, adresse, wert)) << "address " << adresse << ", value " << wert;
}

void ErwarteListeErhalten(const Auswahlliste& liste, int abAuswahl = 0) {
    for (int auswahl = abAuswahl; auswahl < liste.anzahl; ++auswahl)
        ErwarteErhalten(liste.bereich, liste.adresse, WertFuer(liste, auswahl));
}

} // namespace

TEST(Editorwerte, Every_choice_for_an_optical_part_survives_saving_and_opening) {
    for (const Auswahlliste& liste : AlleTeillisten())
        ErwarteListeErhalten(liste);
    for (const bool oder : {false, true})
        for (std::int32_t anzahl = 1; anzahl <= 127; ++anzahl)
            ErwarteErhalten(Spezifisch, spezifisch::Gruppenzaehler, Gruppenzaehlerwert(anzahl, oder));
}

TEST(Editorwerte, A_sensing_distance_that_was_not_chosen_survives_saving_and_opening) {
    ErwarteListeErhalten(Beschreibung(Teilliste::Reichweite), KeineAuswahl);
}

TEST(Editorwerte, Every_station_address_and_pause_time_survives_saving_and_opening) {
    ErwarteListeErhalten(Stationsadressen(MaxStationsadresse(bustyp::Modbus)));
    for (const char* text : {"-5", "-1", "0", "12", "65535", "-99999999999", "no number"})
        ErwarteErhalten(Kommunikation, kommunikation::Pausenzeit, Pausenzeitwert(text));
}

TEST(Editorwerte, Every_autosend_setting_survives_saving_and_opening) {
    constexpr std::array<std::optional<Autosendart>, 5> arten{
        std::nullopt, Autosendart::Keines, Autosendart::OhneTrigger, Autosendart::OhneTriggerModbus,
        Autosendart::MitTriggerModbus};
    constexpr std::array<std::optional<Triggerstart>, 3> starts{std::nullopt, Triggerstart::Sofort,
                                                                Triggerstart::NachVollstaendigemScan};
    for (const auto& art : arten)
        for (const auto& start : starts)
            for (const bool merken : {false, true})
                for (std::int32_t rate = 0; rate <= MaxAutosendrate(bustyp::Modbus); ++rate)
                    ErwarteErhalten(Kommunikation, kommunikation::Autosend,
                                    Registerwert(Autosendeinstellung{art, merken, rate, start}));
}

TEST(Editorwerte, Every_line_format_of_autosend_survives_saving_and_opening) {
    constexpr std::array<std::optional<Byteformat>, 4> formate{
        std::nullopt, Byteformat::ZweiStopbitsOhneParitaet, Byteformat::EinStopbitUngerade,
        Byteformat::EinStopbitGerade};
    const Auswahlliste& raten = Autosendbaudraten();
    for (const auto& format : formate)
        for (int auswahl = KeineAuswahl; auswahl < raten.anzahl; ++auswahl)
            ErwarteErhalten(Kommunikation, kommunikation::Autosendformat,
                            Autosendformatwert(WertFuer(raten, auswahl), format));
}

TEST(Editorwerte, Every_first_entry_of_the_data_block_but_one_of_part_4_survives_saving_and_opening) {
    for (int quelle = 0; quelle < AnzahlQuellen - 1; ++quelle)
        for (int art = 0; art < AnzahlWertarten; ++art)
            for (int wert = 0; wert < AnzahlSendewerte; ++wert)
                ErwarteErhalten(Kommunikation, kommunikation::Datenblock,
                                Eintragswort(Passend({static_cast<Quelle>(quelle), static_cast<Wertart>(art),
                                                      static_cast<Sendewert>(wert)})));
}

TEST(Editorwerte, Every_output_setting_survives_saving_and_opening) {
    for (const std::int32_t wert : {0, 1, 255, 256, 65535})
        ErwarteErhalten(Global, global::PnpAusgang, wert);
}

} // namespace varnoth
