#pragma once

#include <QLockFile>
#include <QString>

namespace varnoth {

/// Keeps a second instance of a program of the same user from running beside the first.
class Instanzsperre {
public:
    /// @param name the program's name
    /// @param ordner where the lock lies; empty: the user's run-time or temporary folder
    explicit Instanzsperre(const QString& name, const QString& ordner = {});

    /// Takes the lock until this object goes. False when another running instance holds it.
    bool Belege();

private:
    QLockFile sperre;
};

} // namespace varnoth
