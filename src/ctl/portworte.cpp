#include "portworte.h"

#include "textmitwerten.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextSeriennummer = 8279;

} // namespace

std::string Portworte(const Portangabe& port, const std::vector<std::int32_t>& nummern) {
    std::vector<std::string> angaben{port.bezeichnung, port.hersteller};
    if (!port.seriennummer.empty())
        angaben.push_back(LadeTextMit(TextSeriennummer, {port.seriennummer}));
    for (const std::int32_t nummer : nummern)
        angaben.push_back("COM" + std::to_string(nummer));
    std::erase_if(angaben,
                  [&](const std::string& angabe) { return angabe.empty() || angabe == port.geraet; });
    std::string zeile = port.geraet;
    for (std::size_t i = 0; i < angaben.size(); ++i)
        zeile += (i == 0 ? ": " : ", ") + angaben[i];
    return zeile;
}

} // namespace varnoth::ctl
