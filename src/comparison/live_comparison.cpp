#include "comparison/live_comparison.hpp"

#include <filesystem>
#include <utility>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "project/project_file.hpp"
#include "review/project_review.hpp"

namespace korven::comparison {

namespace {

using base::riempito;
using base::traduttore;

std::string nomeDelFile(const std::string& percorso) {
    return std::filesystem::path(percorso).filename().string();
}

// As opening it would give it. The file of the open project keeps the method with which it was
// saved: nobody has opened it since.
project::DatiProgetto letto(const std::string& percorso, bool delProgettoAperto) {
    project::DatiProgetto dati;
    project::azzera(dati);
    auto file = base::LettoreRighe::apri(percorso);
    const double metodo = project::leggiDati(file, dati);
    if (delProgettoAperto) dati.metodoSpinte = metodo;
    return dati;
}

// Both by their names, or by their paths where the names are one.
std::pair<std::string, std::string> nomi(const std::string& prima, const std::string& dopo) {
    const auto inLavorazione = [](const std::string& nome) {
        return riempito(traduttore("%1 (in lavorazione)"), {nome});
    };
    const std::string uno = nomeDelFile(prima), altro = nomeDelFile(dopo);
    if (prima == dopo) return {riempito(traduttore("%1 (salvato)"), {uno}), inLavorazione(altro)};
    if (uno == altro) return {prima, inLavorazione(dopo)};
    return {uno, inLavorazione(altro)};
}

bool stessa(const DomandaConfronto& a, const DomandaConfronto& b) {
    return a.prima == b.prima && a.dopo == b.dopo && a.nSeg == b.nSeg;
}

}  // namespace

void ConfrontoVivo::guarda(const project::DatiProgetto* aperto, const std::string& file,
                           std::optional<int> nSeg) {
    if (aperto == nullptr) return impedito(traduttore("Nessun progetto aperto"));
    const std::string& primo = percorso_.empty() ? file : percorso_;
    if (percorso_.empty() && !base::esisteFile(file))
        return impedito(traduttore(
            "Il progetto non è ancora stato salvato: non c'è uno stato con cui confrontarlo."));
    try {
        auto [uno, altro] = nomi(primo, file);
        DomandaConfronto domanda{.prima = {std::move(uno), primo, letto(primo, primo == file)},
                                 .dopo = {std::move(altro), file, *aperto},
                                 .nSeg = nSeg};
        if (!review::mostrabile(domanda.prima.dati) || !review::mostrabile(domanda.dopo.dati))
            return impedito(base::ErroreValore().what());
        if (!ultima_ || !stessa(*ultima_, domanda)) chiedi(std::move(domanda));
    } catch (const base::ErroreFile& errore) {
        impedito(errore.what());
    }
}

void ConfrontoVivo::chiedi(DomandaConfronto domanda) {
    impedimento_.clear();
    domanda.numero = ++numero_;
    ultima_ = std::move(domanda);
    domanda_ = ultima_;
}

void ConfrontoVivo::impedito(std::string perche) {
    impedimento_ = std::move(perche);
    ultima_.reset();
    domanda_.reset();
    confronto_.reset();
}

bool ConfrontoVivo::rispondi(int numero, std::shared_ptr<const Confronto> confronto) {
    if (!domanda_ || numero != numero_) return false;
    domanda_.reset();
    confronto_ = std::move(confronto);
    return true;
}

void ConfrontoVivo::rinuncia(int numero, const std::string& perche) {
    if (!domanda_ || numero != numero_) return;
    const auto fallita = std::move(ultima_);
    impedito(perche);
    ultima_ = fallita;  // nor is it asked again before something changes
}

}  // namespace korven::comparison
