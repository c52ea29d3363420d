#include "commands/start/desktop_arguments.hpp"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string_view>

#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::commands {

namespace {

struct OpzioneFinestre {
    std::string_view nome;
    bool conValore;
};

// Those that Qt takes out of the command line for itself.
constexpr OpzioneFinestre opzioniFinestre[] = {
    {"platform", true},        {"platformpluginpath", true},
    {"platformtheme", true},   {"plugin", true},
    {"qwindowgeometry", true}, {"qwindowicon", true},
    {"qwindowtitle", true},    {"session", true},
    {"style", true},           {"stylesheet", true},
    {"display", true},         {"geometry", true},
    {"title", true},           {"icon", true},
    {"fontengine", true},      {"reverse", false},
    {"nograb", false},         {"dograb", false},
    {"sync", false},           {"widgetcount", false},
};

// With one dash or two; the value follows "=" or is the next argument.
const OpzioneFinestre* delleFinestre(std::string_view argomento) {
    argomento.remove_prefix(argomento.starts_with("--") ? 2 : 1);
    const std::string_view nome = argomento.substr(0, argomento.find('='));
    const auto* trovata =
        std::find_if(std::begin(opzioniFinestre), std::end(opzioniFinestre),
                     [nome](const OpzioneFinestre& opzione) { return opzione.nome == nome; });
    return trovata == std::end(opzioniFinestre) ? nullptr : trovata;
}

}  // namespace

ArgomentiDesktop leggiArgomenti(const std::vector<std::string>& argomenti,
                                const std::function<bool(const std::string&)>& esiste) {
    for (std::size_t i = 0; i < argomenti.size(); ++i) {
        const std::string& argomento = argomenti[i];
        if (!argomento.starts_with('-') || esiste(argomento)) return {};
        if (const auto domanda = base::richiesta(argomento); domanda != base::Richiesta::nessuna)
            return {domanda, {}};
        const auto* opzione = delleFinestre(argomento);
        if (opzione == nullptr) return {base::Richiesta::nessuna, argomento};
        if (opzione->conValore && argomento.find('=') == std::string::npos) ++i;
    }
    return {};
}

std::vector<std::string> argomentiRiavvio(std::vector<std::string> argomenti,
                                          const std::string& iniziale,
                                          const std::string& progetto) {
    // The last one of that text: before it, it may be the value of an option.
    const auto trovato = iniziale.empty()
                             ? argomenti.rend()
                             : std::find(argomenti.rbegin(), argomenti.rend(), iniziale);
    if (trovato != argomenti.rend()) argomenti.erase(std::next(trovato).base());
    if (!progetto.empty()) argomenti.push_back(progetto);
    return argomenti;
}

int rispondi(const ArgomentiDesktop& argomenti) {
    constexpr int fatto = 0, usoErrato = 2, uscitaRotta = 3;
    if (!argomenti.sconosciuto.empty()) {
        std::cerr << "korven32: " << base::traduttore("argomento sconosciuto") << ": "
                  << argomenti.sconosciuto << '\n'
                  << base::perAiuto("korven32") << '\n';
        return usoErrato;
    }
    if (argomenti.richiesta == base::Richiesta::nessuna) return -1;
    if (argomenti.richiesta == base::Richiesta::versione)
        std::cout << base::nomeEVersione << '\n';
    else
        std::cout << base::testoAiuto("korven32 [" + base::argomentoProgetto.mostrato() + "]");
    std::cout << std::flush;
    return std::cout ? fatto : uscitaRotta;
}

}  // namespace korven::commands
