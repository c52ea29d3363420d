#include "studies/plan/fault_words.hpp"

#include <initializer_list>
#include <string_view>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "exchange/fault_texts.hpp"
#include "studies/field_words.hpp"

namespace korven::studies {

namespace {

using exchange::frase;

struct Riga {
    MotivoPiano motivo;
    std::string_view perche;  ///< Italian key; %1 is what may stand there
};

constexpr Riga tabella[] = {
    {MotivoPiano::testo, "il campo è un testo, e i valori di uno studio sono numeri"},
    {MotivoPiano::campoRipetuto, "il campo ha già dei valori"},
    {MotivoPiano::forma, "la forma è %1"},
    {MotivoPiano::nonNumero, "non è un numero"},
    {MotivoPiano::virgola, "il segno decimale è il punto: %1"},
    {MotivoPiano::passoNullo, "il passo è 0"},
    {MotivoPiano::passoContrario, "il passo si allontana dalla fine"},
    {MotivoPiano::troppeVarianti, "le varianti sono troppe"},
    {MotivoPiano::leggeIgnota, "nessuna legge si chiama così: ci sono %1"},
    {MotivoPiano::parametri, "la forma è %1"},
    {MotivoPiano::scarto, "lo scarto quadratico medio deve essere maggiore di 0"},
    {MotivoPiano::media, "la media di una legge lognormale deve essere maggiore di 0"},
    {MotivoPiano::estremi, "i valori della legge non sono in ordine"},
    {MotivoPiano::oltreNumeri, "la legge ha valori troppo grandi"},
    {MotivoPiano::nonContinuo,
     "il campo non ha valori intermedi: un codice o un numero di righe non ha una legge"},
    {MotivoPiano::senzaLegge, "il campo non ha una legge"},
    {MotivoPiano::stessoCampo, "un campo non è correlato con se stesso"},
    {MotivoPiano::coppiaRipetuta, "i due campi hanno già una correlazione"},
    {MotivoPiano::rho, "una correlazione sta tra -1 e 1"},
    {MotivoPiano::nonDefinita, "nessuna variabile può avere insieme queste correlazioni"},
    {MotivoPiano::rhoConIpercubo, "un ipercubo non ha correlazioni"},
    {MotivoPiano::celle, "la riga non ha tante celle quante sono le colonne"},
    {MotivoPiano::senzaRighe, "il file non ha righe di valori"},
};

std::string perche(const DifettoPiano& d) {
    if (d.rifiuto && d.motivo == MotivoPiano::mediaFuori)
        return base::conDuePunti(base::traduttore("media della legge"), parole(*d.rifiuto));
    if (d.rifiuto) return parole(*d.rifiuto);
    if (d.motivo == MotivoPiano::csv) return d.testo;
    std::string detto;
    for (const auto& [motivo, chiave] : tabella)
        if (motivo == d.motivo) detto = frase(chiave, {d.atteso});
    return d.testo.empty() ? detto : '"' + d.testo + '"' + base::duePunti() + detto;
}

std::string dove(const DifettoPiano& d) {
    if (d.riga > 0 && d.colonna > 0)
        return frase("riga %1, colonna %2", {std::to_string(d.riga), std::to_string(d.colonna)});
    if (d.riga > 0) return frase("riga %1", {std::to_string(d.riga)});
    if (d.opzione.empty()) return {};
    return d.carattere == 0 ? d.opzione
                            : frase("%1, carattere %2", {d.opzione, std::to_string(d.carattere)});
}

}  // namespace

std::string parole(const DifettoPiano& difetto) {
    const std::string posto = dove(difetto);
    return posto.empty() ? perche(difetto) : posto + base::duePunti() + perche(difetto);
}

}  // namespace korven::studies
