#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// The three streams of a program without windows.
enum class Strom { Eingabe, Ausgabe, Fehler };

/// Lets a program with windows write into the terminal that it was called from, which Windows keeps from it:
/// output that leads nowhere goes there from now on, and begins in a line of its own. What was redirected
/// stays so, and nothing happens where there is no such terminal. On Linux it has it from the start.
void NimmTerminalDesAufrufers();

/// Whether a person sits at the other end.
bool IstTerminal(Strom strom);

/// How many characters fit into a line there; 0 where that is not known.
int Terminalbreite(Strom strom);

/// Writes all bytes, unbuffered. Gives the system's error number, 0 when all are written.
int SchreibeInStrom(Strom strom, std::string_view bytes);

/// A line of the standard input without its end; nothing at the end of the input, and when a signal came
/// instead.
std::optional<std::string> LiesEingabezeile();

/// The characters that can be shown.
enum class Zeichenvorrat { Utf8, Latin1, Ascii };

/// Those that the user's locale has. To be asked before anything else has changed the locale of this process.
Zeichenvorrat ZeichenvorratDesNutzers();

} // namespace varnoth
