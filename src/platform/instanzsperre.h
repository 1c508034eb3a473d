#pragma once

#include <QString>
#include <QtGlobal>

#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

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

    /// Where the program that holds the lock takes files: a path beside the lock's; empty where there is no
    /// folder for it.
    QString Briefkasten() const;

private:
    QString pfad;
#ifdef Q_OS_UNIX
    int handle = -1;
#else
    QLockFile sperre;
#endif
};

} // namespace varnoth
