#pragma once

#include "hauptteile.h"
#include "konfigurationsbefehle.h"
#include "verbindungsauskunft.h"

#include <optional>
#include <string>

namespace varnoth {

struct Blankingvorschlag;
struct Strahlzusatz;

/// The commands around the configuration as the main window runs them: new, open, edit, write; the views and
/// the menu follow what the image then holds.
class Konfigurationsablauf {
public:
    /// The parts must outlive this object.
    explicit Konfigurationsablauf(const Hauptteile& teile);

    /// Asks for a configuration file, loads it and shows its parts.
    void Oeffne();
    /// Loads a configuration file (UTF-8 path) and shows its parts.
    void LadeDatei(const std::string& pfad, Dateirolle rolle = Dateirolle::Aktuelle);
    /// Asks for beam counts and shows their parts.
    void MacheNeue();
    /// Opens the editor, after asking for a configuration where there is none, and writes to the controller
    /// what the editor hands over.
    /// @param vorschlag a blanking pattern that the editor shows in its sub-editor, as the user's own change
    void Bearbeite(const Blankingvorschlag* vorschlag = nullptr);
    /// Shows the report about the configuration, in which another one can be imported. Whether one was.
    [[nodiscard]] bool Berichte(const Strahlzusatz* zusatz = nullptr);
    /// Lets the user choose a configuration; false when he chose none.
    /// @param ohneVerbindung why there is no connection, where one was tried
    bool FrageNachKonfiguration(const std::optional<Verbindungsauskunft>& ohneVerbindung = {});

private:
    void Zeige();
    void Schreibe();

    Hauptteile teile;
};

} // namespace varnoth
