#include "safety/run_cause.hpp"

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "safety/words.hpp"

namespace korven::safety {

using analysis::ModoFine;

CausaCorsa causaCorsa(const analysis::FineCorsa& fine, const project::DatiProgetto& dati,
                      int nSeg) {
    switch (fine.modo) {
        case ModoFine::compiuta:
            break;
        case ModoFine::rifiutata:
            return {Causa::rifiutato, {}, {}};
        case ModoFine::fermata:
            return {Causa::fermato, {}, {}};
        case ModoFine::nonMostrabile:
            return {Causa::nessunNumero, {}, {}};
        case ModoFine::singolare:
        case ModoFine::oltreLimite: {
            Diagnosi d = diagnosi(dati, nSeg, fine.fase);
            d.ostacolo = ostacolo(fine);
            return {d.causa, frase(d), inPocheParole(d)};
        }
    }
    return {};
}

CausaCorsa causaCorsa(const analysis::FineCorsa& fine, const project::DatiProgetto& dati) {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    return nSeg ? causaCorsa(fine, dati, *nSeg) : CausaCorsa{Causa::rifiutato, {}, {}};
}

}  // namespace korven::safety
