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

// The envelope that the mesh gets most wrong.
struct ErrorePeggiore {
    std::string_view che;
    double quota = 0;
};

ErrorePeggiore errorePeggiore(const safety::ErroreMaglia& maglia) {
    const std::pair<std::string_view, const safety::ErroreGrandezza&> tutti[] = {
        {"il momento", maglia.momento},
        {"il taglio", maglia.taglio},
        {"lo spostamento", maglia.spostamento},
        {"il tiro", maglia.tiro},
    };
    ErrorePeggiore peggiore;
    for (const auto& [che, errore] : tutti)
        if (errore.quota.value_or(0) > peggiore.quota) peggiore = {che, *errore.quota};
    return peggiore;
}

// A level and the node from which on it counts.
struct Livello {
    Soggetto soggetto;
    double z = 0;        ///< of the node [m]
    double piuGiu = -1;  ///< than the level [m]
};

class ControlloLivelli {
 public:
    ControlloLivelli(const DatiProgetto& dati, const safety::Margine& margine)
        : dati_(dati), nSeg_(margine.nSeg), errore_(errorePeggiore(*margine.maglia)) {}

    // Of all rows of a column that move beyond the limit the one that moves most.
    void controlla(const project::Membro& colonna, int righe, Voce voce,
                   ElencoOsservazioni& elenco) const {
        Livello peggiore;
        for (int k = 1; k <= righe; ++k)
            considera(rigaDi(colonna, k), valore(colonna, k), peggiore);
        avvisa(voce, peggiore, elenco);
    }
    void controllaAcqua(ElencoOsservazioni& elenco) const {
        Livello peggiore;
        considera(campoConValore(&DatiProgetto::faldaMonte, dati_.faldaMonte), dati_.faldaMonte,
                  peggiore);
        for (int k = 1; k <= dati_.nFasi; ++k)
            considera(rigaDi(&DatiProgetto::faldaFase, k), dati_.faldaFase[k], peggiore);
        avvisa("falda-spostata-dai-nodi", peggiore, elenco);
    }
    [[nodiscard]] bool maglia() const { return errore_.quota > erroreMagliaDetto; }

 private:
    [[nodiscard]] Soggetto rigaDi(const project::Membro& colonna, int k) const {
        return rigaConValore(dati_, colonna, k);
    }
    [[nodiscard]] double valore(const project::Membro& colonna, int k) const {
        return project::numeroConservato(dati_, project::campo(colonna), k);
    }

    // What lies at or below the level belongs to it.
    void considera(const Soggetto& soggetto, double livello, Livello& peggiore) const {
        const double passo = dati_.lunghezzaParatia / nSeg_;
        if (!(livello > 0 && livello < dati_.lunghezzaParatia)) return;
        int nodo = 1;
        while (nodo <= nSeg_ && analysis::zNodo(nodo, passo) < livello) ++nodo;
        const double z = analysis::zNodo(nodo, passo);
        if (z - livello > peggiore.piuGiu) peggiore = {soggetto, z, z - livello};
    }

    void avvisa(Voce voce, const Livello& livello, ElencoOsservazioni& elenco) const {
        if (livello.piuGiu <= spostatoDaiNodi) return;
        elenco.aggiungi(
            voce, livello.soggetto,
            {numeroMostrato(livello.z, 2), numeroMostrato(livello.piuGiu, 2),
             traduttore(errore_.che), numeroMostrato(errore_.quota, 1, unita::percento)});
    }

    const DatiProgetto& dati_;
    int nSeg_;
    ErrorePeggiore errore_;
};

}  // namespace

void controlloMaglia(const DatiProgetto& dati, const safety::Margine& margine,
                     ElencoOsservazioni& elenco) {
    if (!margine.maglia) return;
    const ControlloLivelli livelli(dati, margine);
    if (!livelli.maglia()) return;
    livelli.controlla(&DatiProgetto::profFase, dati.nFasi, "scavo-spostato-dai-nodi", elenco);
    livelli.controllaAcqua(elenco);
    // The last layer goes on below its bottom.
    livelli.controlla(&DatiProgetto::profStrato, dati.nStrati - 1, "strato-spostato-dai-nodi",
                      elenco);
}

}  // namespace korven::review
