#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace varnoth::pruefung {

struct Fensterprobe {
    const char* name; ///< of the form
    std::function<std::unique_ptr<QWidget>()> mache;
};

/// A text with tags, of the length of a serial number.
inline constexpr char TextMitTags[] = "<b>SN</b><img src=x>";

/// Every window of the program but the main one, not shown yet; what one is given shows `TextMitTags`
/// wherever it can. A test compares the names with the forms in the sources.
const std::vector<Fensterprobe>& AlleFenster();

} // namespace varnoth::pruefung
