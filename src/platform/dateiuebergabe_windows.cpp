#include "dateiuebergabe.h"

#include "nutzer_windows.h"
#include "rufrohr_windows.h"
#include "rufworte.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace varnoth {

namespace {

/// Calls until somebody answers: a program that starts does not listen yet, one that is busy has others
/// waiting. Whoever has made the pipe learns no more of this user than that he calls.
Griff RufeAn(const std::wstring& name, const Ruffrist& frist) {
    constexpr DWORD wie = FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;
    for (;;) {
        Griff rohr(::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, wie,
                                 nullptr));
        const DWORD fehler = ::GetLastError();
        const bool kommtNoch = fehler == ERROR_FILE_NOT_FOUND || fehler == ERROR_PIPE_BUSY;
        if (rohr || !kommtNoch || !frist.Laeuft())
            return rohr;
        std::this_thread::sleep_for(std::min<Zeit>(Rufpause, std::chrono::milliseconds(frist.Rest())));
    }
}

/// The program that answers may come to the front: the user has asked this one to, and it hands that on.
void LassNachVorn(const Griff& rohr) {
    ULONG prozess = 0;
    if (::GetNamedPipeServerProcessId(rohr.Wert(), &prozess) != 0)
        ::AllowSetForegroundWindow(prozess);
}

bool WirdAngenommen(Griff rohr, const std::string& ruf, const Ruffrist& frist) {
    DWORD satzweise = PIPE_READMODE_MESSAGE;
    if (::SetNamedPipeHandleState(rohr.Wert(), &satzweise, nullptr, nullptr) == 0)
        return false;
    LassNachVorn(rohr);
    Rohrende ende(std::move(rohr));
    ende.Sende(ruf);
    if (ende.StandNach(frist.Rest()) != Rufstand::Fertig)
        return false;
    ende.Lies(LaengsterRuf);
    return ende.StandNach(frist.Rest()) == Rufstand::Fertig && ende.Gelesenes() == RufAngenommen;
}

} // namespace

bool UebergibDatei(const QString& ort, const std::string& pfad, Zeit hoechstens) {
    const std::wstring name = Rohrname(ort);
    const Ruffrist frist(hoechstens);
    if (name.empty())
        return false;
    Griff rohr = RufeAn(name, frist);
    return rohr && GehoertMir(rohr.Wert(), false) &&
           WirdAngenommen(std::move(rohr), std::string(Rufgruss) + pfad, frist);
}

} // namespace varnoth
