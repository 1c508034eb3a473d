#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <string>

namespace varnoth {

/// What the program was told by its command line.
struct Kommandozeile {
    /// "/P...": the 16-character service password, one byte a character, filled up with blanks.
    std::optional<std::string> serviceText;
    /// "/Tlogfile": every byte of the line goes into the trace file.
    bool trace = false;
    /// "/Simulator": all serial ports lead to the built-in controller.
    bool simulator = false;
    /// "/Geraet=PATH": the serial device that all ports of this run mean; empty: none given.
    QString geraet;
    /// "/Com=N": the serial port, 1..4, of this run instead of the one in the settings; 0: none given.
    int com = 0;
    /// "/Selbsttest=FOLDER": connect, report what was found, save a picture in the folder and end.
    QString selbsttest;
    /// The files to open, as they were written.
    QStringList dateien;
};

/// Reads the words behind the program's name.
///
/// Paths begin with a slash as switches do, so this tells them apart: behind the word "--" every word is a
/// file. Before it, a word that begins like a switch is that switch, unless it has a second slash and a file
/// of exactly this name exists. Any other word with a slash in front is a file when it has a second slash or
/// ends with ".con" or ".vrec"; one without a slash in front is a file unless it begins with "-". What is
/// left is ignored.
/// @param gibtEs whether a path leads to a file that exists
Kommandozeile LiesKommandozeile(const QStringList& worte, const std::function<bool(const QString&)>& gibtEs);
/// The same with the files of the system.
Kommandozeile LiesKommandozeile(const QStringList& worte);

/// What the program prints, and then ends, when one of the words before "--" asks for its version
/// ("--version") or its switches ("--help"), in the current language; nothing when none does.
std::optional<QString> Aufrufauskunft(const QStringList& worte);

} // namespace varnoth
