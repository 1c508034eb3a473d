#pragma once

#include "abbild.h"
#include "dateidialog.h"

#include <optional>
#include <string>

namespace varnoth {

// The commands around the configuration file. They show their dialogs, questions and messages themselves and
// leave the views of the main window to their caller. Paths are UTF-8.

/// Asks for a file name and saves the configuration there. An existing file is replaced only after a
/// question; Cancel there leads back to the dialog. The path is remembered in the settings and among the
/// files used last, the configuration then counts as unchanged. False when the dialog was cancelled or, after
/// a warning box, when the file could not be written; an older file is then still there and the configuration
/// still counts as changed.
bool KonfigurationSpeichernUnter();

/// Asks for a file and loads it with `LadeDatei`. False when the dialog was cancelled: nothing has changed.
bool KonfigurationOeffnen();

/// What an opened file is to the program: the current file, or one that is only read, as a backup, so that a
/// save is not led to it.
enum class Dateirolle { Aktuelle, Vorlage };

/// Loads a configuration file, checks its values and recomputes the cycle times. A file that cannot be read
/// gives a warning box and changes nothing; nor does anything change where changes that would be lost could
/// not be put aside and the user keeps them. A file that is read but no good gives its message and leaves the
/// values as they are, but becomes the current file name, as a good one does. True when the image now holds
/// the file's configuration; a current file is then remembered among those used last. After a `Vorlage` there
/// is no current file name.
bool LadeDatei(const std::string& pfad, Dateirolle rolle = Dateirolle::Aktuelle);

/// Says that several files cannot be opened at once.
void ZeigeMehrereDateien();

/// Before the program ends: asks whether changes in the configuration shall be saved, if there are any, and
/// saves them on Yes. True when the program may end; the changed mark is then cleared. False after Cancel,
/// and after a Yes that saved nothing (dialog cancelled, write failed): only a No gives changes up.
bool FrageNachSpeichern();

/// Reads a configuration file (UTF-8 path) without touching the configuration. One that cannot be read or is
/// no good gives its message and false.
bool LiesKonfigurationsdatei(const std::string& pfad, Abbild& abbild);

/// Where the user last had to do with a configuration file; empty = nowhere yet.
std::string LetzterOrdner();

/// What a warning says about a file that could not be read or written: the system's text, and the path in a
/// line of its own where that text does not name it.
std::string Dateifehlertext(const std::string& fehlertext, const std::string& pfad);

} // namespace varnoth
