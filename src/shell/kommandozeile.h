#pragma once

#include <QStringList>

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
};

/// Reads the words behind the program's name; words that it does not know are ignored.
Kommandozeile LiesKommandozeile(const QStringList& worte);

} // namespace varnoth
