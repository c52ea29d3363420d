#pragma once

#include <QAbstractListModel>
#include <QFont>
#include <QString>
#include <vector>

namespace korven::shell {

/// The lines of the preview. All are as high and as wide as the widest, so that a list of thousands
/// measures one of them.
class RigheAnteprima : public QAbstractListModel {
 public:
    using QAbstractListModel::QAbstractListModel;

    /// @param font  of the list, to measure the lines with
    void impostaFont(const QFont& font) { font_ = font; }
    /// Adds lines after those that are there.
    void aggiungi(const std::vector<QString>& righe);
    void svuota();

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;

 private:
    std::vector<QString> righe_;
    QFont font_;
    int larghezza_ = 0;  // of the widest line [pixels]
};

}  // namespace korven::shell
