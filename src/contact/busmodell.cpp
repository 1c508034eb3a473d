#include "busmodell.h"

#include "busfarben.h"
#include "busworte.h"
#include "texte.h"
#include "tipptext.h"
#include "zeitpunkt.h"

#include <QGuiApplication>

namespace varnoth {

namespace {

constexpr int HoechstensGemerkt = 400; // more than fit on a screen
constexpr std::int16_t TextErsteSpalte = 8403;
constexpr std::int16_t TextVergessen = 8494;

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

Busmodell::Busmodell(const Busprotokoll& ausProtokoll, QObject* eltern)
    : QAbstractTableModel(eltern), protokoll(&ausProtokoll), auswahl(ausProtokoll) {
    auswahl.Setze({});
}

void Busmodell::Setze(const Busfilter& filter) {
    beginResetModel();
    auswahl.Setze(filter);
    zeilen = 0;
    endResetModel();
}

void Busmodell::ZeigeWorte(bool worte) {
    inWorten = worte;
    Lokalisiere();
}

void Busmodell::Lokalisiere() {
    gemerkte.clear();
    emit headerDataChanged(Qt::Horizontal, 0, Spaltenzahl - 1);
    if (zeilen > 0)
        emit dataChanged(index(0, 0), index(zeilen - 1, Spaltenzahl - 1));
}

int Busmodell::Vergiss() {
    const auto vergessene = static_cast<int>(auswahl.PlatzAb(protokoll->Erster()));
    if (vergessene == 0)
        return 0;
    beginRemoveRows({}, 0, vergessene - 1);
    auswahl.Vergiss();
    zeilen -= vergessene;
    endRemoveRows();
    return vergessene;
}

void Busmodell::Hole(std::size_t hoechstens) {
    const auto neue = static_cast<int>(auswahl.Weiter(hoechstens));
    if (neue == 0)
        return;
    beginInsertRows({}, zeilen, zeilen + neue - 1);
    zeilen += neue;
    endInsertRows();
}

std::optional<Busaustausch> Busmodell::Austausch(int zeile) const {
    const std::uint64_t nummer = Nummer(zeile);
    return protokoll->Hat(nummer) ? std::optional(protokoll->Hole(nummer)) : std::nullopt;
}

std::vector<std::uint64_t> Busmodell::Nummern() const {
    std::vector<std::uint64_t> nummern;
    nummern.reserve(static_cast<std::size_t>(zeilen));
    for (int zeile = 0; zeile < zeilen; ++zeile)
        nummern.push_back(Nummer(zeile));
    return nummern;
}

int Busmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : zeilen;
}

int Busmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : Spaltenzahl;
}

QVariant Busmodell::headerData(int spalte, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole)
        return {};
    return Q(LadeText(static_cast<std::int16_t>(TextErsteSpalte + spalte)));
}

QVariant Busmodell::data(const QModelIndex& stelle, int rolle) const {
    if (!stelle.isValid() || stelle.row() >= zeilen)
        return {};
    if (rolle == Qt::TextAlignmentRole && stelle.column() == Umlauf)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return Anzeige(stelle.row(), stelle.column(), rolle);
}

QVariant Busmodell::Anzeige(int zeile, int spalte, int rolle) const {
    if (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole && rolle != Qt::ForegroundRole)
        return {};
    const auto austausch = Austausch(zeile);
    if (rolle == Qt::ForegroundRole)
        return austausch && spalte == Ergebnis
                   ? QVariant(Ergebnisfarbe(austausch->ergebnis, QGuiApplication::palette()))
                   : QVariant();
    if (!austausch)
        return spalte == Ergebnis ? QVariant(Q(LadeText(TextVergessen))) : QVariant();
    const QString& text = Texte(*austausch)[static_cast<std::size_t>(spalte)];
    return rolle == Qt::ToolTipRole ? AlsTipp(text) : text;
}

const Busmodell::Zeile& Busmodell::Texte(const Busaustausch& austausch) const {
    const auto gemerkt = gemerkte.constFind(austausch.nummer);
    if (gemerkt != gemerkte.constEnd())
        return *gemerkt;
    if (gemerkte.size() >= HoechstensGemerkt)
        gemerkte.clear();
    const Zeile texte{Q(Uhrzeittext(protokoll->Uhrzeit(austausch.gesendet))),
                      Q(Richtungstext(austausch)),
                      Q(Funktionstext(austausch)),
                      Q(Registerangabe(austausch)),
                      Q(inWorten ? Wertetext(austausch) : Bytetext(austausch)),
                      Q(Umlauftext(austausch)),
                      Q(Ergebnistext(austausch))};
    return *gemerkte.insert(austausch.nummer, texte);
}

} // namespace varnoth
