#include <memory>
#include <string>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/question_outcome.hpp"
#include "batch/run/reviewed_run.hpp"
#include "project/project_data.hpp"
#include "project/units.hpp"
#include "studies/questions/question_words.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

int esegui(const Opzioni& opzioni, const PorteComando&, Esito& esito) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo&) -> int {
            const auto [tirante, chiesta] = opzioni.bloccaggio;
            if (tirante > Progetto.nTiranti) {
                racconta(
                    {base::riempito(base::traduttore("Il tirante %1 non c'è: i tiranti sono %2."),
                                    {std::to_string(tirante), std::to_string(Progetto.nTiranti)})},
                    esito);
                return nonEseguito;
            }
            const double forza = chiesta / project::unita::forzaAlMetro.fattore;
            auto bloccaggio = studies::cercaBloccaggio(Progetto, avvio.nSeg, tirante, forza);
            const bool trovato = bloccaggio.esito == studies::EsitoBloccaggio::trovato;
            if (!trovato) racconta({studies::risposta(bloccaggio, tirante, forza)}, esito);
            esito.bloccaggio = std::make_shared<const RispostaBloccaggio>(
                RispostaBloccaggio{tirante, forza, std::move(bloccaggio)});
            return trovato ? fatto : nonEseguito;
        });
}

bool leggiForza(Opzioni& o, const std::string& valore) {
    o.bloccaggio.forza = base::leggiNumero(valore).value_or(0);
    return base::soloUnNumero(valore) && o.bloccaggio.forza > 0;
}

std::vector<RigaOpzione> opzioniDomanda() {
    RigaOpzione tirante = {
        {"--tirante", "--anchor"},
        "il numero del tirante",
        Conta{1, project::massimoTiranti, [](Opzioni& o) -> int& { return o.bloccaggio.tirante; }},
        base::uguali("N")};
    RigaOpzione forza = {{"--forza", "--force"},
                         "la forza del tirante alla fine della sua prima fase, in kN/m",
                         leggiForza,
                         base::uguali("KN")};
    tirante.obbligatoria = forza.obbligatoria = true;
    return {tirante, forza};
}

}  // namespace

RigaComando comandoBloccaggio() {
    return {{"bloccaggio", "lockoff"},
            "cerca la pretensione che dà a un tirante la forza voluta alla fine della sua prima "
            "fase",
            insieme({opzioniProgetto(),
                     {opzioneMetodo(), opzioneSegmenti(), opzioneEJ()},
                     opzioniDomanda()}),
            esegui};
}

}  // namespace korven::batch
