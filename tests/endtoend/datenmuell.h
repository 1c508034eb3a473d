#pragma once

#include <QString>

#include <atomic>
#include <stop_token>
#include <thread>

namespace varnoth::pruefung {

/// A pseudo terminal at whose far end something chatters: bytes without sense, without end, whatever it is
/// asked.
class Datenmuell {
public:
    Datenmuell();
    ~Datenmuell();
    Datenmuell(const Datenmuell&) = delete;
    Datenmuell& operator=(const Datenmuell&) = delete;

    QString Geraet() const { return geraet; }
    /// Number of bytes that it was sent.
    int Empfangen() const { return empfangen; }

private:
    void SchalteEchoAus();
    void Plappere(const std::stop_token& ende);

    int master;
    int slave = -1;
    QString geraet;
    std::atomic<int> empfangen = 0;
    std::jthread plapperer;
};

} // namespace varnoth::pruefung
