#include "analysis/input_checks.hpp"

#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::analysis {

namespace {

using project::DatiProgetto;

bool senzaLunghezza(const DatiProgetto& dati) { return dati.lunghezzaParatia <= 0; }
bool senzaStrati(const DatiProgetto& dati) { return dati.nStrati == 0; }
bool senzaFasi(const DatiProgetto& dati) { return dati.nFasi == 0; }

// Bowles' factors divide by tan phi.
bool bowlesSenzaAttrito(const DatiProgetto& dati) {
    if (dati.metodoKs != project::MetodoKs::bowles) return false;
    for (int j = 1; j <= dati.nStrati; ++j)
        if (dati.phiStrato[j] == 0) return true;
    return false;
}

struct Controllo {
    bool (*fallisce)(const DatiProgetto&);
    MotivoRifiuto motivo;
};

// A stage that asks for more anchors than there can be.
std::string motivoTiranti(const DatiProgetto& dati) {
    for (int k = 1; k <= dati.nFasi; ++k)
        if (!(dati.tirantiFase[k] < project::massimoTiranti + 1))
            return base::traduttore("fase") + " " + std::to_string(k) + ": " +
                   base::traduttore("più tiranti di quanti ne tiene la tabella (20)") +
                   base::duePunti() + base::testoNumero(dati.tirantiFase[k]);
    return {};
}

constexpr Controllo controlli[] = {
    {senzaLunghezza,
     {&DatiProgetto::lunghezzaParatia,
      "Non è ancora stata definita la lunghezza della paratia, i calcoli non possono pertanto "
      "essere eseguiti."}},
    {senzaStrati,
     {&DatiProgetto::nStrati,
      "Non è ancora stata definita la stratigrafia del terreno, i calcoli non possono pertanto "
      "essere eseguiti."}},
    {senzaFasi,
     {&DatiProgetto::nFasi,
      "Non sono ancora state definite le fasi di scavo, i calcoli non possono pertanto essere "
      "eseguiti."}},
    {bowlesSenzaAttrito,
     {&DatiProgetto::metodoKs,
      "Con il metodo scelto per il calcolo di Ks non sono ammessi angoli di attrito nulli."}},
};

}  // namespace

std::vector<MotivoRifiuto> motiviRifiuto(const DatiProgetto& dati) {
    std::vector<MotivoRifiuto> motivi;
    for (const auto& [fallisce, motivo] : controlli)
        if (fallisce(dati)) motivi.push_back(motivo);
    return motivi;
}

std::string_view motivoRifiuto(const DatiProgetto& dati) {
    const auto motivi = motiviRifiuto(dati);
    return motivi.empty() ? std::string_view{} : motivi.front().messaggio;
}

std::string motivoFerri(const DatiProgetto& dati) {
    if (!structure::troppiFerri(dati.sezione)) return {};
    return base::traduttore("numero di ferri oltre la capacità (100000)") + " (" +
           base::testoNumero(dati.sezione.armNumLong) + ")";
}

std::string motivoDati(const DatiProgetto& dati) {
    if (const auto motivo = motivoRifiuto(dati); !motivo.empty()) return base::traduttore(motivo);
    if (auto motivo = motivoTiranti(dati); !motivo.empty()) return motivo;
    return motivoFerri(dati);
}

}  // namespace korven::analysis
