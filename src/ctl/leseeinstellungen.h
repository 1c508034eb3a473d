#pragma once

#include "einstellungen.h"

namespace varnoth::ctl {

/// The settings of the window program, to be read only: nothing is stored.
class Leseeinstellungen : public Einstellungen {
public:
    explicit Leseeinstellungen(Einstellungen& gelesene) : quelle(gelesene) { SetzeEinstellungen(this); }
    ~Leseeinstellungen() override { SetzeEinstellungen(nullptr); }

    int LiesZahl(const std::string& abschnitt, const std::string& schluessel, int standard) override {
        return quelle.LiesZahl(abschnitt, schluessel, standard);
    }
    std::string LiesText(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard) override {
        return quelle.LiesText(abschnitt, schluessel, standard);
    }
    bool SchreibText(const std::string& /*abschnitt*/, const std::string& /*schluessel*/,
                     const std::string& /*text*/) override {
        return false;
    }

private:
    Einstellungen& quelle;
};

} // namespace varnoth::ctl
