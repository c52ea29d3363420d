#include "review/statics_reasons.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using safety::Confronto;
using safety::MargineFase;

std::string nome(const project::Membro& membro, int riga = 1) {
    return project::nomeStabile(project::campo(membro), riga);
}

// Anchors of a stage that are slack, but count in the report's shear.
std::vector<std::string> lenti(const DatiProgetto& dati, const MargineFase& fase) {
    std::vector<std::string> campi;
    for (const safety::ConfrontoTiro& tiro : fase.confronto.tiri)
        if (tiro.statica == 0 && tiro.relazione && tiro.relazione->valore < 0 &&
            !(dati.tipoTirante[tiro.tirante] == project::TipoTirante::trazioneCompressione))
            campi.push_back(nome(&DatiProgetto::tipoTirante, tiro.tirante));
    return campi;
}

// Anchors of a stage at the node of a depth.
// @param traNodi  only those that are not exactly there, of which the report has no value above
std::vector<std::string> alNodo(const DatiProgetto& dati, const MargineFase& fase, double z,
                                double passo, bool traNodi) {
    std::vector<std::string> campi;
    for (const safety::ConfrontoTiro& tiro : fase.confronto.tiri) {
        const int nodo = analysis::nodoTirante(dati.profTirante[tiro.tirante], passo);
        const bool qui = std::fabs(analysis::zNodo(nodo, passo) - z) < passo / 2;
        if (qui && !(traNodi && tiro.relazione && tiro.relazione->nelTaglio))
            campi.push_back(nome(&DatiProgetto::profTirante, tiro.tirante));
    }
    return campi;
}

}  // namespace

Motivo motivoMomento(const DatiProgetto& dati, const safety::Margine& margine, const Confronto& c) {
    assert(c.relazione);
    const double passo = dati.lunghezzaParatia / margine.nSeg;
    const double sotto = std::max(c.relazione->z, c.statica.z);
    if (!analysis::vincoli(dati).incastroPiede || sotto <= dati.lunghezzaParatia - passo / 2)
        return {};
    return {"al piede incastrato la relazione estrapola il momento dai due nodi sopra",
            {nome(&DatiProgetto::vincoloPiede)}};
}

Motivo motivoTaglio(const DatiProgetto& dati, const safety::Margine& margine, const Confronto& c) {
    assert(c.relazione);
    const double passo = dati.lunghezzaParatia / margine.nSeg;
    const bool alPiede = c.relazione->z > dati.lunghezzaParatia - passo / 2;
    if (alPiede && analysis::vincoli(dati).incastroPiede)
        return {"al piede incastrato il diagramma conta le molle dell'incastro",
                {nome(&DatiProgetto::vincoloPiede)}};
    if (c.relazione->z == 0 && dati.forzaTesta != 0)
        return {"al primo nodo il diagramma conta due volte la forza in testa",
                {nome(&DatiProgetto::forzaTesta)}};
    const auto fase = [&](int k) -> const MargineFase& {
        return margine.fasi.at(static_cast<std::size_t>(k - 1));
    };
    if (auto campi = lenti(dati, fase(c.relazione->fase)); !campi.empty())
        return {"il diagramma conta tiranti lenti", std::move(campi)};
    const bool meno = std::fabs(c.relazione->valore) < std::fabs(c.statica.valore);
    const auto [z, k] = meno ? std::pair{c.statica.z, c.statica.fase}
                             : std::pair{c.relazione->z, c.relazione->fase};
    // The value below an anchor the diagram always has, wherever the anchor is.
    if (meno && c.statica.lato != equilibrium::Lato::sotto) {
        auto campi = alNodo(dati, fase(k), z, passo, true);
        if (!campi.empty())
            return {
                "il diagramma non comprende il taglio sopra un tirante o puntone che non è su un "
                "nodo",
                std::move(campi)};
    }
    if (!meno || c.statica.lato != equilibrium::Lato::unico) {
        auto campi = alNodo(dati, fase(k), z, passo, false);
        if (!campi.empty())
            return {"al tirante o puntone il diagramma estrapola il taglio dai due nodi sotto",
                    std::move(campi)};
    }
    if (c.statica.z > dati.lunghezzaParatia - passo / 2 && analysis::vincoli(dati).bloccoPiede)
        return {"il diagramma non comprende la reazione al piede",
                {nome(&DatiProgetto::vincoloPiede)}};
    if (c.statica.z == 0 && analysis::vincoli(dati).cernieraTesta)
        return {"il diagramma non comprende la reazione al primo nodo",
                {nome(&DatiProgetto::vincoloTesta)}};
    return {};
}

}  // namespace korven::review
