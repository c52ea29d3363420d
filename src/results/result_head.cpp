#include "results/result_head.hpp"

#include "analysis/node_vector.hpp"
#include "analysis/result_file.hpp"
#include "base/file_error.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"

namespace korven::results {

namespace {

// Closing numbers, and the line of names above the nodes of a stage.
constexpr long righeChiusura = 5, righeNomi = 1;
constexpr long minimiNodi = 4;

}  // namespace

std::optional<TestaRisultati> leggiTestaRisultati(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso, base::traduttore(analysis::rimedioRisultati));
    TestaRisultati testa;
    project::azzera(testa.dati);
    testa.metodoUsato = project::leggiDati(file, testa.dati);
    const std::string nomi = base::traduttore("i nomi delle colonne di una fase");
    if (file.soloRigheVuote() || !analysis::cominciaFase(file.riga(nomi))) return {};
    long righe = 1;
    for (; !file.fine(); ++righe) file.riga(nomi);
    const long delleFasi = righe - righeChiusura, fasi = testa.dati.nFasi;
    const long nodi = fasi > 0 ? delleFasi / fasi - righeNomi : 0;
    if (nodi < minimiNodi || nodi > analysis::capacitaNodi ||
        (nodi + righeNomi) * fasi != delleFasi)
        file.rifiuta(base::traduttore("attese le righe di tutte le fasi"));
    testa.nSeg = static_cast<int>(nodi) - 1;
    return testa;
}

}  // namespace korven::results
