#pragma once

#include "probeleitung.h"
#include "proberegister.h"
#include "pruefumgebung.h"
#include "seriellerport.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth::pruefung {

/// What goes wrong with a request or with its reply.
struct Probefehler {
    std::string_view name;
    int wert = 0;
    int nach = 0; ///< milliseconds until a repeated reply comes, where `wert` is something else
};

/// A controller behind a port, on the jumping clock. It works requests off one after the other; it can be
/// busy for a while, and each request or reply can suffer a fault.
class Proberegler : public SeriellerPort {
public:
    static constexpr int Slaveadresse = 1;
    static constexpr std::string_view Identtext = "Varnoth;4711;(C) 2009";

    explicit Proberegler(PruefUmgebung& pruefumgebung) : umgebung(pruefumgebung) {}

    bool Oeffne(int, const std::string&) override { return offen = true; }
    void Schliesse() override { offen = false; }
    bool IstOffen() override { return offen; }
    std::string Fehlertext() const override { return {}; }
    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    void Schreibe(std::string_view bytes) override;
    void WarteAufEingang(Zeit hoechstens) override;
    void Schlafe(Zeit hoechstens) override;
    bool LeereSender(Zeit) override { return true; }
    void SetzeEreignisbehandlung(std::function<void(int)>) override {}

    /// Asked for each request: what goes wrong with it.
    std::function<std::optional<Probefehler>()> fehler;
    /// Told what goes over the line, one line of text each, with the time.
    std::function<void(const std::string& zeile)> mitschrift;
    /// Late replies let later ones pass.
    bool ausserDerReihe = false;

    std::map<std::string, int> ausgefuehrte; ///< write requests that were carried out, by frame
    Proberegister speicher;
    Probeleitung leitung;
    int anforderungen = 0;     ///< requests sent to it
    int identifikationen = 0;  ///< identification requests among them
    std::string letzteSendung; ///< the last one
    Zeit letzteSendezeit{0};

    /// Works off what is due by now.
    void Verarbeite();
    /// Whether it has requests before it.
    bool IstBeschaeftigt() const { return !wartende.empty(); }
    /// Whether more was read since the last request than the reply to it.
    bool SahUeberzaehliges() const { return gelesen > antwortlaenge; }

private:
    struct Wartende {
        Zeit faellig;
        std::string anforderung;
        std::optional<Probefehler> fehler;
    };
    void Beantworte(const Wartende& wartende);
    void Schreibmit(std::string_view was, std::string_view bytes, const Probefehler& dazu = {});
    std::string Antwort(const std::string& anforderung);
    std::string Lies(const std::string& anforderung);
    std::string Schreib(const std::string& anforderung);

    PruefUmgebung& umgebung;
    bool offen = false;
    std::deque<Wartende> wartende;
    simulator::Antwortverlauf verlauf;
    Zeit frei{0};
    std::size_t gelesen = 0;
    std::size_t antwortlaenge = 0;
};

} // namespace varnoth::pruefung
