#pragma once

class QTableView;

namespace varnoth {

/// Has the rows of a table drawn as the style draws plain text in one line, in less time: live data waits for
/// what does not fit into a wait of the line.
void MaleSchnell(QTableView& tabelle);

} // namespace varnoth
