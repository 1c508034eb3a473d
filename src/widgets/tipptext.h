#pragma once

#include <QString>

namespace varnoth {

/// A text of the controller, a file or the settings as a tool tip: shown letter by letter, whatever tags
/// stand in it. (A label shows every text so once `LokalisiereForm` has seen it.)
QString AlsTipp(const QString& text);

} // namespace varnoth
