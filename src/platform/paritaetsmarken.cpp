#include "paritaetsmarken.h"

namespace varnoth {

namespace {
constexpr char Marke = '\xFF';
}

std::string Paritaetsmarken::Entferne(std::string_view roh) {
    std::string bytes;
    bytes.reserve(roh.size());
    for (const char byte : roh)
        Nimm(byte, bytes);
    return bytes;
}

void Paritaetsmarken::Nimm(char byte, std::string& bytes) {
    switch (stand) {
    case Stand::Frei:
        if (byte == Marke)
            stand = Stand::NachMarke;
        else
            bytes += byte;
        break;
    case Stand::NachMarke:
        stand = byte == '\0' ? Stand::VorGebrochenem : Stand::Frei;
        if (stand == Stand::Frei)
            bytes += byte;
        break;
    case Stand::VorGebrochenem:
        bytes += Ersatzzeichen;
        stand = Stand::Frei;
        break;
    }
}

} // namespace varnoth
