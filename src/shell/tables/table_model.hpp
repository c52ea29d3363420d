#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::shell {

/// Roles of a cell beside its text: the length of its bar from 0 to 1, invalid without one, and the
/// weight of the remark on it as `review::Peso`, invalid without one.
inline constexpr int datoBarra = Qt::UserRole + 1;
inline constexpr int datoPesoCella = Qt::UserRole + 2;

/// Shows a table of results and follows it in place: selection, current cell and order stay while
/// its numbers change.
class ModelloProspetto : public QAbstractTableModel {
 public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows this table in place of the one before. One with other heads is another table.
    void mostra(tables::Prospetto prospetto);
    /// Shows the heads broken into lines; those who can't see them hear them in one.
    void mostraTeste(QStringList teste);
    /// Shows it in grey: what it says is of the wall before.
    void sospendi(bool sospeso);

    [[nodiscard]] const tables::Prospetto& prospetto() const { return prospetto_; }
    /// The row of the table that is shown in a row of the view.
    [[nodiscard]] std::size_t riga(int vista) const;

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;
    [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    /// @param colonna  -1: the order of the table
    void sort(int colonna, Qt::SortOrder verso) override;

 private:
    [[nodiscard]] std::vector<std::size_t> ordinate() const;
    void riordina();
    void cambiateTutte();

    tables::Prospetto prospetto_;
    QStringList teste_;                // as they are broken; none: in one line
    std::vector<std::size_t> ordine_;  // rows of the table as they are shown
    int colonna_ = -1;
    bool crescente_ = true;
    bool sospeso_ = false;
};

}  // namespace korven::shell
