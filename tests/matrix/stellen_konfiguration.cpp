// Writing the configuration, and the search of the editor for the controller.

#include "stellenhelfer.h"

#include <QComboBox>

namespace varnoth::pruefung {

namespace {

constexpr const char* Schreibdialog = "frmKonfigurationSchreibenInHardware";
constexpr const char* Editor = "frmKonfigurationEdit";

// Writing the configuration

Handlung BereiteSchreiben(Zelle& z) {
    co_await z.GeheLive();
    z.betrieb.Waehle("mnuAnzeigeKonfiguration");
    co_await z.regie.Bis("Download in the editor", [] { return KnopfIstFrei(Editor, "cmdDownLoad"); });
    SichtbaresFenster(Editor)->findChild<QComboBox*>("cboReichweite_0")->setCurrentIndex(4);
    Klicke(Editor, "cmdDownLoad");
    co_await z.regie.Bis("the write dialog", [] { return KnopfIstFrei(Schreibdialog, "cmdStart"); });
}

void KlickeSchreiben(Zelle& /*z*/) {
    Klicke(Schreibdialog, "cmdStart");
}

bool SchreibenBrauchtVieleVersuche(Zelle& z) {
    return ZeigtZahlAb(z, Schreibdialog, "txtSchreibversuch", DrittesMal);
}

bool SchreibenBrauchtMehr(Zelle& z) {
    return ZeigtZahlAb(z, Schreibdialog, "txtSchreibversuch", ZweitesMal);
}

bool GeschriebenUndLive(Zelle& z) {
    return z.betrieb.HatRuhe() && Betrieb::IstLive() && z.betrieb.geraet.Register("specific 0 14") == 4;
}

// The editor's search for the controller

void OeffneEditor(Zelle& z) {
    z.betrieb.Waehle("mnuAnzeigeKonfiguration");
}

bool EditorIstOffline(Zelle& z) {
    return z.betrieb.SeitGezeigt(Editor) > NachZweiVersuchen && KnopfIstFrei(Editor, "cmdUebernehmen") &&
           !KnopfIstFrei(Editor, "cmdDownLoad");
}

bool EditorIstOnline(Zelle& /*z*/) {
    return KnopfIstFrei(Editor, "cmdDownLoad");
}

Handlung SchliesseEditor(Zelle& z) {
    Klicke(Editor, "cmdCancel");
    co_await z.regie.Bis("the editor to close", [&z] { return z.betrieb.HatRuhe(); });
}

Handlung OeffneEditorNeu(Zelle& z) {
    co_await SchliesseEditor(z);
    OeffneEditor(z);
    co_await z.regie.Bis("the editor", [] { return SichtbaresFenster(Editor) != nullptr; });
}

constexpr Stelle Stellen[] = {
    {.name = "write",
     .bereite = BereiteSchreiben,
     .beginne = KlickeSchreiben,
     .zeigtStoerung = SchreibenBrauchtVieleVersuche,
     .zeigtVersuch = SchreibenBrauchtMehr,
     .fertig = GeschriebenUndLive,
     .belastung = {.schreiben = 8, .amStueck = 8, .vonVorn = true, .austausche = 8}},
    {.name = "editor",
     .fenster = Editor,
     .bereite = BereiteStehendeVerbindung,
     .beginne = OeffneEditor,
     .zeigtStoerung = EditorIstOffline,
     .fertig = EditorIstOnline,
     .nochmal = OeffneEditorNeu,
     .verlasse = SchliesseEditor,
     .belastung = {.nur = "@17", .kennung = 45, .amStueck = 1, .austausche = 2}},
};

} // namespace

std::span<const Stelle> KonfigurationsStellen() {
    return Stellen;
}

} // namespace varnoth::pruefung
