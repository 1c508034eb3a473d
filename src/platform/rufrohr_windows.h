#pragma once

#include "griff_windows.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace varnoth {

/// The name of the pipe that stands for a place of the file system; empty for none.
std::wstring Rohrname(const QString& ort);

/// How far something is that was begun.
enum class Rufstand { Laeuft, Fertig, Gescheitert };

/// An end of the pipe, with one thing under way at a time. What is under way is called off when this object
/// goes.
class Rohrende {
public:
    explicit Rohrende(Griff offenes);
    Rohrende(const Rohrende&) = delete;
    Rohrende& operator=(const Rohrende&) = delete;
    ~Rohrende();

    /// Begins to wait for a call.
    void WarteAufAnruf();
    /// Begins to read a message; one longer than so many bytes is read up to there.
    void Lies(std::size_t hoechstens);
    /// Begins to write a message.
    void Sende(std::string_view bytes);

    /// How far that is which was begun last.
    Rufstand Stand();
    /// The same once it has ended, or when the time is over.
    Rufstand StandNach(int millisekunden);
    /// The message that was read, as far as it was.
    std::string_view Gelesenes() const;

    /// The event that is set as soon as what was begun has ended.
    void* Ereignis() const;
    void* Wert() const { return rohr.Wert(); }

private:
    struct Vorgang;
    void* Beginne();
    void Merke(bool gelungen);

    Griff rohr;
    std::unique_ptr<Vorgang> vorgang;
};

} // namespace varnoth
