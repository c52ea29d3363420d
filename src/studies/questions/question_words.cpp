#include "studies/questions/question_words.hpp"

#include <initializer_list>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "safety/margin_words.hpp"
#include "safety/strength_reduction.hpp"
#include "safety/words.hpp"

namespace korven::studies {

namespace {

using base::traduttore;
namespace unita = project::unita;

struct NomeCriterio {
    Criterio criterio;
    std::string_view parola;
    const char* voce;  ///< what is told of a length that misses it: a key of the texts
};

constexpr NomeCriterio criteri[] = {
    {Criterio::equilibrio, "equilibrio", "nessun equilibrio"},
    {Criterio::riduzione, "riduzione", "riduzione F"},
    {Criterio::spostamento, "spostamento", "spostamento"},
    {Criterio::flessione, "flessione", "flessione"},
    {Criterio::taglio, "taglio", "taglio"},
};

const NomeCriterio& nome(Criterio criterio) { return criteri[static_cast<std::size_t>(criterio)]; }

struct NomeEsito {
    EsitoBloccaggio esito;
    std::string_view parola;
};

constexpr NomeEsito esiti[] = {
    {EsitoBloccaggio::trovato, "trovato"},      {EsitoBloccaggio::maiInOpera, "mai_in_opera"},
    {EsitoBloccaggio::primaCade, "prima_cade"}, {EsitoBloccaggio::maiInPiedi, "mai_in_piedi"},
    {EsitoBloccaggio::sotto, "sotto"},          {EsitoBloccaggio::sopra, "sopra"},
};

std::string frase(std::string_view chiave, std::initializer_list<std::string> valori) {
    return base::riempito(traduttore(chiave), valori);
}

std::string mm(double metri) { return project::numeroMostrato(metri, 1, unita::spostamentoFine); }
std::string kN(double t) { return project::numeroMostrato(t, 2, unita::forzaAlMetro); }
std::string fase(int k) { return std::to_string(k); }

std::string dellaRiduzione(const LunghezzaProvata& provata, const Criteri& chiesti) {
    const std::string chiesta = base::testoNumero(*chiesti.riduzione);
    if (!provata.riduzione)
        return frase("riduzione F sotto %1, chiesta %2",
                     {base::testoNumero(safety::minimaRiduzione), chiesta});
    return frase("riduzione F %1 nella fase %2, chiesta %3",
                 {safety::testoF(provata.riduzione->valore, chiesti.riduzione),
                  fase(provata.riduzione->fase), chiesta});
}

std::string dellUso(Criterio criterio, const std::optional<DiFase>& uso) {
    const std::string cosa = traduttore(nome(criterio).voce);
    if (!uso) return frase("%1: la sezione non ha resistenza", {cosa});
    return frase("%1: sfruttamento %2 % nella fase %3",
                 {cosa, project::numeroMostrato(uso->valore, 1, unita::percento), fase(uso->fase)});
}

std::string mancato(Criterio criterio, const LunghezzaProvata& provata, const Criteri& chiesti) {
    switch (criterio) {
        case Criterio::equilibrio:
            return provata.perche;
        case Criterio::riduzione:
            return dellaRiduzione(provata, chiesti);
        case Criterio::spostamento:
            return frase("spostamento %1 mm nella fase %2, ammessi %3 mm",
                         {mm(provata.spostamento->valore), fase(provata.spostamento->fase),
                          mm(*chiesti.spostamento)});
        case Criterio::flessione:
            return dellUso(criterio, provata.flessione);
        case Criterio::taglio:
            break;
    }
    return dellUso(criterio, provata.taglio);
}

std::string trovata(const RicercaLunghezza& ricerca, const Scala& scala) {
    return frase(
        "La paratia più corta che soddisfa i criteri è lunga %1 m (passo %2 m); li "
        "soddisfano tutte le lunghezze provate da questa fino a %3 m.",
        {safety::metri(ricerca.trovata()->lunghezza), base::testoNumero(scala.passo),
         safety::metri(ricerca.provate.back().lunghezza)});
}

std::string nonTrovata(const RicercaLunghezza& ricerca, const Criteri& chiesti) {
    if (ricerca.provate.empty())
        return traduttore("Nessuna lunghezza da provare: lo scavo più profondo va oltre l'ultima.");
    const LunghezzaProvata& lunga = ricerca.provate.back();
    return frase("Nessuna lunghezza fino a %1 m soddisfa i criteri. Con %1 m: %2.",
                 {safety::metri(lunga.lunghezza), parole(lunga, chiesti)});
}

}  // namespace

std::string_view parola(Criterio criterio) { return nome(criterio).parola; }

std::string inBreve(const LunghezzaProvata& provata) {
    if (provata.basta()) return traduttore("soddisfa i criteri");
    std::string testo;
    for (const Criterio criterio : provata.mancati)
        testo.append(testo.empty() ? "" : ", ").append(traduttore(nome(criterio).voce));
    return testo;
}

std::string parole(const LunghezzaProvata& provata, const Criteri& chiesti) {
    std::string testo;
    for (const Criterio criterio : provata.mancati)
        testo.append(testo.empty() ? "" : base::puntoEVirgola())
            .append(mancato(criterio, provata, chiesti));
    return testo;
}

std::string parole(const Criteri& chiesti) {
    std::string testo = traduttore("equilibrio in ogni fase");
    const auto anche = [&testo](const std::string& criterio) { testo += ", " + criterio; };
    if (chiesti.riduzione)
        anche(frase("riduzione F almeno %1", {base::testoNumero(*chiesti.riduzione)}));
    if (chiesti.spostamento)
        anche(frase(
            "spostamento al più %1 mm",
            {base::testoNumero(project::mostrato(unita::spostamentoFine, *chiesti.spostamento))}));
    if (chiesti.resistenza) anche(traduttore("flessione e taglio della sezione verificati"));
    return testo;
}

std::string spostamentoSbagliato(double metri) {
    constexpr double troppi = 1;
    if (metri < troppi) return {};
    return frase(
        "il limite è in metri, e minore di 1: %1 per %2 mm",
        {base::testoNumero(metri / unita::spostamentoFine.fattore), base::testoNumero(metri)});
}

std::string risposta(const RicercaLunghezza& ricerca, const Criteri& chiesti, const Scala& scala) {
    const std::string detto =
        ricerca.trovata() == nullptr ? nonTrovata(ricerca, chiesti) : trovata(ricerca, scala);
    return detto + ' ' + frase("Criteri: %1.", {parole(chiesti)});
}

std::string_view parola(EsitoBloccaggio esito) {
    return esiti[static_cast<std::size_t>(esito)].parola;
}

std::string risposta(const Bloccaggio& b, int tirante, double forza) {
    const std::string suo = std::to_string(tirante);
    switch (b.esito) {
        case EsitoBloccaggio::trovato:
            return frase(
                "Con pretTirante[%1] = %2 kN/m il tirante ha %3 kN/m alla fine della fase "
                "%4, la prima in cui è in opera.",
                {suo, project::numeroMostrato(b.pretensione, 3, unita::forza), kN(b.forza),
                 fase(b.fase)});
        case EsitoBloccaggio::maiInOpera:
            return frase(
                "Il tirante %1 non è in opera in nessuna fase: aumentare tirantiFase della "
                "fase in cui viene teso.",
                {suo});
        case EsitoBloccaggio::primaCade:
            return frase("La fase %1, prima del tirante %2, non è in equilibrio.",
                         {fase(b.fase), suo});
        case EsitoBloccaggio::maiInPiedi:
            return frase("La fase %1 non è in equilibrio con nessuna pretensione del tirante %2.",
                         {fase(b.fase), suo});
        case EsitoBloccaggio::sotto:
            return frase(
                "%1 kN/m sono troppo pochi: alla fine della fase %2 il tirante ha già %3 "
                "kN/m con la pretensione di %4 kN/m, la più piccola possibile.",
                {kN(forza), fase(b.fase), kN(b.forzaMinima), kN(b.pretMinima)});
        case EsitoBloccaggio::sopra:
            break;
    }
    return frase(
        "%1 kN/m sono troppi: alla fine della fase %2 il tirante arriva a %3 kN/m con la "
        "pretensione di %4 kN/m, la più grande possibile.",
        {kN(forza), fase(b.fase), kN(b.forzaMassima), kN(b.pretMassima)});
}

}  // namespace korven::studies
