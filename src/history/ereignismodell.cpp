#include "ereignismodell.h"

#include "ereignisworte.h"
#include "texte.h"
#include "textschutz.h"
#include "tipptext.h"
#include "zeitpunkt.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr int HoechstensGemerkt = 400; // more than fit on a screen
constexpr std::int16_t TextErsteSpalte = 6603;

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

bool Passt(const Ereignis& ereignis, const Ereignisfilter& filter) {
    if (filter.gruppe && *filter.gruppe != GruppeVon(ereignis.art))
        return false;
    return filter.text.empty() ||
           Gefaltet(EreignisAlsText(ereignis)).find(Gefaltet(filter.text)) != std::string::npos;
}

void Ereignismodell::Setze(const Ereignisspeicher* ausSpeicher, std::uint64_t ab,
                           const Ereignisfilter& gewuenschte) {
    beginResetModel();
    speicher = ausSpeicher;
    filter = gewuenschte;
    nummern.clear();
    gemerkte.clear();
    naechstes = ab;
    endResetModel();
}

void Ereignismodell::Lokalisiere() {
    emit headerDataChanged(Qt::Horizontal, 0, Spaltenzahl - 1);
    Erneuere();
}

void Ereignismodell::Erneuere() {
    gemerkte.clear();
    if (!nummern.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, Spaltenzahl - 1));
}

int Ereignismodell::Vergiss() {
    if (speicher == nullptr)
        return 0;
    const auto erstes = std::ranges::lower_bound(nummern, speicher->Erstes());
    const auto vergessene = static_cast<int>(erstes - nummern.begin());
    if (vergessene == 0)
        return 0;
    beginRemoveRows({}, 0, vergessene - 1);
    nummern.erase(nummern.begin(), erstes);
    endRemoveRows();
    return vergessene;
}

void Ereignismodell::Hole(std::size_t hoechstens) {
    if (speicher == nullptr)
        return;
    std::deque<std::uint64_t> neue;
    naechstes = std::max(naechstes, speicher->Erstes());
    for (; hoechstens > 0 && naechstes < speicher->Ende(); --hoechstens, ++naechstes)
        if (Passt(speicher->Hole(naechstes), filter))
            neue.push_back(naechstes);
    if (neue.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(neue.size()) - 1);
    nummern.insert(nummern.end(), neue.begin(), neue.end());
    endInsertRows();
}

std::size_t Ereignismodell::Ausstehend() const {
    return speicher == nullptr || naechstes >= speicher->Ende()
               ? 0
               : speicher->Ende() - std::max(naechstes, speicher->Erstes());
}

const Ereignis* Ereignismodell::Hinter(int zeile) const {
    const std::uint64_t nummer = Nummer(zeile);
    return nummer >= speicher->Erstes() ? &speicher->Hole(nummer) : nullptr;
}

int Ereignismodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(nummern.size());
}

int Ereignismodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : Spaltenzahl;
}

QVariant Ereignismodell::headerData(int spalte, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole)
        return {};
    return Q(LadeText(static_cast<std::int16_t>(TextErsteSpalte + spalte)));
}

QVariant Ereignismodell::data(const QModelIndex& stelle, int rolle) const {
    if (!stelle.isValid() || stelle.row() >= rowCount())
        return {};
    if (rolle == Qt::TextAlignmentRole && (stelle.column() == Dauer || stelle.column() == Anzahl))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if ((rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole) || Hinter(stelle.row()) == nullptr)
        return {};
    const QString& text = Texte(stelle.row())[static_cast<std::size_t>(stelle.column())];
    return rolle == Qt::ToolTipRole ? AlsTipp(text) : text;
}

const Ereignismodell::Zeile& Ereignismodell::Texte(int zeile) const {
    const auto gemerkt = gemerkte.constFind(Nummer(zeile));
    if (gemerkt != gemerkte.constEnd())
        return *gemerkt;
    if (gemerkte.size() >= HoechstensGemerkt)
        gemerkte.clear();
    const Ereignis& ereignis = *Hinter(zeile);
    const Zeile texte{Q(Zeitpunkttext(ereignis.zeit)), Q(Gruppentext(GruppeVon(ereignis.art))),
                      Q(Ereignistext(ereignis)), Q(Dauertext(ereignis.dauer)), Q(Haeufigkeitstext(ereignis))};
    return *gemerkte.insert(Nummer(zeile), texte);
}

} // namespace varnoth
