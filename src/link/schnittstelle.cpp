#include "schnittstelle.h"

#include "frist.h"
#include "leitungsstatistik.h"
#include "leitungstakt.h"
#include "mithoeren.h"
#include "startzustand.h"
#include "trace.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varnoth::modSchnittstelle {

namespace {

constexpr Zeit Sendepause = std::chrono::milliseconds(2);
constexpr Zeit LaengsteUnruhe = std::chrono::seconds(1);
constexpr Zeit LaengstesLeeren = std::chrono::seconds(1);

struct Zustand {
    std::int16_t comPort = 1;
    std::string geraet{};
    std::string comSettings = StandardComSettings;
    Boolean portIstOffen = False;
    bool sollOffenSein = false;
    Zeit letzteAktivitaet{0};
    Zeit letzterEingang{0};
    Leitungstakt takt;
    bool gesendetSeitOeffnen = false;
    std::string verworfenes{};
    bool linieVerschwand = false;
};

Zustand zustand;
SeriellerPort* derPort = nullptr;
const Startwert startwert(zustand, derPort);

bool LiesOffenstand() {
    zustand.portIstOffen = AlsBoolean(derPort != nullptr && derPort->IstOffen());
    return zustand.portIstOffen != False;
}

void MerkeAktivitaet() {
    zustand.letzteAktivitaet = DieUmgebung().Uhr();
}

/// What nobody was waiting for may be a reply all the same.
void MerkeVerworfenes(std::string_view bytes) {
    constexpr std::size_t Hoechstens = 4096;
    zustand.verworfenes += bytes;
    if (zustand.verworfenes.size() > Hoechstens)
        zustand.verworfenes.erase(0, zustand.verworfenes.size() - Hoechstens);
}

void VerwirfEingang() {
    if (derPort->BytesWartend() > 0) {
        const std::string bytes = derPort->LiesAlles();
        modMithoeren::Empfangen(bytes, DieUmgebung().Uhr());
        MerkeVerworfenes(bytes);
    }
    derPort->Verwirf();
}

void OeffnePort() {
    if (LiesOffenstand() || derPort == nullptr)
        return;
    derPort->Oeffne(zustand.comPort, zustand.comSettings);
    zustand.takt.Stelle(zustand.comSettings);
    zustand.gesendetSeitOeffnen = false;
    LiesOffenstand();
}

/// Waits until all that was sent has left: closing gives the line its former settings back, which cuts off or
/// garbles what is still on its way. A system may call a frame sent that its adapter still holds, so its time
/// on the line is waited for as well.
void LeereSender() {
    if (!std::exchange(zustand.gesendetSeitOeffnen, false))
        return;
    const Zeit spaetestens = DieUmgebung().Uhr() + LaengstesLeeren;
    const Zeit ende = std::min(zustand.takt.Sendeende(), spaetestens);
    for (Zeit jetzt = DieUmgebung().Uhr(); jetzt < ende && LiesOffenstand(); jetzt = DieUmgebung().Uhr())
        DieUmgebung().WarteAufEreignis(ende - jetzt);
    if (LiesOffenstand())
        derPort->LeereSender(std::max(spaetestens - DieUmgebung().Uhr(), Zeit{0}));
}

void SchlafeBisEingang(Zeit hoechstens) {
    if (derPort != nullptr)
        derPort->WarteAufEingang(hoechstens);
    else
        DieUmgebung().WarteAufEreignis(hoechstens);
}

void MeldeZeitueberschreitung() {
    if (!modTrace::Aktiv())
        return;
    DieUmgebung().ZeigeStatustext(FeldMeldungen,
                                  "Zeitüberschreitung, kein Zeichen empfangen. (Nur zum Testen)");
    modTrace::SchreibeZeitueberschreitung();
}

} // namespace

void SetzePort(SeriellerPort* port) {
    derPort = port;
    if (derPort != nullptr)
        derPort->SetzeEreignisbehandlung(BehandleCommEreignis);
    SetzeGeraet(zustand.geraet);
}

void SetzeComPort(std::int16_t nummer) {
    zustand.comPort = nummer;
}

std::int16_t GetComPort() {
    return zustand.comPort;
}

void SetzeGeraet(const std::string& pfad) {
    zustand.geraet = pfad;
    if (derPort != nullptr)
        derPort->SetzeGeraet(pfad);
}

const std::string& GetGeraet() {
    return zustand.geraet;
}

void SetzeComSettings(const std::string& einstellungen) {
    zustand.comSettings = einstellungen.empty() ? StandardComSettings : einstellungen;
}

const std::string& GetComSettings() {
    return zustand.comSettings;
}

void OpenCommPort() {
    CloseCommPort();
    DieUmgebung().LasseEreignisseLaufen();
    zustand.sollOffenSein = true;
    modLeitungsstatistik::NeueReihe();
    OeffnePort();
    ClearCommPort();
}

void CloseCommPort() {
    if (std::exchange(zustand.sollOffenSein, false) && derPort != nullptr && !derPort->IstOffen())
        zustand.linieVerschwand = true;
    if (derPort != nullptr && zustand.portIstOffen != False) {
        LeereSender();
        VerwirfEingang();
        derPort->Schliesse();
    }
    LiesOffenstand();
}

Boolean GetPortIstOffen() {
    return zustand.portIstOffen;
}

Anschluss GetAnschluss() {
    return derPort != nullptr ? derPort->AnschlussVon(zustand.comPort) : Anschluss{};
}

Portbefund GetPortbefund() {
    return derPort != nullptr ? derPort->BefundVon(zustand.comPort) : Portbefund{};
}

std::string GetPortfehler() {
    return derPort != nullptr ? derPort->Fehlertext() : std::string();
}

void HoleVerlorenenPortZurueck() {
    if (!zustand.sollOffenSein || LiesOffenstand())
        return;
    OeffnePort();
    zustand.linieVerschwand = zustand.linieVerschwand || GetPortIstOffen() == True;
}

bool NimmVerlust() {
    return std::exchange(zustand.linieVerschwand, false);
}

void ClearCommPort() {
    if (derPort != nullptr)
        VerwirfEingang();
    DieUmgebung().LasseEreignisseLaufen();
    if (LiesOffenstand()) {
        modTrace::SchreibeLeerung();
        MerkeVerworfenes(CommPortReadInput());
    }
    DieUmgebung().LasseEreignisseLaufen();
    MerkeAktivitaet();
}

std::int16_t CommPortBytesAvailable() {
    constexpr std::size_t hoechstens = std::numeric_limits<std::int16_t>::max();
    return derPort == nullptr ? std::int16_t{0}
                              : static_cast<std::int16_t>(std::min(derPort->BytesWartend(), hoechstens));
}

std::string CommPortReadInput() {
    if (!LiesOffenstand())
        return {};
    std::string bytes = derPort->LiesAlles();
    modTrace::SchreibeLesung(bytes);
    modLeitungsstatistik::Empfangen(bytes);
    MerkeAktivitaet();
    modMithoeren::Empfangen(bytes, zustand.letzteAktivitaet);
    if (!bytes.empty())
        zustand.letzterEingang = zustand.letzteAktivitaet;
    zustand.takt.Empfangen(zustand.letzteAktivitaet, bytes.size());
    return bytes;
}

void WarteSendepause() {
    const Zeit frei = zustand.letzteAktivitaet + Sendepause;
    for (Zeit jetzt = DieUmgebung().Uhr(); jetzt < frei; jetzt = DieUmgebung().Uhr())
        DieUmgebung().WarteAufEreignis(frei - jetzt);
}

std::string NimmVerworfenes() {
    return std::exchange(zustand.verworfenes, {});
}

void CommPortWriteOutput(std::string_view daten) {
    if (!LiesOffenstand())
        return;
    WarteSendepause();
    const Zeit jetzt = DieUmgebung().Uhr();
    zustand.takt.Gesendet(jetzt, daten.size());
    modMithoeren::Gesendet(jetzt);
    zustand.gesendetSeitOeffnen = true;
    derPort->Schreibe(daten);
    modTrace::SchreibeSendung(daten);
    modLeitungsstatistik::Gesendet(daten);
}

bool WarteAufZeichen(int TimeoutMs, Boolean AufZeichenWarten) {
    const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(TimeoutMs);
    for (Zeit jetzt = DieUmgebung().Uhr(); jetzt < ende; jetzt = DieUmgebung().Uhr()) {
        if (AufZeichenWarten == True && CommPortBytesAvailable() > 0)
            return true;
        zustand.takt.NochNichts(jetzt);
        SchlafeBisEingang(ende - jetzt);
    }
    if (AufZeichenWarten == True && CommPortBytesAvailable() > 0)
        return true;
    MeldeZeitueberschreitung();
    return false;
}

void WarteAufRest(std::size_t bytes) {
    const Zeit dauer = zustand.takt.Schlafdauer(DieUmgebung().Uhr(), bytes);
    if (dauer > Zeit{0} && LiesOffenstand())
        derPort->Schlafe(dauer);
}

bool KamZuFrueh() {
    return zustand.takt.KamZuFrueh();
}

bool KamSpaet() {
    return zustand.takt.KamSpaet();
}

bool IstRuhig(Zeit ruhe) {
    return CommPortBytesAvailable() == 0 && DieUmgebung().Uhr() >= zustand.letzterEingang + ruhe;
}

std::string WarteAufRuhe(Zeit ruhe) {
    const Frist spaetestens(std::max(LaengsteUnruhe, 3 * ruhe));
    std::string angekommenes;
    for (;;) {
        if (CommPortBytesAvailable() > 0)
            angekommenes += CommPortReadInput();
        const Zeit ende = std::min(zustand.letzterEingang + ruhe, spaetestens.Ende());
        const Zeit jetzt = DieUmgebung().Uhr();
        if (jetzt >= ende)
            return angekommenes;
        SchlafeBisEingang(ende - jetzt);
    }
}

void BehandleCommEreignis(int ereignis) {
    if (ereignis == EreignisEmpfangspufferUeberlauf && derPort != nullptr)
        derPort->Verwirf();
}

} // namespace varnoth::modSchnittstelle
