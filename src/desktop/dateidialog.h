#pragma once

#include <QStringList>

#include <functional>
#include <optional>
#include <string>

namespace varnoth {

enum class Dateiwahl { Oeffnen, Speichern, Ordner };

/// A question for a file, or a folder. Texts and paths are UTF-8.
struct Dateifrage {
    Dateiwahl art = Dateiwahl::Oeffnen;
    std::string titel{};
    std::string filter{}; ///< "name|pattern|name|pattern"; the first one is selected
    std::string ordner{}; ///< where the dialog starts; empty = the program's own folder
    std::string name{};   ///< preset file name; one with a path starts the dialog in that folder

    bool operator==(const Dateifrage&) const = default;
};

/// Shows a file dialog over the window in front and waits for the chosen path; nothing when it was cancelled.
/// A typed name without an extension gets the one of the selected filter. The dialog does not ask before an
/// existing file is chosen for saving: that is left to the caller.
std::optional<std::string> FrageNachDatei(const Dateifrage& frage);

using Dateiantwort = std::function<std::optional<std::string>(const Dateifrage&)>;

/// Sets who answers instead of a real dialog (an empty function: the dialog again).
void SetzeDateiantwort(Dateiantwort antwort);

/// A filter string in the form that Qt's dialogs take, one entry for each pair.
QStringList FilterFuerQt(const std::string& filter);

/// The extension that a filter in Qt's form gives to a name without one; empty for a filter of all files.
QString EndungAus(const QString& qtFilter);

} // namespace varnoth
