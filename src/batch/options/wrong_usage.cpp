#include "batch/options/wrong_usage.hpp"

#include <string_view>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

using base::traduttore;

std::string uniti(const std::vector<std::string>& parole, const char* prima = " ") {
    std::string testo;
    for (const auto& parola : parole) testo += (testo.empty() ? " " : prima) + parola;
    return testo;
}

}  // namespace

std::string mancaArgomento(const std::string& nome) {
    return traduttore("manca un argomento") + base::duePunti() + nome;
}

std::string mancaUnoDi(const std::string& nomi) {
    return traduttore("manca un argomento, uno di questi") + base::duePunti() + nomi;
}

std::string mancaValore(const std::string& nome) {
    return traduttore("manca il valore di un'opzione") + base::duePunti() + nome;
}

std::string dataPiuVolte(const std::string& nome) {
    return traduttore("un'opzione è data più volte") + base::duePunti() + nome;
}

std::string valoreNonAmmesso(const std::string& nome, const std::vector<std::string>& valori,
                             const std::string& ammessi) {
    return traduttore("valore non ammesso") + base::duePunti() + nome + uniti(valori) +
           (ammessi.empty() ? "" : " (" + ammessi + ")");
}

std::string argomentoSconosciuto(const std::vector<std::string>& argomenti) {
    return traduttore("argomento sconosciuto") + ":" + uniti(argomenti);
}

std::string insiemeNonAmmesse(const std::string& nomi) {
    return traduttore("opzioni che non vanno insieme") + base::duePunti() + nomi;
}

std::string opzioneNonSua(const std::string& comando, const std::string& argomento) {
    return comando + ": " + traduttore("il comando non ha questa opzione") + base::duePunti() +
           argomento;
}

std::string primaDelComando(const std::string& opzione) {
    return traduttore("le opzioni stanno dopo il comando") + base::duePunti() + opzione;
}

std::string valoreVuoto(int argc, const char* const* argv) {
    for (int i = 1; i < argc && std::string_view(argv[i]) != "--"; ++i) {
        const std::string_view argomento = argv[i];
        if (argomento.starts_with("--") && argomento.ends_with('='))
            return mancaValore(std::string(argomento.substr(0, argomento.size() - 1)));
    }
    return {};
}

// The library only says that a command is required, whatever is in its place.
std::string comandoMancante(int argc, const char* const* argv,
                            const std::vector<RigaComando>& comandi) {
    if (argc > 1 && std::string_view(argv[1]).starts_with('-')) return primaDelComando(argv[1]);
    std::vector<std::string> nomi;
    nomi.reserve(comandi.size());
    for (const auto& comando : comandi) nomi.push_back(comando.nome.mostrato());
    return (argc > 1 ? traduttore("comando sconosciuto") + " (" + argv[1] + ")"
                     : traduttore("manca il comando")) +
           ":" + uniti(nomi, ", ");
}

}  // namespace korven::batch
