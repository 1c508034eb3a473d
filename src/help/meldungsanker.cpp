#include "meldungsanker.h"

#include "texte.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace varnoth {

namespace {

constexpr qsizetype KuerzestesStueck = 12; // that says which message it is from

/// What of a message stands in its box whatever else is put into it; empty when that says too little.
QString FestesStueck(const QString& meldung) {
    static const QRegularExpression stelle(QStringLiteral("%[1-9]"));
    if (!meldung.contains(stelle))
        return meldung;
    const QStringList stuecke = meldung.split(stelle);
    const QString laengstes =
        *std::ranges::max_element(stuecke, {}, [](const QString& s) { return s.size(); });
    return laengstes.size() < KuerzestesStueck ? QString() : laengstes;
}

} // namespace

QString Meldungsanker(const QString& text) {
    int bester = 0;
    qsizetype laenge = 0;
    for (const std::int16_t id : AlleTextIds()) {
        if (id >= Englisch)
            continue;
        const QString meldung = FestesStueck(QString::fromStdString(LadeText(id)));
        if (meldung.size() > laenge && text.contains(meldung)) {
            bester = id;
            laenge = meldung.size();
        }
    }
    return bester == 0 ? QString() : QStringLiteral("m%1").arg(bester);
}

} // namespace varnoth
