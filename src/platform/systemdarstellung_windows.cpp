#include "systemdarstellung.h"

#include <QSettings>
#include <QString>
#include <QtGlobal>

#include <windows.h>

namespace varnoth {

namespace {

const QString Eigenarten =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize");
constexpr const char* Plattform = "QT_QPA_PLATFORM";

bool ZeigtHohenKontrast() {
    HIGHCONTRASTW kontrast{};
    kontrast.cbSize = sizeof kontrast;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof kontrast, &kontrast, 0) != 0 &&
           (kontrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace

bool SystemWillDunkel() {
    const QSettings eigenarten(Eigenarten, QSettings::NativeFormat);
    return eigenarten.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0 && !ZeigtHohenKontrast();
}

void FolgeImRahmenDemSystem() {
    if (!qEnvironmentVariableIsSet(Plattform))
        qputenv(Plattform, "windows:darkmode=1");
}

} // namespace varnoth
