#include "strahlmodell.h"

#include <QFont>

#include <utility>

namespace varnoth {

void Strahlmodell::Setze(std::vector<Strahlwerte> neueWerte, std::vector<Strahlverdacht> neueVerdaechte,
                         int abstand, Messangaben neueAngaben) {
    const bool andereZahl = neueWerte.size() != werte.size();
    if (andereZahl)
        beginResetModel();
    werte = std::move(neueWerte);
    verdaechte = std::move(neueVerdaechte);
    abstandMm = abstand;
    angaben = std::move(neueAngaben);
    if (andereZahl)
        endResetModel();
    else if (!werte.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void Strahlmodell::Lokalisiere() {
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (!werte.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int Strahlmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(werte.size());
}

int Strahlmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : AnzahlStrahlspalten;
}

QVariant Strahlmodell::Sortierwert(int zeile, Strahlspaltenart spalte) const {
    using enum Strahlspaltenart;
    const Strahlwerte& strahl = werte[static_cast<std::size_t>(zeile)];
    switch (spalte) {
    case Anteil:
        return strahl.gemessen > Zeit{} ? strahl.Anteil() : -1;
    case Wechsel:
        return strahl.wechsel;
    case Laengste:
        return QVariant::fromValue<qint64>(strahl.laengste.count());
    case LetzterWechsel:
        return QVariant::fromValue<qint64>(strahl.letzterWechsel.value_or(Zeit(-1)).count());
    case Verdacht:
        return VerdachtVon(verdaechte, zeile) != nullptr ? 1 : 0;
    case Nummer:
    case Platz:
        break;
    }
    return zeile;
}

QVariant Strahlmodell::data(const QModelIndex& stelle, int rolle) const {
    if (!stelle.isValid())
        return {};
    const auto spalte = static_cast<Strahlspaltenart>(stelle.column());
    const Strahlverdacht* const verdacht = VerdachtVon(verdaechte, stelle.row());
    switch (rolle) {
    case Qt::DisplayRole:
        return QString::fromStdString(Spaltenworte(spalte, werte[static_cast<std::size_t>(stelle.row())],
                                                   stelle.row(), abstandMm, angaben, verdaechte));
    case Qt::ToolTipRole:
        return verdacht != nullptr ? QString::fromStdString(Verdachtsgrund(*verdacht)).toHtmlEscaped()
                                   : QVariant();
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignVCenter |
                                (spalte == Strahlspaltenart::Verdacht ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::FontRole: {
        QFont schrift;
        schrift.setBold(true);
        return verdacht != nullptr ? QVariant(schrift) : QVariant();
    }
    case Sortierrolle:
        return Sortierwert(stelle.row(), spalte);
    case Verdachtsrolle:
        return verdacht != nullptr;
    default:
        return {};
    }
}

QVariant Strahlmodell::headerData(int spalte, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole)
        return {};
    return QString::fromStdString(Spaltentitel(static_cast<Strahlspaltenart>(spalte)));
}

} // namespace varnoth
