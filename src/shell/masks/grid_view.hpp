#pragma once

#include <QTableView>
#include <functional>

#include "base/dialogo.hpp"
#include "masks/grid_model.hpp"

class QLineEdit;

namespace korven::shell {

class TabellaGriglia;

/// The grid `MSFlexGrid1` with its floating editor `Text1`: shows the cells of a `ModelloGriglia`
/// and hands it keys, clicks and the clipboard. Where the cursor is, and whether it may go, is the
/// model's to say.
///
/// Beyond the keys of the model: Tab and Shift+Tab go on and back like Enter, Home and End to the
/// ends of the row, with Ctrl to the first cell and the end of the data, the page keys by what is
/// seen, Ctrl+Tab out of the grid.
class VistaGriglia : public QTableView {
 public:
    /// @param modello   not owned, like `dialogo`
    /// @param cambiato  called when the cursor may have moved
    VistaGriglia(masks::ModelloGriglia& modello, base::Dialogo& dialogo,
                 std::function<void()> cambiato, QWidget* genitore);

    /// Shows cells, cursor and editor as they are in the model, and takes the focus.
    void aggiorna();
    /// Takes the last step back, does it again.
    void annulla();
    void ripeti();
    /// Width that shows all columns.
    [[nodiscard]] int larghezzaColonne() const;

 protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    void misuraColonne();
    void mostraAngolo();
    void vai(masks::PostoGriglia posto);
    void premi(masks::Tasto tasto, const QString& testo);
    bool appunti(const QKeyEvent& evento);
    bool sposta(const QKeyEvent& evento);
    bool premiNellEditore(const QKeyEvent& evento);
    void mostraEditore();

    masks::ModelloGriglia& modello_;
    base::Dialogo& dialogo_;
    std::function<void()> cambiato_;
    TabellaGriglia* tabella_;
    QLineEdit* editore_;
    bool scrivendo_ = false;  // into the current cell, which so shows the end of its text
};

}  // namespace korven::shell
