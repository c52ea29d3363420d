#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "project/section.hpp"

namespace korven::masks {

/// Where the section form has a field: in the frame of a type, in the order of `tipiSezione`, or
/// among the materials.
enum class RiquadroSezione { diaframma, pali, palancola, paliArmati, materiali };

struct CampoSezione {
    double project::Sezione::*valore;
    RiquadroSezione riquadro;
    double fattore;            ///< the typed number over the stored one
    std::string_view simbolo;  ///< by which the sketch calls it; 1 is uphill, 2 downhill
};

/// The fields of the section form. The bar count goes through the factor of the lengths, although
/// it is none: a typed 8 is stored, and calculates, as 0.8.
inline constexpr CampoSezione campiSezione[] = {
    {&project::Sezione::copriferroMonte, RiquadroSezione::diaframma, 10, "c1"},
    {&project::Sezione::copriferroValle, RiquadroSezione::diaframma, 10, "c2"},
    {&project::Sezione::interasseMonte, RiquadroSezione::diaframma, 10, "i1"},
    {&project::Sezione::interasseValle, RiquadroSezione::diaframma, 10, "i2"},
    {&project::Sezione::diametroMonte, RiquadroSezione::diaframma, 10, "d1"},
    {&project::Sezione::diametroValle, RiquadroSezione::diaframma, 10, "d2"},
    {&project::Sezione::spessoreDiaframma, RiquadroSezione::diaframma, 10, "H"},

    {&project::Sezione::paliDiamEst, RiquadroSezione::pali, 10, "D"},
    {&project::Sezione::paliDiamInt, RiquadroSezione::pali, 10, "d"},
    {&project::Sezione::paliInterasse, RiquadroSezione::pali, 10, "i"},

    {&project::Sezione::palancolaBase, RiquadroSezione::palancola, 10, "b"},
    {&project::Sezione::palancolaLargAla, RiquadroSezione::palancola, 10, "a"},
    {&project::Sezione::palancolaAltAla, RiquadroSezione::palancola, 10, "h"},
    {&project::Sezione::palancolaSpessore, RiquadroSezione::palancola, 10, "t"},
    {&project::Sezione::palancolaSpessAla, RiquadroSezione::palancola, 10, "s"},

    {&project::Sezione::armDiamPalo, RiquadroSezione::paliArmati, 10, "D"},
    {&project::Sezione::armInterasse, RiquadroSezione::paliArmati, 10, "i"},
    {&project::Sezione::armNumLong, RiquadroSezione::paliArmati, 10, "n"},
    {&project::Sezione::armDiamLong, RiquadroSezione::paliArmati, 10, "d"},
    {&project::Sezione::armCopriferro, RiquadroSezione::paliArmati, 10, "c"},
    {&project::Sezione::armDiamStaffe, RiquadroSezione::paliArmati, 10, "ds"},
    {&project::Sezione::armPassoStaffe, RiquadroSezione::paliArmati, 10, "p"},

    {&project::Sezione::fyk, RiquadroSezione::materiali, 1, ""},
    {&project::Sezione::modEacciaio, RiquadroSezione::materiali, 1, ""},
    {&project::Sezione::fck, RiquadroSezione::materiali, 1, ""},
    {&project::Sezione::modEcls, RiquadroSezione::materiali, 1, ""},
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
    [[nodiscard]] RiquadroSezione tipo() const { return tipo_; }
    /// @pre not the materials: asserted
    void scegli(RiquadroSezione tipo);

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
    RiquadroSezione tipo_ = RiquadroSezione::diaframma;
    std::array<std::string, numeroCampiSezione> testi_, mostrati_;
};

}  // namespace korven::masks
