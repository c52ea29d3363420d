#include "base/process/program_questions.hpp"

#include <algorithm>
#include <exception>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::base {

namespace {

// A question with its names on the command line.
struct Domanda {
    Richiesta richiesta;
    std::string_view breve, inglese, italiano;
    std::string_view spiegazione;  // Italian key
};

constexpr Domanda domande[] = {
    {Richiesta::aiuto, "-h", "--help", "--aiuto", "mostra questo aiuto"},
    {Richiesta::versione, {}, "--version", "--versione", "mostra la versione"}};

// As the help of korven32c shows them: the Italian name in Italian alone.
std::string nomi(const Domanda& domanda) {
    std::string tutti(domanda.breve);
    if (!tutti.empty()) tutti += ", ";
    tutti += domanda.inglese;
    if (linguaCorrente() == colonnaItaliano) tutti.append(", ").append(domanda.italiano);
    return tutti;
}

}  // namespace

Richiesta richiesta(std::string_view argomento) {
    for (const auto& [richiesta, breve, inglese, italiano, spiegazione] : domande)
        if (argomento == inglese || argomento == italiano || (!breve.empty() && argomento == breve))
            return richiesta;
    return Richiesta::nessuna;
}

std::string testoAiuto(std::string_view uso) {
    std::size_t larghezza = 0;
    for (const auto& domanda : domande) larghezza = std::max(larghezza, nomi(domanda).size());
    std::string testo = std::string(nomeEVersione) + " - " +
                        traduttore("Dimensionamento di Paratie e Diaframmi") + "\n" +
                        traduttore("Uso") + ": " + std::string(uso) + "\n\n";
    for (const auto& domanda : domande) {
        std::string riga = "  " + nomi(domanda);
        riga.resize(larghezza + 4, ' ');
        testo += riga + traduttore(domanda.spiegazione) + '\n';
    }
    return testo;
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
