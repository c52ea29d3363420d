#include "batch/run/combinations_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "factors/words.hpp"
#include "tables/combination_tables.hpp"

namespace korven::batch {

std::string testoCombinazioni(const factors::Combinazioni& tutte,
                              const project::DatiProgetto& dati) {
    std::string testo =
        tutte.norma.titolo + " (" + tutte.norma.file + ")\n" + parole(tutte.natura) + '\n';
    for (const auto& prospetto :
         {tables::prospettoFattori(tutte), tables::prospettoEffetti(tutte),
          tables::prospettoVerifiche(tutte), tables::prospettoTiri(tutte, dati)})
        testo += testoTabella(prospetto);
    for (const factors::EsitoCombinazione& e : tutte.esiti)
        if (const std::string perche = caduta(e); !perche.empty()) testo += perche + '\n';
    for (const std::string& nota : note(tutte, dati)) testo += nota + '\n';
    return testo;
}

}  // namespace korven::batch
