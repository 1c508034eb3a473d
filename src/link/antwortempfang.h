#pragma once

#include "umgebung.h"

#include <string>
#include <string_view>

namespace varnoth {

class Erkenner;

/// How a reply is received and recognised among what else comes, and what all that tells. For the files of
/// modAustausch alone.
namespace modAustausch {

/// The silence that ends an exchange.
inline constexpr Zeit Antwortzeit = std::chrono::milliseconds(1000);

/// Feeds what arrives to the recogniser; `strom` gathers it. True when a whole reply with a valid CRC
/// arrived.
bool Empfange(Erkenner& erkenner, std::string& strom);

/// Reads on until the stream holds an identification reply, and takes it out of it, or until the time `ende`.
/// What came before it nobody was waiting for. True when there was one.
bool ErwarteIdentAntwort(std::string& strom, Zeit ende);

/// Takes the reply to an identification request wherever it comes, within 250 ms, among what a controller
/// sends by itself. True when there was one.
bool EmpfangeUnterAnderem(Erkenner& erkenner);

/// Takes note of bytes that nobody was waiting for. A whole reply among them is a break, and so is a broken
/// one.
void NimmUngefragtes(std::string_view bytes);

/// What arrived while a reply was waited for in vain. Its own reply among stray bytes is none too many.
void BewerteScheitern(const std::string& anforderung, const std::string& strom);

/// What arrived with the reply that the recogniser took.
void BewerteErfolg(const std::string& anforderung, const Erkenner& erkenner, const std::string& strom);

} // namespace modAustausch

} // namespace varnoth
