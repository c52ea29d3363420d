#include "project/field_table.hpp"

#include <algorithm>
#include <cassert>
#include <charconv>

#include "project/codes.hpp"

namespace korven::project {

namespace {

// A code name is the member as it is written, and stays it.
#define CODICE(tipo, nome, voce) \
    { valore(tipo::nome), #nome, voce }
#define DEL_PROGETTO(membro) &DatiProgetto::membro, #membro
#define DELLA_SEZIONE(membro) &Sezione::membro, "sezione." #membro

constexpr Codice vincoliTesta[] = {CODICE(VincoloTesta, libera, "libera"),
                                   CODICE(VincoloTesta, cerniera, "cerniera")};
constexpr Codice vincoliPiede[] = {CODICE(VincoloPiede, libero, "libero"),
                                   CODICE(VincoloPiede, cerniera, "cerniera"),
                                   CODICE(VincoloPiede, incastro, "incastro")};
constexpr Codice modiSpinte[] = {
    CODICE(ModoSpinte, ricalcolate, "ricalcolate ad ogni fase di scavo"),
    CODICE(ModoSpinte, comeMonte, "costantemente uguali al lato monte")};
constexpr Codice modiKs[] = {CODICE(ModoKs, ricalcolato, "ricalcolato ad ogni fase di scavo"),
                             CODICE(ModoKs, comeMonte, "costantemente uguale al lato monte")};
constexpr Codice modiTensioni[] = {CODICE(ModoTensioni, efficaci, "efficaci"),
                                   CODICE(ModoTensioni, totali, "totali")};
constexpr Codice metodiSpinte[] = {CODICE(MetodoSpinte, coulomb, "Coulomb"),
                                   CODICE(MetodoSpinte, rankine, "Rankine"),
                                   CODICE(MetodoSpinte, bell, "Bell")};
constexpr Codice metodiKs[] = {CODICE(MetodoKs, bowles, "Bowles"),
                               CODICE(MetodoKs, lancellotta, "Lancellotta"),
                               CODICE(MetodoKs, costante, "costante in ogni strato"),
                               CODICE(MetodoKs, lineare, "lineare in ogni strato")};
constexpr Codice tipiTirante[] = {CODICE(TipoTirante, soloTrazione, "Solo traz."),
                                  CODICE(TipoTirante, trazioneCompressione, "Traz./compr.")};

constexpr std::string_view mai;  // of what no editor and no report shows
constexpr auto senzaLimiti = std::nullopt;
constexpr Limiti tra(double minimo, double massimo) { return {minimo, massimo}; }
// Of a code that is typed as its number.
constexpr Limiti tra(std::span<const Codice> codici) {
    return {codici.front().valore, codici.back().valore};
}

using enum Parte;

constexpr Campo tabella[] = {
    {DEL_PROGETTO(nStrati), strati, "numero degli strati", mai, unita::nessuna,
     tra(0, massimoStrati)},
    {DEL_PROGETTO(profStrato), strati, "profondità dello strato", "Prof.", unita::metri,
     tra(0, 1000)},
    {DEL_PROGETTO(gammaN), strati, "peso naturale dello strato", "Gamma", unita::peso, tra(0, 40)},
    {DEL_PROGETTO(gammaSat), strati, "peso saturo dello strato", "Gamma Sat.", unita::peso,
     tra(0, 40)},
    {DEL_PROGETTO(phiStrato), strati, "angolo di attrito dello strato", "Phi", unita::gradi,
     tra(0, 60)},
    {DEL_PROGETTO(coesione), strati, "coesione dello strato", "Coes.", unita::pressione,
     tra(0, 10000)},
    {DEL_PROGETTO(suStrato), strati, "resistenza non drenata dello strato", mai, unita::pressione},
    {DEL_PROGETTO(ksStrato), strati, "modulo ks dello strato", "ks", unita::modulo,
     tra(0, 10000000)},
    {DEL_PROGETTO(descrStrato), strati, "descrizione dello strato", "Descrizione", unita::nessuna},

    {DEL_PROGETTO(vincoloTesta), paratia, "vincolo in testa", "Vincolo della sommità",
     unita::nessuna, senzaLimiti, vincoliTesta},
    {DEL_PROGETTO(vincoloPiede), paratia, "vincolo al piede", "Vincolo del piede", unita::nessuna,
     senzaLimiti, vincoliPiede},
    {DEL_PROGETTO(modoSpinte), paratia, "opzione delle spinte", "Spinte attive e passive",
     unita::nessuna, senzaLimiti, modiSpinte},
    {DEL_PROGETTO(modoKs), paratia, "opzione di ks", "Coefficiente di rigidezza ks", unita::nessuna,
     senzaLimiti, modiKs},
    {DEL_PROGETTO(modoTensioni), paratia, "opzione delle tensioni", "Tensioni", unita::nessuna,
     senzaLimiti, modiTensioni},
    {DEL_PROGETTO(opzioneRiservata), paratia, "opzione riservata", mai, unita::nessuna},
    {DEL_PROGETTO(metodoSpinte), paratia, "metodo delle spinte", "Metodo per le spinte",
     unita::nessuna, senzaLimiti, metodiSpinte},
    {DEL_PROGETTO(metodoKs), paratia, "metodo di ks", "Metodo per ks", unita::nessuna, senzaLimiti,
     metodiKs},
    {DEL_PROGETTO(lunghezzaParatia), paratia, "lunghezza della paratia", "Lunghezza diaframma",
     unita::metri, tra(0, 100)},
    {DEL_PROGETTO(rigidezzaEJ), paratia, "rigidezza EJ", "Rigidezza EJ diaframma",
     unita::rigidezzaFlessionale, tra(0, 1000000000)},
    {DEL_PROGETTO(coeffM), paratia, "coefficiente m", "Coefficiente 'm' per il calcolo di ks",
     unita::numero, tra(0, 100000)},
    {DEL_PROGETTO(pressioneOrizz), paratia, "pressione orizzontale",
     "Pressione orizzontale costante", unita::pressione, tra(-1000, 1000)},
    {DEL_PROGETTO(sovraccMonte), paratia, "sovraccarico a monte",
     "Sovraccarico verticale lato monte", unita::pressione, tra(0, 5000)},
    {DEL_PROGETTO(momentoTesta), paratia, "momento in testa",
     "Momento esterno applicato alla sommità del diaframma", unita::momento, tra(-100000, 100000)},
    {DEL_PROGETTO(forzaTesta), paratia, "forza in testa",
     "Forza orizzontale esterna applicata alla sommità del diaframma", unita::forza,
     tra(-100000, 100000)},
    {DEL_PROGETTO(inclinazioneMonte), paratia, "inclinazione del terreno a monte",
     "Inclinazione del terreno a monte del diaframma", unita::gradi, tra(-60, 60)},
    {DEL_PROGETTO(faldaMonte), paratia, "falda a monte", "Profondità falda a monte del diaframma",
     unita::metri, tra(-100, 1000)},
    {DEL_PROGETTO(faldaValle), paratia, "falda a valle", mai, unita::metri},
    {DEL_PROGETTO(gammaAcqua), paratia, "peso dell'acqua", "Peso specifico dell'acqua",
     unita::pesoAcqua, tra(0, 1.5)},

    {DEL_PROGETTO(nTiranti), tiranti, "numero dei tiranti", mai, unita::nessuna,
     tra(0, massimoTiranti)},
    {DEL_PROGETTO(profTirante), tiranti, "profondità del tirante", "Prof.", unita::metri,
     tra(0, 100)},
    {DEL_PROGETTO(rigTirante), tiranti, "rigidezza del tirante", "Rigidezza", unita::rigidezza,
     tra(0, 100000000)},
    {DEL_PROGETTO(pretTirante), tiranti, "pretensione del tirante", "Pretens.", unita::forza,
     tra(0, 100000)},
    {DEL_PROGETTO(tipoTirante), tiranti, "tipo del tirante", "Tipologia", unita::nessuna,
     tra(tipiTirante), tipiTirante},

    {DEL_PROGETTO(nFasi), fasi, "numero delle fasi", mai, unita::nessuna, tra(0, massimoFasi)},
    {DEL_PROGETTO(profFase), fasi, "profondità della fase", "Prof.", unita::metri, tra(0, 100)},
    {DEL_PROGETTO(tirantiFase), fasi, "numero dei tiranti della fase", "Numero tot. tiranti",
     unita::nessuna, tra(0, massimoTiranti)},
    {DEL_PROGETTO(sovraccFase), fasi, "sovraccarico della fase", "Sovracc.", unita::pressione,
     tra(0, 5000)},
    {DEL_PROGETTO(faldaFase), fasi, "falda della fase", "Prof. falda", unita::metri,
     tra(-100, 1000)},

    {DEL_PROGETTO(titoli), titoli, "titolo", "Titolo", unita::nessuna},

    {DELLA_SEZIONE(copriferroMonte), diaframma, "copriferro a monte", "Copriferro", unita::misura},
    {DELLA_SEZIONE(copriferroValle), diaframma, "copriferro a valle", "Copriferro", unita::misura},
    {DELLA_SEZIONE(interasseMonte), diaframma, "interasse delle armature a monte",
     "Interasse armature", unita::misura},
    {DELLA_SEZIONE(interasseValle), diaframma, "interasse delle armature a valle",
     "Interasse armature", unita::misura},
    {DELLA_SEZIONE(diametroMonte), diaframma, "diametro delle armature a monte",
     "Diametro armature", unita::misura},
    {DELLA_SEZIONE(diametroValle), diaframma, "diametro delle armature a valle",
     "Diametro armature", unita::misura},
    {DELLA_SEZIONE(spessoreDiaframma), diaframma, "spessore del diaframma", "Spessore",
     unita::misura},
    {DELLA_SEZIONE(modEacciaio), materiali, "modulo elastico dell'acciaio",
     "Modulo elastico acciaio", unita::tensione},
    {DELLA_SEZIONE(modEcls), materiali, "modulo elastico del calcestruzzo", "Modulo elastico CLS",
     unita::tensione},
    {DELLA_SEZIONE(fyk), materiali, "resistenza fyk", "Resistenza limite acciaio Fyk",
     unita::tensione},
    {DELLA_SEZIONE(fck), materiali, "resistenza fck", "Resistenza limite CLS Fck", unita::tensione},
    {DELLA_SEZIONE(tipoDiaframma), diaframma, "tipo diaframma (0 o -1)", "Diaframma continuo",
     unita::nessuna},
    {DELLA_SEZIONE(tipoPali), pali, "tipo pali (0 o -1)", "Pali affiancati", unita::nessuna},
    {DELLA_SEZIONE(paliDiamEst), pali, "diametro esterno dei pali", "Diametro esterno",
     unita::misura},
    {DELLA_SEZIONE(paliDiamInt), pali, "diametro interno dei pali", "Diametro interno",
     unita::misura},
    {DELLA_SEZIONE(paliInterasse), pali, "interasse dei pali", "Interasse pali", unita::misura},

    {DELLA_SEZIONE(tipoPalancola), palancola, "tipo palancola (0 o -1)", "Palancola",
     unita::nessuna},
    {DELLA_SEZIONE(palancolaBase), palancola, "base della palancola", "Larghezza piatto",
     unita::misura},
    {DELLA_SEZIONE(palancolaLargAla), palancola, "larghezza dell'ala", "Larghezza ala",
     unita::misura},
    {DELLA_SEZIONE(palancolaAltAla), palancola, "altezza dell'ala", "Altezza ala", unita::misura},
    {DELLA_SEZIONE(palancolaSpessore), palancola, "spessore della palancola", "Spessore palancola",
     unita::misura},
    {DELLA_SEZIONE(palancolaSpessAla), palancola, "spessore dell'ala", "Spessore ala",
     unita::misura},

    {DELLA_SEZIONE(tipoPaliArmati), paliArmati, "tipo pali armati (0 o -1)",
     "Pali armati affiancati", unita::nessuna},
    {DELLA_SEZIONE(armInterasse), paliArmati, "interasse dei pali armati", "Interasse pali",
     unita::misura},
    {DELLA_SEZIONE(armDiamLong), paliArmati, "diametro delle barre",
     "Diametro armature longitudinali", unita::misura},
    {DELLA_SEZIONE(armDiamPalo), paliArmati, "diametro dei pali armati", "Diametro pali",
     unita::misura},
    {DELLA_SEZIONE(armPassoStaffe), paliArmati, "passo delle staffe", "Passo staffe",
     unita::misura},
    {DELLA_SEZIONE(armDiamStaffe), paliArmati, "diametro delle staffe", "Diametro staffe",
     unita::misura},
    {DELLA_SEZIONE(armNumLong), paliArmati, "numero delle barre", "Numero armature logitudinali",
     unita::numeroBarre},
    {DELLA_SEZIONE(armCopriferro), paliArmati, "copriferro delle barre",
     "Copriferro armature logitudinali", unita::misura},

    {DEL_PROGETTO(sforzoNormale), paratia, "sforzo normale", "Sforzo normale", unita::forza,
     tra(-100000, 100000)},
};

#undef CODICE
#undef DEL_PROGETTO
#undef DELLA_SEZIONE

}  // namespace

std::span<const Campo> campi() { return tabella; }

const Campo& campo(const Membro& membro) {
    const auto* trovato = std::find_if(std::begin(tabella), std::end(tabella),
                                       [&](const Campo& c) { return c.membro == membro; });
    assert(trovato != std::end(tabella));
    return *trovato;
}

const Codice* codice(const Campo& campo, double conservato) {
    const auto trovato =
        std::find_if(campo.codici.begin(), campo.codici.end(),
                     [conservato](const Codice& c) { return c.valore == conservato; });
    return trovato == campo.codici.end() ? nullptr : &*trovato;
}

std::string etichetta(const Campo& campo) { return etichetta(campo.didascalia, campo.unita); }

std::optional<Parte> parteInVigore(const Sezione& sezione) {
    for (const auto flag : tipiSezione)
        if (sezione.*flag) return campo(flag).parte;
    return std::nullopt;
}

int righe(const DatiProgetto& dati, Parte parte) {
    switch (parte) {
        case strati:
            return dati.nStrati;
        case tiranti:
            return dati.nTiranti;
        case fasi:
            return dati.nFasi;
        case titoli:
            return numeroTitoli;
        default:
            return 1;
    }
}

bool colonna(const Campo& campo) {
    return std::visit([]<class Record, class T>(T Record::*) { return eTabella<T>; }, campo.membro);
}

std::string nomeStabile(const Campo& campo, int riga) {
    return std::string(campo.nome) + (colonna(campo) ? "[" + std::to_string(riga) + "]" : "");
}

std::optional<CampoNominato> campoNominato(std::string_view nome) {
    const auto fine = std::min(nome.find('['), nome.size());
    const auto campo = std::find_if(std::begin(tabella), std::end(tabella),
                                    [&](const Campo& c) { return c.nome == nome.substr(0, fine); });
    if (campo == std::end(tabella)) return {};
    CampoNominato trovato{campo, 1};
    if (fine < nome.size())
        std::from_chars(nome.data() + fine + 1, nome.data() + nome.size(), trovato.riga);
    return nomeStabile(*campo, trovato.riga) == nome ? std::optional(trovato) : std::nullopt;
}

double numeroConservato(const DatiProgetto& dati, const Campo& campo, int riga) {
    assert(!colonna(campo) || (riga >= 1 && riga <= righe(dati, campo.parte)));
    double trovato = 0;
    conValore(dati, campo, riga, [&trovato](const auto& valore) {
        using Valore = std::remove_cvref_t<decltype(valore)>;
        if constexpr (std::is_same_v<Valore, double>) trovato = valore;
    });
    return trovato;
}

double mostrato(const DatiProgetto& dati, const Campo& campo, int riga) {
    return mostrato(campo, numeroConservato(dati, campo, riga));
}

}  // namespace korven::project
