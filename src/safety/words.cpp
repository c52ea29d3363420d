#include "safety/words.hpp"

#include <cmath>
#include <utility>
#include <vector>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"

namespace korven::safety {

namespace {

using base::traduttore;
using equilibrium::DatoInstabile;
using equilibrium::EsitoFase;
using equilibrium::EsitoNewton;
using equilibrium::Instabile;
using equilibrium::Meccanismo;
using equilibrium::PartiAlLimite;
using equilibrium::Tratto;
using project::Unita;
namespace unita = project::unita;

std::string unito(std::string numero, const Unita& u) {
    return std::move(numero) + " " + std::string(u.mostrata);
}

std::string valore(double conservato, const Unita& u) {
    return unito(numeroMostrato(conservato, 1, u), u);
}

// Keeps what is said, parted by a sign, and leaves out what says nothing.
class Elenco {
 public:
    explicit Elenco(std::string segno) : segno_(std::move(segno)) {}
    void aggiungi(const std::string& detto) {
        if (detto.empty()) return;
        if (!testo_.empty()) testo_ += segno_;
        testo_ += detto;
    }
    [[nodiscard]] const std::string& testo() const { return testo_; }

 private:
    std::string segno_, testo_;
};

// What moves and where to, told of the part that moves towards the excavation if the wall has one.
std::string versoDi(const Meccanismo& moto, double paratia) {
    const std::string dove = metri(moto.profondita);
    const bool sopra = dove != metri(0);
    const bool sotto = dove != metri(paratia);
    if (moto.verso > 0) return sotto ? "il piede verso lo scavo" : "la testa verso monte";
    return sopra ? "la testa verso lo scavo" : "il piede verso monte";
}

std::string tratti(std::string_view parte, const std::vector<Tratto>& dove) {
    if (dove.empty()) return {};
    Elenco elenco(", ");
    for (const Tratto& t : dove)
        elenco.aggiungi(t.da == t.a ? metriAllineati(t.da)
                                    : metriAllineati(t.da) + "-" + metriAllineati(t.a));
    return traduttore(parte) + " " + unito(elenco.testo(), unita::metri);
}

std::string lenti(const std::vector<int>& tiranti) {
    if (tiranti.empty()) return {};
    Elenco elenco(", ");
    for (const int tirante : tiranti) elenco.aggiungi(std::to_string(tirante));
    return traduttore(tiranti.size() == 1 ? "tirante lento" : "tiranti lenti") + " " +
           elenco.testo();
}

std::string nodo(const DatoInstabile& dato) {
    return traduttore(dato.monte ? "lato monte" : "lato valle") + ", " + traduttore("profondità") +
           " " + unito(metriAllineati(dato.profondita), unita::metri);
}

// Coefficients and limits of the excavated side are stored negative.
std::string limiti(const DatoInstabile& dato) {
    const double segno = dato.monte ? 1 : -1;
    return "(" + numeroMostrato(segno * dato.valore, 2, unita::pressione) + " > " +
           unito(numeroMostrato(segno * dato.passivo, 2, unita::pressione), unita::pressione) + ")";
}

// @param che  with a place for the stage
std::string nella(std::string_view che, const Diagnosi& d) {
    return base::riempito(traduttore(che), {std::to_string(d.fase)});
}

std::string movimento(const Diagnosi& d) {
    return d.moto ? parole(*d.moto, d.paratia) + base::puntoEVirgola() + mancante(*d.moto)
                  : std::string();
}

std::string rimedio(const Diagnosi& d) {
    if (!d.lunghezza)
        return traduttore(
            "controllare profondità di scavo, tiranti, livelli dell'acqua e carichi in testa");
    return traduttore("di solito aiuta una paratia più lunga: circa") + " " +
           unito(metriAllineati(*d.lunghezza), unita::metri);
}

// What keeps the specified run from it.
std::string_view chiave(Ostacolo ostacolo) {
    switch (ostacolo) {
        case Ostacolo::oscillazione:
            break;
        case Ostacolo::singolare:
            return "soltanto l'iterazione si ferma davanti a un sistema singolare";
        case Ostacolo::limite:
            return "l'iterazione si è fermata al suo limite prima di arrivarvi";
    }
    return "oscilla soltanto l'iterazione";
}

// The same of a stage that stands, in few words.
std::string_view chiaveBreve(Ostacolo ostacolo) {
    switch (ostacolo) {
        case Ostacolo::oscillazione:
            break;
        case Ostacolo::singolare:
            return "fase %1 in equilibrio, ma l'iterazione trova un sistema singolare";
        case Ostacolo::limite:
            return "fase %1 in equilibrio, ma l'iterazione è al suo limite";
    }
    return "fase %1 in equilibrio, ma l'iterazione oscilla";
}

// A caption of the menu without the mark of its access key.
std::string voce(std::string_view chiave) {
    std::string testo = traduttore(chiave);
    std::erase(testo, '&');
    return testo;
}

std::string doveEquilibrio() {
    if (luogoEquilibrio == LuogoEquilibrio::finestra)
        return traduttore("il suo equilibrio si vede in") + " " + voce("St&rumenti") + " > " +
               voce("&Sicurezza");
    return traduttore("il suo equilibrio si calcola con") + " korven32c " +
           comandoEquilibrio.mostrato();
}

}  // namespace

std::string metri(double m) {
    std::string testo = project::numeroMostrato(m, 2);
    if (testo.find('.') == std::string::npos || testo.find('e') != std::string::npos) return testo;
    testo.erase(testo.find_last_not_of('0') + 1);
    if (testo.back() == '.') testo.pop_back();
    return testo;
}

std::string metriAllineati(double m) { return project::numeroMostrato(m, 2); }

std::string parole(const Meccanismo& moto, double paratia) {
    if (moto.traslazione)
        return traduttore(moto.verso > 0 ? "trasla verso lo scavo" : "trasla verso monte");
    return traduttore("ruota attorno alla profondità di") + " " +
           unito(metriAllineati(moto.profondita), unita::metri) + ", " +
           traduttore(versoDi(moto, paratia));
}

std::string mancante(const Meccanismo& moto) {
    const Unita& u = moto.traslazione ? unita::forzaAlMetro : unita::momentoAlMetro;
    if (moto.mancante == 0) return traduttore("è in equilibrio limite, senza alcuna riserva");
    const std::string quanto = numeroMostrato(moto.mancante, 1, u);
    if (quanto == "0.0") return traduttore("mancano meno di") + " " + unito("0.1", u);
    return traduttore("mancano") + " " + unito(quanto, u);
}

std::string parole(const PartiAlLimite& parti) {
    Elenco lati(", ");
    lati.aggiungi(tratti("monte attivo", parti.monteAttivo));
    lati.aggiungi(tratti("monte passivo", parti.montePassivo));
    lati.aggiungi(tratti("valle attivo", parti.valleAttivo));
    lati.aggiungi(tratti("valle passivo", parti.vallePassivo));
    Elenco tutte(base::puntoEVirgola());
    if (!lati.testo().empty())
        tutte.aggiungi(traduttore("al limite") + base::duePunti() + lati.testo());
    tutte.aggiungi(lenti(parti.tirantiLenti));
    return tutte.testo();
}

std::string parole(const DatoInstabile& dato) {
    switch (dato.che) {
        case Instabile::no:
            break;
        case Instabile::modulo:  // stored with the sign of the pressures that it takes away
            return traduttore("modulo di reazione ks negativo") + " (" +
                   valore(-dato.valore, unita::modulo) + "), " + nodo(dato) +
                   base::puntoEVirgola() +
                   traduttore(
                       "controllare i valori di ks: una legge lineare può scendere sotto "
                       "lo zero");
        case Instabile::limiti:
            return traduttore("limite attivo oltre quello passivo") + " " + limiti(dato) + ", " +
                   nodo(dato) + base::puntoEVirgola() +
                   traduttore(
                       "controllare angolo di attrito, coesione, inclinazione del terreno "
                       "e tensioni verticali");
        case Instabile::tirante:
            return traduttore("rigidezza negativa del tirante") + " " +
                   std::to_string(dato.tirante) + " (" +
                   valore(dato.valore, unita::rigidezzaAlMetro) + ")";
        case Instabile::parete:
            return traduttore("rigidezza EJ della paratia non positiva") + " (" +
                   valore(dato.valore, unita::rigidezzaFlessionale) + "/m)";
    }
    return {};
}

std::string parole(EsitoNewton esito) {
    switch (esito) {
        case EsitoNewton::trovato:
            break;
        case EsitoNewton::nessunNumero:
            return traduttore(
                "i numeri sono fuori scala; controllare l'ordine di grandezza dei dati");
        case EsitoNewton::senzaMisura:
            return traduttore(
                "spostamenti oltre mille volte la lunghezza della paratia: nessun "
                "equilibrio utile; controllare rigidezze e carichi");
        case EsitoNewton::nonRaggiunto:
            return traduttore(
                "spostamenti non trovati nel numero massimo di passi; controllare "
                "l'ordine di grandezza dei dati");
    }
    return {};
}

std::string parole(EsitoFase esito) {
    switch (esito) {
        case EsitoFase::equilibrio:
            return traduttore("in equilibrio");
        case EsitoFase::meccanismo:
            return traduttore("meccanismo");
        case EsitoFase::nonDefinito:
            return traduttore("non definito");
        case EsitoFase::nessunNumero:
            break;
    }
    return traduttore("nessun numero");
}

std::string inBreve(const Diagnosi& d) {
    switch (d.causa) {
        case Causa::meccanismo:
            return nella("la paratia è un meccanismo nella fase %1", d) + base::duePunti() +
                   movimento(d);
        case Causa::oscilla:
            return nella("la paratia è in equilibrio nella fase %1", d) + ", " +
                   traduttore("con uno spostamento massimo di") + " " +
                   valore(d.spostamento, unita::spostamentoFine) + base::duePunti() +
                   traduttore(chiave(d.ostacolo));
        case Causa::nonDefinito:
            return nella("l'equilibrio non è definito nella fase %1", d) + base::duePunti() +
                   parole(d.instabile);
        case Causa::nessunNumero:
            return nella("nessun numero nella fase %1", d) + base::duePunti() + parole(d.newton);
        case Causa::eseguito:
        case Causa::rifiutato:
        case Causa::fermato:
            break;
    }
    return {};
}

std::string inPocheParole(const Diagnosi& d) {
    switch (d.causa) {
        case Causa::meccanismo:
            return nella("la paratia è un meccanismo nella fase %1", d) +
                   (d.moto ? base::duePunti() + mancante(*d.moto) : "");
        case Causa::oscilla:
            return base::riempito(traduttore(chiaveBreve(d.ostacolo)), {std::to_string(d.fase)});
        case Causa::nonDefinito:
            return nella("l'equilibrio non è definito nella fase %1", d);
        case Causa::nessunNumero:
            return nella("nessun numero nella fase %1", d);
        case Causa::eseguito:
        case Causa::rifiutato:
        case Causa::fermato:
            break;
    }
    return {};
}

LuogoEquilibrio luogoEquilibrio = LuogoEquilibrio::comando;

std::string frase(const Diagnosi& d) {
    Elenco elenco(base::puntoEVirgola());
    elenco.aggiungi(inBreve(d));
    if (d.causa == Causa::meccanismo) {
        elenco.aggiungi(parole(d.parti));
        elenco.aggiungi(rimedio(d));
    }
    if (d.causa == Causa::oscilla) elenco.aggiungi(doveEquilibrio());
    return elenco.testo();
}

}  // namespace korven::safety
