#include "gebietszahl.h"

namespace varnoth {

namespace {
constexpr int Ziffern = 15; // every double that was a decimal number of so many digits comes out as that
}

std::string Gebietszahl(double zahl, const QLocale& gebiet) {
    QLocale ohneGruppen = gebiet;
    ohneGruppen.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::OmitLeadingZeroInExponent);
    return ohneGruppen.toString(zahl, 'G', Ziffern).toStdString();
}

} // namespace varnoth
