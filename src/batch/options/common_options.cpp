#include "batch/options/common_options.hpp"

#include <filesystem>
#include <iterator>
#include <limits>
#include <string>

#include "base/number_text.hpp"
#include "base/process/program_questions.hpp"
#include "device/drawing_files.hpp"
#include "dossier/identity.hpp"
#include "project/method_names.hpp"

namespace korven::batch {

namespace {

using base::uguali;

constexpr base::Gemelli cartella = uguali("DIR"), file = uguali("FILE"), numero = uguali("N");

bool esisteCartella(const std::string& percorso) {
    std::error_code errore;
    return percorsoAmmesso(percorso) && std::filesystem::is_directory(percorso, errore);
}

// Whether the number will do is for the run to say; what is none is a slip of the pen.
bool leggiNseg(Opzioni& o, const std::string& valore) {
    o.nseg = valore;
    return base::soloUnNumero(valore);
}

bool leggiUscita(Opzioni& o, const std::string& valore) {
    o.uscita = valore;
    return percorsoAmmesso(valore);
}

RigaOpzione opzioneUscita(bool obbligatoria) {
    RigaOpzione riga = {{"--uscita", "--output"},
                        "scrive i risultati in questa cartella, non accanto al progetto",
                        leggiUscita,
                        cartella};
    riga.obbligatoria = obbligatoria;
    return riga;
}

// Which of the two a load is.
RigaOpzione opzioneNatura(const base::Gemelli& nome, std::string spiegazione, Scegli scegli) {
    return {
        nome, std::move(spiegazione), scegli, {}, {base::naturaPermanente, base::naturaVariabile}};
}

template <factors::Natura factors::NaturaCarichi::*carico>
void scegliNatura(Opzioni& o, std::size_t quale) {
    o.natura.*carico = quale == 0 ? factors::Natura::permanente : factors::Natura::variabile;
}

template <std::string FormatiDisegno::*file>
bool leggiFile(Opzioni& o, const std::string& valore) {
    o.disegno.*file = valore;
    return percorsoAmmesso(valore);
}

}  // namespace

std::vector<RigaOpzione> opzioniComuni() {
    return {
        {nomeOpzioneCartella, "cartella del programma",
         // taken before all others, by its name; here it is only looked at
         [](Opzioni&, const std::string& valore) { return esisteCartella(valore); }, cartella},
        {nomeOpzioneLingua,
         "lingua dei testi",
         [](Opzioni&, std::size_t) {},  // likewise
         {},
         {uguali("ita"), uguali("deu"), uguali("fra"), uguali("esp"), uguali("eng"),
          uguali("por")}},
        {uguali("--json"), "scrive l'esito in formato JSON sull'uscita normale",
         [](Opzioni& o) { o.json = true; }},
        {{"--silenzioso", "--quiet"},
         "non mostra l'avanzamento né la tabella dei risultati",
         [](Opzioni& o) { o.silenzioso = true; }},
    };
}

std::vector<RigaOpzione> opzioniProgetto() {
    RigaOpzione progetto = {{"progetto", "project"},
                            "file di progetto",
                            // A path without a character names nothing.
                            [](Opzioni& o, const std::string& valore) {
                                o.progetto = valore;
                                return !valore.empty();
                            },
                            base::argomentoProgetto};
    progetto.obbligatoria = true;
    return insieme({{progetto}, opzioniComuni()});
}

std::vector<RigaOpzione> opzioniModello(bool cartellaObbligatoria) {
    return insieme({opzioniProgetto(),
                    {opzioneUscita(cartellaObbligatoria), opzioneMetodo(), opzioneSegmenti()}});
}

RigaOpzione opzioneMetodo() {
    RigaOpzione riga = {nomeOpzioneMetodo,
                        "metodo delle spinte (un progetto si riapre sempre con Coulomb)",
                        [](Opzioni& o, std::size_t quale) {
                            o.metodoSpinte = project::valore(project::nomiMetodi[quale].codice);
                        }};
    for (const auto& metodo : project::nomiMetodi) riga.valori.push_back(uguali(metodo.nome));
    return riga;
}

RigaOpzione opzioneSegmenti() {
    return {nomeOpzioneNseg, "numero di segmenti, al posto di nseg.txt", leggiNseg, numero};
}

std::vector<RigaOpzione> opzioniCalcolo(bool cartellaObbligatoria) {
    return insieme({opzioniModello(cartellaObbligatoria),
                    {opzioneSevero(),
                     opzioneEJ(),
                     {{"--max-iterazioni", "--max-iterations"},
                      "ferma una fase che non converge; 0 per nessun limite",
                      Conta{0, std::numeric_limits<int>::max(),
                            [](Opzioni& o) -> int& { return o.maxIterazioni; }},
                      numero,
                      {},
                      std::to_string(Opzioni().maxIterazioni)}}});
}

RigaOpzione opzioneSevero() {
    return {nomeOpzioneSevero, "finisce con il codice 1 se c'è un'osservazione di peso pericolo",
            [](Opzioni& o) { o.severo = true; }};
}

RigaOpzione opzioneEJ() {
    return {base::nomeOpzioneEJ,
            "rigidezza EJ scritta nel progetto o ricalcolata dalla sezione",
            [](Opzioni& o, std::size_t quale) { o.ricalcolaEJ = quale == 1; },
            {},
            {base::rigidezzaMantenuta, base::rigidezzaRicalcolata}};
}

RigaOpzione opzioneCsv() {
    return {uguali("--csv"), "scrive anche una tabella CSV",
            [](Opzioni& o, const std::string& valore) {
                o.csv = valore;
                return percorsoAmmesso(valore);
            },
            file};
}

std::vector<RigaOpzione> opzioniDisegno() {
    return {
        {uguali("--dxf"), "scrive il disegno in formato DXF", leggiFile<&FormatiDisegno::dxf>,
         file},
        {uguali("--pdf"), "scrive il disegno in formato PDF", leggiFile<&FormatiDisegno::pdf>,
         file},
        {uguali("--svg"), "scrive il disegno in formato SVG", leggiFile<&FormatiDisegno::svg>,
         file},
        {uguali("--png"), "scrive il disegno in formato PNG", leggiFile<&FormatiDisegno::png>,
         file},
        opzioneRisoluzione(),
    };
}

std::vector<RigaOpzione> opzioniNorma(bool obbligatoria) {
    RigaOpzione norma = {base::nomeOpzioneNorma,
                         "norma di combinazioni.txt o di combinazioni_utente.txt",
                         [](Opzioni& o, const std::string& valore) {
                             o.norma = valore;
                             return !valore.empty();
                         },
                         {"NORMA", "CODE"}};
    norma.obbligatoria = obbligatoria;
    using factors::NaturaCarichi;
    return {
        norma,
        opzioneNatura(base::nomeOpzioneSovraccarico,
                      "che cos'è il sovraccarico a monte; senza l'opzione variabile",
                      scegliNatura<&NaturaCarichi::monte>),
        opzioneNatura(base::nomeOpzioneSovraccaricoScavo,
                      "che cos'è il sovraccarico sul fondo dello scavo; senza l'opzione variabile",
                      scegliNatura<&NaturaCarichi::scavo>),
        opzioneNatura(base::nomeOpzioneCarichiTesta,
                      "che cosa sono forza e momento in testa; senza l'opzione variabili",
                      scegliNatura<&NaturaCarichi::testa>)};
}

RigaOpzione opzioneRighe() {
    return {nomeOpzioneRighe,
            "righe al più della tabella dei nodi di ogni fase, estremi e picchi compresi",
            Conta{2, std::numeric_limits<int>::max(),
                  [](Opzioni& o) -> int& { return o.allegato.righe; }},
            numero,
            {},
            std::to_string(FormatiAllegato().righe)};
}

RigaOpzione opzioneData() {
    return {nomeOpzioneData,
            "data del documento (altrimenti SOURCE_DATE_EPOCH, poi oggi)",
            [](Opzioni& o, const std::string& valore) {
                o.data = valore;
                return dossier::dataValida(valore);
            },
            {"AAAA-MM-GG", "YYYY-MM-DD"}};
}

RigaOpzione opzioneRisoluzione() {
    return {uguali("--dpi"),
            "punti per pollice dei file PNG",
            Conta{device::risoluzioneMinima, device::risoluzioneMassima,
                  [](Opzioni& o) -> int& { return o.disegno.dpi; }},
            numero,
            {},
            std::to_string(FormatiDisegno().dpi)};
}

}  // namespace korven::batch
