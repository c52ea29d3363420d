#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>
#include <map>
#include <tuple>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "batch/options/options.hpp"
#include "batch/options/paper.hpp"
#include "batch/options/wrong_usage.hpp"
#include "device/drawing_files.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

using base::traduttore;

const std::map<std::string, double> metodi = {{"coulomb", 1}, {"rankine", 2}, {"bell", 3}};
const std::map<std::string, bool> risposteEJ = {{"mantieni", false}, {"ricalcola", true}};

const std::map<std::string, analysis::Diagramma>& tipi() {
    static const auto tabella = [] {
        std::map<std::string, analysis::Diagramma> nomi;
        for (const auto& riga : analysis::diagrammi) nomi.emplace(riga.nome, riga.diagramma);
        return nomi;
    }();
    return tabella;
}

std::string chiavi(const auto& tabella) {
    std::string testo;
    for (const auto& [chiave, valore] : tabella) testo += (testo.empty() ? "" : "|") + chiave;
    return testo;
}

// A check would write its own name after that of the value in the help.
CLI::Validator senzaNome(const CLI::Validator& controllo) { return controllo.description(""); }

// A path without a character names nothing.
const CLI::Validator nonVuoto([](std::string& testo) { return testo.empty() ? "?" : ""; }, "");

// The library takes any next argument for the value, even "--json", and would make that folder.
const CLI::Validator percorso(
    [](std::string& testo) { return testo.empty() || testo.starts_with('-') ? "?" : ""; }, "");

// Whether the number will do is for the run to say; what is none is a slip of the pen.
const CLI::Validator numero([](std::string& testo) { return base::soloUnNumero(testo) ? "" : "?"; },
                            "");

void versione(CLI::App& app) {
    app.set_version_flag("--version,--versione", std::string(base::nomeEVersione),
                         traduttore("mostra la versione"));
}

// The words of the help itself.
void intestazioni(CLI::App& app) {
    const std::pair<const char*, const char*> parole[] = {{"Usage", "Uso"},
                                                          {"OPTIONS", "opzioni"},
                                                          {"SUBCOMMAND", "comando"},
                                                          {"Positionals", "Argomenti"},
                                                          {"REQUIRED", "obbligatorio"}};
    for (const auto& [parola, chiave] : parole)
        app.get_formatter()->label(parola, traduttore(chiave));
    app.option_defaults()->group(traduttore("Opzioni"));
}

// The options that every command takes.
void comuni(CLI::App& comando, Opzioni& o) {
    comando.group(traduttore("Comandi"));
    comando.set_help_flag("-h,--help,--aiuto", traduttore("mostra questo aiuto"));
    versione(comando);
    comando.add_option("--cartella", o.cartella, traduttore("cartella del programma"))
        ->type_name("DIR")
        ->check(percorso)
        ->check(senzaNome(CLI::ExistingDirectory));
    comando.add_option("--lingua", o.lingua, traduttore("lingua dei testi"))
        ->type_name("ita|deu|fra|esp|eng|por")
        ->check(senzaNome(CLI::IsMember({"ita", "deu", "fra", "esp", "eng", "por"})));
    comando.add_flag("--json", o.json,
                     traduttore("scrive l'esito in formato JSON sull'uscita normale"));
    comando.add_flag("--silenzioso", o.silenzioso,
                     traduttore("non mostra l'avanzamento né la tabella dei risultati"));
}

void diProgetto(CLI::App& comando, Opzioni& o) {
    comando.add_option("progetto", o.progetto, traduttore("file di progetto"))
        ->type_name("PROGETTO.kvd")
        ->check(nonVuoto)
        ->required();
    comuni(comando, o);
}

// The options of the commands for which the analysis matters.
void diModello(CLI::App& comando, Opzioni& o) {
    diProgetto(comando, o);
    comando
        .add_option("--uscita", o.uscita,
                    traduttore("scrive i risultati in questa cartella, non accanto al progetto"))
        ->type_name("DIR")
        ->check(percorso);
    comando
        .add_option_function<std::string>(
            "--metodo-spinte", [&o](const std::string& nome) { o.metodoSpinte = metodi.at(nome); },
            traduttore("metodo delle spinte (un progetto si riapre sempre con Coulomb)"))
        ->type_name(chiavi(metodi))
        ->check(senzaNome(CLI::IsMember(metodi)));
    comando.add_option("--nseg", o.nseg, traduttore("numero di segmenti, al posto di nseg.txt"))
        ->type_name("N")
        ->check(numero);
}

// The options of the commands that run the analysis.
void diCalcolo(CLI::App& comando, Opzioni& o) {
    diModello(comando, o);
    comando
        .add_option_function<std::string>(
            "--ej", [&o](const std::string& nome) { o.ricalcolaEJ = risposteEJ.at(nome); },
            traduttore("rigidezza EJ scritta nel progetto o ricalcolata dalla sezione"))
        ->type_name(chiavi(risposteEJ))
        ->check(senzaNome(CLI::IsMember(risposteEJ)));
    comando
        .add_option("--max-iterazioni", o.maxIterazioni,
                    traduttore("ferma una fase che non converge; 0 per nessun limite"))
        ->type_name("N")
        ->check(senzaNome(CLI::Range(std::numeric_limits<int>::max())))
        ->capture_default_str();
}

// What the report leaves besides its mark-up.
void diRelazione(CLI::App& comando, FormeRelazione& forme) {
    comando.add_flag("--txt", forme.testo, traduttore("scrive anche il testo semplice"));
    comando.add_flag("--doc", forme.documento,
                     traduttore("scrive anche il documento per elaboratori di testi (DOC)"));
    comando.add_option("--pdf", forme.pdf, traduttore("scrive la relazione in formato PDF"))
        ->type_name("FILE")
        ->check(percorso);
    comando
        .add_option("--stampa", forme.stampante,
                    traduttore("stampa la relazione su questa stampante"))
        ->type_name("NOME")
        ->check(percorso);
}

// The files of a drawing.
void diDisegno(CLI::App& comando, Opzioni& o) {
    const std::tuple<const char*, std::string FormeDisegno::*, const char*> forme[] = {
        {"--dxf", &FormeDisegno::dxf, "scrive il disegno in formato DXF"},
        {"--pdf", &FormeDisegno::pdf, "scrive il disegno in formato PDF"},
        {"--svg", &FormeDisegno::svg, "scrive il disegno in formato SVG"},
        {"--png", &FormeDisegno::png, "scrive il disegno in formato PNG"},
    };
    for (const auto& [nome, file, spiegazione] : forme)
        comando.add_option(nome, o.disegno.*file, traduttore(spiegazione))
            ->type_name("FILE")
            ->check(percorso);
}

void risoluzione(CLI::App& comando, Opzioni& o) {
    comando.add_option("--dpi", o.disegno.dpi, traduttore("punti per pollice dei file PNG"))
        ->type_name("N")
        ->check(senzaNome(CLI::Range(device::risoluzioneMinima, device::risoluzioneMassima)))
        ->capture_default_str();
}

void foglio(CLI::App& comando, Opzioni& o) {
    comando
        .add_option_function<std::string>(
            "--foglio", [&o](const std::string& nome) { o.disegno.foglio = fogli().at(nome); },
            traduttore("foglio della stampante, dalla cui altezza dipende la colonna") + " [A4]")
        ->type_name(chiavi(fogli()))
        ->check(senzaNome(CLI::IsMember(fogli())));
}

using Preparazione = void (*)(CLI::App&, Opzioni&);

struct RigaComando {
    Comando comando;
    const char* nome;
    const char* spiegazione;
    Preparazione opzioni;
};

// In the order of the help.
const RigaComando righeComandi[] = {
    {Comando::calcola, "calcola", "esegue il calcolo per fasi e mostra una riga per fase",
     [](CLI::App& c, Opzioni& o) {
         diCalcolo(c, o);
         c.add_flag("--traccia", o.traccia,
                    traduttore("mostra i cambi di stato delle fasi con più di 20 iterazioni"));
     }},
    {Comando::relazione, "relazione", "esegue il calcolo e scrive la relazione (TAB)",
     [](CLI::App& c, Opzioni& o) {
         diCalcolo(c, o);
         diRelazione(c, o.relazione);
     }},
    {Comando::verifica, "verifica",
     "dice che cosa manca o è strano nel progetto, senza scrivere risultati", diModello},
    {Comando::diagramma, "diagramma", "esegue il calcolo e disegna un diagramma",
     [](CLI::App& c, Opzioni& o) {
         diCalcolo(c, o);
         c.add_option_function<std::string>(
              "--tipo", [&o](const std::string& nome) { o.tipo = tipi().at(nome); },
              traduttore("grandezza del diagramma"))
             ->type_name(chiavi(tipi()))
             ->check(senzaNome(CLI::IsMember(tipi())))
             ->required();
         c.add_option("--fase", o.fase, traduttore("fase da disegnare; 0 per tutte"))
             ->type_name("N")
             ->check(senzaNome(CLI::Range(0, project::massimoFasi)));
         diDisegno(c, o);
         risoluzione(c, o);
     }},
    {Comando::sezione, "sezione", "disegna la sezione strutturale",
     [](CLI::App& c, Opzioni& o) {
         diProgetto(c, o);
         diDisegno(c, o);
         risoluzione(c, o);
     }},
    {Comando::stratigrafia, "stratigrafia", "disegna la colonna stratigrafica",
     [](CLI::App& c, Opzioni& o) {
         diProgetto(c, o);
         diDisegno(c, o);
         risoluzione(c, o);
         foglio(c, o);
     }},
    {Comando::campiture, "campiture", "disegna i campioni di tutte le campiture",
     [](CLI::App& c, Opzioni& o) {
         comuni(c, o);
         diDisegno(c, o);
         risoluzione(c, o);
     }},
    {Comando::tutto, "tutto", "scrive la relazione in ogni formato e tutti i disegni",
     [](CLI::App& c, Opzioni& o) {
         diCalcolo(c, o);
         c.get_option("--uscita")->required();
         c.add_option("--formati", o.formati, traduttore("formati dei disegni"))
             ->type_name("pdf,dxf,svg,png")
             ->delimiter(',')
             ->check(senzaNome(CLI::IsMember({"pdf", "dxf", "svg", "png"})))
             ->capture_default_str();
         risoluzione(c, o);
     }},
};

std::vector<std::string> nomiComandi() {
    std::vector<std::string> nomi;
    for (const auto& riga : righeComandi) nomi.emplace_back(riga.nome);
    return nomi;
}

bool disegna(Comando comando) {
    return comando == Comando::diagramma || comando == Comando::sezione ||
           comando == Comando::stratigrafia || comando == Comando::campiture;
}

EsitoLettura rifiuta(const std::string& perche) {
    std::cerr << "korven32c: " << perche << '\n'
              << traduttore("Per l'aiuto") << ": korven32c --help\n";
    return {std::nullopt, 2};
}

}  // namespace

const char* nomeComando(Comando comando) {
    for (const auto& riga : righeComandi)
        if (riga.comando == comando) return riga.nome;
    return "";
}

EsitoLettura leggiOpzioni(int argc, const char* const* argv) {
    Opzioni o;
    CLI::App app("KORVEN 32 - " + traduttore("Dimensionamento di Paratie e Diaframmi"),
                 "korven32c");
    intestazioni(app);
    app.set_help_flag("-h,--help,--aiuto", traduttore("mostra questo aiuto"));
    versione(app);
    app.require_subcommand(1);

    for (const auto& riga : righeComandi) {
        auto* comando = app.add_subcommand(riga.nome, traduttore(riga.spiegazione));
        riga.opzioni(*comando, o);
        comando->final_callback([&o, &riga] { o.comando = riga.comando; });
    }

    if (const auto perche = valoreVuoto(argc, argv); !perche.empty()) return rifiuta(perche);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& chiesto) {  // help and version
        return {std::nullopt, app.exit(chiesto)};
    } catch (const CLI::ParseError& errore) {
        const bool senzaComando = app.get_subcommands().empty();
        return rifiuta(senzaComando ? comandoMancante(argc, argv, nomiComandi())
                                    : spiegazioneUso(app, errore));
    }
    if (disegna(o.comando) && o.disegno.nessuna())
        return rifiuta(traduttore("manca un argomento") + ": --dxf, --pdf, --svg, --png");
    return {o, 0};
}

std::string valoreAnticipato(int argc, const char* const* argv, const std::string& nome) {
    for (int i = 1; i < argc; ++i) {
        const std::string argomento = argv[i];
        if (argomento == "--") return {};  // after it there are no options
        if (argomento.starts_with(nome + "=")) return argomento.substr(nome.size() + 1);
        if (argomento != nome) continue;
        const std::string valore = i + 1 < argc ? argv[i + 1] : "";
        return valore.starts_with('-') ? "" : valore;  // an option is no value
    }
    return {};
}

}  // namespace korven::batch
