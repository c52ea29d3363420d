#include "python/calculations.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>

#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/run_observer.hpp"
#include "analysis/run_start.hpp"
#include "analysis/segment_count.hpp"
#include "answers/equilibrium_json.hpp"
#include "answers/margin_json.hpp"
#include "answers/remark_json.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "project/method_names.hpp"
#include "python/errors.hpp"
#include "review/project_review.hpp"
#include "review/remark_list.hpp"
#include "review/result_review.hpp"
#include "safety/margin.hpp"
#include "safety/prepared_wall.hpp"
#include "safety/told_stages.hpp"
#include "safety/words.hpp"

namespace korven::python {

namespace {

using Json = nlohmann::ordered_json;
using base::traduttore;
using project::DatiProgetto;

[[noreturn]] void rifiuta(std::string_view nome, const std::string& valore,
                          const std::string& perche) {
    throw ErroreCampo(base::conDuePunti(std::string(nome) + " = " + valore, perche));
}

void prendiMetodo(const std::string& nome, DatiProgetto& dati) {
    std::string nomi;
    for (const auto& metodo : project::nomiMetodi) {
        if (nome == metodo.nome) {
            dati.metodoSpinte = project::valore(metodo.codice);
            return;
        }
        nomi.append(nomi.empty() ? "" : ", ").append(metodo.nome);
    }
    rifiuta("metodo", nome, base::riempito(traduttore("valori ammessi: %1"), {nomi}));
}

int segmenti(const DatiProgetto& dati, std::optional<int> chiesti) {
    const bool incastro = analysis::vincoli(dati).incastroPiede;
    if (!chiesti) {
        const auto letti = analysis::leggiNSeg(incastro);
        if (!letti) throw ErroreCalcolo(traduttore(analysis::motivoNSeg()));
        return *letti;
    }
    const int massimo = incastro ? analysis::massimoSegmentiIncastro : analysis::massimoSegmenti;
    if (*chiesti < analysis::minimoSegmenti || *chiesti > massimo)
        rifiuta(
            "nseg", std::to_string(*chiesti),
            base::riempito(traduttore("ammessi valori da %1 a %2"),
                           {std::to_string(analysis::minimoSegmenti), std::to_string(massimo)}));
    return *chiesti;
}

Json profondita(double paratia, int nSeg) {
    Json z = Json::array();
    for (int i = 1; i <= nSeg + 1; ++i) z.push_back(analysis::zNodo(i, paratia / nSeg));
    return z;
}

class FinoAllaFermata : public analysis::OsservatoreCorsa {
 public:
    explicit FinoAllaFermata(const std::function<bool()>& fermata) : fermata_(fermata) {}
    [[nodiscard]] bool fermata() override { return fermata_(); }

 private:
    const std::function<bool()>& fermata_;
};

// While it lives the process has this number of segments.
class SegmentiDelProcesso {
 public:
    explicit SegmentiDelProcesso(int nSeg) { analysis::contenutoNSeg = std::to_string(nSeg); }
    ~SegmentiDelProcesso() { analysis::contenutoNSeg.reset(); }
    SegmentiDelProcesso(const SegmentiDelProcesso&) = delete;
    SegmentiDelProcesso& operator=(const SegmentiDelProcesso&) = delete;
};

}  // namespace

Chiesta chiesta(const DatiProgetto& scritti, const Modo& modo) {
    Chiesta c{.dati = scritti};
    if (modo.metodo) prendiMetodo(*modo.metodo, c.dati);
    c.nSeg = segmenti(c.dati, modo.nSeg);
    return c;
}

Chiesta pronta(const DatiProgetto& scritti, const Modo& modo) {
    Chiesta c = chiesta(scritti, modo);
    if (!review::mostrabile(c.dati)) throw base::ErroreValore();
    safety::ParetePronta parete = safety::preparaParete(c.dati);
    if (!parete.rifiuto.empty()) throw ErroreCalcolo(parete.rifiuto);
    c.dati = std::move(parete.dati);
    return c;
}

Json equilibrio(const DatiProgetto& dati, const Modo& modo) {
    const Chiesta c = pronta(dati, modo);
    const safety::EquilibrioRaccontato fasi = safety::raccontaFasi(c.dati, c.nSeg);
    const safety::FaseRaccontata* caduta = fasi.caduta();
    if (caduta != nullptr && caduta->fase.rifiuto)
        throw ErroreCalcolo(analysis::testoRifiuto(caduta->fase.fase, *caduta->fase.rifiuto));
    const auto causa = caduta != nullptr ? caduta->perche->causa : safety::Causa::eseguito;
    return {{"causa", safety::parola(causa)},
            {"spiegazione", caduta != nullptr ? caduta->frase() : std::string()},
            {"z_m", profondita(c.dati.lunghezzaParatia, c.nSeg)},
            {"tiranti", c.dati.nTiranti},
            {"equilibrio", answers::jsonEquilibrio(fasi)}};
}

Json sicurezza(const DatiProgetto& dati, const Modo& modo, const std::function<bool()>& fermata) {
    const Chiesta c = pronta(dati, modo);
    FinoAllaFermata osservatore(fermata);
    const safety::Margine margine = safety::margine(c.dati, c.nSeg, osservatore);
    const safety::MargineFase* caduta = margine.caduta();
    if (caduta != nullptr && caduta->rifiuto)
        throw ErroreCalcolo(analysis::testoRifiuto(caduta->fase, *caduta->rifiuto));
    const bool sta = caduta == nullptr;
    Json j = {{"causa", safety::parola(sta ? safety::Causa::eseguito : caduta->perche->causa)},
              {"spiegazione", sta ? std::string() : safety::frase(*caduta->perche)}};
    j.update(answers::jsonMargine(margine));
    return j;
}

Json osservazioni(const DatiProgetto& dati, const Modo& modo, bool risultati) {
    const Chiesta c = chiesta(dati, modo);
    const SegmentiDelProcesso segmenti(c.nSeg);
    review::Osservazioni tutte = review::esaminaProgetto(c.dati);
    if (risultati && review::calcolabile(tutte)) {
        const auto sui = review::esaminaRisultati(c.dati, c.nSeg);
        tutte.insert(tutte.end(), sui.begin(), sui.end());
        review::perPeso(tutte);
    }
    return answers::jsonOsservazioni(tutte);
}

}  // namespace korven::python
