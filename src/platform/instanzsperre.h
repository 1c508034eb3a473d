#pragma once

#include <QString>

#include <cstdint>

namespace varnoth {

/// Keeps a second instance of a program of the same user from running beside the first. The lock is the
/// system's own on an open file, so it goes with the process that holds it, however that ends.
class Instanzsperre {
public:
    /// @param name the program's name
    /// @param ordner where the lock lies; empty: a folder that only this user can enter
    explicit Instanzsperre(const QString& name, const QString& ordner = {});
    Instanzsperre(const Instanzsperre&) = delete;
    Instanzsperre& operator=(const Instanzsperre&) = delete;
    ~Instanzsperre();

    /// Takes the lock until this object goes. False when another running instance holds it; a folder in which
    /// no lock can lie keeps no program from starting.
    bool Belege();

    /// Where the program that holds the lock takes files: a path beside the lock's, which on Windows only
    /// gives the name of a pipe; empty where there is no folder for it.
    QString Briefkasten() const;

private:
    QString pfad;
    std::intptr_t griff = -1; ///< of the open file; -1: none
};

} // namespace varnoth
