#include "batch/options/command_line.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <map>
#include <memory>
#include <utility>

#include "base/colon.hpp"
#include "base/process/program_questions.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "batch/options/common_options.hpp"
#include "batch/options/document_date.hpp"
#include "batch/options/wrong_usage.hpp"

// The rows of options and commands in the hands of the library that reads the command line. No
// other file includes it: it takes the compiler seconds.

namespace korven::batch {

namespace {

using base::traduttore;

// Shows, of two names, the one of the language in use.
class Aiuto : public CLI::Formatter {
 public:
    void tace(const std::string& nome) { taciuti_.push_back(nome); }

    std::string make_option_name(const CLI::Option* opzione, bool perPosto) const override {
        if (perPosto) return opzione->get_name(true);
        std::vector<std::string> nomi;
        for (const auto& nome : opzione->get_snames()) nomi.push_back("-" + nome);
        for (const auto& nome : opzione->get_lnames())
            if (mostra("--" + nome)) nomi.push_back("--" + nome);
        return CLI::detail::join(nomi);
    }
    std::string make_subcommand(const CLI::App* comando) const override {
        std::ostringstream riga;
        CLI::detail::format_help(riga, comando->get_name(), comando->get_description(),
                                 get_column_width());
        return riga.str();
    }

 private:
    [[nodiscard]] bool mostra(const std::string& nome) const {
        return std::find(taciuti_.begin(), taciuti_.end(), nome) == taciuti_.end();
    }
    std::vector<std::string> taciuti_;
};

class Lettura {
 public:
    Lettura(Opzioni& opzioni, const std::vector<RigaComando>& comandi);
    EsitoLettura leggi(int argc, const char* const* argv);

 private:
    void domande(CLI::App& app);
    void aggiungi(CLI::App& comando, const RigaOpzione& riga);
    bool accetta(const RigaOpzione& riga, const std::string& valore);
    [[nodiscard]] std::string spiegazione(const CLI::ParseError& errore) const;
    [[nodiscard]] std::string argomentiDiTroppo() const;
    [[nodiscard]] std::string ammessi(const CLI::Option& opzione) const;
    [[nodiscard]] bool diUnAltroComando(const std::string& argomento) const;

    Opzioni& o_;
    const std::vector<RigaComando>& comandi_;
    std::shared_ptr<Aiuto> formato_ = std::make_shared<Aiuto>();
    std::map<const CLI::Option*, std::string> intervalli_;
    CLI::App app_;
};

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

// As the library takes them: all of them, parted by commas.
std::string nomi(const base::Gemelli& nome) {
    const auto& [uno, altro] = std::pair(nome.mostrato(), nome.taciuto());
    return uno == altro ? uno : uno + "," + altro;
}

std::string nomi(const base::Domanda& domanda) {
    std::string tutti(domanda.breve);
    if (!tutti.empty()) tutti += ',';
    return tutti.append(domanda.nome.inglese).append(",").append(domanda.nome.italiano);
}

Lettura::Lettura(Opzioni& opzioni, const std::vector<RigaComando>& comandi)
    : o_(opzioni),
      comandi_(comandi),
      app_("KORVEN 32 - " + traduttore("Dimensionamento di Paratie e Diaframmi"), "korven32c") {
    app_.formatter(formato_);
    intestazioni(app_);
    domande(app_);
    app_.require_subcommand(1);
    for (const auto& riga : comandi_) {
        auto* comando = app_.add_subcommand(riga.nome.mostrato(), traduttore(riga.spiegazione));
        if (riga.nome.mostrato() != riga.nome.taciuto()) comando->alias(riga.nome.taciuto());
        comando->group(traduttore("Comandi"));
        // An argument by its place comes first, then what every program is asked.
        for (const bool perPosto : {true, false}) {
            for (const auto& opzione : riga.opzioni)
                if (opzione.perPosto() == perPosto) aggiungi(*comando, opzione);
            if (perPosto) domande(*comando);
        }
        comando->final_callback([this, &riga] { o_.comando = &riga; });
    }
    // After the commands, which would take it over.
    app_.footer(traduttore("Le opzioni di un comando") + base::duePunti() + "korven32c " +
                traduttore("comando") + " " + base::domande.front().nome.mostrato());
}

void Lettura::domande(CLI::App& app) {
    for (const auto& domanda : base::domande) {
        const std::string spiegazione = traduttore(domanda.spiegazione);
        if (domanda.richiesta == base::Richiesta::versione)
            app.set_version_flag(nomi(domanda), std::string(base::nomeEVersione), spiegazione);
        else
            app.set_help_flag(nomi(domanda), spiegazione);
        formato_->tace(std::string(domanda.taciuto()));
    }
}

void Lettura::aggiungi(CLI::App& comando, const RigaOpzione& riga) {
    const std::string spiegazione = traduttore(riga.spiegazione) + riga.coda;
    if (riga.nome.mostrato() != riga.nome.taciuto()) formato_->tace(riga.nome.taciuto());
    if (const auto* segna = std::get_if<Segna>(&riga.azione)) {
        comando.add_flag_callback(
            nomi(riga.nome), [this, segna] { (*segna)(o_); }, spiegazione);
        return;
    }
    // What is typed is taken by the check: the library looks at it before it counts how often the
    // option was given.
    auto* opzione = comando.add_option(riga.perPosto() ? riga.nome.mostrato() : nomi(riga.nome),
                                       CLI::callback_t([](const CLI::results_t&) { return true; }),
                                       spiegazione);
    opzione->check(
        [this, &riga](const std::string& v) -> std::string { return accetta(riga, v) ? "" : "?"; });
    opzione->type_name(riga.valoreMostrato())->type_size(1);
    opzione->expected(riga.ripetibile ? CLI::detail::expected_max_vector_size : 1);
    // What stands by its place may hold commas of its own.
    if (riga.conVirgole)
        opzione->allow_extra_args(false);
    else if (riga.ripetibile && !riga.perPosto())
        opzione->delimiter(',');
    opzione->required(riga.obbligatoria)->default_str(riga.predefinito);
    if (const auto* conta = std::get_if<Conta>(&riga.azione))
        intervalli_[opzione] = conta->intervallo();
}

bool Lettura::accetta(const RigaOpzione& riga, const std::string& valore) {
    if (const auto* leggi = std::get_if<Leggi>(&riga.azione)) return (*leggi)(o_, valore);
    if (const auto* conta = std::get_if<Conta>(&riga.azione)) {
        int& numero = conta->dove(o_);
        return CLI::detail::lexical_cast(valore, numero) && numero >= conta->minimo &&
               numero <= conta->massimo;
    }
    for (std::size_t i = 0; i < riga.valori.size(); ++i) {
        if (!riga.valori[i].comprende(valore)) continue;
        std::get<Scegli>(riga.azione)(o_, i);
        return true;
    }
    return false;
}

// The option that the library complains about: its text has the name first, then the value.
const CLI::Option* opzioneDetta(const CLI::App& comando, const std::string& detto) {
    const CLI::Option* trovata = nullptr;
    std::size_t posto = std::string::npos, lunghezza = 0;
    for (const auto* opzione : comando.get_options()) {
        const std::string nome = opzione->get_name();
        const std::size_t qui = nome.empty() ? std::string::npos : detto.find(nome);
        if (qui == std::string::npos || qui > posto || (qui == posto && nome.size() < lunghezza))
            continue;
        trovata = opzione;
        posto = qui;
        lunghezza = nome.size();
    }
    return trovata;
}

// What an option takes: a range where it counts, else what the help shows.
std::string Lettura::ammessi(const CLI::Option& opzione) const {
    const auto intervallo = intervalli_.find(&opzione);
    return intervallo == intervalli_.end() ? opzione.get_type_name() : intervallo->second;
}

bool Lettura::diUnAltroComando(const std::string& argomento) const {
    const std::string nome = argomento.substr(0, argomento.find('='));
    return std::any_of(comandi_.begin(), comandi_.end(), [&](const RigaComando& comando) {
        return std::any_of(comando.opzioni.begin(), comando.opzioni.end(), [&](const auto& riga) {
            return !riga.perPosto() && riga.nome.comprende(nome);
        });
    });
}

std::string Lettura::argomentiDiTroppo() const {
    const auto prima = app_.remaining(false);
    for (const auto& argomento : prima)
        if (argomento.starts_with('-')) return primaDelComando(argomento);
    if (!prima.empty()) return argomentoSconosciuto(prima);
    const CLI::App& comando = *app_.get_subcommands().front();
    const auto troppi = comando.remaining(true);
    for (const auto& argomento : troppi)
        if (diUnAltroComando(argomento)) return opzioneNonSua(comando.get_name(), argomento);
    return argomentoSconosciuto(troppi);
}

// The library's own words are English and are not shown.
std::string Lettura::spiegazione(const CLI::ParseError& errore) const {
    const auto codice = static_cast<CLI::ExitCodes>(errore.get_exit_code());
    if (codice == CLI::ExitCodes::ExtrasError) return argomentiDiTroppo();
    const CLI::Option* opzione = opzioneDetta(*app_.get_subcommands().front(), errore.what());
    if (opzione == nullptr) return traduttore("valore non ammesso");
    const bool perPosto = opzione->get_positional();
    const std::string nome = perPosto ? opzione->get_type_name() : opzione->get_name();
    const auto& valori = opzione->results();
    if (codice == CLI::ExitCodes::RequiredError) return mancaArgomento(nome);
    if (codice == CLI::ExitCodes::ArgumentMismatch)
        return valori.size() > 1 ? dataPiuVolte(nome) : mancaValore(nome);
    return valoreNonAmmesso(nome, valori, perPosto ? "" : ammessi(*opzione));
}

// The help of the command tells more of its options, where there is one.
EsitoLettura rifiuta(const std::string& perche, const std::string& comando = {}) {
    std::cerr << "korven32c: " << perche << '\n'
              << base::perAiuto("korven32c" + (comando.empty() ? "" : " " + comando)) << '\n';
    return {std::nullopt, 2};
}

EsitoLettura Lettura::leggi(int argc, const char* const* argv) {
    if (const auto perche = valoreVuoto(argc, argv); !perche.empty()) return rifiuta(perche);
    try {
        app_.parse(argc, argv);
    } catch (const CLI::Success& chiesto) {  // help and version
        return {std::nullopt, app_.exit(chiesto)};
    } catch (const CLI::ParseError& errore) {
        const auto comandi = app_.get_subcommands();
        if (comandi.empty()) return rifiuta(comandoMancante(argc, argv, comandi_));
        return rifiuta(spiegazione(errore), comandi.front()->get_name());
    }
    const std::string comando = o_.comando->nome.mostrato();
    if (o_.comando->disegna && o_.disegno.nessuna())
        return rifiuta(mancaUnoDi(nomiDisegno), comando);
    if (const auto perche = dataIgnota(o_); !perche.empty()) return rifiuta(perche, comando);
    return {o_, 0};
}

}  // namespace

EsitoLettura leggiOpzioni(int argc, const char* const* argv,
                          const std::vector<RigaComando>& comandi) {
    Opzioni opzioni;
    return Lettura(opzioni, comandi).leggi(argc, argv);
}

std::string valoreAnticipato(int argc, const char* const* argv, const base::Gemelli& nome) {
    for (int i = 1; i < argc; ++i) {
        const std::string argomento = argv[i];
        if (argomento == "--") return {};  // after it there are no options
        const auto uguale = argomento.find('=');
        if (!nome.comprende(argomento.substr(0, uguale))) continue;
        if (uguale != std::string::npos) return argomento.substr(uguale + 1);
        const std::string valore = i + 1 < argc ? argv[i + 1] : "";
        return valore.starts_with('-') ? "" : valore;  // an option is no value
    }
    return {};
}

}  // namespace korven::batch
