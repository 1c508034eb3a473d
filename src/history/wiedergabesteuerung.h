#pragma once

#include "wiedergabe.h"

#include <string>

namespace varnoth {

/// What the bar of a replay asks of the program around it.
class Wiedergabesteuerung {
public:
    Wiedergabesteuerung() = default;
    Wiedergabesteuerung(const Wiedergabesteuerung&) = delete;
    Wiedergabesteuerung& operator=(const Wiedergabesteuerung&) = delete;
    virtual ~Wiedergabesteuerung() = default;

    virtual const Messquelle& Quelle() const = 0;
    /// Where the replay stands; the bar moves it.
    virtual Wiedergabe& Stand() = 0;
    /// The replay stands elsewhere: what was to be seen there is to be shown. Gives what that is.
    virtual Wiedergabelage Zeige() = 0;
    /// The user wants to leave the replay.
    virtual void Verlasse() = 0;
    /// The user wants to look at the record's configuration, to compare it or to save it.
    virtual void BerichteKonfiguration() = 0;
    virtual void VergleicheKonfiguration() = 0;
    virtual void SpeichereKonfiguration() = 0;
};

} // namespace varnoth
