#include "base/translated_texts.hpp"
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

}  // namespace

tables::Prospetto prospettoEsclusi() {
    tables::Prospetto p{
        .titolo = traduttore("Che cosa non si calcola"),
        .colonne = {colonna("Che cosa manca"), colonna("Che cosa ne viene"), colonna("Fonte")}};
    for (const Escluso& e : esclusi)
        p.righe.push_back({parola(conLettereGreche(traduttore(e.cosa))),
                           parola(conLettereGreche(traduttore(e.lato))), parola(e.fonte)});
    return p;
}

}  // namespace korven::report
