#include "results/result_head.hpp"

#include <utility>

#include "analysis/node_vector.hpp"
#include "analysis/result_file.hpp"
#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"

namespace korven::results {

namespace {

// Closing numbers, and the line of names above the nodes of a stage.
constexpr long righeChiusura = 5, righeNomi = 1;
constexpr long minimiNodi = 4;

bool siChiamaRisultati(const std::string& percorso) {
    return base::minuscolo(percorso).ends_with(".out");
}

bool haFasi(const std::string& percorso, const std::string& contenuto) {
    base::LettoreRighe file(percorso, contenuto);
    while (!file.fine())
        if (analysis::cominciaFase(file.riga({}))) return true;
    return false;
}

}  // namespace

std::optional<TestaRisultati> leggiTestaRisultati(const std::string& percorso) {
    std::string contenuto = base::leggiFile(percorso);
    const bool risultati = siChiamaRisultati(percorso) || haFasi(percorso, contenuto);
    base::LettoreRighe file(percorso, std::move(contenuto),
                            risultati ? base::traduttore(analysis::rimedioRisultati) : "");
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
