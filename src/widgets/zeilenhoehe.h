#pragma once

class QAbstractItemView;

namespace varnoth {

/// Gives the rows of a list or tree of text room above and below it: without, the dots of a capital letter
/// are cut and rows stand close. The view must not have a delegate of its own.
void GibZeilenLuft(QAbstractItemView& liste);

} // namespace varnoth
