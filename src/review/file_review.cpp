#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/odd_lines.hpp"
#include "review/project_review.hpp"

namespace korven::review {

namespace {

using base::testoNumero;
using base::traduttore;
using project::RigaInsolita;

std::string racconto(const RigaInsolita& insolita) {
    const std::string dove = traduttore("riga") + " " + std::to_string(insolita.riga) + ": ";
    switch (insolita.motivo) {
        case RigaInsolita::Motivo::resto:
            return dove + insolita.campo + " = " + testoNumero(insolita.letto) + ": " +
                   traduttore("il resto della riga non conta, il segno decimale è il punto") +
                   " (" + insolita.testo + ")";
        case RigaInsolita::Motivo::metodoSpinte:
            return dove + insolita.campo + " = " + testoNumero(insolita.letto) + ": " +
                   traduttore("un progetto si riapre sempre con il metodo di Coulomb (1)");
        case RigaInsolita::Motivo::oltreLultima:
            return dove + traduttore(
                              "il file continua dopo l'ultimo valore: i numeri di strati, "
                              "tiranti e fasi potrebbero non essere quelli delle righe scritte");
    }
    return {};
}

}  // namespace

std::vector<Rilievo> esaminaFile(const std::string& percorso, const project::DatiProgetto& dati) {
    std::vector<Rilievo> rilievi = esaminaProgetto(dati);
    auto file = base::LettoreRighe::apri(percorso);
    for (const auto& insolita : project::righeInsolite(file, dati))
        rilievi.push_back({false, racconto(insolita)});
    return rilievi;
}

}  // namespace korven::review
