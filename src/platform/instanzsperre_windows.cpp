#include "instanzsperre.h"

#include "systempfad_windows.h"

#include <windows.h>

namespace varnoth {

namespace {

HANDLE AlsHandle(std::intptr_t griff) {
    return reinterpret_cast<HANDLE>(griff);
}

/// The open file; -1 = none. Who only looks at it, as virus scanners do, is in nobody's way.
std::intptr_t OeffneSperrdatei(const QString& pfad) {
    constexpr DWORD mitAllen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const std::wstring systempfad = Systempfad(pfad.toStdString());
    if (!KannDateiSein(systempfad))
        return -1;
    return reinterpret_cast<std::intptr_t>(
        ::CreateFileW(systempfad.c_str(), GENERIC_READ | GENERIC_WRITE, mitAllen, nullptr, OPEN_ALWAYS,
                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

} // namespace

Instanzsperre::~Instanzsperre() {
    if (griff != -1)
        ::CloseHandle(AlsHandle(griff));
}

bool Instanzsperre::Belege() {
    constexpr DWORD wie = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    if (griff != -1)
        return true;
    const std::intptr_t offener = OeffneSperrdatei(pfad);
    OVERLAPPED anfang{};
    if (offener == -1 || ::LockFileEx(AlsHandle(offener), wie, 0, 1, 0, &anfang) != 0) {
        griff = offener;
        return true;
    }
    const DWORD fehler = ::GetLastError();
    ::CloseHandle(AlsHandle(offener));
    return fehler != ERROR_LOCK_VIOLATION && fehler != ERROR_IO_PENDING;
}

} // namespace varnoth
