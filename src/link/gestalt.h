#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnoth {

/// What of a request its reply shows: two requests of the same shape accept each other's replies. Requests
/// are whole frames.
std::string Gestalt(const std::string& anforderung);

/// Whether the request changes something in the controller.
bool Schreibt(const std::string& anforderung);

/// The whole replies with a right checksum in a stream of bytes, refusals among them, in order, whatever lies
/// between them.
std::vector<std::string_view> SucheAntworten(std::string_view strom);

/// Whether the bytes hold a reply to this read or write, be it whole or broken: as many bytes as it has,
/// beginning like it but for two bits at most.
bool EnthaeltAehnliche(std::string_view bytes, const std::string& anforderung);

/// Whether a whole reply could be one to this request, or its refusal.
bool Passt(std::string_view antwort, const std::string& anforderung);

} // namespace varnoth
