#include "dateiausgabe.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace varnoth {

namespace {

constexpr ::mode_t WieDokumente = 0666; // less what the user's mask takes away

class Systemdatei : public Ausgabedatei {
public:
    Systemdatei(std::string woher, int welcher) : pfad(std::move(woher)), handle(welcher) {
        static_cast<void>(::fstat(handle, &eigene));
    }
    ~Systemdatei() override { Systemdatei::Schliesse(); }

    int HaengeAn(std::string_view bytes) override;
    int Sichere() override;
    void Schliesse() override;
    void Entferne() override;

private:
    bool IstNochDa() const;

    std::string pfad;
    int handle;
    struct ::stat eigene {};
    ::off_t laenge = 0;
};

int Systemdatei::HaengeAn(std::string_view bytes) {
    const auto neueLaenge = laenge + static_cast<::off_t>(bytes.size());
    while (!bytes.empty()) {
        const ::ssize_t geschrieben = ::write(handle, bytes.data(), bytes.size());
        if (geschrieben < 0 && errno == EINTR)
            continue;
        if (geschrieben <= 0) {
            const int fehler = geschrieben == 0 ? ENOSPC : errno;
            static_cast<void>(::ftruncate(handle, laenge) == 0 || errno != 0);
            return fehler;
        }
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    laenge = neueLaenge;
    return 0;
}

int Systemdatei::Sichere() {
    if (!IstNochDa())
        return ENOENT;
    const bool gelungen = ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    return gelungen ? 0 : errno;
}

void Systemdatei::Schliesse() {
    if (handle >= 0)
        ::close(std::exchange(handle, -1));
}

void Systemdatei::Entferne() {
    if (IstNochDa())
        ::unlink(pfad.c_str());
}

bool Systemdatei::IstNochDa() const {
    struct ::stat dort {};
    return ::lstat(pfad.c_str(), &dort) == 0 && dort.st_dev == eigene.st_dev && dort.st_ino == eigene.st_ino;
}

/// The disk is to hold the name of a new file too.
void SichereOrdner(const std::filesystem::path& ordner) {
    const int handle = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

} // namespace

Angelegt Dateiausgabe::LegeAn(const std::string& pfad) {
    const auto ordner = std::filesystem::path(pfad).parent_path();
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    const int handle =
        ::open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW | O_CLOEXEC, WieDokumente);
    if (handle < 0)
        return {.fehler = fehler ? fehler.value() : errno};
    SichereOrdner(ordner);
    return {.datei = std::make_unique<Systemdatei>(pfad, handle)};
}

std::optional<std::uint64_t> Dateiausgabe::FreierPlatz(const std::string& ordner) {
    std::error_code fehler;
    const auto platz = std::filesystem::space(ordner, fehler);
    return fehler ? std::nullopt : std::optional<std::uint64_t>(platz.available);
}

} // namespace varnoth
