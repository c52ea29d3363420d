#include "batch/drawing_run.hpp"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_forms.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/report_forms.hpp"
#include "commands/diagram_output.hpp"
#include "commands/log_limit.hpp"
#include "drawings/hatch_samples.hpp"
#include "drawings/section_drawing.hpp"
#include "drawings/stratigraphic_log.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

bool diagramma(analysis::Diagramma tipo, CorsaConsole& corsa) {
    commands::UscitaDiagramma uscita;
    return corsa.esegui(tipo, uscita);
}

// Tells it.
bool troppoAlta(Esito& esito) {
    const std::string perche = commands::rifiutoStratigrafia(Progetto);
    if (perche.empty()) return false;
    racconta({perche}, esito);
    return true;
}

bool stratigrafia(const Opzioni& opzioni, Esito& esito) {
    AvanzamentoConsole vista(false);
    DialogoConsole dialogo(opzioni.ricalcolaEJ, vista);
    if (troppoAlta(esito)) return false;
    const bool disegnata = drawings::disegnaStratigrafia(dialogo, opzioni.disegno.foglio.altezza);
    if (!disegnata) esito.messaggi = dialogo.messaggi();
    return disegnata;
}

bool disegnaComando(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    switch (opzioni.comando) {
        case Comando::diagramma: {
            CorsaConsole corsa(opzioni, guardia, esito);
            if (!diagramma(opzioni.tipo, corsa)) return false;
            annotaRisultati(esito);
            return !corsa.interrotta();
        }
        case Comando::sezione:
            drawings::disegnaSezione(Progetto);
            return true;
        case Comando::stratigrafia:
            return stratigrafia(opzioni, esito);
        default:
            drawings::disegnaCampionario();
            return true;
    }
}

void scrivi(const FormeDisegno& forme, Esito& esito) {
    scriviDisegno(forme);
    for (const std::string& file : forme.file()) esito.fileScritti.push_back(file);
}

// One drawing of the project: the end of its files' names, and how it is made.
struct Tavola {
    std::string_view nome;
    bool (*disegna)(Esito&);  // empty: a diagram
    std::optional<analysis::Diagramma> diagramma;
};

bool tavolaSezione(Esito&) {
    drawings::disegnaSezione(Progetto);
    return true;
}

bool tavolaStratigrafia(Esito& esito) {
    if (troppoAlta(esito)) return false;
    drawings::disegnaStratigrafia(Progetto);
    return true;
}

// In the order in which they are made.
std::vector<Tavola> tutteLeTavole() {
    std::vector<Tavola> tutte;
    for (const auto& riga : analysis::diagrammi)
        tutte.push_back({riga.nome, nullptr, riga.diagramma});
    tutte.push_back({"sezione", tavolaSezione, std::nullopt});
    tutte.push_back({"stratigrafia", tavolaStratigrafia, std::nullopt});
    return tutte;
}

// "DIR/muro-momenti.pdf" for each form asked for.
FormeDisegno usciteTavola(const Opzioni& opzioni, const Tavola& tavola) {
    FormeDisegno uscite;
    uscite.dpi = opzioni.disegno.dpi;
    const std::pair<const char*, std::string FormeDisegno::*> forme[] = {
        {"dxf", &FormeDisegno::dxf},
        {"pdf", &FormeDisegno::pdf},
        {"svg", &FormeDisegno::svg},
        {"png", &FormeDisegno::png}};
    for (const auto& [forma, file] : forme)
        if (std::find(opzioni.formati.begin(), opzioni.formati.end(), forma) !=
            opzioni.formati.end())
            uscite.*file = base::nomeUscita(project::fileCorrente, tavola.nome, forma);
    return uscite;
}

// The report in each of its forms, beside the drawings.
FormeRelazione usciteRelazione() {
    FormeRelazione uscite;
    uscite.testo = uscite.documento = true;
    uscite.pdf = base::nomePdfRelazione(project::fileCorrente);
    return uscite;
}

void annuncia(const Opzioni& opzioni, std::size_t quale, std::size_t quante, const Tavola& tavola) {
    if (!opzioni.silenzioso)
        std::cerr << base::traduttore("disegno") << ' ' << quale << '/' << quante << ": "
                  << tavola.nome << '\n';
}

}  // namespace

int disegna(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    controllaUscite(opzioni.disegno);
    const Interruzioni interruzioni;
    const AmbienteDisegno ambiente(opzioni.disegno.dipinte());
    if (!disegnaComando(opzioni, guardia, esito)) return nonEseguito;
    scrivi(opzioni.disegno, esito);
    return fatto;
}

int tutto(const Opzioni& opzioni, analysis::GuardiaRisultati& guardia, Esito& esito) {
    const std::vector<Tavola> tavole = tutteLeTavole();
    std::vector<std::string> tutte;
    for (const Tavola& tavola : tavole) {
        const FormeDisegno uscite = usciteTavola(opzioni, tavola);
        controllaUscite(uscite);
        for (const auto& file : uscite.file()) tutte.push_back(file);
    }
    const AmbienteDisegno ambiente(true);
    const FormeRelazione relazione = usciteRelazione();
    controllaUscite(relazione);
    tutte.push_back(relazione.pdf);
    controllaNomi(tutte, {});
    CorsaConsole corsa(opzioni, guardia, esito);
    if (!scriviRelazione(relazione, corsa, esito)) return nonEseguito;
    esito.calcolo = commands::leggiEsito();
    // Whether anything was computed is for the first run to say: the others find its results.
    const auto fasi = esito.fasi;
    const bool giaAggiornato = esito.giaAggiornato;
    std::size_t quale = 0;
    int codice = fatto;
    for (const Tavola& tavola : tavole) {
        if (corsa.interrotta()) return nonEseguito;
        annuncia(opzioni, ++quale, tavole.size(), tavola);
        if (tavola.diagramma && !diagramma(*tavola.diagramma, corsa)) return nonEseguito;
        if (!tavola.diagramma && !tavola.disegna(esito))
            codice = nonEseguito;  // the other drawings are made all the same
        else
            scrivi(usciteTavola(opzioni, tavola), esito);
    }
    esito.fasi = fasi;
    esito.giaAggiornato = giaAggiornato;
    return codice;
}

}  // namespace korven::batch
