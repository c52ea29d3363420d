#include "commands/project_review.hpp"

#include <algorithm>
#include <cmath>
#include <memory>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "analysis/soil_state.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "structure/section_type.hpp"
#include "structure/section_validity.hpp"
#include "structure/stiffness.hpp"

namespace korven::commands {

namespace {

using base::testoNumero;
using base::traduttore;
using project::DatiProgetto;

class Elenco {
 public:
    void impedimento(std::string testo) { rilievi_.push_back({true, std::move(testo)}); }
    void avviso(std::string testo) { rilievi_.push_back({false, std::move(testo)}); }
    std::vector<Rilievo> ordinato() {
        std::stable_partition(rilievi_.begin(), rilievi_.end(),
                              [](const Rilievo& r) { return r.impedisce; });
        return std::move(rilievi_);
    }

 private:
    std::vector<Rilievo> rilievi_;
};

// "strato 3: ..."
std::string riga(const char* nome, int numero, std::string_view testo) {
    return traduttore(nome) + " " + std::to_string(numero) + ": " + traduttore(testo);
}

std::string conValore(std::string testo, double valore) {
    return std::move(testo) + " (" + testoNumero(valore) + ")";
}

struct Codice {
    double DatiProgetto::*campo;
    std::string_view nome;
    int ultimo;
};

constexpr Codice codici[] = {
    {&DatiProgetto::vincoloTesta, "vincolo in testa", 2},
    {&DatiProgetto::vincoloPiede, "vincolo al piede", 3},
    {&DatiProgetto::modoSpinte, "opzione delle spinte", 2},
    {&DatiProgetto::modoKs, "opzione di ks", 2},
    {&DatiProgetto::modoTensioni, "opzione delle tensioni", 2},
    {&DatiProgetto::metodoSpinte, "metodo delle spinte", 3},
    {&DatiProgetto::metodoKs, "metodo di ks", 4},
};

bool intero(double valore) { return valore == std::floor(valore); }

void controlloCodici(const DatiProgetto& dati, Elenco& elenco) {
    for (const auto& [campo, nome, ultimo] : codici) {
        const double valore = dati.*campo;
        if (valore >= 1 && valore <= ultimo && intero(valore)) continue;
        elenco.avviso(
            conValore(traduttore(nome) + ": " + traduttore("codice non previsto"), valore));
    }
    for (int j = 1; j <= dati.nTiranti; ++j)
        if (dati.tipoTirante[j] != 0 && dati.tipoTirante[j] != 1)
            elenco.avviso(
                conValore(riga("tirante", j, "codice non previsto, agisce solo a trazione"),
                          dati.tipoTirante[j]));
}

void controlloStrati(const DatiProgetto& dati, Elenco& elenco) {
    for (int j = 1; j <= dati.nStrati; ++j) {
        if (dati.profStrato[j] < dati.profStrato[j - 1])
            elenco.avviso(riga("strato", j, "finisce sopra lo strato precedente"));
        else if (dati.profStrato[j] == dati.profStrato[j - 1])
            elenco.avviso(riga("strato", j, "ha spessore nullo"));
        if (dati.gammaN[j] <= 0 || dati.gammaSat[j] <= 0)
            elenco.avviso(riga("strato", j, "peso di volume mancante"));
        if (dati.metodoKs >= 3 && dati.ksStrato[j] <= 0)
            elenco.avviso(riga("strato", j, "modulo ks mancante"));
        // Bell's coefficients don't know the slope.
        if (dati.phiStrato[j] < dati.inclinazioneMonte)
            elenco.avviso(
                riga("strato", j, "l'angolo di attrito è minore dell'inclinazione del terreno"));
    }
    if (dati.nStrati > 0 && dati.profStrato[dati.nStrati] < dati.lunghezzaParatia)
        elenco.avviso(traduttore(
            "gli strati finiscono sopra il piede della paratia: l'ultimo viene prolungato"));
    if (dati.metodoKs == 2 && dati.coeffM <= 0)
        elenco.avviso(traduttore("coefficiente m mancante: ks è nullo ovunque"));
}

void controlloTiranti(const DatiProgetto& dati, Elenco& elenco) {
    for (int j = 1; j <= dati.nTiranti; ++j) {
        if (dati.profTirante[j] > dati.lunghezzaParatia || dati.profTirante[j] < 0)
            elenco.avviso(riga("tirante", j, "è fuori dalla paratia e non ha effetto"));
        if (j > 1 && dati.profTirante[j] < dati.profTirante[j - 1])
            elenco.avviso(riga("tirante", j, "è più alto del precedente"));
    }
}

void controlloFasi(const DatiProgetto& dati, Elenco& elenco) {
    for (int k = 1; k <= dati.nFasi; ++k) {
        const double inOpera = dati.tirantiFase[k];
        if (inOpera < 0 || inOpera > project::massimoTiranti)
            elenco.impedimento(conValore(
                riga("fase", k, "numero di tiranti fuori dalla tabella (da 0 a 20)"), inOpera));
        else if (inOpera > dati.nTiranti)
            elenco.avviso(conValore(
                riga("fase", k, "sono richiesti più tiranti di quelli definiti"), inOpera));
        else if (!intero(inOpera))
            elenco.avviso(conValore(riga("fase", k, "il numero di tiranti non è intero"), inOpera));
        if (k > 1 && dati.profFase[k] < dati.profFase[k - 1])
            elenco.avviso(riga("fase", k, "lo scavo è meno profondo che nella fase precedente"));
        if (k > 1 && inOpera < dati.tirantiFase[k - 1])
            elenco.avviso(riga("fase", k, "i tiranti sono meno che nella fase precedente"));
        if (dati.profFase[k] >= dati.lunghezzaParatia && dati.lunghezzaParatia > 0)
            elenco.avviso(riga("fase", k, "lo scavo raggiunge o supera il piede della paratia"));
    }
}

bool qualcosaScritto(const project::Sezione& s) {
    project::Sezione vuota;
    vuota.tipoDiaframma = s.tipoDiaframma;
    vuota.tipoPali = s.tipoPali;
    vuota.tipoPalancola = s.tipoPalancola;
    vuota.tipoPaliArmati = s.tipoPaliArmati;
    return !(s == vuota);
}

void controlloSezione(const DatiProgetto& dati, Elenco& elenco) {
    const project::Sezione& s = dati.sezione;
    if (s.tipoDiaframma + s.tipoPali + s.tipoPalancola + s.tipoPaliArmati > 1)
        elenco.avviso(traduttore("sezione: più tipi indicati insieme, vale il primo"));
    if (!structure::sezioneValida(s)) {
        if (qualcosaScritto(s))
            elenco.avviso(traduttore(
                "sezione definita solo in parte: nessuna verifica strutturale e nessun ricalcolo "
                "di EJ"));
        return;
    }
    if (structure::tipoSezione(s) != structure::TipoSezione::paliArmati) return;
    if (s.armNumLong < 1)
        elenco.avviso(conValore(
            traduttore("numero di ferri memorizzato minore di 1: i pali contano come non armati"),
            s.armNumLong));
    else if (!intero(s.armNumLong))
        elenco.avviso(
            conValore(traduttore("numero di ferri memorizzato non intero"), s.armNumLong));
    if (s.armNumLong >= 1 || s.armNumLong > 0)
        elenco.avviso(conValore(
            traduttore("numero di ferri: l'editore e la relazione mostrano dieci volte quello che "
                       "calcola"),
            s.armNumLong));
}

void controlloRigidezza(const DatiProgetto& dati, Elenco& elenco) {
    if (dati.rigidezzaEJ < 0)
        elenco.avviso(conValore(traduttore("la rigidezza EJ è negativa"), dati.rigidezzaEJ));
    if (dati.rigidezzaEJ != 0) return;
    constexpr double unaRigidezza = 10000000000;  // N mm2 to t m2
    if (!structure::sezioneValida(dati.sezione) ||
        std::trunc(structure::calcolaEJ(dati.sezione) / unaRigidezza) == 0)
        elenco.impedimento(traduttore(analysis::messaggioSenzaEJ));
}

// The soil values of all stages, as a run would compute them.
void controlloSuolo(DatiProgetto dati, int nSeg, Elenco& elenco) {
    const auto suolo = std::make_unique<analysis::StatoSuolo>();
    for (int k = 1; k <= dati.nFasi; ++k) {
        dati.faldaValle = dati.faldaFase[k];
        const auto rifiuto =
            analysis::calcolaSuolo(dati, k, nSeg + 1, dati.lunghezzaParatia / nSeg, *suolo);
        if (!rifiuto) continue;
        elenco.impedimento(traduttore("fase") + " " + std::to_string(k) + ", " +
                           traduttore("profondità") + " " + testoNumero(rifiuto->profondita) +
                           " m: " + traduttore(analysis::causa(rifiuto->motivo)));
        return;
    }
}

}  // namespace

std::vector<Rilievo> esaminaProgetto(const DatiProgetto& dati) {
    Elenco elenco;
    const auto motivo = analysis::motivoRifiuto(dati);
    if (!motivo.empty()) elenco.impedimento(traduttore(motivo));
    controlloRigidezza(dati, elenco);
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (!nSeg) elenco.impedimento(traduttore(analysis::messaggioNSeg));
    if (motivo.empty() && nSeg) controlloSuolo(dati, *nSeg, elenco);
    controlloCodici(dati, elenco);
    controlloStrati(dati, elenco);
    controlloTiranti(dati, elenco);
    controlloFasi(dati, elenco);
    controlloSezione(dati, elenco);
    return elenco.ordinato();
}

bool calcolabile(const std::vector<Rilievo>& rilievi) {
    return std::none_of(rilievi.begin(), rilievi.end(),
                        [](const Rilievo& r) { return r.impedisce; });
}

}  // namespace korven::commands
