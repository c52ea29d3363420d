#include "analysis/run_arrays.hpp"

#include <cassert>

#include "project/codes.hpp"

namespace korven::analysis {

Vincoli vincoli(const project::DatiProgetto& dati) {
    using project::VincoloPiede;
    const bool incastro = dati.vincoloPiede == VincoloPiede::incastro;
    return {dati.vincoloTesta == project::VincoloTesta::cerniera,
            dati.vincoloPiede == VincoloPiede::cerniera || incastro, incastro};
}

void preparaCorsa(const project::DatiProgetto& dati, int nSeg, ArraysCorsa& corsa) {
    static_cast<VettoriCorsa&>(corsa) = {};
    corsa.nSeg = nSeg;
    corsa.nNodi = nSeg + 1;
    corsa.passoNodi = dati.lunghezzaParatia / nSeg;
    corsa.vincolo = vincoli(dati);
    assert(nSeg >= minimoSegmenti);
    assert(nSeg <= (corsa.vincolo.incastroPiede ? massimoSegmentiIncastro : massimoSegmenti));
    corsa.matriceA.azzera(2 * (corsa.vincolo.incastroPiede ? corsa.nNodi + 1 : corsa.nNodi));
}

}  // namespace korven::analysis
