#include "results/report_data.hpp"

#include <algorithm>
#include <cassert>
#include <limits>
#include <utility>

#include "analysis/anchors_in_place.hpp"
#include "analysis/input_checks.hpp"
#include "analysis/segment_count.hpp"
#include "analysis/wall_mesh.hpp"
#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"

namespace korven::results {

namespace {

using project::DatiProgetto;

int segmenti(const DatiProgetto& dati) {
    if (const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede)) return *nSeg;
    throw base::ErroreFile(base::fileProgramma("nseg.txt"), 1,
                           base::traduttore(analysis::motivoNSeg()));
}

// Follows the anchors from stage to stage as the run did, on the displacements as they are stored.
class StoriaTiranti {
 public:
    explicit StoriaTiranti(const DatiRelazione& dati) : dati_(dati) {
        for (int j = 1; j <= project::massimoTiranti; ++j)
            maxSpostTirante_[j] = std::numeric_limits<double>::lowest();
    }

    /// Anchors that come into place in stage s are put on the wall as the stage before left it.
    void entra(int s) {
        for (int j = inOpera(s - 1) + 1; j <= inOpera(s); ++j)
            yTirante[j] = s > 1 ? spostamento(s - 1, j) : 0;
    }
    void aggiorna(int s) {
        for (int j = 1; j <= inOpera(s); ++j)
            maxSpostTirante_[j] = std::max(maxSpostTirante_[j], spostamento(s, j));
    }
    [[nodiscard]] double tiro(int j) const {
        const DatiProgetto& p = dati_.progetto;
        return tiroFinale(p.pretTirante[j], p.rigTirante[j], maxSpostTirante_[j], yTirante[j]);
    }
    [[nodiscard]] int inOpera(int s) const { return analysis::tirantiInOpera(dati_.progetto, s); }

    base::Tabella<double, project::massimoTiranti> yTirante;

 private:
    [[nodiscard]] double spostamento(int s, int j) const {
        const int nodo = analysis::nodoTirante(dati_.progetto.profTirante[j], dati_.passo);
        if (nodo < 1 || nodo > dati_.nNodi) return 0;
        return dati_.fasi[static_cast<std::size_t>(s - 1)].yNodo[nodo];
    }

    const DatiRelazione& dati_;
    base::Tabella<double, project::massimoTiranti> maxSpostTirante_;
};

AzioniFase azioniFase(const DatiRelazione& dati, int s, const StoriaTiranti& tiranti) {
    const analysis::RisultatiFase& fase = dati.fasi[static_cast<std::size_t>(s - 1)];
    AzioniFase azioni{tiranti.inOpera(s), tiranti.yTirante, fase.taglioNodo, {}};
    azioni.estremi = results::estremiTaglio(dati.progetto, azioni.nTiranti, azioni.yTirante,
                                            dati.nNodi, dati.passo, fase.yNodo, azioni.taglioNodo);
    return azioni;
}

DatiRelazione leggi(analysis::LettoreRisultati file, int nNodi, DatiProgetto& memoria) {
    DatiRelazione dati;
    dati.nNodi = nNodi;
    dati.metodoUsato = file.leggiTesta(memoria);
    dati.progetto = memoria;
    dati.passo = memoria.lunghezzaParatia / (dati.nNodi - 1);

    StoriaTiranti tiranti(dati);
    for (int s = 1; s <= memoria.nFasi; ++s) {
        memoria.faldaValle = memoria.faldaFase[s];
        analysis::RisultatiFase& fase = dati.fasi.emplace_back();
        file.leggiFase(fase);
        tiranti.entra(s);
        tiranti.aggiorna(s);
        dati.azioni.push_back(azioniFase(dati, s, tiranti));
        dati.Vmax = results::massimoAssoluto(dati.azioni.back().estremi);
    }
    dati.chiusura = file.leggiChiusura();
    dati.progetto.faldaValle = memoria.faldaValle;
    for (int j = 1; j <= tiranti.inOpera(memoria.nFasi); ++j) dati.tiroTirante[j] = tiranti.tiro(j);
    return dati;
}

}  // namespace

double tiroFinale(double pretTirante, double rigTirante, double maxSpostTirante, double yTirante) {
    if (maxSpostTirante > yTirante) return pretTirante + rigTirante * (maxSpostTirante - yTirante);
    return pretTirante;
}

DatiRelazione leggiRisultati(const std::string& percorso, DatiProgetto& memoria) {
    return leggiRisultati(percorso, segmenti(memoria), memoria);
}

DatiRelazione leggiRisultati(const std::string& percorso, int nSeg, DatiProgetto& memoria) {
    return leggi({percorso, nSeg + 1}, nSeg + 1, memoria);
}

std::string testoRisultati(const DatiProgetto& testa, int nSeg, const analysis::EsitoCorsa& corsa,
                           const analysis::ChiusuraRisultati& chiusura) {
    assert(corsa.finita());
    std::string testo = project::testoProgetto(testa);
    for (const analysis::FaseCalcolata& fase : corsa.fasi)
        testo += analysis::testoFase(fase.risultati, nSeg + 1);
    return testo + analysis::testoChiusura(chiusura);
}

DatiRelazione risultatiInMemoria(const DatiProgetto& testa, int nSeg,
                                 const analysis::EsitoCorsa& corsa,
                                 const analysis::ChiusuraRisultati& chiusura) {
    base::LettoreRighe testo({}, base::inCp1252(testoRisultati(testa, nSeg, corsa, chiusura)));
    DatiProgetto memoria = testa;
    return leggi({std::move(testo), nSeg + 1}, nSeg + 1, memoria);
}

}  // namespace korven::results
