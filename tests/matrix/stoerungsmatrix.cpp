// The fault matrix: every fault that the line can have, at every place where the program talks.
//   stoerungsmatrix [--fault NAME] [--place NAME] [--jobs N] [--limit MS]    the cells, printed as a table
//   stoerungsmatrix --cell FAULT PLACE                                       one cell, in this process

#include "laufanwendung.h"
#include "matrixlauf.h"
#include "zelle.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace varnoth::pruefung {

namespace {

std::vector<Zellenbericht> Zellen(const QString& fallname, const QString& stellenname) {
    std::vector<Zellenbericht> zellen;
    for (const Stoerfall& fall : AlleStoerfaelle())
        for (const Stelle& stelle : AlleStellen())
            if ((fallname.isEmpty() || fallname == fall.name) &&
                (stellenname.isEmpty() || stellenname == stelle.name))
                zellen.push_back({&fall, &stelle});
    return zellen;
}

int LaufeZelle(Zellenbericht bericht) {
    SammleWarnungen();
    try {
        const auto [fehler, luecke, wo] = Zelle(*bericht.stelle, *bericht.fall).Pruefe();
        bericht.fehler = fehler;
        bericht.lueckeMs = luecke;
        bericht.wo = wo;
    } catch (const std::exception& fehler) {
        bericht.fehler = fehler.what();
    }
    if (bericht.fehler.empty())
        bericht.fehler = UnerwarteteWarnungen();
    std::puts(AlsBerichtzeile(bericht).c_str());
    return bericht.fehler.empty() ? 0 : 1;
}

} // namespace

} // namespace varnoth::pruefung

int main(int argc, char** argv) {
    using namespace varnoth::pruefung;
    const Laufanwendung anwendung(argc, argv);
    QCommandLineParser worte;
    worte.addOptions({{"cell", "run one cell in this process: --cell FAULT PLACE"},
                      {"fault", "only this row", "name"},
                      {"place", "only this column", "name"},
                      {"jobs", "cells at a time (6)", "number", "6"},
                      {"limit", "the longest that a click may wait (100)", "ms", "100"}});
    worte.addHelpOption();
    worte.process(QApplication::arguments());
    const QStringList namen = worte.positionalArguments();
    if (worte.isSet("cell"))
        return LaufeZelle(Zellen(namen.value(0), namen.value(1)).at(0));
    const Matrixlauf lauf{QApplication::applicationFilePath(), worte.value("jobs").toInt(),
                          worte.value("limit").toInt()};
    const auto zellen = LaufeZellen(Zellen(worte.value("fault"), worte.value("place")), lauf);
    std::puts(Tabelle(zellen, lauf.laengsteLueckeMs).c_str());
    const auto istGut = [&lauf](const Zellenbericht& zelle) { return IstGut(zelle, lauf.laengsteLueckeMs); };
    return std::ranges::all_of(zellen, istGut) ? 0 : 1;
}
