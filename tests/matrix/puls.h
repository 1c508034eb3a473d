#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <string>

namespace varnoth::pruefung {

/// A timer in the program's window, and the longest that it ever had to wait for its turn: so long would a
/// click have waited. What other processes took of the processor meanwhile does not count.
class Puls {
public:
    Puls();

    /// Forgets what was measured so far.
    void Beginne();
    /// Leaves out the time since the last beat: the test itself has held the program up.
    void UebergeheLuecke();
    qint64 GroessteLueckeMs() const { return groesste; }
    /// The window in front when the longest gap was over.
    const std::string& Wo() const { return wo; }

private:
    void Schlage();

    QTimer takt;
    QElapsedTimer seit;
    qint64 gewartetMs = 0; ///< on the processor, since the program began
    qint64 groesste = 0;
    std::string wo;
};

} // namespace varnoth::pruefung
