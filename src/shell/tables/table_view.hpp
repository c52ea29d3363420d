#pragma once

#include <QTableView>

#include "shell/tables/table_model.hpp"

class QMimeData;

namespace korven::shell {

/// A table of results to look at: sorted by a click on a head or by its menu, copied with the heads
/// into a spreadsheet.
///
/// Keys: Ctrl+A selects all, Ctrl+C copies what is selected, all where it is one cell; the menu key
/// opens the menu, which sorts by the column of the current cell.
class VistaProspetto : public QTableView {
    Q_OBJECT
 public:
    VistaProspetto(const QString& nome, QWidget* padre);

    void mostra(tables::Prospetto prospetto);
    void sospendi(bool sospeso) { modello_->sospendi(sospeso); }
    [[nodiscard]] const ModelloProspetto& modello() const { return *modello_; }

    /// What `copia` lays on the clipboard; the caller owns it.
    [[nodiscard]] QMimeData* copiato() const;
    void copia() const;

 protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
    void allarga(bool altra);

    ModelloProspetto* modello_;
};

}  // namespace korven::shell
