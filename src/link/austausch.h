#pragma once

#include <string>

namespace varnoth {

class Erkenner;

/// One request and its reply on the line. On a line in order nothing is sent but the request. After a
/// disturbance the next exchange first waits until the line is quiet; and while a late reply could be
/// mistaken for its own, it first asks something whose reply cannot be mistaken.
namespace modAustausch {

/// How much the caller relies on the reply.
enum class Verlass {
    Voll,  ///< a reply must be certain to belong to the request, otherwise the request is not sent
    Keiner ///< the request matters and its reply does not: it is sent in any case
};

/// Sends the request and feeds what arrives to the recogniser, at most one second from byte to byte. True
/// when a whole reply with a valid CRC arrived.
bool Tausche(const std::string& anforderung, Erkenner& erkenner, Verlass verlass = Verlass::Voll);

/// Sends a frame that has no reply.
void SendeOhneAntwort(const std::string& rahmen);

} // namespace modAustausch

} // namespace varnoth
