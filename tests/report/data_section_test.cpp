#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "report/sections.hpp"
#include "support/report_text.hpp"
#include "support/wall_builder.hpp"

namespace korven::report {
namespace {

using project::DatiProgetto;
using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoKs;
using project::ModoSpinte;
using project::ModoTensioni;
using project::VincoloPiede;
using project::VincoloTesta;
using test::contiene;
using test::progettoVuoto;
using test::righe;

std::vector<std::string> apertura(const DatiProgetto& d) {
    return righe([&](RigheRelazione& r) { sezioneApertura(d, "Piede", r); });
}

std::vector<std::string> dati(const DatiProgetto& d) {
    return righe([&](RigheRelazione& r) { sezioneDati(d, r); });
}

// The seven lines after the title of the wall's parameters.
std::vector<std::string> setteRighe(const DatiProgetto& d) {
    const auto tutte = dati(d);
    const auto titolo = std::find(tutte.begin(), tutte.end(), "PARAMETRI DEL DIAFRAMMA");
    const auto lista = std::find(titolo, tutte.end(), "#STARTLIST");
    return {titolo + 1, lista};
}

TEST(SezioneApertura, OpensTheDocumentInTheOrderThatTheRenderersExpect) {
    EXPECT_EQ(apertura(progettoVuoto()),
              (std::vector<std::string>{"#RESET 2,2,2,2,2,2,12,Arial", "#HEADER Program KORVEN 32",
                                        "#FOOTER Piede", "#FONTSIZE 16", "#CENTER",
                                        "CALCOLO DIAFRAMMA", "#LEFT", "", "#FONTSIZE 10", ""}));
}

TEST(SezioneApertura, WritesTheHeadingsThatAreNotBlankAsTheyAre) {
    auto d = progettoVuoto();
    d.titoli[1] = "  Muro di sponda ";
    d.titoli[2] = "   ";
    d.titoli[4] = "CALCOLO DIAFRAMMA";
    d.titoli[6] = "#non è una direttiva";
    const auto tutte = apertura(d);
    EXPECT_EQ((std::vector<std::string>{tutte.begin() + 9, tutte.end()}),
              (std::vector<std::string>{"  Muro di sponda ", "CALCOLO DIAFRAMMA",
                                        "#non è una direttiva", ""}));
}

TEST(SezioneApertura, NeverLooksAHeadingUp) {
    const test::UnTesto tedesco("Muro", "Mauer");
    auto d = progettoVuoto();
    d.titoli[1] = "Muro";
    EXPECT_TRUE(contiene(apertura(d), "Muro"));
    EXPECT_FALSE(contiene(apertura(d), "Mauer"));
}

TEST(SezioneDati, ShowsALayerInKilonewtons) {
    auto d = progettoVuoto();
    test::aggiungiStrato(d, {.fondo = 4.5,
                             .gammaN = 1.8,
                             .gammaSat = 2.05,
                             .phi = 32.5,
                             .coesione = 0.25,
                             .su = 77,
                             .ks = 1500});
    const auto tutte = dati(d);
    EXPECT_EQ((std::vector<std::string>{tutte.begin(), tutte.begin() + 6}),
              (std::vector<std::string>{
                  "DESCRIZIONE LITOSTRATIGRAFICA", "#STARTTABLE",
                  "Prof. [m]\tGamma [kN/m³]\tGamma Sat. [kN/m³]\tPhi [°]\tCoes. [kN/m²]\t"
                  "ks [kN/m³]",
                  "4.50\t18.00\t20.50\t32.50\t2.50\t15000.00", "#ENDTABLE", ""}));
}

TEST(SezioneDati, ChoosesALineForEachCode) {
    auto d = progettoVuoto();
    test::primiCodici(d);
    EXPECT_EQ(setteRighe(d),
              (std::vector<std::string>{
                  "Condizioni di vincolo della sommità diaframma: libera",
                  "Condizioni di vincolo del piede diaframma: libero",
                  "Spinte attive e passive ricalcolate ad ogni fase di scavo",
                  "Coefficiente di rigidezza ks ricalcolato ad ogni fase di scavo",
                  "Calcolo effettuato in termini di tensioni efficaci",
                  "Spinte attive e passive calcolate con il metodo di Coulomb",
                  "Coefficiente di rigidezza ks calcolato con il metodo di Bowles"}));
    d.vincoloTesta = valore(VincoloTesta::cerniera);
    d.vincoloPiede = valore(VincoloPiede::cerniera);
    d.modoSpinte = valore(ModoSpinte::comeMonte);
    d.modoKs = valore(ModoKs::comeMonte);
    d.modoTensioni = valore(ModoTensioni::totali);
    d.metodoSpinte = valore(MetodoSpinte::rankine);
    d.metodoKs = valore(MetodoKs::lancellotta);
    EXPECT_EQ(setteRighe(d),
              (std::vector<std::string>{
                  "Condizioni di vincolo della sommità diaframma: cerniera",
                  "Condizioni di vincolo del piede diaframma: cerniera",
                  "Spinte attive e passive costantemente uguali al lato monte",
                  "Coefficiente di rigidezza ks costantemente uguale al lato monte",
                  "Calcolo effettuato in termini di tensioni totali",
                  "Spinte attive e passive calcolate con il metodo di Rankine",
                  "Coefficiente di rigidezza ks calcolato con il metodo di Lancellotta"}));
}

TEST(SezioneDati, HasFurtherLinesForTheCodesWithMoreThanTwoValues) {
    auto d = progettoVuoto();
    d.vincoloPiede = valore(VincoloPiede::incastro);
    d.metodoSpinte = valore(MetodoSpinte::bell);
    d.metodoKs = valore(MetodoKs::costante);
    auto sette = setteRighe(d);
    EXPECT_EQ(sette[1], "Condizioni di vincolo del piede diaframma: incastro");
    EXPECT_EQ(sette[5], "Spinte attive e passive calcolate con il metodo di Bell");
    EXPECT_EQ(sette[6], "Coefficiente di rigidezza ks costante in ogni strato di terreno");
    d.metodoKs = valore(MetodoKs::lineare);
    EXPECT_EQ(setteRighe(d)[6],
              "Coefficiente di rigidezza ks variabile linearmente in ogni strato di terreno");
}

TEST(SezioneDati, WritesSevenLinesWhateverTheCodesAndAnEmptyOneForACodeOfItsOwn) {
    for (const double codice : {0.0, -1.0, 5.0, 1.5}) {
        auto d = progettoVuoto();
        d.vincoloTesta = d.vincoloPiede = d.modoSpinte = d.modoKs = d.modoTensioni = codice;
        d.metodoSpinte = d.metodoKs = codice;
        EXPECT_EQ(setteRighe(d), std::vector<std::string>(7)) << codice;
    }
    auto d = progettoVuoto();
    d.vincoloTesta = d.modoSpinte = d.modoKs = d.modoTensioni = 3;  // codes of others
    d.vincoloPiede = d.metodoSpinte = 4;
    EXPECT_EQ(setteRighe(d), std::vector<std::string>(7));
}

TEST(SezioneDati, ListsTheWallInKilonewtonsWithoutTheAxialForce) {
    auto d = progettoVuoto();
    d.lunghezzaParatia = 12.5;
    d.rigidezzaEJ = 12345.6;
    d.coeffM = 0.75;
    d.sovraccMonte = 1.5;
    d.momentoTesta = -0.05;
    d.forzaTesta = 2;
    d.inclinazioneMonte = 10;
    d.faldaMonte = 3.25;
    d.sforzoNormale = 77;
    const std::string lista =
        "#STARTLIST|Lunghezza diaframma [m]\t12.50|Rigidezza EJ diaframma [kN m²]\t123456.00|"
        "Sovraccarico verticale lato monte [kN/m²]\t15.00|"
        "Momento esterno applicato alla sommità del diaframma [kN m]\t-.50|"
        "Forza orizzontale esterna applicata alla sommità del diaframma [kN]\t20.00|"
        "Inclinazione del terreno a monte del diaframma [°]\t10.00|"
        "Profondità falda a monte del diaframma [m]\t3.25|#ENDLIST||";
    EXPECT_TRUE(test::unite(dati(d)).find(lista) != std::string::npos) << test::unite(dati(d));
}

TEST(SezioneDati, ShowsTheCoefficientMOnlyForLancellottasMethod) {
    auto d = progettoVuoto();
    d.coeffM = 0.75;
    for (const double metodo :
         {0.0, valore(MetodoKs::bowles), valore(MetodoKs::costante), valore(MetodoKs::lineare)}) {
        d.metodoKs = metodo;
        EXPECT_FALSE(contiene(dati(d), "Coefficiente 'm' per il calcolo di ks [-]\t0.75"));
    }
    d.metodoKs = valore(MetodoKs::lancellotta);
    EXPECT_TRUE(contiene(dati(d), "Coefficiente 'm' per il calcolo di ks [-]\t0.75"));
    d.coeffM = 0;
    EXPECT_TRUE(contiene(dati(d), "Coefficiente 'm' per il calcolo di ks [-]\t0.00"));
}

TEST(SezioneDati, ShowsTheConstantPressureOfEitherSignUnlessItIsNothing) {
    auto d = progettoVuoto();
    EXPECT_EQ(test::unite(dati(d)).find("Pressione orizzontale"), std::string::npos);
    d.pressioneOrizz = -0.25;
    EXPECT_TRUE(contiene(dati(d), "Pressione orizzontale costante [kN/m²]\t-2.50"));
}

TEST(SezioneDati, ShowsTheAnchorsAndTheirKind) {
    auto d = progettoVuoto();
    test::aggiungiTirante(d, 1.5, 500, 5);
    test::aggiungiTirante(d, 4, 0, 0, 1);
    test::aggiungiTirante(d, 6, 0, 0, 2);
    EXPECT_NE(test::unite(dati(d)).find(
                  "DESCRIZIONE TIRANTI|#STARTTABLE|"
                  "Prof. [m]\tRigidezza [kN/m]\tPretens. [kN]\tTipologia|"
                  "1.50\t5000.00\t50.00\tSolo traz.|4.00\t0.00\t0.00\tTraz./compr.|"
                  "6.00\t0.00\t0.00\tTraz./compr.|#ENDTABLE||DESCRIZIONE FASI DI SCAVO|"),
              std::string::npos)
        << test::unite(dati(d));
}

TEST(SezioneDati, HasNoWordAboutAnchorsWithoutAny) {
    EXPECT_FALSE(contiene(dati(progettoVuoto()), "DESCRIZIONE TIRANTI"));
}

TEST(SezioneDati, ShowsTheStagesWithTheAnchorCountInTwoDecimalsToo) {
    auto d = progettoVuoto();
    test::aggiungiFase(d, {.scavo = 2.5, .falda = 3});
    test::aggiungiFase(d, {.scavo = 5, .tiranti = 1, .sovraccarico = 0.5, .falda = 5});
    const auto tutte = dati(d);
    EXPECT_EQ((std::vector<std::string>{tutte.end() - 7, tutte.end()}),
              (std::vector<std::string>{
                  "DESCRIZIONE FASI DI SCAVO", "#STARTTABLE",
                  "Prof. [m]\tNumero tot. tiranti\tSovracc. [kN/m²]\tProf. falda [m]",
                  "2.50\t0.00\t0.00\t3.00", "5.00\t1.00\t5.00\t5.00", "#ENDTABLE", ""}));
}

}  // namespace
}  // namespace korven::report
