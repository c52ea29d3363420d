#include "project/codes.hpp"
#include "report/footer.hpp"
#include "report/sections.hpp"

namespace korven::report {

namespace {

using project::DatiProgetto;

// What the report says of a code, in the order of the codes: a sentence of its own for each, as
// fixed, and not the words that the editor offers.
struct FraseCodice {
    double DatiProgetto::*codice;
    std::string_view frasi[4];
};

constexpr FraseCodice frasiCodici[] = {
    {&DatiProgetto::vincoloTesta,
     {"Condizioni di vincolo della sommità diaframma: libera",
      "Condizioni di vincolo della sommità diaframma: cerniera"}},
    {&DatiProgetto::vincoloPiede,
     {"Condizioni di vincolo del piede diaframma: libero",
      "Condizioni di vincolo del piede diaframma: cerniera",
      "Condizioni di vincolo del piede diaframma: incastro"}},
    {&DatiProgetto::modoSpinte,
     {"Spinte attive e passive ricalcolate ad ogni fase di scavo",
      "Spinte attive e passive costantemente uguali al lato monte"}},
    {&DatiProgetto::modoKs,
     {"Coefficiente di rigidezza ks ricalcolato ad ogni fase di scavo",
      "Coefficiente di rigidezza ks costantemente uguale al lato monte"}},
    {&DatiProgetto::modoTensioni,
     {"Calcolo effettuato in termini di tensioni efficaci",
      "Calcolo effettuato in termini di tensioni totali"}},
    {&DatiProgetto::metodoSpinte,
     {"Spinte attive e passive calcolate con il metodo di Coulomb",
      "Spinte attive e passive calcolate con il metodo di Rankine",
      "Spinte attive e passive calcolate con il metodo di Bell"}},
    {&DatiProgetto::metodoKs,
     {"Coefficiente di rigidezza ks calcolato con il metodo di Bowles",
      "Coefficiente di rigidezza ks calcolato con il metodo di Lancellotta",
      "Coefficiente di rigidezza ks costante in ogni strato di terreno",
      "Coefficiente di rigidezza ks variabile linearmente in ogni strato di terreno"}},
};

// A code without a sentence gives an empty line, so that there are always seven.
std::string_view frase(const FraseCodice& voce, double valore) {
    const project::Campo& campo = project::campo(voce.codice);
    const auto* codice = project::codice(campo, valore);
    return codice != nullptr ? voce.frasi[codice - campo.codici.data()] : std::string_view();
}

using project::Membro;

constexpr Membro colonneStrati[] = {&DatiProgetto::profStrato, &DatiProgetto::gammaN,
                                    &DatiProgetto::gammaSat,   &DatiProgetto::phiStrato,
                                    &DatiProgetto::coesione,   &DatiProgetto::ksStrato};
constexpr Membro colonneTiranti[] = {&DatiProgetto::profTirante, &DatiProgetto::rigTirante,
                                     &DatiProgetto::pretTirante, &DatiProgetto::tipoTirante};
constexpr Membro colonneFasi[] = {&DatiProgetto::profFase, &DatiProgetto::tirantiFase,
                                  &DatiProgetto::sovraccFase, &DatiProgetto::faldaFase};

void tabella(std::string_view titolo, std::span<const Membro> colonne, int quante,
             const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo(titolo);
    righe.riga("#STARTTABLE");
    righe.intestazione(colonne);
    for (int i = 1; i <= quante; ++i) righe.valori(p, colonne, i);
    righe.riga("#ENDTABLE");
    righe.vuota();
}

void parametri(const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo("PARAMETRI DEL DIAFRAMMA");
    for (const auto& voce : frasiCodici) righe.titolo(frase(voce, p.*voce.codice));
    righe.lista({
        voce(p, &DatiProgetto::lunghezzaParatia),
        voce(p, &DatiProgetto::rigidezzaEJ),
        voce(p, &DatiProgetto::coeffM, p.metodoKs == project::MetodoKs::lancellotta),
        voce(p, &DatiProgetto::pressioneOrizz, p.pressioneOrizz != 0),
        voce(p, &DatiProgetto::sovraccMonte),
        voce(p, &DatiProgetto::momentoTesta),
        voce(p, &DatiProgetto::forzaTesta),
        voce(p, &DatiProgetto::inclinazioneMonte),
        voce(p, &DatiProgetto::faldaMonte),
    });
    righe.vuota();
}

}  // namespace

void sezioneApertura(const DatiProgetto& progetto, std::string_view piede, RigheRelazione& righe) {
    righe.riga(std::string("#RESET ").append(paginaRelazione));
    righe.riga("#HEADER Program KORVEN 32");
    righe.riga(std::string("#FOOTER ").append(piede));
    righe.riga("#FONTSIZE 16");
    righe.riga("#CENTER");
    righe.titolo("CALCOLO DIAFRAMMA");
    righe.riga("#LEFT");
    righe.vuota();
    righe.riga("#FONTSIZE 10");
    for (int i = 1; i <= project::numeroTitoli; ++i)
        if (progetto.titoli[i].find_first_not_of(' ') != std::string::npos)
            righe.riga(progetto.titoli[i]);
    righe.vuota();
}

void sezioneDati(const DatiProgetto& progetto, RigheRelazione& righe) {
    tabella("DESCRIZIONE LITOSTRATIGRAFICA", colonneStrati, progetto.nStrati, progetto, righe);
    parametri(progetto, righe);
    if (progetto.nTiranti > 0)
        tabella("DESCRIZIONE TIRANTI", colonneTiranti, progetto.nTiranti, progetto, righe);
    tabella("DESCRIZIONE FASI DI SCAVO", colonneFasi, progetto.nFasi, progetto, righe);
}

}  // namespace korven::report
