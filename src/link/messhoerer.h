#pragma once

#include "messdurchgang.h"

namespace varnoth {

/// Hears of every polling pass once all of it is certain, in their order, and of what happens to live data.
/// It is told between a reply and the next request, so it must be quick, and must neither talk to the
/// controller nor run events.
class Messhoerer {
public:
    Messhoerer() = default;
    Messhoerer(const Messhoerer&) = delete;
    Messhoerer& operator=(const Messhoerer&) = delete;
    virtual ~Messhoerer() = default;

    virtual void Hoere(const Messdurchgang& durchgang) = 0;
    virtual void Hoere(const Liveereignis& ereignis) = 0;
    /// Whether it needs beam states and measured values of optical part 0..3 although no view shows them.
    virtual bool Braucht(int /*teil*/) const { return false; }
    /// Whether live data must go on by itself whatever happens, nobody being there to answer a message box.
    virtual bool LaeuftAllein() const { return false; }
};

/// Who hears of the passes.
namespace modMesshoerer {

/// Adds a listener, until it is taken out. One that is there already hears everything once.
void MeldeAn(Messhoerer& hoerer);
/// Takes a listener out; harmless when it is none.
void MeldeAb(Messhoerer& hoerer);

/// Whether anybody listens.
bool HoertJemand();
/// Whether one of them needs optical part 0..3.
bool Braucht(int teil);
/// Whether one of them wants live data to go on by itself.
bool LaeuftAllein();

// Reported by the polling passes.

void Melde(const Messdurchgang& durchgang);
/// Tells what has happened just now.
void Melde(Liveereignisart art);
/// Tells what has happened at some time.
void Melde(const Liveereignis& ereignis);

} // namespace modMesshoerer

} // namespace varnoth
