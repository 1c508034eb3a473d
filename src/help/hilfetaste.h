#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace varnoth {

/// The key F1 everywhere in the program, in modal dialogs too, as long as it lives.
class Hilfetaste : public QObject {
public:
    /// @param die called with the control that help is asked for (nullptr: none is in front). It runs in the
    ///            middle of whatever waits for events and must not wait itself.
    explicit Hilfetaste(std::function<void(QWidget* stelle)> zeigeZu);

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    std::function<void(QWidget*)> zeige;
};

} // namespace varnoth
