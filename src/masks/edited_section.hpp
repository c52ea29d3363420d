#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

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

    /// Text of field `campo` of `campiSezione`, as plain number of the stored value at first.
    [[nodiscard]] const std::string& testo(std::size_t campo) const { return testi_[campo]; }
    /// Any text is taken.
    void scrivi(std::size_t campo, std::string_view testo) { testi_[campo] = testo; }

    /// The section that the form describes: the stored number where the text is the one that was
    /// shown, else the numeric prefix of the text, 0 if there is none, in the stored unit, whatever
    /// its size or sign; one flag true.
    [[nodiscard]] project::Sezione letta() const;

    /// Stores all fields and flags. `modificato` becomes true if one of them changes, and else
    /// stays. A stored number with more digits than its text shows counts as a change too, though
    /// it is kept.
    void conferma();

 private:
    [[nodiscard]] double scritto(std::size_t campo) const;
    [[nodiscard]] bool nominato(std::size_t campo) const;  // the text shown is the stored number
    [[nodiscard]] bool ritorna() const;                    // all that were left are named so

    project::Sezione& sezione_;
    bool& modificato_;
    project::Parte tipo_ = project::Parte::diaframma;
    std::array<std::string, numeroCampiSezione> testi_, mostrati_;
};

}  // namespace korven::masks
