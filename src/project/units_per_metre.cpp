#include "project/units_per_metre.hpp"

#include <utility>

namespace korven::project {

namespace {

constexpr std::pair<Membro, const Unita*> alMetro[] = {
    {&DatiProgetto::rigidezzaEJ, &unita::rigidezzaFlessionaleAlMetro},
    {&DatiProgetto::momentoTesta, &unita::momentoAlMetro},
    {&DatiProgetto::forzaTesta, &unita::forzaAlMetro},
    {&DatiProgetto::sforzoNormale, &unita::forzaAlMetro},
    {&DatiProgetto::rigTirante, &unita::rigidezzaAlMetro},
    {&DatiProgetto::pretTirante, &unita::forzaAlMetro},
};

}  // namespace

const Unita& unitaAlMetro(const Campo& campo) {
    for (const auto& [membro, unita] : alMetro)
        if (membro == campo.membro) return *unita;
    return campo.unita;
}

std::string_view unitaScritta(const Campo& campo) {
    return campo.membro == Membro(&DatiProgetto::coeffM) ? "t^½/m²" : unitaAlMetro(campo).mostrata;
}

}  // namespace korven::project
