#include "verblassen.h"

#include "darstellung.h"
#include "strahlfarben.h"

namespace varnoth {

namespace {

QColor Blass(const QPalette& vorbild) {
    if (IstHoherKontrast(vorbild))
        return vorbild.color(QPalette::Disabled, QPalette::WindowText);
    return AlsFlaeche(vorbild.color(QPalette::WindowText), vorbild.color(QPalette::Window));
}

} // namespace

void Verblasse(QWidget& element, bool blass, const QPalette& vorbild) {
    QPalette eigene;
    if (blass)
        eigene.setColor(QPalette::WindowText, Blass(vorbild));
    element.setPalette(eigene);
}

} // namespace varnoth
