#pragma once

#include <QPushButton>

#include <string>

class QStatusBar;

namespace varnoth {

/// The red mark in the status bar while a recording runs. A click on it opens the window of recordings.
class Aufzeichnungsmarke : public QPushButton {
public:
    explicit Aufzeichnungsmarke(QStatusBar& leiste);

    /// Shows it with a text.
    void Zeige(const std::string& text);
};

} // namespace varnoth
