#include "results/section_uses.hpp"

#include <cmath>

#include "analysis/run_closing.hpp"
#include "project/units.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::results {

structure::MomentiResistenti momentiResistenti(const project::DatiProgetto& dati) {
    if (!structure::sezioneCalcolabile(dati.sezione)) return {};
    return structure::resistenze(dati.sezione, dati.sforzoNormale);
}

Controlli controlli(const project::Sezione& sezione, const structure::MomentiResistenti& MRd,
                    double mMax, double mMin, double Vmax) {
    const auto sua = analysis::chiusura(MRd, {.fasi = {}, .mMaxTotale = mMax, .mMinTotale = mMin});
    return {verificaMomenti(sezione, sua), verificaAlTaglio(sezione, std::fabs(Vmax))};
}

std::optional<Uso> uso(const Controlli& c, Verifica verifica) {
    using project::inKilonewton;
    switch (verifica) {
        case Verifica::momentoPositivo:
            if (!c.flessione) break;
            return Uso{inKilonewton(c.flessione->mdMax), inKilonewton(c.flessione->mrPos),
                       c.flessione->fallitaPos()};
        case Verifica::momentoNegativo:
            if (!c.flessione || !c.flessione->negativo) break;
            return Uso{inKilonewton(c.flessione->mdMin), inKilonewton(c.flessione->mrNeg),
                       c.flessione->fallitaNeg()};
        case Verifica::bielle:
            if (!c.taglio) break;
            return Uso{c.taglio->Vsd, c.taglio->Vrd2, c.taglio->rotturaBielle()};
        case Verifica::armatura:
            if (!c.taglio) break;
            return Uso{c.taglio->Vsd, c.taglio->Vrd3, c.taglio->rotturaArmatura()};
    }
    return std::nullopt;
}

}  // namespace korven::results
