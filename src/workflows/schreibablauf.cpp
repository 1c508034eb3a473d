#include "schreibablauf.h"

#include "frmKonfigurationSchreibenInHardware.h"
#include "frmRegisterliste.h"

namespace varnoth {

void SchreibeInDialogen(QWidget* eltern, const std::function<bool()>& beendet) {
    const auto vorher = modGeraetestand::HoleGeraetestand();
    std::optional<Schreibauftrag> auftrag;
    for (;;) {
        frmKonfigurationSchreibenInHardware dialog(eltern, auftrag);
        dialog.exec();
        const auto folge = FolgeAus(dialog.Ergebnis(), vorher);
        if (!folge || beendet())
            return;
        frmRegisterliste liste(folge->befund, eltern);
        if (liste.exec() != QDialog::Accepted || beendet())
            return;
        auftrag = folge->naechster;
    }
}

} // namespace varnoth
