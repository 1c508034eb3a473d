#include "ansichtstitel.h"

#include "texte.h"

namespace varnoth {

std::int16_t Titeltext(modPolling::Optikteilzustand zustand, bool live) {
    if (zustand != modPolling::Vorhanden)
        return TextNichtVorhanden;
    return live ? TextOnline : TextOffline;
}

QString Ansichtstitel(int optikteil, std::int16_t textId) {
    return QString::number(optikteil + 1) + QString::fromStdString(LadeText(textId));
}

QString Wiedergabetitel(int optikteil, std::int16_t textId) {
    constexpr std::int16_t TextWiedergabe = 6500;
    return QString::fromStdString(LadeText(TextWiedergabe)) + QStringLiteral(": ") +
           Ansichtstitel(optikteil, textId);
}

} // namespace varnoth
