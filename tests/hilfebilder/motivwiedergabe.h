#pragma once

#include "buehne.h"

namespace varnoth::hilfebilder {

/// The main window with a record of the night that is replayed, at a note.
QImage Wiedergabebild(Buehne& buehne);

} // namespace varnoth::hilfebilder
