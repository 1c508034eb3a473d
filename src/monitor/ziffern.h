#pragma once

namespace varnoth {

/// What the size of the digits depends on, in pixels.
struct Ziffernplatz {
    int schrift = 0;          ///< size of the view's font
    int hoehe = 0;            ///< left for the rows of numbers
    int breite = 0;           ///< of the view
    bool mitPosition = false; ///< a position stands beside the numbers
};

/// The size of the digits in pixels: a third larger than the view's font, larger where the view has room.
int Zifferngroesse(const Ziffernplatz& platz);
/// The sizes of the captions and positions beside digits of a size, in pixels; not below the view's font.
int Beschriftungsgroesse(int ziffern, int schrift);

/// Whether a view is wide enough for positions beside the numbers.
bool HatPlatzFuerPositionen(int breite, int schrift);

} // namespace varnoth
