#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "masks/grid_model.hpp"
#include "shell/masks/form_frame.hpp"

class QHBoxLayout;

namespace korven::shell {

class VistaGriglia;
class StrisciaAiuto;

/// The form `base2_32`: a table as a mask describes it. `masks::ModelloGriglia` has its rules.
///
/// Controls by name: `MSFlexGrid1` the grid, `Text1` its floating editor, `Label1` the help strip,
/// `Command1_n` the buttons. F1 opens the help of the form; Ctrl+Z and Ctrl+Y take cells, rows and
/// pastes back and do them again.
class Base2_32 : public FormaMaschera {
    Q_OBJECT
 public:
    /// The arguments are those of `ModelloGriglia` and `FormaMaschera`.
    /// @throws base::ErroreIndice for more than 500 rows
    Base2_32(const masks::Maschera& maschera, const std::vector<std::string>& testi,
             base::Dialogo& dialogo, GuidaForme guida, QWidget* padre,
             int capienza = masks::CelleGriglia::righe);

    [[nodiscard]] const masks::ModelloGriglia& modello() const { return modello_; }
    [[nodiscard]] live::ValoriForma valori() const override;

    /// Puts a panel at the right of the grid, which becomes its owner. While a control of the panel
    /// has the focus the strip shows its `whatsThis`, if it has one.
    void affianca(QWidget* pannello);

    /// What a panel has to say about the table: a note above the text of the strip, until it is
    /// another one or empty.
    void nota(const QString& testo);

    /// A panel leads to a cell, if the current one is good to be left; the grid gets the focus.
    void vai(masks::PostoGriglia posto);

    /// A panel writes a text into a cell, as if it were typed there; a fault is told, and the cell
    /// then stays as it was.
    /// @return true when it was written
    bool scrivi(masks::PostoGriglia posto, std::string_view testo);

    /// A panel puts rows in place of all (`ModelloGriglia::sostituisci`).
    void sostituisci(const std::vector<std::vector<std::string>>& righe, std::string passo);

    /// Takes the last step of the table back, or does it again; the grid gets the focus.
    void annulla();
    void ripeti();
    /// What the strip says of such a step is over: something else was done beside the table.
    void taci();

    /// Begins at a cell, before it is shown.
    void comincia(masks::PostoGriglia posto);

    /// Esc and the close box ask about rows that were changed; the cancel button does not.
    void reject() override;

 signals:
    /// The cursor is in another cell.
    void postoCambiato();
    /// A step of the table was taken back or done again, or there was none to take.
    void tornata();

 protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

 private:
    void azione(std::size_t pulsante);
    void segui(const QWidget* fuoco);
    void spiega();
    void mostraSpiegazione();
    void cambiata();

    masks::ModelloGriglia modello_;
    VistaGriglia* griglia_ = nullptr;
    QHBoxLayout* fila_ = nullptr;  // grid and panel
    StrisciaAiuto* aiuto_ = nullptr;
    QWidget* pannello_ = nullptr;
    QString nota_;      // of the panel
    QString spiegato_;  // of the control of the panel that has the focus
    QString nomeSpiegato_;
    masks::PostoGriglia posto_;          // where the cursor was last
    std::vector<std::string> digitati_;  // what the cells held last
    // Ends before all else: what Qt takes apart after this form moves the focus once more.
    QObject ascoltoFuoco_;
};

}  // namespace korven::shell
