#pragma once

#include "stellen.h"
#include "stoerfaelle.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace varnoth::pruefung {

/// The result of one cell as its process reported it.
struct Zellenbericht {
    const Stoerfall* fall;
    const Stelle* stelle;
    std::string fehler{}; ///< empty = all right
    qint64 lueckeMs = 0;
    std::string wo{};
};

/// How the matrix is run.
struct Matrixlauf {
    QString programm;        ///< runs one cell
    int zugleich;            ///< cells at a time
    qint64 laengsteLueckeMs; ///< the longest that the program may leave a click unanswered
};

bool IstGut(const Zellenbericht& zelle, qint64 laengsteLueckeMs);

/// The line in which a cell's process reports: "ok GAP WHERE" or "failed GAP WHERE|what".
std::string AlsBerichtzeile(const Zellenbericht& bericht);
void LiesBerichtzeile(const std::string& zeile, Zellenbericht& bericht);

/// Runs each cell in a process of its own, some at a time. A cell whose only failing is a long gap is run
/// again on its own: another process may have had the machine.
std::vector<Zellenbericht> LaufeZellen(std::vector<Zellenbericht> zellen, const Matrixlauf& lauf);

/// The matrix as a table, and below it what failed.
std::string Tabelle(const std::vector<Zellenbericht>& zellen, qint64 laengsteLueckeMs);

} // namespace varnoth::pruefung
