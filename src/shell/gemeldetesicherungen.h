#pragma once

#include "sicherungen.h"

namespace varnoth {

/// The backups of this run, each of which becomes an event.
class GemeldeteSicherungen : public Sicherungen {
public:
    /// `eigentliche` must outlive this object.
    explicit GemeldeteSicherungen(Sicherungen& eigentliche) : sicherungen(eigentliche) {}

    [[nodiscard]] std::string Lege(const Abbild& abbild, const Sicherungsangaben& angaben) override;
    [[nodiscard]] std::vector<Sicherung> Alle() const override { return sicherungen.Alle(); }
    [[nodiscard]] std::optional<Abbild> Lies(const Sicherung& sicherung) const override {
        return sicherungen.Lies(sicherung);
    }
    [[nodiscard]] std::string Kopiere(const Sicherung& sicherung, const std::string& ziel) const override {
        return sicherungen.Kopiere(sicherung, ziel);
    }
    [[nodiscard]] std::string Loesche(const Sicherung& sicherung) override {
        return sicherungen.Loesche(sicherung);
    }

private:
    Sicherungen& sicherungen;
};

} // namespace varnoth
