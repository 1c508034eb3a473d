#pragma once

#include <cstdint>

namespace varnoth {

/// Switches the texts that Qt brings itself (buttons of its message boxes, file dialogs, context menus) to
/// the language of the offset: English for Englisch, German for any other. Needs an application object.
void LadeQtTexte(std::int16_t sprachoffset);

} // namespace varnoth
