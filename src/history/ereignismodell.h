#pragma once

#include "ereignisspeicher.h"

#include <QAbstractTableModel>
#include <QHash>

#include <array>
#include <deque>
#include <optional>
#include <string>

namespace varnoth {

/// Which events are wanted.
struct Ereignisfilter {
    std::optional<Ereignisgruppe> gruppe{}; ///< nothing: all
    std::string text{};                     ///< must occur in the words, without regard to case; empty: any

    bool operator==(const Ereignisfilter&) const = default;
};

/// Whether an event has what the filter wants, in the words of the current language.
bool Passt(const Ereignis& ereignis, const Ereignisfilter& filter);

/// The events of a store that a filter lets through, for a view. It follows the store only when it is told
/// to, and makes words only for the rows that are asked for.
class Ereignismodell : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Spalte { Zeitspalte, Art, Was, Dauer, Anzahl, Spaltenzahl };

    explicit Ereignismodell(QObject* eltern = nullptr) : QAbstractTableModel(eltern) {}

    /// Begins anew with a store, which must outlive this object or be replaced before it goes, and with
    /// events from a number on. The rows come with `Hole`.
    void Setze(const Ereignisspeicher* ausSpeicher, std::uint64_t ab, const Ereignisfilter& gewuenschte);
    const Ereignisfilter& Filter() const { return filter; }
    /// Words are made anew: the language has changed.
    void Lokalisiere();

    /// Lets go of rows that the store has forgotten. Gives how many those were, at the beginning.
    int Vergiss();
    /// Looks at so many further events at most, and appends those that are let through.
    void Hole(std::size_t hoechstens);
    /// How many events have not been looked at yet.
    std::size_t Ausstehend() const;
    /// Events that are shown may have become more.
    void Erneuere();

    /// The number of a row's event.
    std::uint64_t Nummer(int zeile) const { return nummern[static_cast<std::size_t>(zeile)]; }
    /// The event of a row; nullptr when the store has forgotten it meanwhile.
    const Ereignis* Hinter(int zeile) const;

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int spalte, Qt::Orientation richtung, int rolle) const override;

private:
    using Zeile = std::array<QString, Spaltenzahl>;

    const Zeile& Texte(int zeile) const;

    const Ereignisspeicher* speicher = nullptr;
    Ereignisfilter filter;
    std::deque<std::uint64_t> nummern;
    std::uint64_t naechstes = 0;
    mutable QHash<quint64, Zeile> gemerkte; ///< of the rows that were shown lately, by number
};

} // namespace varnoth
