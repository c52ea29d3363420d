#pragma once

#include <string>
#include <vector>

#include "masks/grid_model.hpp"
#include "shell/masks/form_frame.hpp"

namespace korven::shell {

class VistaGriglia;
class StrisciaAiuto;

/// The form `base2_32`: a table as a mask describes it. `masks::ModelloGriglia` has its rules.
///
/// Controls by name: `MSFlexGrid1` the grid, `Text1` its floating editor, `Label1` the help strip,
/// `Command1_n` the buttons. F1 opens the help of the form; Ctrl+Z and Ctrl+Y take cells, rows and
/// pastes back and do them again.
class Base2_32 : public FormaMaschera {
 public:
    /// The arguments are those of `ModelloGriglia` and `FormaMaschera`.
    /// @throws base::ErroreIndice for more than 500 rows
    Base2_32(const masks::Maschera& maschera, const std::vector<std::string>& testi,
             base::Dialogo& dialogo, GuidaForme guida, QWidget* padre,
             int capienza = masks::CelleGriglia::righe);

    [[nodiscard]] const masks::ModelloGriglia& modello() const { return modello_; }

    /// Begins at a cell, before it is shown.
    void comincia(masks::PostoGriglia posto);

    /// Esc and the close box ask about rows that were changed; the cancel button does not.
    void reject() override;

 protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

 private:
    void azione(std::size_t pulsante);
    void spiega();

    masks::ModelloGriglia modello_;
    VistaGriglia* griglia_ = nullptr;
    StrisciaAiuto* aiuto_ = nullptr;
};

}  // namespace korven::shell
