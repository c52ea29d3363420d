#include "drawings/annex/section_symbols.hpp"

#include <algorithm>
#include <iterator>

namespace korven::drawings {

namespace {

using project::Sezione;

struct SimboloMisura {
    double Sezione::*misura;
    std::string_view simbolo;
};

constexpr SimboloMisura simboli[] = {
    {&Sezione::spessoreDiaframma, "H"},  {&Sezione::copriferroMonte, "cm"},
    {&Sezione::diametroMonte, "dm"},     {&Sezione::interasseMonte, "im"},
    {&Sezione::copriferroValle, "cv"},   {&Sezione::diametroValle, "dv"},
    {&Sezione::interasseValle, "iv"},

    {&Sezione::paliDiamEst, "De"},       {&Sezione::paliDiamInt, "Di"},
    {&Sezione::paliInterasse, "i"},

    {&Sezione::palancolaBase, "b"},      {&Sezione::palancolaSpessore, "s"},
    {&Sezione::palancolaLargAla, "la"},  {&Sezione::palancolaAltAla, "ha"},
    {&Sezione::palancolaSpessAla, "sa"},

    {&Sezione::armDiamPalo, "D"},        {&Sezione::armInterasse, "i"},
    {&Sezione::armCopriferro, "c"},      {&Sezione::armNumLong, "n"},
    {&Sezione::armDiamLong, "dl"},       {&Sezione::armDiamStaffe, "dw"},
    {&Sezione::armPassoStaffe, "s"},
};

}  // namespace

std::string_view simboloFormule(double Sezione::*misura) {
    const auto* trovato = std::find_if(std::begin(simboli), std::end(simboli),
                                       [&](const auto& s) { return s.misura == misura; });
    return trovato == std::end(simboli) ? std::string_view() : trovato->simbolo;
}

}  // namespace korven::drawings
