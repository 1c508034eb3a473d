#include "versionstext.h"

#include "programmversion.h"
#include "texte.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextProdukt = 8101;
constexpr std::int16_t TextEigentuemer = 8102;
constexpr std::int16_t TextJahre = 8103;
constexpr QChar Copyrightzeichen(169);

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

} // namespace

const QString& Versionstext() {
    static const QString text = QString::fromUtf8(Programmversion());
    return text;
}

QString Produktzeile() {
    return Text(TextProdukt) + Versionstext();
}

QString Eigentuemerzeile() {
    return Text(TextEigentuemer) + Copyrightzeichen + Text(TextJahre);
}

} // namespace varnoth
