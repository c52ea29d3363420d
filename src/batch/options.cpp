#include "batch/options.hpp"

#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>
#include <map>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/wrong_usage.hpp"

namespace korven::batch {

namespace {

using base::traduttore;

const std::map<std::string, double> metodi = {{"coulomb", 1}, {"rankine", 2}, {"bell", 3}};
const std::map<std::string, bool> risposteEJ = {{"mantieni", false}, {"ricalcola", true}};

std::string chiavi(const auto& tabella) {
    std::string testo;
    for (const auto& [chiave, valore] : tabella) testo += (testo.empty() ? "" : "|") + chiave;
    return testo;
}

// A check would write its own name behind that of the value in the help.
CLI::Validator senzaNome(const CLI::Validator& controllo) { return controllo.description(""); }

// A path without a character names nothing.
const CLI::Validator nonVuoto([](std::string& testo) { return testo.empty() ? "?" : ""; }, "");

// The library takes any next argument for the value: a forgotten one must not make a folder
// "--json".
const CLI::Validator cartella(
    [](std::string& testo) { return testo.empty() || testo.starts_with('-') ? "?" : ""; }, "");

// Whether the number will do is for the run to say; what is none is a slip of the pen.
const CLI::Validator numero([](std::string& testo) { return base::soloUnNumero(testo) ? "" : "?"; },
                            "");

void versione(CLI::App& app) {
    app.set_version_flag("--versione", "KORVEN 32 " KORVEN_VERSION,
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
    comando.set_help_flag("-h,--help", traduttore("mostra questo aiuto"));
    versione(comando);
    comando.add_option("progetto", o.progetto, traduttore("file di progetto"))
        ->type_name("PROGETTO.kvd")
        ->check(nonVuoto)
        ->required();
    comando
        .add_option("--uscita", o.uscita,
                    traduttore("scrive i risultati in questa cartella, non accanto al progetto"))
        ->type_name("DIR")
        ->check(cartella);
    comando
        .add_option_function<std::string>(
            "--metodo-spinte", [&o](const std::string& nome) { o.metodoSpinte = metodi.at(nome); },
            traduttore("metodo delle spinte (un progetto si riapre sempre con Coulomb)"))
        ->type_name(chiavi(metodi))
        ->check(senzaNome(CLI::IsMember(metodi)));
    comando.add_option("--nseg", o.nseg, traduttore("numero di segmenti, al posto di nseg.txt"))
        ->type_name("N")
        ->check(numero);
    comando.add_option("--cartella", o.cartella, traduttore("cartella del programma"))
        ->type_name("DIR")
        ->check(senzaNome(CLI::ExistingDirectory));
    comando.add_option("--lingua", o.lingua, traduttore("lingua dei testi"))
        ->type_name("ita|deu|fra|esp|eng|por")
        ->check(senzaNome(CLI::IsMember({"ita", "deu", "fra", "esp", "eng", "por"})));
    comando.add_flag("--json", o.json,
                     traduttore("scrive l'esito in formato JSON sull'uscita normale"));
    comando.add_flag("--silenzioso", o.silenzioso,
                     traduttore("non mostra l'avanzamento né la tabella dei risultati"));
}

// The options of the commands that run the analysis.
void diCalcolo(CLI::App& comando, Opzioni& o) {
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

EsitoLettura rifiuta(const std::string& perche) {
    std::cerr << "korven32c: " << perche << '\n'
              << traduttore("Per l'aiuto") << ": korven32c --help\n";
    return {std::nullopt, 2};
}

}  // namespace

EsitoLettura leggiOpzioni(int argc, const char* const* argv) {
    Opzioni o;
    CLI::App app("KORVEN 32 - " + traduttore("Dimensionamento di Paratie e Diaframmi"),
                 "korven32c");
    intestazioni(app);
    app.set_help_flag("-h,--help", traduttore("mostra questo aiuto"));
    versione(app);
    app.require_subcommand(1);

    auto* calcola = app.add_subcommand(
        "calcola", traduttore("esegue il calcolo per fasi e mostra una riga per fase"));
    comuni(*calcola, o);
    diCalcolo(*calcola, o);
    calcola->add_flag("--traccia", o.traccia,
                      traduttore("racconta i cambi di stato delle fasi con più di 20 iterazioni"));

    auto* relazione = app.add_subcommand(
        "relazione", traduttore("esegue il calcolo e scrive la relazione (TAB)"));
    comuni(*relazione, o);
    diCalcolo(*relazione, o);
    relazione->add_flag("--txt", o.testo, traduttore("scrive anche il testo semplice"));

    auto* verifica = app.add_subcommand(
        "verifica", traduttore("dice che cosa manca o è strano nel progetto, senza calcolare"));
    comuni(*verifica, o);

    if (const auto perche = valoreVuoto(argc, argv); !perche.empty()) return rifiuta(perche);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& chiesto) {  // help and version
        return {std::nullopt, app.exit(chiesto)};
    } catch (const CLI::ParseError& errore) {
        const bool senzaComando = app.get_subcommands().empty();
        return rifiuta(senzaComando ? comandoMancante(argc, argv)
                                    : spiegazioneUso(*app.get_subcommands().front(), errore));
    }
    if (relazione->parsed()) o.comando = Comando::relazione;
    if (verifica->parsed()) o.comando = Comando::verifica;
    return {o, 0};
}

std::string valoreAnticipato(int argc, const char* const* argv, const std::string& nome) {
    for (int i = 1; i < argc; ++i) {
        const std::string argomento = argv[i];
        if (argomento == "--") return {};  // behind it there are no options
        if (argomento.starts_with(nome + "=")) return argomento.substr(nome.size() + 1);
        if (argomento != nome) continue;
        const std::string valore = i + 1 < argc ? argv[i + 1] : "";
        return valore.starts_with('-') ? "" : valore;  // an option is no value
    }
    return {};
}

}  // namespace korven::batch
