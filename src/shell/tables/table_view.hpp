#pragma once

#include <QTableView>
#include <map>
#include <string>
#include <vector>

#include "shell/tables/table_model.hpp"
#include "tables/column_head.hpp"

class QMimeData;

namespace korven::shell {

/// Sentences, a line each.
[[nodiscard]] QString insieme(const std::vector<std::string>& frasi);

/// A table of results to look at: sorted by a click on a head or by its menu, copied with the heads
/// into a spreadsheet. Heads and words go into several lines where the window is too narrow for
/// them, the words of the cells unless `wordWrap` is taken from it. A column whose edge was dragged
/// keeps its width until the table has other columns. A last column of words takes what is left of
/// the window, one of numbers stays beside the others. A table without rows shows its notes in
/// their place: why.
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
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
    [[nodiscard]] bool misura(bool altra);
    void adatta();
    [[nodiscard]] std::vector<int> ripartite() const;
    void spezzaTeste();
    [[nodiscard]] int freccia(int colonna) const;  // room for the arrow of the order [px]
    [[nodiscard]] tables::LarghezzaTesto larghezzaTesta() const;
    void tieni(int colonna, int larghezza);

    ModelloProspetto* modello_;
    // That each column needs with its head in one line, and with its words one below the other
    // [px].
    std::vector<int> larghezze_, strette_;
    std::map<int, int> tenute_;  // columns that the user has drawn to a width [px]
    bool dispone_ = false;
};

}  // namespace korven::shell
