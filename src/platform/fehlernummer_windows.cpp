#include "fehlernummer_windows.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

#include <windows.h>

namespace varnoth {

namespace {

struct Zeile {
    DWORD systemfehler;
    int nummer;
};

constexpr Zeile DieZeilen[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_INVALID_DRIVE, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},
    {ERROR_BAD_NET_NAME, ENOENT},
    {ERROR_BAD_PATHNAME, ENOENT},
    {ERROR_INVALID_NAME, EILSEQ},
    {ERROR_NO_UNICODE_TRANSLATION, EILSEQ},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_PRIVILEGE_NOT_HELD, EACCES},
    {ERROR_NETWORK_ACCESS_DENIED, EACCES},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_SHARING_VIOLATION, EBUSY},
    {ERROR_LOCK_VIOLATION, EBUSY},
    {ERROR_USER_MAPPED_FILE, EBUSY},
    {ERROR_DELETE_PENDING, EBUSY},
    {ERROR_NOT_READY, ENXIO},
    {ERROR_DEV_NOT_EXIST, ENXIO},
    {ERROR_DEVICE_NOT_CONNECTED, ENXIO},
    {ERROR_FILE_TOO_LARGE, EFBIG},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_BROKEN_PIPE, EPIPE},
    {ERROR_NO_DATA, EPIPE},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},
};

} // namespace

int FehlernummerVon(unsigned long systemfehler) {
    const auto zeile = std::ranges::find(DieZeilen, systemfehler, &Zeile::systemfehler);
    return zeile != std::ranges::end(DieZeilen) ? zeile->nummer : EIO;
}

int LetzteFehlernummer() {
    return FehlernummerVon(::GetLastError());
}

} // namespace varnoth
