#include <algorithm>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/annex_output.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/report_formats.hpp"
#include "batch/run/reviewed_run.hpp"
#include "commands/diagram_output.hpp"
#include "drawings/diagram_rows.hpp"
#include "drawings/log/stratigraphic_log.hpp"
#include "drawings/section_drawing.hpp"
#include "project/project_data.hpp"
#include "results/run_outcome.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

// One drawing of the project: the end of its files' names, and how it is made.
struct Tavola {
    base::Gemelli nome;
    bool (*disegna)(Esito&);  // empty: a diagram
    std::optional<analysis::Diagramma> diagramma;
};

bool tavolaSezione(Esito&) {
    drawings::disegnaSezione(Progetto);
    return true;
}

bool tavolaStratigrafia(Esito& esito) {
    if (stratigrafiaTroppoAlta(esito)) return false;
    drawings::disegnaStratigrafia(Progetto);
    return true;
}

// In the order in which they are made.
const std::vector<Tavola>& tavole() {
    static const auto tutte = [] {
        std::vector<Tavola> fatte;
        fatte.reserve(drawings::diagrammi().size() + 2);
        for (const auto& riga : drawings::diagrammi())
            fatte.push_back({riga.nome, nullptr, riga.diagramma});
        fatte.push_back({base::parolaSezione, tavolaSezione, std::nullopt});
        fatte.push_back({base::parolaStratigrafia, tavolaStratigrafia, std::nullopt});
        return fatte;
    }();
    return tutte;
}

struct Formato {
    const char* nome;
    std::string FormatiDisegno::*file;
};

constexpr Formato formatiPossibili[] = {{"pdf", &FormatiDisegno::pdf},
                                        {"dxf", &FormatiDisegno::dxf},
                                        {"svg", &FormatiDisegno::svg},
                                        {"png", &FormatiDisegno::png}};

// "DIR/muro-momenti.pdf" in each format asked for.
FormatiDisegno formatiTavola(const Opzioni& opzioni, const Tavola& tavola) {
    FormatiDisegno chiesti;
    chiesti.dpi = opzioni.disegno.dpi;
    const std::vector<std::string> senzaOpzione = {"pdf", "dxf"};
    const auto& nomi = opzioni.formati.empty() ? senzaOpzione : opzioni.formati;
    for (const auto& [nome, file] : formatiPossibili)
        if (std::find(nomi.begin(), nomi.end(), nome) != nomi.end())
            chiesti.*file = nomeProprio(tavola.nome, nome);
    return chiesti;
}

// The report in each of its formats, beside the drawings.
FormatiRelazione formatiRelazione() {
    FormatiRelazione chiesti;
    chiesti.testo = chiesti.documento = true;
    chiesti.pdf = nomeProprio(base::parolaRelazione, "pdf");
    return chiesti;
}

void annuncia(const Opzioni& opzioni, std::size_t quale, const Tavola& tavola) {
    if (!opzioni.silenzioso)
        std::cerr << base::traduttore("disegno") << ' ' << quale << '/' << tavole().size() << ": "
                  << tavola.nome.mostrato() << '\n';
}

bool diagramma(analysis::Diagramma tipo, CorsaConsole& corsa) {
    commands::UscitaDiagramma uscita;
    return corsa.esegui(tipo, uscita);
}

void controllaTutte(const Opzioni& opzioni, const FormatiRelazione& relazione,
                    const FormatiAllegato& allegato, const base::Disco& disco) {
    std::vector<std::string> tutte;
    for (const Tavola& tavola : tavole()) {
        const FormatiDisegno chiesti = formatiTavola(opzioni, tavola);
        controllaUscite(chiesti);
        for (const auto& file : chiesti.file()) tutte.push_back(file);
    }
    controllaUscite(relazione);
    tutte.push_back(relazione.pdf);
    for (const auto& file : allegato.file()) {
        controllaTabella(file);
        tutte.push_back(file);
    }
    controllaNomi(tutte, {});
    for (const auto& file : tutte) base::controllaScrivibile(file, disco);
}

// What the command makes, for the parts of its work.
struct Consegna {
    const Opzioni& opzioni;
    const PorteComando& porte;
    Esito& esito;
    FormatiAllegato formatiAllegato;
};

// Drawings of an earlier run beside an annex of this one look as if they were of the same wall.
std::vector<std::string> disegniRimasti(const Opzioni& opzioni) {
    std::vector<std::string> rimasti;
    for (const Tavola& tavola : tavole())
        for (const auto& file : formatiTavola(opzioni, tavola).file())
            if (base::esisteFile(file)) rimasti.push_back(file);
    return rimasti;
}

CodiceUscita disegnaTutte(const Consegna& consegna, CorsaConsole& corsa) {
    std::size_t quale = 0;
    CodiceUscita codice = fatto;
    for (const Tavola& tavola : tavole()) {
        if (corsa.interrotta()) return nonEseguito;
        annuncia(consegna.opzioni, ++quale, tavola);
        if (tavola.diagramma && !diagramma(*tavola.diagramma, corsa)) return nonEseguito;
        if (!tavola.diagramma && !tavola.disegna(consegna.esito))
            codice = nonEseguito;  // the other drawings are made all the same
        else
            scriviDisegno(formatiTavola(consegna.opzioni, tavola), consegna.porte.disco,
                          consegna.esito);
    }
    return corsa.interrotta() ? nonEseguito : codice;
}

// The annex stands on the equilibrium solution: it is written where the staged run finds no rest
// too, and says so. What is refused has none, nor what its user has stopped.
void allegato(const Consegna& consegna, project::DatiProgetto usati, CorsaConsole& corsa) {
    const Esito& esito = consegna.esito;
    usati.rigidezzaEJ = Progetto.rigidezzaEJ;
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(usati).incastroPiede);
    if (!nSeg || esito.causa == safety::Causa::rifiutato || Interruzioni::chiesta() != 0) return;
    dossier::Fascicolo fascicolo = fascicoloCalcolato(
        consegna.opzioni, usati, *nSeg,
        {.comando = comandoAllegato(consegna.opzioni, consegna.formatiAllegato)}, esito);
    if (!corsa.interrotta())
        scriviAllegato(std::move(fascicolo), consegna.formatiAllegato, consegna.porte.disco,
                       consegna.esito);
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return calcolaConRilievi(opzioni, esito, [&]() -> int {
        avvisaPosto();
        const AmbienteDisegno ambiente(true);
        const FormatiRelazione relazione = formatiRelazione();
        const Consegna consegna{opzioni, porte, esito, allegatoAccanto(opzioni.allegato)};
        controllaTutte(opzioni, relazione, consegna.formatiAllegato, porte.disco);
        const project::DatiProgetto usati = Progetto;  // reading results back changes the method
        CorsaConsole corsa(opzioni, porte, esito);
        if (!produciRelazione(relazione, corsa, esito)) {
            allegato(consegna, usati, corsa);
            return nonEseguito;
        }
        esito.calcolo = results::leggiEsito();
        // Only the first run tells whether anything was computed: the others find its results.
        const auto fasi = esito.fasi;
        const bool giaAggiornato = esito.giaAggiornato;
        const CodiceUscita codice = disegnaTutte(consegna, corsa);
        allegato(consegna, usati, corsa);
        esito.fasi = fasi;
        esito.giaAggiornato = giaAggiornato;
        return Interruzioni::chiesta() != 0 ? nonEseguito : codice;
    });
}

bool leggiFormato(Opzioni& o, const std::string& formato) {
    o.formati.push_back(formato);
    return std::any_of(std::begin(formatiPossibili), std::end(formatiPossibili),
                       [&](const Formato& possibile) { return formato == possibile.nome; });
}

}  // namespace

RigaComando comandoTutto() {
    RigaOpzione formati = {{"--formati", "--formats"},
                           "formati dei disegni",
                           leggiFormato,
                           base::uguali("pdf,dxf,svg,png")};
    formati.predefinito = "[pdf,dxf]";
    formati.ripetibile = true;
    RigaComando riga = {{"tutto", "all"},
                        "scrive la relazione e l'allegato in ogni formato e tutti i disegni",
                        insieme({opzioniCalcolo(true),
                                 {formati, opzioneRisoluzione(), opzioneRighe(), opzioneData()}}),
                        esegui};
    riga.calcola = true;
    riga.rimasti = disegniRimasti;
    return riga;
}

}  // namespace korven::batch
