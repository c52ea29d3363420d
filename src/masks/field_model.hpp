#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/dialogo.hpp"
#include "masks/field_check.hpp"
#include "masks/history.hpp"
#include "masks/key.hpp"
#include "masks/mask.hpp"

namespace korven::masks {

/// A form with labelled fields, as a mask describes it: what is shown, what is being typed, what a
/// key or a button does. Fields are counted from 0 over all fields of the mask, choices first.
class ModelloCampi {
 public:
    /// The first field that can takes the focus.
    /// @param maschera  must outlive the model
    /// @param combo     for each choice its selected item from 0, as far as given
    /// @param testi     the texts of the other fields, as far as given
    ModelloCampi(const Maschera& maschera, std::vector<double> combo,
                 std::vector<std::string> testi);

    [[nodiscard]] std::size_t campi() const { return maschera_.campi.size(); }
    [[nodiscard]] bool scelta(std::size_t campo) const { return campo < maschera_.scelte.size(); }
    [[nodiscard]] bool soloLettura(std::size_t campo) const;
    /// The label: its text, a blank, and dots up to 120 characters in all.
    [[nodiscard]] std::string didascalia(std::size_t campo) const;
    /// Title of a message about the field: its label without the dots at the end, then the blanks.
    [[nodiscard]] std::string titoloMessaggio(std::size_t campo) const;
    /// Greatest number of characters that the text box takes; 0 for no limit.
    [[nodiscard]] std::size_t lunghezzaMassima(std::size_t campo) const;
    /// Characters that all text boxes have room for: what the longest type asks for.
    [[nodiscard]] std::size_t larghezzaCaselle() const;

    /// True for a field that takes a number, aligned at the right.
    [[nodiscard]] bool numerica(std::size_t campo) const;

    /// Items of a choice field.
    [[nodiscard]] const std::vector<std::string>& voci(std::size_t campo) const;
    /// The item shown: a code above the number of items shows the last one.
    [[nodiscard]] std::size_t voceMostrata(std::size_t campo) const;
    /// The user picks an item. Picking the one that is shown changes nothing, so that a code
    /// without an item of its own survives a confirm. A read-only choice stays.
    void scegli(std::size_t campo, std::size_t voce);

    [[nodiscard]] const std::string& testo(std::size_t campo) const;
    /// The text that a key or a paste leaves; decimals that a number picture does not take are
    /// removed from its end, and what no project file can hold is a '?' at once. A read-only field
    /// keeps its text.
    void scrivi(std::size_t campo, std::string_view testo);

    /// The field that has the focus.
    [[nodiscard]] std::size_t attivo() const { return attivo_; }
    /// Begins at another field than the first, before anything is typed: nothing is checked. A
    /// field that there is not, or that is passed over, changes nothing.
    void comincia(std::size_t campo);
    /// False for a field that is passed over: a choice that is read-only.
    [[nodiscard]] bool prendeFuoco(std::size_t campo) const;
    /// Checks the text of the field that has the focus. A fault is told in a box and the focus is
    /// to stay; a text that was too long has then been cut.
    /// @return true when the field may be left
    bool lascia(base::Dialogo& dialogo);
    /// Moves the focus to another field, if the one that has it may be left.
    /// @return true when `campo` has the focus
    bool passaA(std::size_t campo, base::Dialogo& dialogo);
    /// Up moves to the previous field, Down and Enter to the next, F1 does nothing; at the first
    /// and the last field the focus stays.
    /// @return true when the focus moved
    bool premi(Tasto tasto, base::Dialogo& dialogo);

    /// A note on one of the texts, from code that knows what the fields mean: takes the place of
    /// the field, counted after the choices, and all texts; empty for no note.
    using Nota = std::function<std::string(std::size_t, const std::vector<std::string>&)>;
    void annota(Nota nota) { nota_ = std::move(nota); }

    /// What the strip says of what is typed into the field that has the focus: where a number is
    /// read otherwise than typed (base/number_reading.hpp), or the note about a text; else empty.
    [[nodiscard]] std::string lettura() const;
    /// Text of the strip: the help of the field that has the focus.
    [[nodiscard]] const std::string& aiuto() const;
    /// A click on the strip shows its text in a box.
    void mostraAiuto(base::Dialogo& dialogo) const;

    /// Ctrl+Z: takes the last step back, Ctrl+Y: does it again; the focus goes to its field,
    /// without a check of the one that it leaves. A step is what was typed or chosen in one field
    /// from entering it until it was left.
    /// @return true when there was such a step
    bool annulla();
    bool ripeti();
    /// What was taken back or done again, for the strip, until something else is done; else empty.
    [[nodiscard]] const std::string& detto() const { return storia_.detto(); }

    /// The confirm button: checks the field that has the focus.
    /// @return true when the form closes and hands back `valoriCombo` and `valoriTesto`
    bool conferma(base::Dialogo& dialogo) { return lascia(dialogo); }
    [[nodiscard]] const std::vector<double>& valoriCombo() const { return combo_; }
    [[nodiscard]] const std::vector<std::string>& valoriTesto() const { return testi_; }

 private:
    [[nodiscard]] std::size_t posto(std::size_t campo) const { return campo - combo_.size(); }

    using Valore = std::variant<double, std::string>;  // of a choice, of a text
    [[nodiscard]] Valore valore(std::size_t campo) const;
    void metti(std::size_t campo, const Valore& valore);
    void cambia(std::size_t campo, const Valore& dopo);
    bool torna(std::optional<std::size_t> campo);

    const Maschera& maschera_;
    std::vector<double> combo_;
    std::vector<std::string> testi_;
    std::size_t attivo_ = 0;
    Storia<std::size_t, Valore> storia_;
    Nota nota_;
};

/// The help button of either form: with a help file the caller opens entry `voceGuida(maschera)` of
/// the help context table; without one the reference itself is shown in a box.
void mostraRiferimento(const Maschera& maschera, base::Dialogo& dialogo);

}  // namespace korven::masks
