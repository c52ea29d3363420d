#include "batch/drawing_run.hpp"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <utility>

#include "base/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/console_run.hpp"
#include "batch/failure.hpp"
#include "batch/interruption.hpp"
#include "commands/diagram_output.hpp"
#include "project/project_data.hpp"
#include "report/hatch_samples.hpp"
#include "report/stratigraphic_log.hpp"
#include "structure/section_drawing.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

bool diagramma(int tipo, CorsaConsole& corsa) {
    commands::UscitaDiagramma uscita;
    return corsa.esegui(tipo, uscita);
}

void annotaRisultati(Esito& esito) {
    if (!esito.giaAggiornato)
        esito.fileScritti.push_back(base::nomeRisultati(project::fileCorrente));
}

bool stratigrafia(const Opzioni& opzioni, Esito& esito) {
    AvanzamentoConsole vista(false);
    DialogoConsole dialogo(opzioni.ricalcolaEJ, vista);
    const bool disegnata = report::disegnaStratigrafia(dialogo);
    if (!disegnata) esito.messaggi = dialogo.messaggi();
    return disegnata;
}

bool disegnaComando(const Opzioni& opzioni, Esito& esito) {
    switch (opzioni.comando) {
        case Comando::diagramma: {
            CorsaConsole corsa(opzioni, esito);
            if (!diagramma(opzioni.tipo, corsa)) return false;
            annotaRisultati(esito);
            return !corsa.interrotta();
        }
        case Comando::sezione:
            structure::disegnaSezione(Progetto);
            return true;
        case Comando::stratigrafia:
            return stratigrafia(opzioni, esito);
        default:
            report::disegnaCampionario();
            return true;
    }
}

void scrivi(const UsciteDisegno& uscite, Esito& esito) {
    scriviDisegno(uscite);
    for (const std::string& file : uscite.file()) esito.fileScritti.push_back(file);
}

// One drawing of the project: the end of its files' names, and how it is made.
struct Tavola {
    const char* nome;
    int tipo;  // of a diagram; 0: none
    void (*disegna)();
};

constexpr Tavola tavole[] = {
    {"pressioni", 1, nullptr},
    {"spostamenti", 2, nullptr},
    {"momenti", 3, nullptr},
    {"taglio", 4, nullptr},
    {"sezione", 0, [] { structure::disegnaSezione(Progetto); }},
    {"stratigrafia", 0, [] { report::disegnaStratigrafia(Progetto); }},
};

// "DIR/muro-momenti.pdf" for each form asked for.
UsciteDisegno usciteTavola(const Opzioni& opzioni, const Tavola& tavola) {
    const std::filesystem::path progetto(project::fileCorrente);
    const std::string radice =
        (progetto.parent_path() / progetto.stem()).string() + '-' + tavola.nome + '.';
    UsciteDisegno uscite;
    uscite.dpi = opzioni.disegno.dpi;
    const std::pair<const char*, std::string UsciteDisegno::*> forme[] = {
        {"dxf", &UsciteDisegno::dxf},
        {"pdf", &UsciteDisegno::pdf},
        {"svg", &UsciteDisegno::svg},
        {"png", &UsciteDisegno::png}};
    for (const auto& [forma, file] : forme)
        if (std::find(opzioni.formati.begin(), opzioni.formati.end(), forma) !=
            opzioni.formati.end())
            uscite.*file = radice + forma;
    return uscite;
}

bool scriviRelazione(CorsaConsole& corsa, Esito& esito) {
    commands::UscitaRelazione uscita(true, true);
    if (!corsa.esegui(0, uscita)) return false;
    annotaRisultati(esito);
    esito.fileRelazione = uscita.relazione();
    esito.fileTesto = commands::scriviTesto(esito.fileRelazione);
    esito.fileScritti.insert(esito.fileScritti.end(), {esito.fileRelazione, esito.fileTesto});
    esito.calcolo = commands::leggiEsito();
    return true;
}

void annuncia(const Opzioni& opzioni, std::size_t quale, const Tavola& tavola) {
    if (!opzioni.silenzioso)
        std::cerr << base::traduttore("disegno") << ' ' << quale << '/' << std::size(tavole) << ": "
                  << tavola.nome << '\n';
}

}  // namespace

int disegna(const Opzioni& opzioni, Esito& esito) {
    controllaUscite(opzioni.disegno);
    const Interruzioni interruzioni;
    const AmbienteDisegno ambiente(opzioni.disegno.dipinte());
    if (!disegnaComando(opzioni, esito)) return nonEseguito;
    scrivi(opzioni.disegno, esito);
    return fatto;
}

int tutto(const Opzioni& opzioni, Esito& esito) {
    for (const Tavola& tavola : tavole) controllaUscite(usciteTavola(opzioni, tavola));
    const AmbienteDisegno ambiente(usciteTavola(opzioni, tavole[0]).dipinte());
    CorsaConsole corsa(opzioni, esito);
    if (!scriviRelazione(corsa, esito)) return nonEseguito;
    // Whether anything was computed is for the first run to say: the others find its results.
    const auto fasi = esito.fasi;
    const bool giaAggiornato = esito.giaAggiornato;
    std::size_t quale = 0;
    for (const Tavola& tavola : tavole) {
        if (corsa.interrotta()) return nonEseguito;
        annuncia(opzioni, ++quale, tavola);
        if (tavola.tipo == 0)
            tavola.disegna();
        else if (!diagramma(tavola.tipo, corsa))
            return nonEseguito;
        scrivi(usciteTavola(opzioni, tavola), esito);
    }
    esito.fasi = fasi;
    esito.giaAggiornato = giaAggiornato;
    return fatto;
}

}  // namespace korven::batch
