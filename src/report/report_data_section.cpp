#include "report/report_footer.hpp"
#include "report/report_sections.hpp"

namespace korven::report {

namespace {

using project::DatiProgetto;

// A sentence chosen by a code of the project: the first for 1, the second for 2 and so on.
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
std::string_view frase(const FraseCodice& voce, double codice) {
    for (int i = 0; i < 4; ++i)
        if (codice == i + 1) return voce.frasi[i];
    return {};
}

void strati(const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo("DESCRIZIONE LITOSTRATIGRAFICA");
    righe.riga("#STARTTABLE");
    righe.intestazione({"Prof. [m]", "Gamma [kN/m³]", "Gamma Sat. [kN/m³]", "Phi [°]",
                        "Coes. [kN/m²]", "ks [kN/m³]"});
    for (int i = 1; i <= p.nStrati; ++i)
        righe.valori({p.profStrato[i], p.gammaN[i] * 10, p.gammaSat[i] * 10, p.phiStrato[i],
                      p.coesione[i] * 10, p.ksStrato[i] * 10});
    righe.riga("#ENDTABLE");
    righe.vuota();
}

void parametri(const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo("PARAMETRI DEL DIAFRAMMA");
    for (const auto& voce : frasiCodici) righe.titolo(frase(voce, p.*voce.codice));
    righe.lista({
        {"Lunghezza diaframma [m]", p.lunghezzaParatia},
        {"Rigidezza EJ diaframma [kN m²]", p.rigidezzaEJ * 10},
        {"Coefficiente 'm' per il calcolo di ks [-]", p.coeffM, p.metodoKs == 2},
        {"Pressione orizzontale costante [kN/m²]", p.pressioneOrizz * 10, p.pressioneOrizz != 0},
        {"Sovraccarico verticale lato monte [kN/m²]", p.sovraccMonte * 10},
        {"Momento esterno applicato alla sommità del diaframma [kN m]", p.momentoTesta * 10},
        {"Forza orizzontale esterna applicata alla sommità del diaframma [kN]", p.forzaTesta * 10},
        {"Inclinazione del terreno a monte del diaframma [°]", p.inclinazioneMonte},
        {"Profondità falda a monte del diaframma [m]", p.faldaMonte},
    });
    righe.vuota();
}

void tiranti(const DatiProgetto& p, RigheRelazione& righe) {
    if (p.nTiranti <= 0) return;
    righe.titolo("DESCRIZIONE TIRANTI");
    righe.riga("#STARTTABLE");
    righe.intestazione({"Prof. [m]", "Rigidezza [kN/m]", "Pretens. [kN]", "Tipologia"});
    for (int j = 1; j <= p.nTiranti; ++j)
        righe.valori({p.profTirante[j], p.rigTirante[j] * 10, p.pretTirante[j] * 10},
                     p.tipoTirante[j] == 0 ? "Solo traz." : "Traz./compr.");
    righe.riga("#ENDTABLE");
    righe.vuota();
}

void fasi(const DatiProgetto& p, RigheRelazione& righe) {
    righe.titolo("DESCRIZIONE FASI DI SCAVO");
    righe.riga("#STARTTABLE");
    righe.intestazione({"Prof. [m]", "Numero tot. tiranti", "Sovracc. [kN/m²]", "Prof. falda [m]"});
    for (int k = 1; k <= p.nFasi; ++k)
        righe.valori({p.profFase[k], p.tirantiFase[k], p.sovraccFase[k] * 10, p.faldaFase[k]});
    righe.riga("#ENDTABLE");
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
    for (int i = 1; i <= 6; ++i)
        if (progetto.titoli[i].find_first_not_of(' ') != std::string::npos)
            righe.riga(progetto.titoli[i]);
    righe.vuota();
}

void sezioneDati(const DatiProgetto& progetto, RigheRelazione& righe) {
    strati(progetto, righe);
    parametri(progetto, righe);
    tiranti(progetto, righe);
    fasi(progetto, righe);
}

}  // namespace korven::report
