#pragma once

#include <string>

namespace varnoth {

/// The program's settings file, by section and key. Texts are UTF-8.
class Einstellungen {
public:
    Einstellungen() = default;
    Einstellungen(const Einstellungen&) = delete;
    Einstellungen& operator=(const Einstellungen&) = delete;
    virtual ~Einstellungen() = default;

    /// The whole number under the key; the default where the key is missing. A text that is no number gives
    /// the number it begins with, or 0.
    virtual int LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) = 0;
    /// The text under the key; the default where the key is missing.
    virtual std::string LiesText(const std::string& abschnitt, const std::string& schluessel,
                                 const std::string& standard) = 0;
    /// Stores a text at once. False when the file could not be written; the value then lasts for this run.
    virtual bool SchreibText(const std::string& abschnitt, const std::string& schluessel,
                             const std::string& text) = 0;
};

/// The settings in force.
/// @throws std::logic_error when none were fitted in
Einstellungen& DieEinstellungen();

/// Fits settings in (nullptr takes them out). They must live until they are taken out.
void SetzeEinstellungen(Einstellungen* einstellungen);

/// The longest text that `LiesBegrenzt` gives, in characters.
inline constexpr int LaengsterText = 80;

/// A text that goes to another program or to the line: of a longer one than `LaengsterText` characters only
/// the beginning counts. The default where the key is missing.
std::string LiesBegrenzt(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard);

} // namespace varnoth
