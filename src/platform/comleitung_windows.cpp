#include "comleitung.h"

#include "seriellerport.h"
#include "weckuhr.h"

#include <QString>

#include <windows.h>

#include <algorithm>
#include <list>
#include <optional>
#include <utility>

namespace varnoth {

namespace {

constexpr char Ersatzzeichen = '?';
constexpr DWORD Sendepuffergroesse = 4096;
constexpr Zeit Treiberfrist = std::chrono::seconds(1);
// A read of bytes that are there already ends all but at once.
constexpr DWORD LesefristMs = 20;

/// With these a read ends with the first bytes that are there or come. After weeks without any it ends
/// without: 2^31 is as much as every driver can count.
constexpr COMMTIMEOUTS Lesezeiten{MAXDWORD, MAXDWORD, 0x7FFFFFFE, 0, 0};

DCB Einstellung(DCB einstellung, const Leitungswerte& werte) {
    einstellung.BaudRate = werte.baud;
    einstellung.ByteSize = werte.datenbits;
    einstellung.Parity = werte.paritaet;
    einstellung.StopBits = werte.stoppbits;
    einstellung.fBinary = TRUE;
    einstellung.fParity = werte.prueft;
    einstellung.fErrorChar = werte.prueft;
    einstellung.ErrorChar = Ersatzzeichen;
    einstellung.fOutxCtsFlow = FALSE;
    einstellung.fOutxDsrFlow = FALSE;
    einstellung.fDsrSensitivity = FALSE;
    einstellung.fOutX = FALSE;
    einstellung.fInX = FALSE;
    einstellung.fNull = FALSE;
    einstellung.fAbortOnError = FALSE; // reading goes on after a broken byte
    einstellung.fDtrControl = DTR_CONTROL_ENABLE;
    einstellung.fRtsControl = RTS_CONTROL_ENABLE;
    return einstellung;
}

bool Laeuft(bool angenommen) {
    return angenommen || GetLastError() == ERROR_IO_PENDING;
}

/// What the driver is doing with some bytes. It stays where it is until the driver has done with it.
struct Vorgang {
    explicit Vorgang(std::size_t anzahl) : bytes(anzahl, '\0') {}
    explicit Vorgang(std::string_view neue) : bytes(neue) {}

    bool IstFertig() const { return HasOverlappedIoCompleted(&lauf); }

    OVERLAPPED lauf{};
    std::string bytes;
};

void WarteAufEnde(const Vorgang& vorgang, Zeit ende) {
    while (!vorgang.IstFertig() && DieUmgebung().Uhr() < ende)
        SleepEx(1, FALSE);
}

} // namespace

struct Comleitung::Leitung {
    explicit Leitung(HANDLE port) : griff(port), ankunft(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
    ~Leitung();

    unsigned long RichteEin(const Leitungswerte& werte);
    void BeginneLesen(std::size_t anzahl);
    bool HatGelesen() const { return lesen != nullptr && lesen->IstFertig(); }
    std::size_t Gelesen();
    std::size_t Wartend();
    void RaeumeGesendetesWeg();
    void WarteAufSendungen(Zeit ende);

    HANDLE griff;
    HANDLE ankunft; // signalled once `lesen` has ended
    std::unique_ptr<Vorgang> lesen;
    std::list<std::unique_ptr<Vorgang>> sendungen;
    bool weg = false;
    bool uebergelaufen = false;
    std::size_t imTreiber = 0; // bytes that the driver had yet to send when it was asked last
    std::optional<DCB> fruehere;
    COMMTIMEOUTS fruehereZeiten{};
    Weckuhr uhr;
    std::optional<Zeitaufloesung> aufloesung;
};

unsigned long Comleitung::Leitung::RichteEin(const Leitungswerte& werte) {
    DCB stand{};
    stand.DCBlength = sizeof stand;
    if (!GetCommState(griff, &stand))
        return ERROR_INVALID_FUNCTION; // no serial port, whatever its driver calls that
    if (!GetCommTimeouts(griff, &fruehereZeiten))
        return GetLastError();
    fruehere = stand;
    DCB neue = Einstellung(stand, werte);
    COMMTIMEOUTS zeiten = Lesezeiten;
    // The sizes are wishes; a driver may refuse them.
    SetupComm(griff, static_cast<DWORD>(Eingabepuffergroesse), Sendepuffergroesse);
    if (!SetCommState(griff, &neue) || !SetCommTimeouts(griff, &zeiten))
        return GetLastError();
    if (!uhr.IstFein())
        aufloesung.emplace();
    BeginneLesen(1);
    return 0;
}

/// What a driver does not end in time keeps its memory: it may still write there.
Comleitung::Leitung::~Leitung() {
    const Zeit ende = DieUmgebung().Uhr() + Treiberfrist;
    CancelIoEx(griff, nullptr);
    WarteAufSendungen(ende);
    if (lesen != nullptr)
        WarteAufEnde(*lesen, ende);
    if (lesen != nullptr && !lesen->IstFertig())
        static_cast<void>(lesen.release());
    for (auto& sendung : sendungen)
        if (!sendung->IstFertig())
            static_cast<void>(sendung.release());
    if (fruehere && !weg) {
        SetCommState(griff, &*fruehere);
        SetCommTimeouts(griff, &fruehereZeiten);
    }
    CloseHandle(griff);
    CloseHandle(ankunft);
}

void Comleitung::Leitung::BeginneLesen(std::size_t anzahl) {
    lesen = std::make_unique<Vorgang>(anzahl);
    lesen->lauf.hEvent = ankunft;
    if (Laeuft(ReadFile(griff, lesen->bytes.data(), static_cast<DWORD>(anzahl), nullptr, &lesen->lauf)))
        return;
    lesen.reset();
    weg = true;
}

/// Number of bytes that the read has brought, which has ended. One that brings none has lost its line.
std::size_t Comleitung::Leitung::Gelesen() {
    DWORD anzahl = 0;
    if (!GetOverlappedResult(griff, &lesen->lauf, &anzahl, FALSE) || anzahl == 0)
        weg = true;
    return weg ? 0 : anzahl;
}

/// Number of bytes that the driver holds beyond those of the read.
std::size_t Comleitung::Leitung::Wartend() {
    COMSTAT stand{};
    DWORD fehler = 0;
    if (!ClearCommError(griff, &fehler, &stand)) {
        weg = true;
        return 0;
    }
    uebergelaufen = uebergelaufen || (fehler & CE_RXOVER) != 0;
    imTreiber = stand.cbOutQue;
    return stand.cbInQue;
}

void Comleitung::Leitung::RaeumeGesendetesWeg() {
    while (!sendungen.empty() && sendungen.front()->IstFertig()) {
        DWORD anzahl = 0;
        if (!GetOverlappedResult(griff, &sendungen.front()->lauf, &anzahl, FALSE))
            weg = true;
        sendungen.pop_front();
    }
}

void Comleitung::Leitung::WarteAufSendungen(Zeit ende) {
    for (const auto& sendung : sendungen)
        WarteAufEnde(*sendung, ende);
}

Comleitung::Comleitung() = default;
Comleitung::~Comleitung() = default;

unsigned long Comleitung::Oeffne(const std::string& pfad, const Leitungswerte& werte) {
    Schliesse();
    const std::wstring name = QString::fromStdString(pfad).toStdWString();
    const HANDLE griff = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_OVERLAPPED, nullptr);
    if (griff == INVALID_HANDLE_VALUE)
        return GetLastError();
    offen = std::make_unique<Leitung>(griff);
    const unsigned long fehler = offen->RichteEin(werte);
    if (fehler != 0)
        Schliesse();
    return fehler;
}

void Comleitung::Schliesse() {
    offen.reset();
}

bool Comleitung::IstVerloren() const {
    return offen != nullptr && offen->weg;
}

bool Comleitung::IstWeg() {
    if (offen == nullptr)
        return false;
    if (offen->HatGelesen())
        offen->Gelesen();
    if (!offen->weg)
        offen->Wartend();
    return offen->weg;
}

bool Comleitung::NimmUeberlauf() {
    return offen != nullptr && std::exchange(offen->uebergelaufen, false);
}

std::size_t Comleitung::BytesWartend() {
    if (offen == nullptr || !offen->HatGelesen())
        return 0;
    const std::size_t anzahl = offen->Gelesen() + offen->Wartend();
    return offen->weg ? 0 : anzahl;
}

std::string Comleitung::Lies() {
    std::string bytes;
    while (offen != nullptr && offen->HatGelesen() && !offen->weg) {
        bytes.append(offen->lesen->bytes, 0, offen->Gelesen());
        const std::size_t weitere = offen->Wartend();
        if (offen->weg)
            break;
        offen->BeginneLesen(std::clamp<std::size_t>(weitere, 1, Eingabepuffergroesse));
        if (weitere > 0)
            WaitForSingleObject(offen->ankunft, LesefristMs);
    }
    return bytes;
}

void Comleitung::Verwirf() {
    if (offen == nullptr || !offen->HatGelesen() || IstWeg())
        return;
    PurgeComm(offen->griff, PURGE_RXCLEAR);
    offen->BeginneLesen(1);
}

void Comleitung::Sende(std::string_view bytes) {
    if (offen == nullptr || offen->weg || bytes.empty())
        return;
    offen->RaeumeGesendetesWeg();
    auto& sendung = *offen->sendungen.emplace_back(std::make_unique<Vorgang>(bytes));
    if (Laeuft(WriteFile(offen->griff, sendung.bytes.data(), static_cast<DWORD>(bytes.size()), nullptr,
                         &sendung.lauf)))
        return;
    offen->sendungen.pop_back();
    offen->weg = true;
}

std::size_t Comleitung::Ungesendet() {
    if (offen == nullptr)
        return 0;
    offen->RaeumeGesendetesWeg();
    if (!offen->weg)
        offen->Wartend();
    std::size_t anzahl = offen->imTreiber;
    for (const auto& sendung : offen->sendungen)
        anzahl = std::max(anzahl, sendung->bytes.size());
    return offen->weg ? 0 : anzahl;
}

void Comleitung::BrichSendungAb() {
    if (offen == nullptr)
        return;
    PurgeComm(offen->griff, PURGE_TXABORT | PURGE_TXCLEAR);
    for (const auto& sendung : offen->sendungen) // where the driver did not heed that
        CancelIoEx(offen->griff, &sendung->lauf);
    offen->WarteAufSendungen(DieUmgebung().Uhr() + Treiberfrist);
    std::erase_if(offen->sendungen, [](const auto& sendung) { return sendung->IstFertig(); });
}

bool Comleitung::HatMeldungen() {
    return HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0;
}

bool Comleitung::Schlafe(Zeit hoechstens, bool auchFuersFenster) {
    if (offen == nullptr)
        return false;
    if (!offen->weg && !offen->HatGelesen()) {
        offen->uhr.Stelle(hoechstens);
        const HANDLE worauf[] = {offen->ankunft, offen->uhr.Griff()};
        MsgWaitForMultipleObjectsEx(2, worauf, INFINITE, auchFuersFenster ? QS_ALLINPUT : 0,
                                    MWMO_INPUTAVAILABLE);
    }
    if (offen->HatGelesen())
        offen->Gelesen();
    return !offen->weg;
}

} // namespace varnoth
