#include <cmath>

#include "analysis/node_vector.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/result_checks.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::numeroMostrato;
namespace unita = project::unita;

std::string_view che(safety::Massimo massimo) {
    switch (massimo) {
        case safety::Massimo::momentoPositivo:
        case safety::Massimo::momentoNegativo:
            return "il momento";
        case safety::Massimo::taglio:
            return "il taglio";
        case safety::Massimo::spostamento:
            return "lo spostamento";
        case safety::Massimo::tiro:
            break;
    }
    return "il tiro";
}

// A level and the node from which on it counts.
struct Livello {
    Soggetto soggetto;
    double z = 0;        ///< of the node [m]
    double piuGiu = -1;  ///< than the level [m]
};

// Of several levels the one that the nodes move most. What lies at a level or below it belongs to
// it.
class Spostato {
 public:
    Spostato(const DatiProgetto& dati, int nSeg)
        : dati_(dati), nSeg_(nSeg), passo_(dati.lunghezzaParatia / nSeg) {}

    Spostato& righe(const project::Membro& colonna, int quante) {
        for (int k = 1; k <= quante; ++k)
            considera(rigaConValore(dati_, colonna, k),
                      project::numeroConservato(dati_, project::campo(colonna), k));
        return *this;
    }
    Spostato& campo(double DatiProgetto::*membro) {
        considera(campoConValore(membro, dati_.*membro), dati_.*membro);
        return *this;
    }
    [[nodiscard]] const Livello& livello() const { return peggiore_; }

 private:
    void considera(const Soggetto& soggetto, double livello) {
        if (!(livello > 0 && livello < dati_.lunghezzaParatia)) return;
        int nodo = 1;
        while (nodo <= nSeg_ && analysis::zNodo(nodo, passo_) < livello) ++nodo;
        const double z = analysis::zNodo(nodo, passo_);
        if (z - livello > peggiore_.piuGiu) peggiore_ = {soggetto, z, z - livello};
    }

    const DatiProgetto& dati_;
    int nSeg_;
    double passo_;
    Livello peggiore_;
};

}  // namespace

void controlloMaglia(const DatiProgetto& dati, const safety::Margine& margine,
                     ElencoOsservazioni& elenco) {
    if (!margine.maglia) return;
    const safety::ErrorePeggiore errore = margine.maglia->peggiore();
    if (errore.quota <= erroreMagliaDetto) return;
    const Spostato nessuno(dati, margine.nSeg);
    // The last layer goes on below its bottom.
    const struct {
        Voce voce;
        Livello livello;
    } livelli[] = {
        {"scavo-spostato-dai-nodi",
         Spostato(nessuno).righe(&DatiProgetto::profFase, dati.nFasi).livello()},
        {"strato-spostato-dai-nodi",
         Spostato(nessuno).righe(&DatiProgetto::profStrato, dati.nStrati - 1).livello()},
        {"falda-tra-due-nodi", Spostato(nessuno)
                                   .campo(&DatiProgetto::faldaMonte)
                                   .righe(&DatiProgetto::faldaFase, dati.nFasi)
                                   .livello()},
    };
    for (const auto& [voce, livello] : livelli) {
        if (livello.piuGiu <= spostatoDaiNodi) continue;
        elenco.aggiungi(
            voce, livello.soggetto,
            {numeroMostrato(livello.z, 2), numeroMostrato(livello.piuGiu, 2),
             traduttore(che(errore.di)), numeroMostrato(errore.quota, 1, unita::percento)});
        return;  // one is enough, of what matters most: more segments help with all of them
    }
}

}  // namespace korven::review
