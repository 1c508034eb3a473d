#include "systemfehler.h"

#include "texte.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineGewoehnlicheDatei = 9261;
constexpr std::int16_t TextBeschaedigt = 9264;

struct Zeile {
    int nummer;
    std::int16_t text;
};

constexpr Zeile DieZeilen[] = {
    {ENOENT, 9250}, {EACCES, 9251}, {EPERM, 9251},        {EISDIR, 9252}, {ENOTDIR, 9253}, {ENOSPC, 9254},
    {EROFS, 9255},  {EIO, 9256},    {ENAMETOOLONG, 9257}, {EMFILE, 9258}, {ENFILE, 9258},  {EBUSY, 9259},
    {ENODEV, 9260}, {ENXIO, 9260},  {EFBIG, 9262},        {ENOTTY, 9265}, {EILSEQ, 9266},
};

} // namespace

std::string Systemfehler(int nummer) {
    const auto zeile = std::ranges::find(DieZeilen, nummer, &Zeile::nummer);
    return zeile != std::ranges::end(DieZeilen) ? LadeText(zeile->text)
                                                : std::generic_category().message(nummer);
}

std::string KeineGewoehnlicheDatei() {
    return LadeText(TextKeineGewoehnlicheDatei);
}

std::string DateiIstBeschaedigt() {
    return LadeText(TextBeschaedigt);
}

} // namespace varnoth
