#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "masks/field_model.hpp"
#include "shell/masks/form_frame.hpp"

class QComboBox;
class QHBoxLayout;
class QKeyEvent;
class QLineEdit;
class QScrollArea;

namespace korven::shell {

class StrisciaAiuto;

/// The form `base1`: labelled fields as a mask describes them. `masks::ModelloCampi` has its rules.
///
/// Controls by name, counted from 0 each: `Label1_n` the labels of all fields, `Combo1_n` the
/// choices, `Text1_n` the other fields, `Command1_n` the buttons; `Labelhelp` the help strip. Left
/// and Right change a choice, as Up and Down go from field to field. Ctrl+Z and Ctrl+Y take fields
/// back and do them again.
class Base1 : public FormaMaschera {
 public:
    /// The arguments are those of `ModelloCampi` and `FormaMaschera`.
    Base1(const masks::Maschera& maschera, std::vector<double> combo,
          std::vector<std::string> testi, base::Dialogo& dialogo, GuidaForme guida, QWidget* padre);

    [[nodiscard]] const masks::ModelloCampi& modello() const { return modello_; }
    [[nodiscard]] live::ValoriForma valori() const override;
    /// Begins at a field, counted from 0, before it is shown.
    void comincia(std::size_t campo) {
        modello_.comincia(campo);
        mostraAttivo();
    }
    /// Puts a panel at the right of the fields, which becomes its owner.
    void affianca(QWidget* pannello);
    /// The strip shows the notes on texts too.
    void annota(masks::ModelloCampi::Nota nota) {
        modello_.annota(std::move(nota));
        spiega();
    }

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    QWidget* fareCampi();
    QComboBox* fareScelta(std::size_t campo, QWidget* genitore);
    QLineEdit* fareTesto(std::size_t campo, QWidget* genitore);
    [[nodiscard]] QSize misuraComoda() const;
    void scritto(std::size_t campo, const QString& testo);
    bool entra(std::size_t campo);
    bool premuto(std::size_t campo, const QKeyEvent& evento);
    void mostraValore(std::size_t campo);
    void mostraAttivo();
    void mostraTornato(bool tornato);
    void spiega();
    void azione(std::size_t pulsante);

    masks::ModelloCampi modello_;
    std::vector<QWidget*> controlli_;  // the field's combo or text box
    QScrollArea* area_ = nullptr;
    QHBoxLayout* fila_ = nullptr;  // fields and panel
    StrisciaAiuto* aiuto_ = nullptr;
    bool controllando_ = false;  // a box tells of a fault: the focus that moves is not the user's
};

}  // namespace korven::shell
