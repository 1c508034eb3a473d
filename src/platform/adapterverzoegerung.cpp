#include "adapterverzoegerung.h"

#include "systemfehler.h"
#include "textmitwerten.h"

#include <QFile>
#include <QString>

#include <cerrno>

namespace varnoth {

namespace {

constexpr std::int16_t TextOhneZeitgeber = 8201;
constexpr std::int16_t TextNichtGestellt = 8202;

std::string NichtGestellt(const std::string& datei, int nummer) {
    return LadeTextMit(TextNichtGestellt, {datei, Systemfehler(nummer)});
}

} // namespace

std::string VerkuerzeVerzoegerung(const Portangabe& port) {
    if (port.verzoegerungsdatei.empty())
        return LadeTextMit(TextOhneZeitgeber, {port.geraet});
    QFile datei(QString::fromStdString(port.verzoegerungsdatei));
    errno = 0;
    // Without a buffer: the driver refuses at the write.
    const bool geschrieben =
        datei.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered) &&
        datei.write("1\n") == 2;
    return geschrieben ? std::string() : NichtGestellt(port.verzoegerungsdatei, errno != 0 ? errno : EIO);
}

} // namespace varnoth
