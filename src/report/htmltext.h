#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Pieces of a document in HTML. What comes from a device, a file or a person goes through `AlsHtml`.
namespace varnoth::html {

/// Text (UTF-8) as HTML that shows it letter by letter. Control characters are left out.
std::string AlsHtml(std::string_view text);

/// An element with HTML inside, and attributes as they are to stand in its tag.
std::string Element(std::string_view name, std::string_view inhalt, std::string_view attribute = {});

/// A cell of a table, in HTML.
struct Zelle {
    std::string inhalt;
    std::string attribute{};
};

using Zeile = std::vector<Zelle>;

/// A table with a line around each cell; the head is repeated on each page. No head without titles.
std::string Tabelle(const Zeile& kopf, const std::vector<Zeile>& zeilen);

/// Bytes in the 64 characters in which they can stand in an address.
std::string AlsBase64(std::string_view bytes);

} // namespace varnoth::html
