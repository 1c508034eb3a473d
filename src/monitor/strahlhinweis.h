#pragma once

#include "schild.h"

namespace varnoth {

/// A plate in the middle of a beam bar that says how far the beams below it can be believed.
class Strahlhinweis : public Schild {
public:
    explicit Strahlhinweis(QWidget& strahlen);

    /// Shows a text; an empty one takes it away.
    void Zeige(const QString& text);

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    void Ordne();
};

} // namespace varnoth
