#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <optional>

#include "commands/desktop_forms.hpp"
#include "masks/edited_section.hpp"

class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QRadioButton;
class QStackedWidget;

namespace korven::shell {

class StrisciaAiuto;
class ParteScorrevole;
class VistaSchizzo;
class VitaProgetto;

/// The form of the structural section. What is typed and stored is the matter of
/// `masks::SezioneEditata`; beside the fields of each type a sketch shows what they measure. Ctrl+Z
/// and Ctrl+Y take fields and the type back and do them again.
class DefinEJ : public QDialog {
    Q_OBJECT

 public:
    /// @param modificato  the flag of the document; both must outlive the form
    DefinEJ(project::Sezione& sezione, bool& modificato, QWidget* padre);

    /// Begins at a field of `masks::campiSezione`, before it is shown: at the choice of types, as
    /// without, for a field of a type that is not chosen.
    void comincia(std::size_t campo);

    /// Puts a panel beside the fields, as far as the screen has room; the tabulator comes to it
    /// after the buttons.
    void affianca(QWidget* pannello);

    /// The section as it stands in the form at this moment.
    [[nodiscard]] project::Sezione letta() const { return modello_.letta(); }
    [[nodiscard]] project::Parte tipo() const { return modello_.tipo(); }
    /// The field that had the cursor last; `SezioneEditata::sceltaTipo` for the choice of types.
    [[nodiscard]] std::size_t campo() const { return modello_.dove(); }
    /// Writes several fields of the type chosen and of the materials, which Ctrl+Z takes back at
    /// once, and goes to the first of them.
    /// @param nome  of the step, translated
    void prendi(const std::string& nome, const masks::SezioneEditata::Testi& testi);

 signals:
    /// `letta` is another section than before.
    void digitata();

 protected:
    bool eventFilter(QObject* controllo, QEvent* evento) override;

 private:
    QWidget* fareTutto();
    QWidget* fareOpzioni();
    QWidget* fareRiquadri();
    QGroupBox* fareRiquadro(project::Parte riquadro);
    void fareCampi(QGridLayout& griglia, project::Parte riquadro);
    QLineEdit* fareCampo(std::size_t campo);
    QWidget* fareStriscia();
    void mostraTipo();
    void aggiornaSchizzo();
    void entra(std::size_t campo);
    void spiega(std::size_t campo);
    void entraOpzioni();
    void nelModello(std::size_t campo);
    void mostraValori();
    void mostraTornato(std::optional<std::size_t> campo);

    masks::SezioneEditata modello_;
    std::array<QRadioButton*, 4> opzioni_{};
    std::array<VistaSchizzo*, 4> schizzi_{};
    std::array<QLineEdit*, masks::numeroCampiSezione> campi_{};
    QHBoxLayout* fila_ = nullptr;  // of the fields and the panel
    QStackedWidget* riquadri_ = nullptr;
    ParteScorrevole* area_ = nullptr;  // of the fields
    StrisciaAiuto* aiuto_ = nullptr;
    bool tornando_ = false;  // what is shown follows the model, and the focus that moves is its own
};

/// Makes the panel that goes beside the section.
using PannelloAccanto = std::function<QWidget*(DefinEJ& forma)>;

/// Plugs the form of the section of the open project into its command.
/// @param vita  told the section that stands in the form at each change
/// @param pannello  may be empty
void collegaSezione(commands::FormeProgramma& forme, QWidget* padre, VitaProgetto* vita = nullptr,
                    const PannelloAccanto& pannello = {});

}  // namespace korven::shell
