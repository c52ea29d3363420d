#include "base/process/program_questions.hpp"

#include <algorithm>
#include <exception>

#include "base/colon.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::base {

namespace {

std::string nomi(const Domanda& domanda) {
    std::string tutti;
    for (const auto nome : {domanda.breve, domanda.nome.inglese, domanda.nome.italiano})
        if (!nome.empty() && nome != domanda.taciuto())
            tutti.append(tutti.empty() ? "" : ", ").append(nome);
    return tutti;
}

}  // namespace

std::string perAiuto(std::string_view programma) {
    return traduttore("Per l'aiuto") + duePunti() + std::string(programma) + " " +
           domande.front().nome.mostrato();
}

std::string_view Domanda::taciuto() const {
    return nome.mostrato() == nome.italiano ? std::string_view{} : nome.italiano;
}

Richiesta richiesta(std::string_view argomento) {
    for (const auto& [richiesta, breve, nome, spiegazione] : domande)
        if (nome.comprende(argomento) || (!breve.empty() && argomento == breve)) return richiesta;
    return Richiesta::nessuna;
}

std::string testoAiuto(std::string_view uso) {
    std::size_t larghezza = 0;
    for (const auto& domanda : domande) larghezza = std::max(larghezza, nomi(domanda).size());
    std::string testo = std::string(nomeEVersione) + " - " +
                        traduttore("Dimensionamento di Paratie e Diaframmi") + "\n" +
                        traduttore("Uso") + duePunti() + std::string(uso) + "\n\n";
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
