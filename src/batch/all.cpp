#include <algorithm>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/annex_output.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
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
                    const FormatiAllegato& allegato) {
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
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return calcolaConRilievi(opzioni, esito, [&]() -> int {
        avvisaPosto();
        const AmbienteDisegno ambiente(true);
        const FormatiRelazione relazione = formatiRelazione();
        const FormatiAllegato allegato = allegatoAccanto(opzioni.allegato);
        controllaTutte(opzioni, relazione, allegato);
        project::DatiProgetto usati = Progetto;  // reading results back changes the method
        CorsaConsole corsa(opzioni, porte, esito);
        if (!produciRelazione(relazione, corsa, esito)) return nonEseguito;
        esito.calcolo = results::leggiEsito();
        // Only the first run tells whether anything was computed: the others find its results.
        const auto fasi = esito.fasi;
        const bool giaAggiornato = esito.giaAggiornato;
        std::size_t quale = 0;
        CodiceUscita codice = fatto;
        for (const Tavola& tavola : tavole()) {
            if (corsa.interrotta()) return nonEseguito;
            annuncia(opzioni, ++quale, tavola);
            if (tavola.diagramma && !diagramma(*tavola.diagramma, corsa)) return nonEseguito;
            if (!tavola.diagramma && !tavola.disegna(esito))
                codice = nonEseguito;  // the other drawings are made all the same
            else
                scriviDisegno(formatiTavola(opzioni, tavola), porte.disco, esito);
        }
        usati.rigidezzaEJ = Progetto.rigidezzaEJ;
        if (corsa.interrotta()) return nonEseguito;
        scriviAllegato(fascicoloAllegato(opzioni, usati, allegato, esito), allegato, porte.disco,
                       esito);
        esito.fasi = fasi;
        esito.giaAggiornato = giaAggiornato;
        return codice;
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
                        insieme({opzioniCalcolo(true), {formati, opzioneRisoluzione()}}),
                        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
