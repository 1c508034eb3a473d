#include "aufzeichnungsmarke.h"

#include "symbolbild.h"
#include "texte.h"
#include "tipptext.h"

#include <QStatusBar>

namespace varnoth {

namespace {

constexpr std::int16_t TextHinweis = 6229;

} // namespace

Aufzeichnungsmarke::Aufzeichnungsmarke(QStatusBar& leiste) : QPushButton(&leiste) {
    setObjectName(QStringLiteral("cmdAufzeichnungsmarke"));
    setFlat(true);
    setFocusPolicy(Qt::NoFocus); // the key of its command does the same
    setIcon(Symbolbild(QStringLiteral("aufnahme_laeuft")));
    leiste.insertPermanentWidget(0, this);
    hide();
}

void Aufzeichnungsmarke::Zeige(const std::string& text) {
    if (const QString neu = QString::fromStdString(text).replace(u'&', QStringLiteral("&&"));
        neu != this->text()) {
        setText(neu);
        setAccessibleName(QString::fromStdString(text));
    }
    const QString hinweis = AlsTipp(QString::fromStdString(text + "\n" + LadeText(TextHinweis)));
    if (toolTip() != hinweis)
        setToolTip(hinweis);
    show();
}

} // namespace varnoth
