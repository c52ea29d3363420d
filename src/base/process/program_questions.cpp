#include "base/process/program_questions.hpp"

#include <exception>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::base {

namespace {

struct Parola {
    std::string_view parola;
    Richiesta richiesta;
};

constexpr Parola parole[] = {{"--version", Richiesta::versione},
                             {"--versione", Richiesta::versione},
                             {"--help", Richiesta::aiuto},
                             {"--aiuto", Richiesta::aiuto},
                             {"-h", Richiesta::aiuto}};

}  // namespace

Richiesta richiesta(std::string_view argomento) {
    for (const auto& [parola, domanda] : parole)
        if (argomento == parola) return domanda;
    return Richiesta::nessuna;
}

std::string testoAiuto(std::string_view uso) {
    return std::string(nomeEVersione) + " - " +
           traduttore("Dimensionamento di Paratie e Diaframmi") + "\n" + traduttore("Uso") + ": " +
           std::string(uso) + "\n\n  -h, --help, --aiuto    " + traduttore("mostra questo aiuto") +
           "\n  --version, --versione  " + traduttore("mostra la versione") + "\n";
}

void scegliLinguaSilenziosa() {
    try {
        const std::string scelta = fileProgramma("language.cfg");
        if (!esisteFile(scelta)) return;
        const int codice = leggiLingua(scelta);
        if (codice == 1 || siglaLingua(codice).empty()) return;
        caricaTesti(fileProgramma("texts01.txt"), fileProgramma("texts06.txt"),
                    fileProgramma("texts32.txt"));
        impostaLingua(codice);
    } catch (const std::exception&) {
        impostaLingua(1);
    }
}

}  // namespace korven::base
