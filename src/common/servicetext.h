#pragma once

#include <string>

/// The service mode that the command line enables.
namespace varnoth::modService {

/// Sets the service password: 16 characters, one byte each. It is kept in memory only.
void SetzeServiceText(const std::string& text);
/// The service password; empty when none was given.
const std::string& GetServiceText();

} // namespace varnoth::modService
