#pragma once

#include "busauswahl.h"

#include <QAbstractTableModel>
#include <QHash>

#include <array>
#include <optional>

namespace varnoth {

/// The rows of the bus log that a filter lets through, for a view. It follows the log only when it is told
/// to, and decodes only the rows that are asked for.
class Busmodell : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Spalte { Zeitspalte, Richtung, Funktion, Register, Inhalt, Umlauf, Ergebnis, Spaltenzahl };

    explicit Busmodell(const Busprotokoll& ausProtokoll, QObject* eltern = nullptr);

    /// Begins anew with a filter; the rows come with `Hole`.
    void Setze(const Busfilter& filter);
    const Busfilter& Filter() const { return auswahl.Filter(); }
    /// Tells values in words (true) or bytes.
    void ZeigeWorte(bool worte);
    /// Texts are made anew: the language or the log has changed.
    void Lokalisiere();

    /// Lets go of rows that the log has forgotten. Gives how many those were, at the beginning.
    int Vergiss();
    /// Looks at so many further exchanges at most, and appends those that are let through.
    void Hole(std::size_t hoechstens);
    /// How many exchanges have not been looked at yet.
    std::size_t Ausstehend() const { return auswahl.Ausstehend(); }

    /// The exchange of a row; nothing when the log has forgotten it meanwhile.
    std::optional<Busaustausch> Austausch(int zeile) const;
    /// The numbers of all rows, in their order.
    std::vector<std::uint64_t> Nummern() const;
    std::uint64_t Nummer(int zeile) const { return auswahl.Nummer(static_cast<std::size_t>(zeile)); }

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int spalte, Qt::Orientation richtung, int rolle) const override;

private:
    using Zeile = std::array<QString, Spaltenzahl>;

    const Zeile& Texte(const Busaustausch& austausch) const;
    QVariant Anzeige(int zeile, int spalte, int rolle) const;

    const Busprotokoll* protokoll;
    Busauswahl auswahl;
    int zeilen = 0;
    bool inWorten = false;
    mutable QHash<quint64, Zeile> gemerkte; ///< of the rows that were shown lately, by number
};

} // namespace varnoth
