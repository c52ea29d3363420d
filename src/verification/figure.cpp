#include "verification/figure.hpp"

#include <algorithm>
#include <string_view>

#include "base/translated_texts.hpp"
#include "live/wall.hpp"
#include "scene/domain.hpp"
#include "scene/text_measure.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::verification {

namespace {

live::Curva curva(std::string_view nome) {
    if (nome == "pressioni") return live::Curva::pressioni;
    if (nome == "spostamento") return live::Curva::spostamento;
    return nome == "taglio" ? live::Curva::taglio : live::Curva::momento;
}

}  // namespace

const Caso* casoInFigura(const Gruppo& gruppo) {
    const auto trovato = std::find_if(gruppo.casi.begin(), gruppo.casi.end(),
                                      [&](const Caso& c) { return c.nome == gruppo.figura; });
    return trovato == gruppo.casi.end() ? nullptr : &*trovato;
}

FiguraGruppo figura(const Gruppo& gruppo, const Caso& caso, const scene::Misura& misura) {
    const scene::MisuraStimata testi;
    if (gruppo.curva.empty())
        return {scene::scenaDominio(structure::dominioNM(caso.parete.dati.sezione), {}, misura,
                                    testi, {}),
                base::traduttore(caso.titolo) + "."};
    auto dati = caso.parete.dati;
    for (int j = 1; j <= dati.nStrati; ++j) dati.descrStrato[j].clear();  // no hatches
    const auto parete = live::calcola(dati, caso.parete.segmenti);
    const live::Vista vista{parete.fasiInEquilibrio(), curva(gruppo.curva)};
    scene::Opzioni opzioni;
    opzioni.parole = false;
    return {scene::scena(parete, vista, misura, testi, opzioni), scene::descrizione(parete, vista)};
}

}  // namespace korven::verification
