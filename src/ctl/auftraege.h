#pragma once

#include "endecode.h"

/// What the commands do, in the order of the table of commands. Each writes its data and messages to the
/// console of the run and gives the exit code.
namespace varnoth::ctl {

struct Lauf;

Ende Ports(Lauf& lauf);
Ende Find(Lauf& lauf);
Ende Linecheck(Lauf& lauf);
Ende Identify(Lauf& lauf);
Ende Read(Lauf& lauf);
Ende Write(Lauf& lauf);
Ende Compare(Lauf& lauf);
Ende Get(Lauf& lauf);
Ende Set(Lauf& lauf);
Ende Watch(Lauf& lauf);
Ende Report(Lauf& lauf);
Ende Export(Lauf& lauf);
Ende Import(Lauf& lauf);
Ende Reset(Lauf& lauf);

} // namespace varnoth::ctl
