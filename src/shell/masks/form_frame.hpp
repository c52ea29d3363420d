#pragma once

#include <QDialog>
#include <QString>
#include <functional>

#include "base/dialogo.hpp"
#include "live/working_values.hpp"
#include "masks/mask.hpp"

namespace korven::shell {

/// Opens the help at a number of the table of help contexts.
/// @return false when the program has no help to open
using GuidaForme = std::function<bool(int contesto)>;

/// What a form has that is made from a mask, be it fields or a grid: the row of buttons, the help,
/// the place on the screen. The number of its page in the help is its property "contestoGuida".
class FormaMaschera : public QDialog {
    Q_OBJECT
 public:
    /// @param maschera  must outlive the form, as must `dialogo`
    /// @param nome      of the form; its size is remembered for each mask
    FormaMaschera(const masks::Maschera& maschera, base::Dialogo& dialogo, GuidaForme guida,
                  const QString& nome, QWidget* padre);

    /// What stands in the form at this moment, the text of a cell that is being typed included.
    [[nodiscard]] virtual live::ValoriForma valori() const = 0;

 signals:
    /// `valori` are others than before.
    void digitata();

 protected:
    /// The buttons `Command1_0`, `Command1_1`..., as wide as the longest caption asks for. They
    /// take no focus by a click: the field in use is checked by what they do.
    QWidget* farePulsanti(const std::function<void(std::size_t)>& premuto);

    /// Gives the form its remembered size, or this one as far as the screen has room for it, and
    /// puts it into the middle of the screen.
    void disponi(QSize comoda);
    /// The same for a form that keeps its place too; at first it goes beside the main form.
    void disponiAccanto(QSize comoda);

    /// The help page of the form.
    bool apriGuida();
    /// The help button: the page that the mask refers to, the reference itself where there is none.
    void mostraGuida();

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

    [[nodiscard]] const masks::Maschera& maschera() const { return maschera_; }
    [[nodiscard]] base::Dialogo& dialogo() const { return dialogo_; }

 private:
    const masks::Maschera& maschera_;
    base::Dialogo& dialogo_;
    GuidaForme guida_;
};

}  // namespace korven::shell
