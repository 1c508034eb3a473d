#pragma once

#include "stellen.h"
#include "zelle.h"

#include <cstdint>
#include <span>

namespace varnoth::pruefung {

std::span<const Stelle> VerbindungsStellen();
std::span<const Stelle> KonfigurationsStellen();
std::span<const Stelle> DienstStellen();
std::span<const Stelle> KommandoStellen();

/// Attempts that are not there while all goes well, and those that come only when the fault lasts.
inline constexpr int ZweitesMal = 2;
inline constexpr int DrittesMal = 3;
/// Longer than the two attempts of the editor, or two of any other procedure, take.
inline constexpr qint64 NachZweiVersuchen = 2500;

/// Whether a field of a visible window shows this number or a higher one.
bool ZeigtZahlAb(Zelle& z, const char* fenster, const char* feld, int zahl);
/// Whether a button of a visible window can be clicked.
bool KnopfIstFrei(const char* fenster, const char* knopf);
/// Whether the program is back in its main window.
bool IstZurueck(Zelle& z);

Handlung BereiteNichts(Zelle& z);
Handlung BereiteLiveDaten(Zelle& z);
/// The controller is identified and live data stopped.
Handlung BereiteStehendeVerbindung(Zelle& z);

/// The user does the same once more.
template<void (*tat)(Zelle&)>
Handlung TuNochmal(Zelle& z) {
    tat(z);
    co_await z.regie.Nach(0);
}

} // namespace varnoth::pruefung
