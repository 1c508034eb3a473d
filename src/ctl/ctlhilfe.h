#pragma once

#include "endecode.h"

namespace varnoth::ctl {

struct Lauf;

/// Tells how the program is used, or the command that the command line names; made from the tables of options
/// and commands.
Ende ZeigeHilfe(const Lauf& lauf);

/// Tells the program's version.
Ende ZeigeVersion(const Lauf& lauf);

} // namespace varnoth::ctl
