#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "masks/history.hpp"
#include "project/field_table.hpp"

namespace korven::masks {

/// A field of the section form, with its row in the table of fields.
struct CampoSezione {
    double project::Sezione::*valore;
    std::string_view simbolo;  ///< by which the sketch calls it; 1 is uphill, 2 downhill

    [[nodiscard]] const project::Campo& campo() const { return project::campo(valore); }
    /// The frame of the form that has it: that of a type, or the materials.
    [[nodiscard]] project::Parte riquadro() const { return campo().parte; }
};

/// The fields of the section form, in the order of the tabulator.
inline constexpr CampoSezione campiSezione[] = {
    {&project::Sezione::copriferroMonte, "c1"},
    {&project::Sezione::copriferroValle, "c2"},
    {&project::Sezione::interasseMonte, "i1"},
    {&project::Sezione::interasseValle, "i2"},
    {&project::Sezione::diametroMonte, "d1"},
    {&project::Sezione::diametroValle, "d2"},
    {&project::Sezione::spessoreDiaframma, "H"},

    {&project::Sezione::paliDiamEst, "D"},
    {&project::Sezione::paliDiamInt, "d"},
    {&project::Sezione::paliInterasse, "i"},

    {&project::Sezione::palancolaBase, "b"},
    {&project::Sezione::palancolaLargAla, "a"},
    {&project::Sezione::palancolaAltAla, "h"},
    {&project::Sezione::palancolaSpessore, "t"},
    {&project::Sezione::palancolaSpessAla, "s"},

    {&project::Sezione::armDiamPalo, "D"},
    {&project::Sezione::armInterasse, "i"},
    {&project::Sezione::armNumLong, "n"},
    {&project::Sezione::armDiamLong, "d"},
    {&project::Sezione::armCopriferro, "c"},
    {&project::Sezione::armDiamStaffe, "ds"},
    {&project::Sezione::armPassoStaffe, "p"},

    {&project::Sezione::fyk, ""},
    {&project::Sezione::modEacciaio, ""},
    {&project::Sezione::fck, ""},
    {&project::Sezione::modEcls, ""},
};
inline constexpr std::size_t numeroCampiSezione = std::size(campiSezione);

/// Place of a field in `campiSezione`; their number if it is none.
[[nodiscard]] std::size_t campoSezione(double project::Sezione::*valore);

/// A section without a type becomes a diaphragm.
void daiTipo(project::Sezione& sezione);

/// The section as its form edits it: one of four types, and the texts of all fields, those of the
/// types that are not chosen as well. Lengths are typed in mm.
class SezioneEditata {
 public:
    /// A section without a type becomes a diaphragm at once, whether the form is confirmed or not.
    /// Of several true flags the first is the type chosen.
    /// @param modificato  the flag of the document; both must outlive the model
    SezioneEditata(project::Sezione& sezione, bool& modificato);

    /// The type chosen, whose frame is the one that shows.
    [[nodiscard]] project::Parte tipo() const { return tipo_; }
    /// @pre a type of section: asserted
    void scegli(project::Parte tipo);
    /// Stands for the choice of types where a field is named by its place.
    static constexpr std::size_t sceltaTipo = numeroCampiSezione;

    /// Text of field `campo` of `campiSezione`, as plain number of the stored value at first.
    [[nodiscard]] const std::string& testo(std::size_t campo) const { return testi_[campo]; }
    /// Any text is taken.
    void scrivi(std::size_t campo, std::string_view testo);
    /// Several fields at once, which is one step.
    /// @param nome  of the step, as it is shown: translated
    using Testi = std::vector<std::pair<std::size_t, std::string>>;
    void scrivi(const std::string& nome, const Testi& testi);

    /// The cursor is in a field, or in the choice of types.
    void entra(std::size_t campo);
    [[nodiscard]] std::size_t dove() const { return dove_; }
    /// Ctrl+Z: takes the last step back, Ctrl+Y: does it again. A step is what was typed into one
    /// field from entering it until it was left, and each choice of a type.
    /// @return the field where the cursor goes, or `sceltaTipo`; nothing when there was no step
    std::optional<std::size_t> annulla();
    std::optional<std::size_t> ripeti();
    /// What was taken back or done again, for the strip, until something else is done; else empty.
    [[nodiscard]] const std::string& detto() const { return storia_.detto(); }

    /// The section that the form describes: the stored number where the text is the one that was
    /// shown, else the numeric prefix of the text, 0 if there is none, in the stored unit, whatever
    /// its size or sign; one flag true.
    [[nodiscard]] project::Sezione letta() const;

    /// Stores all fields and flags. `modificato` becomes true if one of them changes, and else
    /// stays. A stored number with more digits than its text shows counts as a change too, though
    /// it is kept.
    void conferma();

 private:
    using Valore = std::variant<project::Parte, std::string>;  // of the choice of types, of a field
    void metti(std::size_t campo, const Valore& valore);
    [[nodiscard]] double scritto(std::size_t campo) const;
    [[nodiscard]] bool nominato(std::size_t campo) const;  // the text shown is the stored number
    [[nodiscard]] bool ritorna() const;                    // all that were left are named so

    project::Sezione& sezione_;
    bool& modificato_;
    project::Parte tipo_ = project::Parte::diaframma;
    std::array<std::string, numeroCampiSezione> testi_, mostrati_;
    std::size_t dove_ = sceltaTipo;
    Storia<std::size_t, Valore> storia_;
};

}  // namespace korven::masks
