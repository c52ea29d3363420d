#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "masks/mask.hpp"

namespace korven::masks {

/// The masks of the program, in the order of their numbers.
enum class NumeroMaschera { titoli = 1, paratia, strati, tiranti, fasi };

/// Stands for the section form, which has no mask.
inline constexpr auto senzaMaschera = NumeroMaschera{0};

/// A place in a form, from 1: row and column of data of a grid, field of a field form.
struct PostoForma {
    int riga = 1;
    int campo = 1;

    bool operator==(const PostoForma&) const = default;
};

/// Names of their files in the program folder, in this order.
inline constexpr std::string_view fileMaschere[] = {"EDITT.MAV", "EDITDIA.MAV", "EDITSTRA.MAV",
                                                    "EDITTIR.MAV", "EDITFASI.MAV"};

/// The text of a choice as `Maschere::leggiCampo` gives it: its code, which is what is kept plus 1.
[[nodiscard]] std::string testoScelta(double tenuta);

/// All masks, and the values that pass between a command and the form of the current one.
///
/// A command selects a mask, fills in the values, shows the form, takes the values back when the
/// form was confirmed, and releases the mask:
///
///     selezionaMaschera(n); impostaCampo(...); <form>; if (!annullato) leggiCampo(...);
///     rilasciaForm();
class Maschere {
 public:
    /// Reads mask files; mask 1 is the first of them. Read again, all are replaced.
    /// @throws base::ErroreFile for a missing or broken file (reader.hpp)
    /// @throws base::ErroreIndice for more than 20 masks
    void leggiMaschere(const std::vector<std::string>& percorsi);

    /// Reads the five masks of the program from its folder.
    /// @throws base::ErroreFile also if one has not the fields that its command fills in
    void leggiMaschereProgramma();

    /// Makes a mask current; its values are empty, the choices on their first items.
    /// @throws base::ErroreIndice for a number without mask
    void selezionaMaschera(int numero);

    /// The current mask. @pre one is selected: asserted
    [[nodiscard]] const Maschera& corrente() const;
    /// Number of the current mask, from 1. @pre one is selected
    [[nodiscard]] int numero() const { return static_cast<int>(corrente_.value()) + 1; }

    /// Sets field `indice`, from 1 over all fields of the current mask. Up to the number of choices
    /// the text is a code, of which code - 1 is kept, 0 for a code of 0 or less: code 1 is the
    /// first item, and so is the code 0 of a new project. After them texts are kept unchanged; for
    /// a grid the first is the number of rows, the others the cells row after row.
    /// @throws base::ErroreIndice beyond the capacity of the list
    void impostaCampo(int indice, std::string_view testo);

    /// The text of field `indice`: for a choice what is kept plus 1. Empty beyond the last text.
    [[nodiscard]] std::string leggiCampo(int indice) const;

    /// Where the form of the current mask begins: at its first place unless another is asked for.
    void comincia(PostoForma posto) { inizio_ = posto; }
    [[nodiscard]] std::optional<PostoForma> inizio() const { return inizio_; }

    /// Takes over what a confirmed form hands back.
    /// @throws base::ErroreIndice beyond the capacity of the list; the texts are taken all the
    ///         same, so that they can be rescued
    void conferma(std::vector<double> combo, std::vector<std::string> testi);

    /// Ends the work with the current mask and empties its values.
    void rilasciaForm();

    [[nodiscard]] const std::vector<double>& valoriCombo() const { return valoriCombo_; }
    [[nodiscard]] const std::vector<std::string>& valoriTesto() const { return valoriTesto_; }
    /// True unless the form of the current mask was confirmed.
    [[nodiscard]] bool annullato() const { return annullato_; }
    /// Texts that the list holds: 1000 until the first release of a form, 75,000 from then on.
    [[nodiscard]] std::size_t capacita() const { return capacita_; }

 private:
    void controllaCapacita(std::size_t testi) const;

    std::vector<Maschera> maschere_;
    std::optional<std::size_t> corrente_;
    std::optional<PostoForma> inizio_;
    // A code that is no whole number stays what it is if the user picks nothing.
    std::vector<double> valoriCombo_;
    std::vector<std::string> valoriTesto_;
    bool annullato_ = true;
    std::size_t capacita_ = 1000;
};

}  // namespace korven::masks
