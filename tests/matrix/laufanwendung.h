#pragma once

#include <QApplication>
#include <QTemporaryDir>

#include <string>

namespace varnoth::pruefung {

/// The application of a run in this process: without a screen unless one is named, with a home folder of its
/// own. It goes on when its last window closes.
class Laufanwendung {
public:
    Laufanwendung(int& argc, char** argv);

private:
    /// What stands in the process's environment before Qt looks at it.
    struct Umfeld {
        Umfeld();
        QTemporaryDir heim; ///< where files go unless somebody says otherwise
    };

    Umfeld umfeld;
    QApplication anwendung;
};

/// From now on Qt's warnings are gathered instead of printed.
void SammleWarnungen();
/// What was gathered, as what is wrong with a run: nobody expects a warning. Empty when there was none.
std::string UnerwarteteWarnungen();

} // namespace varnoth::pruefung
