#pragma once

#include <QString>

namespace varnoth {

/// The place of a message among the messages of the help: "m" and the German id of the text that the box
/// shows, alone or with a path or number added. Empty for a text that is not in the string table.
QString Meldungsanker(const QString& text);

} // namespace varnoth
