#include "meldungsanker.h"

#include "texte.h"

namespace varnoth {

QString Meldungsanker(const QString& text) {
    int bester = 0;
    qsizetype laenge = 0;
    for (const std::int16_t id : AlleTextIds()) {
        if (id >= Englisch)
            continue;
        const QString meldung = QString::fromStdString(LadeText(id));
        if (meldung.size() > laenge && text.contains(meldung)) {
            bester = id;
            laenge = meldung.size();
        }
    }
    return bester == 0 ? QString() : QStringLiteral("m%1").arg(bester);
}

} // namespace varnoth
