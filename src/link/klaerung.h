#pragma once

#include "austausch.h"

#include <string>

/// What comes before a request: the line is made ready, and it is settled whose turn it is. For the files of
/// modAustausch alone.
namespace varnoth::modAustausch {

/// Opens the port anew when its line had disappeared. With the line went what would have shown a reply too
/// many, so it is a break while anything is provisional.
void OeffneWieder();

/// Gets the line ready for the request and sends it. False when it must not be sent, because a late reply
/// could be mistaken for its own or a command has closed the port meanwhile.
bool BereiteUndSende(const std::string& anforderung, Verlass verlass);

} // namespace varnoth::modAustausch
