#pragma once

#include "boolean.h"

#include <cstdint>
#include <string>

namespace varnoth {

/// What the controller told about itself.
struct Identifikation {
    Boolean gueltig = False;        ///< True once a whole valid reply was received
    std::int16_t slaveAdresse = -1; ///< of the reply; -1 until then
    std::int16_t byte1 = -1;        ///< switching state; -1 until then
    std::int16_t byte2 = -1;        ///< device type; -1 until then
    std::string text1{};            ///< name
    std::string text2{};            ///< serial number
    std::string text3{};            ///< copyright

    bool operator==(const Identifikation&) const = default;
};

/// Splits the reply's text at ";" into the record's three texts; missing ones become empty.
void VerteileIdenttext(const std::string& text, Identifikation& ident);

/// One of the record's texts as UTF-8.
std::string IdenttextAlsUtf8(const std::string& text);

} // namespace varnoth
