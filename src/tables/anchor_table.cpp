#include "tables/anchor_table.hpp"

#include <algorithm>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "live/envelope.hpp"
#include "project/field_table.hpp"
#include "safety/margin_words.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using live::PareteViva;
using project::DatiProgetto;
using safety::Margine;
namespace unita = project::unita;

constexpr const char* inArrivo = "...";
constexpr const char* maiInOpera = "Non è in opera in nessuna fase in equilibrio.";

// Stages may name more anchors than are described.
int quanti(const PareteViva& parete) {
    std::size_t n = static_cast<std::size_t>(std::max(parete.dati.nTiranti, 0));
    for (const auto& fase : parete.fasi) n = std::max(n, fase.tiri.size());
    return static_cast<int>(std::min<std::size_t>(n, project::massimoTiranti));
}

int nFasi(const DatiProgetto& dati) { return std::clamp(dati.nFasi, 0, project::massimoFasi); }

std::vector<Colonna> colonne(int nFasi) {
    std::vector<Colonna> tutte = {
        colonna(unita::nessuna, "Tirante", "Numero del tirante, dall'alto"),
        colonnaSimbolo(unita::metri, "z", "Profondità della testa del tirante"),
        colonnaParole("Tipo", "Solo trazione, o trazione e compressione"),
        colonna(unita::forzaAlMetro, "Pretensione", "Pretensione scritta, per metro di paratia"),
    };
    for (int k = 1; k <= nFasi; ++k) {
        tutte.push_back(colonna(unita::forzaAlMetro, "Fase %1",
                                "Forza in questa fase per metro di paratia, trazione positiva"));
        tutte.back().titolo = base::riempito(tutte.back().titolo, {std::to_string(k)});
    }
    tutte.push_back(colonna(unita::forzaAlMetro, "Massima",
                            "La forza maggiore fra le fasi in equilibrio, per metro di paratia"));
    tutte.push_back(
        colonna(unita::forzaAlMetro, "Relazione",
                "Forza che la relazione stampa: pretensione, più rigidezza per quanto il "
                "suo nodo è andato oltre la posizione alla messa in opera"));
    return tutte;
}

Cella tipo(const DatiProgetto& dati, int j) {
    const auto* codice =
        project::codice(project::campo(&DatiProgetto::tipoTirante), dati.tipoTirante[j]);
    return codice == nullptr ? Cella{} : parola(traduttore(codice->voce), codice->valore);
}

// @param senzaTiro  why an anchor beyond the last one has no force
Cella tiro(const std::vector<double>& tiri, int j, const char* senzaTiro) {
    return j > static_cast<int>(tiri.size()) ? senza(traduttore(senzaTiro))
                                             : forza(tiri[static_cast<std::size_t>(j) - 1]);
}

Cella relazione(const Margine* margine, bool inCorso, int j) {
    if (inCorso) return parola(inArrivo);
    if (margine == nullptr) return senza(traduttore("nessun numero"));
    if (!margine->relazione)
        return senza(margine->sta() ? safety::paroleRelazione(*margine) : verdetto(*margine));
    const auto& tiri = margine->relazione->tiriMassimi;
    return j > static_cast<int>(tiri.size())
               ? senza(traduttore(maiInOpera))
               : cifre(mostrato(unita::forzaAlMetro, tiri[static_cast<std::size_t>(j) - 1]));
}

Prospetto prospetto(const PareteViva& parete, const Margine* margine, bool inCorso) {
    const DatiProgetto& dati = parete.dati;
    Prospetto p{.titolo = traduttore("Tiranti"), .colonne = colonne(nFasi(dati))};
    const std::vector<double> massimi = live::inviluppo(parete).tiri;
    for (int j = 1; j <= quanti(parete); ++j) {
        auto& riga = p.righe.emplace_back(std::vector<Cella>{
            cella(j), profondita(dati.profTirante[j]), tipo(dati, j), forza(dati.pretTirante[j])});
        for (int k = 1; k <= nFasi(dati); ++k) {
            const auto* fase = parete.fase(k);
            riga.push_back(fase == nullptr ? senza(perche(parete, k))
                                           : tiro(fase->tiri, j, "Non è in opera in questa fase."));
        }
        riga.push_back(tiro(massimi, j, maiInOpera));
        riga.push_back(relazione(margine, inCorso, j));
    }
    if (p.righe.empty()) p.note.push_back(traduttore("Il progetto non ha né tiranti né puntoni."));
    if (!parete.sta()) p.note.push_back(perche(parete, parete.fasiInEquilibrio() + 1));
    if (margine != nullptr && !p.righe.empty())
        if (std::string senza = safety::paroleRelazione(*margine); !senza.empty())
            p.note.push_back(senza);
    return p;
}

}  // namespace

Prospetto prospettoTiranti(const PareteViva& parete, const Margine* margine) {
    return prospetto(parete, margine, margine == nullptr);
}

Prospetto prospettoTiranti(const live::ProgettoVivo& vivo) {
    const auto* lenti = vivo.lenti();
    const bool noto = lenti != nullptr && lenti->margine;
    return prospetto(vivo.parete(), noto ? &*lenti->margine : nullptr, lenti == nullptr);
}

}  // namespace korven::tables
