#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// The text of a settings file: names of sections in brackets, below them lines "key=value". Names are found
/// in any case, blanks around names and values do not count, and of several lines with the same key the first
/// counts. Whatever else stands in the text (comments, blank lines, lines without sense) belongs to somebody
/// else: a change touches its own line and leaves every other byte as it is.
class Initext {
public:
    Initext() = default;
    explicit Initext(std::string inhalt) : text(std::move(inhalt)) {}

    /// The value of a key; nothing when it is not there.
    std::optional<std::string> Lies(std::string_view abschnitt, std::string_view schluessel) const;

    /// Sets the value of a key: in its line, else in a new one behind the last key of its section, else in a
    /// new section at the end. A value that does not fit in one line gives false and changes nothing.
    bool Setze(std::string_view abschnitt, std::string_view schluessel, std::string_view wert);

    const std::string& Text() const { return text; }

private:
    std::string text;
};

} // namespace varnoth
