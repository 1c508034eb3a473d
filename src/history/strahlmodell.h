#pragma once

#include "strahlworte.h"

#include <QAbstractTableModel>

#include <vector>

namespace varnoth {

/// The statistics of a part's beams for a view, a row a beam.
class Strahlmodell : public QAbstractTableModel {
    Q_OBJECT

public:
    /// By what a column is sorted.
    static constexpr int Sortierrolle = Qt::UserRole;
    /// Whether the beam of a row is suspicious.
    static constexpr int Verdachtsrolle = Qt::UserRole + 1;

    using QAbstractTableModel::QAbstractTableModel;

    void Setze(std::vector<Strahlwerte> neueWerte, std::vector<Strahlverdacht> neueVerdaechte, int abstand,
               Messangaben neueAngaben);
    const std::vector<Strahlwerte>& Werte() const { return werte; }
    const std::vector<Strahlverdacht>& Verdaechte() const { return verdaechte; }
    /// Texts are made anew: the language has changed.
    void Lokalisiere();

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;
    QVariant headerData(int spalte, Qt::Orientation richtung, int rolle) const override;

private:
    QVariant Sortierwert(int zeile, Strahlspaltenart spalte) const;

    std::vector<Strahlwerte> werte;
    std::vector<Strahlverdacht> verdaechte;
    int abstandMm = 0;
    Messangaben angaben;
};

} // namespace varnoth
