#include "darstellung.h"

#include "startzustand.h"

namespace varnoth {

namespace {

Strahlfarbsatz farbsatz = Strahlfarbsatz::GruenUndRot;
const Startwert startwert(farbsatz);

constexpr int Dunkel = 128; // lightness below which a ground is dark

struct Farbtafel {
    QRgb flaeche; ///< of windows
    QRgb feld;    ///< of lists and fields
    QRgb streifen;
    QRgb knopf;
    QRgb linie; ///< of tables
    QRgb schrift;
    QRgb blass; ///< what cannot be chosen
    QRgb auswahl;
    QRgb aufAuswahl;
    QRgb verweis;
    QRgb besucht;
    QRgb tipp;
    QRgb aufTipp;
};

constexpr Farbtafel Helle{.flaeche = 0xfff1f2f4,
                          .feld = 0xffffffff,
                          .streifen = 0xfff3f5f8,
                          .knopf = 0xffe9ebee,
                          .linie = 0xff9b9d9f,
                          .schrift = 0xff1b1f24,
                          .blass = 0xff868c93,
                          .auswahl = 0xff2b6cb0,
                          .aufAuswahl = 0xffffffff,
                          .verweis = 0xff1f5fa8,
                          .besucht = 0xff6a3fa0,
                          .tipp = 0xffffffe6,
                          .aufTipp = 0xff1b1f24};
constexpr Farbtafel Dunkle{.flaeche = 0xff2a2d31,
                           .feld = 0xff1c1e21,
                           .streifen = 0xff24272a,
                           .knopf = 0xff3a3e44,
                           .linie = 0xff5a6068,
                           .schrift = 0xffe8eaec,
                           .blass = 0xff8b9199,
                           .auswahl = 0xff2f6fb3,
                           .aufAuswahl = 0xffffffff,
                           .verweis = 0xff7cb7f0,
                           .besucht = 0xffc3a6f0,
                           .tipp = 0xff3f444a,
                           .aufTipp = 0xfff2f3f4};
constexpr Farbtafel Kontrastreiche{.flaeche = 0xff000000,
                                   .feld = 0xff000000,
                                   .streifen = 0xff1c1c1c,
                                   .knopf = 0xff000000,
                                   .linie = 0xffffffff,
                                   .schrift = 0xffffffff,
                                   .blass = 0xffa8a8a8,
                                   .auswahl = 0xff0050c8,
                                   .aufAuswahl = 0xffffffff,
                                   .verweis = 0xff6fd3ff,
                                   .besucht = 0xffd9a6ff,
                                   .tipp = 0xff000000,
                                   .aufTipp = 0xffffffff};

QPalette Gemischt(const Farbtafel& tafel) {
    QPalette palette(QColor(tafel.knopf), QColor(tafel.flaeche));
    const auto setze = [&palette](QPalette::ColorRole rolle, QRgb farbe) {
        palette.setColor(QPalette::All, rolle, QColor(farbe));
    };
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        setze(rolle, tafel.schrift);
        palette.setColor(QPalette::Disabled, rolle, QColor(tafel.blass));
    }
    setze(QPalette::Base, tafel.feld);
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(tafel.flaeche));
    setze(QPalette::AlternateBase, tafel.streifen);
    setze(QPalette::Mid, tafel.linie);
    setze(QPalette::BrightText, tafel.aufAuswahl);
    setze(QPalette::PlaceholderText, tafel.blass);
    setze(QPalette::Highlight, tafel.auswahl);
    setze(QPalette::HighlightedText, tafel.aufAuswahl);
    setze(QPalette::Link, tafel.verweis);
    setze(QPalette::LinkVisited, tafel.besucht);
    setze(QPalette::ToolTipBase, tafel.tipp);
    setze(QPalette::ToolTipText, tafel.aufTipp);
    return palette;
}

} // namespace

std::optional<QPalette> PaletteFuer(Erscheinung erscheinung) {
    switch (erscheinung) {
    case Erscheinung::Hell:
        return Gemischt(Helle);
    case Erscheinung::Dunkel:
        return Gemischt(Dunkle);
    case Erscheinung::HoherKontrast:
        return Gemischt(Kontrastreiche);
    case Erscheinung::System:
        break;
    }
    return std::nullopt;
}

bool IstHoherKontrast(const QPalette& palette) {
    const auto ist = [&palette](QPalette::ColorRole rolle, Qt::GlobalColor farbe) {
        return palette.color(QPalette::Active, rolle) == QColor(farbe);
    };
    return ist(QPalette::Base, Qt::black) && ist(QPalette::Window, Qt::black) &&
           ist(QPalette::Text, Qt::white);
}

bool IstDunkel(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < Dunkel;
}

Strahlfarbsatz GetStrahlfarbsatz() {
    return farbsatz;
}

void SetzeStrahlfarbsatz(Strahlfarbsatz neuer) {
    farbsatz = neuer;
}

} // namespace varnoth
