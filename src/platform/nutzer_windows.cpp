#include "nutzer_windows.h"

#include "griff_windows.h"

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <vector>

namespace varnoth {

namespace {

/// What the system says of this process's user or of whom its new things belong to: a TOKEN_USER, a
/// TOKEN_OWNER. Empty when it does not say.
std::vector<std::byte> Ausweis(TOKEN_INFORMATION_CLASS was) {
    HANDLE offener = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &offener) == 0)
        return {};
    const Griff ausweis(offener);
    DWORD laenge = 0;
    ::GetTokenInformation(ausweis.Wert(), was, nullptr, 0, &laenge);
    std::vector<std::byte> angaben(laenge);
    if (laenge == 0 || ::GetTokenInformation(ausweis.Wert(), was, angaben.data(), laenge, &laenge) == 0)
        return {};
    return angaben;
}

/// Marks of users and groups that this process may count as its own.
class Eigene {
public:
    bool Enthaelt(PSID kennung) const {
        return kennung != nullptr &&
               (IstEine<TOKEN_USER>(nutzer, kennung) || IstEine<TOKEN_OWNER>(besitzer, kennung));
    }
    PSID Nutzer() const { return nutzer.empty() ? nullptr : Kennung<TOKEN_USER>(nutzer); }

private:
    template<class Art>
    static PSID Kennung(const std::vector<std::byte>& angaben) {
        const auto* const art = reinterpret_cast<const Art*>(angaben.data());
        if constexpr (std::is_same_v<Art, TOKEN_USER>)
            return art->User.Sid;
        else
            return art->Owner;
    }
    template<class Art>
    static bool IstEine(const std::vector<std::byte>& angaben, PSID kennung) {
        return !angaben.empty() && ::EqualSid(Kennung<Art>(angaben), kennung) != 0;
    }

    std::vector<std::byte> nutzer = Ausweis(TokenUser);
    std::vector<std::byte> besitzer = Ausweis(TokenOwner);
};

bool IstSystem(PSID kennung) {
    return ::IsWellKnownSid(kennung, WinLocalSystemSid) != 0 ||
           ::IsWellKnownSid(kennung, WinBuiltinAdministratorsSid) != 0 ||
           ::IsWellKnownSid(kennung, WinCreatorOwnerSid) != 0;
}

/// Whether an entry of an access list lets somebody else change what is in a folder.
bool LaesstFremdeSchreiben(const ACE_HEADER& eintrag, const Eigene& eigene) {
    constexpr DWORD schreibende = FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY | FILE_DELETE_CHILD | DELETE |
                                  WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
    if (eintrag.AceType != ACCESS_ALLOWED_ACE_TYPE || (eintrag.AceFlags & INHERIT_ONLY_ACE) != 0)
        return false;
    const auto& erlaubnis = reinterpret_cast<const ACCESS_ALLOWED_ACE&>(eintrag);
    PSID wem = const_cast<DWORD*>(&erlaubnis.SidStart);
    return (erlaubnis.Mask & schreibende) != 0 && !eigene.Enthaelt(wem) && !IstSystem(wem);
}

} // namespace

std::wstring Nutzerkennung() {
    const Eigene eigene;
    LPWSTR text = nullptr;
    if (eigene.Nutzer() == nullptr || ::ConvertSidToStringSidW(eigene.Nutzer(), &text) == 0)
        return {};
    std::wstring kennung = text;
    ::LocalFree(text);
    return kennung;
}

bool GehoertMir(void* griff, bool istPfad) {
    PSID besitzer = nullptr;
    PSECURITY_DESCRIPTOR beschreibung = nullptr;
    if (::GetSecurityInfo(griff, istPfad ? SE_FILE_OBJECT : SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION,
                          &besitzer, nullptr, nullptr, nullptr, &beschreibung) != ERROR_SUCCESS)
        return false;
    const bool meines = Eigene().Enthaelt(besitzer);
    ::LocalFree(beschreibung);
    return meines;
}

bool SchreibenNurEigene(void* griff) {
    PACL liste = nullptr;
    PSECURITY_DESCRIPTOR beschreibung = nullptr;
    if (::GetSecurityInfo(griff, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &liste, nullptr,
                          &beschreibung) != ERROR_SUCCESS)
        return false;
    const Eigene eigene;
    bool nurEigene = liste != nullptr; // without a list everybody may do everything
    for (DWORD i = 0; nurEigene && i < liste->AceCount; ++i) {
        void* eintrag = nullptr;
        nurEigene = ::GetAce(liste, i, &eintrag) != 0 &&
                    !LaesstFremdeSchreiben(*static_cast<const ACE_HEADER*>(eintrag), eigene);
    }
    ::LocalFree(beschreibung);
    return nurEigene;
}

} // namespace varnoth
