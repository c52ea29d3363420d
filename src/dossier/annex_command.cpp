#include "dossier/annex_command.hpp"

#include <string_view>

#include "analysis/segment_count.hpp"
#include "base/folders/file_names.hpp"
#include "base/language.hpp"
#include "base/option_names.hpp"
#include "base/shell_word.hpp"
#include "base/translated_texts.hpp"
#include "project/method_names.hpp"

namespace korven::dossier {

namespace {

std::string opzione(const std::string& nome, std::string_view valore) {
    return nome + " " + base::perLaShell(valore);
}

// With what the loads are, all of it: nobody who reads it has to know what they are without a word.
std::vector<std::string> opzioniNorma(const factors::NormaChiesta& chiesta) {
    const auto natura = [](const base::Gemelli& nome, factors::Natura quale) {
        const bool permanente = quale == factors::Natura::permanente;
        return opzione(nome.mostrato(),
                       (permanente ? base::naturaPermanente : base::naturaVariabile).mostrato());
    };
    return {opzione(base::nomeOpzioneNorma.mostrato(), chiesta.norma.nome),
            natura(base::nomeOpzioneSovraccarico, chiesta.natura.monte),
            natura(base::nomeOpzioneSovraccaricoScavo, chiesta.natura.scavo),
            natura(base::nomeOpzioneCarichiTesta, chiesta.natura.testa)};
}

}  // namespace

std::vector<std::string> opzioni(const AlPostoDelProgetto& alPosto) {
    std::vector<std::string> tutte;
    if (alPosto.metodoSpinte)
        tutte.push_back(opzione(base::nomeOpzioneMetodo.mostrato(),
                                project::nomeMetodo(*alPosto.metodoSpinte)));
    if (alPosto.ricalcolaEJ)
        tutte.push_back(
            opzione(base::nomeOpzioneEJ.mostrato(), base::rigidezzaRicalcolata.mostrato()));
    if (alPosto.nSeg) tutte.push_back(opzione(base::nomeOpzioneNseg.mostrato(), *alPosto.nSeg));
    return tutte;
}

std::vector<std::string> opzioniDette(AlPostoDelProgetto alPosto, std::optional<int> nSeg) {
    alPosto.nSeg.reset();
    if (nSeg && *nSeg != analysis::segmentiPredefiniti) alPosto.nSeg = std::to_string(*nSeg);
    return opzioni(alPosto);
}

std::string comando(const ComandoAllegato& allegato) {
    std::string testo =
        "korven32c " + base::parolaAllegato.mostrato() + " " + base::perLaShell(allegato.progetto);
    const auto aggiungi = [&](const std::string& nome, std::string_view valore) {
        if (!valore.empty()) testo += " " + opzione(nome, valore);
    };
    aggiungi("--pdf", allegato.pdf);
    aggiungi("--doc", allegato.documento);
    aggiungi("--txt", allegato.testo);
    for (const auto& una : opzioni(allegato.alPosto)) testo += " " + una;
    if (allegato.norma)
        for (const auto& una : opzioniNorma(*allegato.norma)) testo += " " + una;
    if (allegato.righe)
        aggiungi(base::nomeOpzioneRighe.mostrato(), std::to_string(*allegato.righe));
    aggiungi(base::nomeOpzioneData.mostrato(), allegato.data);
    aggiungi(base::nomeOpzioneLingua.mostrato(), base::siglaLingua(base::linguaCorrente()));
    return testo;
}

}  // namespace korven::dossier
