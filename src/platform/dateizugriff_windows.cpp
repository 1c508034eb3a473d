#include "dateizugriff.h"

#include "dateioeffnung_windows.h"
#include "fehlernummer_windows.h"
#include "geduldig_windows.h"
#include "systempfad_windows.h"

#include <algorithm>

#include <windows.h>

#include <aclapi.h>

namespace varnoth::dateizugriff {

namespace {

std::wstring Systempfad(const QString& pfad) {
    return varnoth::Systempfad(pfad.toStdString());
}

bool Entfernt(const std::wstring& systempfad) {
    return ::DeleteFileW(systempfad.c_str()) != 0 || ::GetLastError() == ERROR_FILE_NOT_FOUND ||
           ::GetLastError() == ERROR_PATH_NOT_FOUND;
}

/// Who may do what with a file, and whether it is hidden. What cannot be taken over stays as the folder gives
/// it.
void UebernimmRechte(const std::wstring& von, const std::wstring& nach) {
    PACL rechte = nullptr;
    PSECURITY_DESCRIPTOR beschreibung = nullptr;
    if (::GetNamedSecurityInfoW(von.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                &rechte, nullptr, &beschreibung) == ERROR_SUCCESS) {
        SECURITY_DESCRIPTOR_CONTROL art = 0;
        DWORD fassung = 0;
        ::GetSecurityDescriptorControl(beschreibung, &art, &fassung);
        const SECURITY_INFORMATION erbe = (art & SE_DACL_PROTECTED) != 0
                                              ? PROTECTED_DACL_SECURITY_INFORMATION
                                              : UNPROTECTED_DACL_SECURITY_INFORMATION;
        std::wstring ziel = nach;
        ::SetNamedSecurityInfoW(ziel.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | erbe, nullptr,
                                nullptr, rechte, nullptr);
        ::LocalFree(beschreibung);
    }
    constexpr DWORD bleibende = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD merkmale = ::GetFileAttributesW(von.c_str());
    if (merkmale != INVALID_FILE_ATTRIBUTES && (merkmale & bleibende) != 0)
        ::SetFileAttributesW(nach.c_str(), FILE_ATTRIBUTE_ARCHIVE | (merkmale & bleibende));
}

/// Whether this user may remove a file, were it not for others that have it open.
bool DarfEntfernen(const std::wstring& systempfad) {
    constexpr DWORD mitAllen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Griff datei(::CreateFileW(systempfad.c_str(), DELETE, mitAllen, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return datei || ::GetLastError() == ERROR_SHARING_VIOLATION;
}

/// The system says "denied" of a place that another program has open, as well as of one that is not ours.
int Ersetze(const std::wstring& von, const std::wstring& nach) {
    if (::MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return 0;
    const int fehler = LetzteFehlernummer();
    return fehler == EACCES && DarfEntfernen(nach) ? EBUSY : fehler;
}

} // namespace

std::string Hindernis(const QString& pfad) {
    return Dateifehler(Dateihindernis(Systempfad(pfad)));
}

Leseergebnis Lies(const QString& pfad, std::size_t hoechstens) {
    constexpr std::size_t stueck = 65536;
    const auto [datei, fehler] = OeffneDatei(pfad.toStdString(), Oeffnung::Lesen);
    if (fehler != 0)
        return {.fehlertext = Dateifehler(fehler)};
    std::string bytes;
    for (DWORD gelesen = 1; gelesen > 0 && bytes.size() < hoechstens;) {
        const std::size_t vorher = bytes.size();
        bytes.resize(vorher + std::min(stueck, hoechstens - vorher));
        if (::ReadFile(datei.Wert(), bytes.data() + vorher, static_cast<DWORD>(bytes.size() - vorher),
                       &gelesen, nullptr) == 0)
            return {.fehlertext = Dateifehler(LetzteFehlernummer())};
        bytes.resize(vorher + gelesen);
    }
    return {.gelungen = true, .bytes = std::move(bytes)};
}

std::string LegeGefuellteAn(const QString& pfad, std::string_view bytes, const QFileInfo& alte) {
    const std::wstring systempfad = Systempfad(pfad);
    auto [datei, fehler] = OeffneDatei(pfad.toStdString(), Oeffnung::Neu);
    if (fehler != 0)
        return Dateifehler(fehler);
    fehler = SchreibeAb(datei, 0, bytes);
    if (fehler == 0)
        fehler = BringeAufDatentraeger(datei);
    datei.Schliesse();
    if (fehler == 0 && alte.exists())
        UebernimmRechte(Systempfad(alte.filePath()), systempfad);
    if (fehler != 0)
        ::DeleteFileW(systempfad.c_str());
    return Dateifehler(fehler);
}

std::string BenenneUm(const QString& von, const QFileInfo& nach) {
    const std::wstring alter = Systempfad(von);
    const std::wstring neuer = Systempfad(nach.filePath());
    return Dateifehler(Geduldig([&] { return Ersetze(alter, neuer); }));
}

Anhaengeergebnis HaengeAn(const QString& pfad, std::string_view bytes, std::size_t hoechstens) {
    const auto [datei, fehler] = OeffneDatei(pfad.toStdString(), Oeffnung::Anhaengen);
    if (fehler != 0)
        return {.fehlertext = Dateifehler(fehler)};
    const std::uint64_t vorher = Dateilaenge(datei);
    if (vorher + bytes.size() > hoechstens)
        return {.voll = true};
    return {.fehlertext = Dateifehler(SchreibeAb(datei, vorher, bytes))};
}

std::string Entferne(const QString& pfad) {
    const std::wstring systempfad = Systempfad(pfad);
    return Dateifehler(Geduldig([&] { return Entfernt(systempfad) ? 0 : LetzteFehlernummer(); }));
}

bool IstDieselbe(const QString& eine, const QString& andere) {
    const auto kennung = DateikennungDort(Systempfad(eine), true);
    return kennung && kennung == DateikennungDort(Systempfad(andere), true);
}

} // namespace varnoth::dateizugriff
