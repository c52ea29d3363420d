#include "batch/options/wrong_usage.hpp"

#include <string_view>

#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

using base::traduttore;

std::string uniti(const std::vector<std::string>& parole, const char* prima = " ") {
    std::string testo;
    for (const auto& parola : parole) testo += (testo.empty() ? " " : prima) + parola;
    return testo;
}

// The option that the library complains about: its text has the name first, the value after it.
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

std::string nomeMostrato(const CLI::Option& opzione) {
    return opzione.get_positional() ? opzione.get_type_name() : opzione.get_name();
}

std::string primaDelComando(const std::string& opzione) {
    return traduttore("le opzioni stanno dopo il comando") + ": " + opzione;
}

// What comes before the command belongs to the program, which has no options but help and version.
std::string argomentiDiTroppo(const CLI::App& programma) {
    const auto prima = programma.remaining(false);
    for (const auto& argomento : prima)
        if (argomento.starts_with('-')) return primaDelComando(argomento);
    return traduttore("argomento sconosciuto") + ":" +
           uniti(prima.empty() ? programma.get_subcommands().front()->remaining(true) : prima);
}

}  // namespace

std::string spiegazioneUso(const CLI::App& programma, const CLI::ParseError& errore) {
    const auto codice = static_cast<CLI::ExitCodes>(errore.get_exit_code());
    if (codice == CLI::ExitCodes::ExtrasError) return argomentiDiTroppo(programma);
    const CLI::App& comando = *programma.get_subcommands().front();
    const CLI::Option* opzione = opzioneDetta(comando, errore.what());
    if (opzione == nullptr) return traduttore("valore non ammesso");
    const std::string nome = ": " + nomeMostrato(*opzione);
    if (codice == CLI::ExitCodes::RequiredError) return traduttore("manca un argomento") + nome;
    if (codice == CLI::ExitCodes::ArgumentMismatch)
        return traduttore(opzione->results().size() > 1 ? "un'opzione è data più volte"
                                                        : "manca il valore di un'opzione") +
               nome;
    const std::string tipo = opzione->get_positional() ? "" : opzione->get_type_name();
    const std::string ammessi = tipo.empty() ? "" : " (" + tipo + ")";
    return traduttore("valore non ammesso") + nome + uniti(opzione->results()) + ammessi;
}

std::string valoreVuoto(int argc, const char* const* argv) {
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        const std::string_view argomento = argv[i];
        if (argomento.starts_with("--") && argomento.ends_with('='))
            return traduttore("manca il valore di un'opzione") + ": " +
                   std::string(argomento.substr(0, argomento.size() - 1));
    }
    return {};
}

// The library only says that a command is required, whatever is in its place.
std::string comandoMancante(int argc, const char* const* argv,
                            const std::vector<std::string>& comandi) {
    if (argc > 1 && std::string_view(argv[1]).starts_with('-')) return primaDelComando(argv[1]);
    return (argc > 1 ? traduttore("comando sconosciuto") + " (" + argv[1] + ")"
                     : traduttore("manca il comando")) +
           ":" + uniti(comandi, ", ");
}

}  // namespace korven::batch
