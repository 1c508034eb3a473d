#pragma once

#include <string>

namespace varnoth {

class Erkenner;

/// One request and its reply on the line. On a line in order nothing is sent but the request. After a
/// disturbance the next exchange first waits until the line is quiet; and while a late reply could be
/// mistaken for its own, it first asks something whose reply cannot be mistaken.
///
/// Exchanges that succeed are numbered from 1. A reply that came twice may have been believed; so what was
/// exchanged is provisional until what follows has shown it right. Whoever keeps, writes or hands on what was
/// read compares: with GewissBis, whether his exchange is certain; with Brueche, whether anything that was
/// not certain yet must be asked again.
namespace modAustausch {

/// How much the caller relies on the reply.
enum class Verlass {
    Voll,         ///< a reply must be certain to belong to the request, otherwise the request is not sent
    Wiederholbar, ///< the same, and asking twice does no harm: a doubtful reply is not believed
    Keiner        ///< the request matters and its reply does not: it is sent in any case
};

/// Sends the request and feeds what arrives to the recogniser, at most one second from byte to byte. True
/// when a whole reply with a valid CRC arrived.
bool Tausche(const std::string& anforderung, Erkenner& erkenner, Verlass verlass = Verlass::Voll);

/// Sends a frame that has no reply.
void SendeOhneAntwort(const std::string& rahmen);

/// The number of the last exchange that succeeded; 0 before the first.
unsigned long Letzter();
/// The number of the last exchange that is certain.
unsigned long GewissBis();
/// Whether those behind it cannot have got the reply to another request either.
bool IstUnverwechselbar();
/// How often something unasked or misfitting has come: what was provisional then is worth nothing.
unsigned long Brueche();

/// Whether the line did not become quiet before the last request: the controller sends by itself.
bool IstUnruhig();

/// Settles whose turn it is: waits for quiet, after a break for long, and asks for an identification, whose
/// reply must come first; at most three seconds in all. True makes all exchanges so far certain, unless a
/// break has come meanwhile. False when another reply came first or the line did not become quiet.
bool Vergewissere();

/// Listens for 200 ms: a reply that is one too many comes within that time. True when none came.
bool Lausche();

} // namespace modAustausch

} // namespace varnoth
