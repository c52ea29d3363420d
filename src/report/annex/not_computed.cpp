#include <cmath>
#include <string>
#include <vector>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/greek_letters.hpp"
#include "report/annex/model_tables.hpp"
#include "report/annex/sources.hpp"

namespace korven::report {

using base::traduttore;
using tables::parola;

namespace {

struct Escluso {
    const char* cosa;  ///< Italian keys
    const char* lato;  ///< to which side it errs, and who does it where
    const char* fonte;
};

constexpr Escluso esclusi[] = {
    {"Coefficienti parziali sulle resistenze del terreno.",
     "Le resistenze sono quelle scritte, fuorché nelle combinazioni di una norma, dove il "
     "documento le ha; il capitolo Margine dice di quanto si potrebbero ridurre.",
     fonti::coefficientiParziali},
    {"Attrito fra terreno e paratia: non c'è, delta = 0 sui due lati.",
     "ka è maggiore e kp minore che con l'attrito: per le spinte dalla parte sicura.",
     fonti::attrito},
    {"Memoria del terreno: il terreno che ha raggiunto il limite ritorna elastico, senza "
     "deformazione permanente.",
     "Da valutare dove una fase scarica il terreno (tiranti molto tesi, reinterri, puntoni "
     "tolti): la pressione vera dipende dalla storia.",
     fonti::memoria},
    {"Filtrazione, sifonamento e sollevamento del fondo dello scavo.",
     "Da verificare a parte dove l'acqua a monte è più alta che a valle: il moto verso l'alto "
     "toglie peso e resistenza al terreno davanti al piede, dalla parte non sicura.",
     fonti::filtrazione},
    {"Stabilità globale del versante e della paratia con il terreno.",
     "Da verificare a parte, con superfici sotto il piede e dietro gli ancoraggi.",
     fonti::stabilitaGlobale},
    {"Capacità portante verticale della paratia e cedimenti del terreno attorno.",
     "Da verificare a parte: le forze verticali dei tiranti e il peso della paratia non entrano "
     "nel calcolo.",
     fonti::verticale},
    {"Resistenza dei tiranti, dei bulbi e dei puntoni: qui c'è la loro forza.",
     "Da verificare a parte, con le forze di questo allegato, che sono orizzontali e per metro di "
     "paratia.",
     fonti::ancoraggi},
    {"Azioni sismiche e carichi concentrati sul terreno.",
     "Vanno aggiunte nei dati come pressione orizzontale costante, sovraccarico o carico in testa: "
     "il programma da sé non le mette.",
     fonti::azioni},
    {"Instabilità locale delle palancole e scorrimento nei loro giunti.",
     "Da verificare a parte: in un profilo a U che scorre nei giunti inerzia e resistenza sono "
     "minori, dalla parte non sicura.",
     fonti::palancole},
};

// The largest reaction of a restraint in size, of the stages that stand.
struct Reazione {
    const project::Unita& unita;
    const char* dove;  ///< Italian key
    double (*valore)(const dossier::BilancioFase&);
    tables::Cella (*cella)(double);
};

const Reazione reazioni[] = {
    {project::unita::forzaAlMetro, "in testa %1 %2 (fase %3)",
     [](const dossier::BilancioFase& b) { return b.cerniera.forza; }, tables::forza},
    {project::unita::forzaAlMetro, "al piede %1 %2 (fase %3)",
     [](const dossier::BilancioFase& b) { return b.piede.forza; }, tables::forza},
    {project::unita::momentoAlMetro, "al piede %1 %2 (fase %3)",
     [](const dossier::BilancioFase& b) { return b.incastro.momento; }, tables::momento},
};

std::string maggiore(const Reazione& r, const std::vector<dossier::BilancioFase>& bilanci) {
    const dossier::BilancioFase* massima = nullptr;
    for (const auto& b : bilanci)
        if (massima == nullptr || std::fabs(r.valore(b)) > std::fabs(r.valore(*massima)))
            massima = &b;
    if (massima == nullptr || r.valore(*massima) == 0) return {};
    return base::riempito(traduttore(r.dove),
                          {r.cella(r.valore(*massima)).testo, std::string(r.unita.mostrata),
                           std::to_string(massima->fase)});
}

// What holds a restrained end is no part of the model: its reaction is all that is known of it.
std::string reazioniMaggiori(const dossier::Fascicolo& f) {
    std::string tutte;
    for (const Reazione& r : reazioni)
        if (const std::string una = maggiore(r, f.bilanci); !una.empty())
            tutte += (tutte.empty() ? std::string() : base::puntoEVirgola()) + una;
    if (tutte.empty()) return traduttore("Da verificare a parte.");
    return base::riempito(traduttore("Da verificare a parte con la reazione, nella fase in cui è "
                                     "maggiore: %1."),
                          {tutte});
}

bool vincolata(const project::DatiProgetto& dati) {
    return dati.vincoloTesta == project::VincoloTesta::cerniera ||
           dati.vincoloPiede == project::VincoloPiede::cerniera ||
           dati.vincoloPiede == project::VincoloPiede::incastro;
}

}  // namespace

tables::Prospetto prospettoEsclusi(const dossier::Fascicolo& f) {
    tables::Prospetto p{
        .titolo = traduttore("Che cosa non si calcola"),
        .colonne = {colonna("Che cosa manca"), colonna("Che cosa ne viene"), colonna("Fonte")}};
    for (const Escluso& e : esclusi)
        p.righe.push_back({parola(conLettereGreche(traduttore(e.cosa))),
                           parola(conLettereGreche(traduttore(e.lato))), parola(e.fonte)});
    if (vincolata(f.parete.dati))
        p.righe.push_back({parola(traduttore("Resistenza di ciò che vincola la paratia in testa o "
                                             "al piede, terreno, roccia o struttura: il calcolo "
                                             "la prende senza limite.")),
                           parola(reazioniMaggiori(f)), parola(fonti::vincoli)});
    return p;
}

}  // namespace korven::report
