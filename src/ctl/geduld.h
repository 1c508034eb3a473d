#pragma once

#include "ablaufanzeige.h"
#include "konfigurationstransfer.h"
#include "umgebung.h"

#include <optional>

namespace varnoth::ctl {

struct Lauf;

/// How long a command goes on without getting anywhere: until the user interrupts it, or until nothing has
/// succeeded for the time that the option names.
class Geduld {
public:
    explicit Geduld(const Lauf& lauf);

    /// Something has succeeded.
    void Beginne();
    bool IstAmEnde() const;

private:
    const Lauf& lauf;
    Zeit hoechstens;
    Zeit seit;
};

/// The time that the option names, or else the usual one; nothing for words that name none.
std::optional<Zeit> Hoechstdauer(const Lauf& lauf);

/// A procedure without anything to show but its end.
class Geduldsanzeige : public Ablaufanzeige {
public:
    explicit Geduldsanzeige(Geduld& dieGeduld) : geduld(dieGeduld) {}
    bool Abgebrochen() override { return geduld.IstAmEnde(); }

private:
    Geduld& geduld;
};

/// Shows how far a transfer is, in percent.
class Fortgang : public Transferanzeige {
public:
    /// @param was what is being done: "Reading"
    Fortgang(const Lauf& lauf, Geduld& geduld, std::string was);
    ~Fortgang() override;

    void ZeigeBereich(const std::string& /*text*/) override {}
    void ZeigeRegister(const std::string& /*text*/, int /*anzahl*/, int /*versuch*/) override {}
    void ZeigeFortschritt(int erledigt, int gesamt) override;
    void ZeigeEnde(const std::string& /*text*/) override {}
    bool Abgebrochen() override { return geduld.IstAmEnde(); }

private:
    const Lauf& lauf;
    Geduld& geduld;
    std::string was;
    int weitester = -1;
};

} // namespace varnoth::ctl
