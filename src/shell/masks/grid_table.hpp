#pragma once

#include <QAbstractTableModel>

#include "masks/grid_model.hpp"

namespace korven::shell {

/// The cells of a grid as a view of Qt asks for them: row and column 0 are the first data row and
/// column. It shows only; typing goes to the model of the form.
class TabellaGriglia : public QAbstractTableModel {
 public:
    TabellaGriglia(const masks::ModelloGriglia& modello, QObject* padre)
        : QAbstractTableModel(padre), modello_(modello) {}

    [[nodiscard]] QModelIndex indice(masks::PostoGriglia posto) const {
        return index(posto.riga - 1, posto.colonna - 1);
    }
    [[nodiscard]] static masks::PostoGriglia posto(const QModelIndex& indice) {
        return {indice.row() + 1, indice.column() + 1};
    }
    /// Any of the cells may have changed.
    void cambiate();

    [[nodiscard]] int rowCount(const QModelIndex& sotto = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& sotto = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;
    [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& indice) const override;

 private:
    const masks::ModelloGriglia& modello_;
};

}  // namespace korven::shell
