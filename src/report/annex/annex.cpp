#include "report/annex/annex.hpp"

#include <cassert>
#include <memory>
#include <utility>

#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/project_copy.hpp"

namespace korven::report {

namespace {

using base::traduttore;
using document::Documento;

struct Capitolo {
    const char* titolo;  ///< Italian key; nullptr: that of the code, where the dossier has one
    void (*scrivi)(const Contesto&, Blocchi&);
    bool nuovaPagina;
};

// In the order of the document, behind the cover, which has no number.
constexpr Capitolo capitoli[] = {
    {"Modello e ipotesi", capitoloModello, true},
    {"Osservazioni", capitoloOsservazioni, false},
    {"Dati", capitoloDati, false},
    {"Terreno e rigidezze", capitoloTerreno, false},
    {"Fasi", capitoloFasi, false},
    {"Tiranti e puntoni", capitoloTiranti, false},
    {"Inviluppi", capitoloInviluppi, false},
    {"Verifiche della sezione", capitoloSezione, false},
    {"Margine di sicurezza", capitoloMargine, false},
    {nullptr, capitoloNorma, false},
    {"Terreno nodo per nodo", capitoloNodiTerreno, false},
    {"Come ripetere il documento", capitoloRipetere, false},
};

// What a page that lies alone on a desk must tell: of which project, by which program.
void intesta(const dossier::Fascicolo& f, Documento& d) {
    const std::string& titolo = f.scritti.titoli[1];
    const std::string file = nomeFile(f.identita.file);
    d.titolo = traduttore("Allegato di calcolo");
    if (!file.empty()) d.titolo += " - " + file;
    d.data = f.identita.data;
    d.lingua = base::siglaIso(base::linguaCorrente());
    d.testata[0] = titolo.empty() ? file : (file.empty() ? titolo : file + " - " + titolo);
    d.testata[1] = f.identita.programma + " " + f.identita.versione;
    d.piede = "SHA-256 " + std::string(dossier::inBreve(f.identita.impronta));
    if (auto copia = copiaProgetto(f)) d.allegati.push_back(std::move(*copia));
}

}  // namespace

Documento allegato(dossier::Fascicolo fascicolo, const OpzioniAllegato& opzioni) {
    assert(opzioni.righe >= 2);
    const Contesto contesto{std::make_shared<const dossier::Fascicolo>(std::move(fascicolo)),
                            opzioni};
    Documento d;
    intesta(*contesto.fascicolo, d);
    d.blocchi.emplace_back(document::Titolo{1, traduttore("Allegato di calcolo")});
    capitoloCopertina(contesto, d.blocchi);
    d.blocchi.emplace_back(document::Indice{traduttore("Indice")});
    int numero = 0;
    for (const Capitolo& capitolo : capitoli) {
        if (capitolo.titolo == nullptr && !contesto.fascicolo->norma) continue;
        const std::string titolo = capitolo.titolo == nullptr ? titoloNorma(*contesto.fascicolo)
                                                              : traduttore(capitolo.titolo);
        if (capitolo.nuovaPagina) d.blocchi.emplace_back(document::SaltoPagina{});
        d.blocchi.emplace_back(document::Titolo{1, std::to_string(++numero) + ". " + titolo});
        capitolo.scrivi(contesto, d.blocchi);
    }
    return d;
}

}  // namespace korven::report
