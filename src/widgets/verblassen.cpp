#include "verblassen.h"

#include "strahlfarben.h"

namespace varnoth {

void Verblasse(QWidget& element, bool blass, const QPalette& vorbild) {
    QPalette eigene;
    if (blass)
        eigene.setColor(QPalette::WindowText,
                        AlsFlaeche(vorbild.color(QPalette::WindowText), vorbild.color(QPalette::Window)));
    element.setPalette(eigene);
}

} // namespace varnoth
