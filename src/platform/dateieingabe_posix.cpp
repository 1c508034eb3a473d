#include "dateieingabe.h"

#include "systemfehler.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace varnoth {

namespace {

class Systemeingabe : public Eingabedatei {
public:
    Systemeingabe(int welcher, std::uint64_t bytes) : handle(welcher), groesse(bytes) {}
    ~Systemeingabe() override { ::close(handle); }

    std::uint64_t Groesse() const override { return groesse; }
    bool Lies(std::uint64_t stelle, std::span<char> ziel) const override {
        while (!ziel.empty()) {
            const ::ssize_t gelesen = ::pread(handle, ziel.data(), ziel.size(), static_cast<::off_t>(stelle));
            if (gelesen < 0 && errno == EINTR)
                continue;
            if (gelesen <= 0)
                return false;
            stelle += static_cast<std::uint64_t>(gelesen);
            ziel = ziel.subspan(static_cast<std::size_t>(gelesen));
        }
        return true;
    }

private:
    int handle;
    std::uint64_t groesse;
};

} // namespace

Eingabe OeffneEingabe(const std::string& pfad) {
    const int handle = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0)
        return {.fehlertext = Systemfehler(errno)};
    struct ::stat stand {};
    const int fehler = ::fstat(handle, &stand) != 0 ? errno : S_ISDIR(stand.st_mode) ? EISDIR : 0;
    if (fehler != 0 || !S_ISREG(stand.st_mode)) {
        ::close(handle);
        return {.fehlertext = fehler != 0 ? Systemfehler(fehler) : KeineGewoehnlicheDatei()};
    }
    return {.datei =
                std::make_unique<const Systemeingabe>(handle, static_cast<std::uint64_t>(stand.st_size))};
}

} // namespace varnoth
