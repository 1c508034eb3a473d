#include "datenmuell.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <random>

namespace varnoth::pruefung {

namespace {
constexpr int TaktMs = 2;
}

Datenmuell::Datenmuell() : master(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
    EXPECT_EQ(::grantpt(master), 0);
    EXPECT_EQ(::unlockpt(master), 0);
    geraet = QString::fromLocal8Bit(::ptsname(master));
    SchalteEchoAus();
    plapperer = std::jthread([this](const std::stop_token& ende) { Plappere(ende); });
}

Datenmuell::~Datenmuell() {
    plapperer.request_stop();
    plapperer.join();
    ::close(slave);
    ::close(master);
}

/// A terminal that nobody has set up yet would send the garbage straight back. It keeps its settings as long
/// as it is open.
void Datenmuell::SchalteEchoAus() {
    slave = ::open(::ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios einstellung{};
    EXPECT_EQ(::tcgetattr(slave, &einstellung), 0);
    ::cfmakeraw(&einstellung);
    EXPECT_EQ(::tcsetattr(slave, TCSANOW, &einstellung), 0);
}

void Datenmuell::Plappere(const std::stop_token& ende) {
    std::mt19937 zufall(1);
    while (!ende.stop_requested()) {
        pollfd leitung{master, POLLIN, 0};
        ::poll(&leitung, 1, TaktMs);
        std::array<char, 64> bytes{};
        if ((leitung.revents & POLLIN) != 0)
            empfangen += static_cast<int>(std::max<ssize_t>(0, ::read(master, bytes.data(), bytes.size())));
        for (char& byte : bytes)
            byte = static_cast<char>(zufall());
        [[maybe_unused]] const ssize_t geschrieben = ::write(master, bytes.data(), bytes.size());
    }
}

} // namespace varnoth::pruefung
