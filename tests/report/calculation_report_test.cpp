#include "report/calculation_report.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"
#include "support/failing_disk.hpp"
#include "support/hand_written_results.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_builder.hpp"

namespace korven::report {
namespace {

using project::fileCorrente;
using project::Progetto;
using test::contenuto;
using test::faseFerma;
using test::faseScritta;
using test::RisultatiAMano;

// A wall of 3 m in 3 segments, one anchor that comes into place in stage 2.
project::DatiProgetto muroPiccolo() {
    using project::DatiProgetto;
    return test::muro()
        .titolo(1, "Muro di prova")
        .titolo(3, " Sponda destra")
        .lungo(3)
        .rigido(12345.6)
        .strato({.fondo = 10, .coesione = 0.5})
        .con(&DatiProgetto::metodoKs, 2)
        .con(&DatiProgetto::coeffM, 0.7)
        .con(&DatiProgetto::pressioneOrizz, 0.25)
        .sovraccarico(1)
        .con(&DatiProgetto::momentoTesta, -0.05)
        .falda(2.5)
        .tirante(1, 500, 5)
        .fase({.scavo = 0.5, .falda = 2.5})
        .fase({.scavo = 1.5, .tiranti = 1, .falda = 2.5})
        .dati();
}

const std::vector<std::string>& fasiPiccole() {
    static const std::vector<std::string> fasi = {
        faseScritta(
            {{"0.002", "0", "0"}, {"0.001", "0.5", "1"}, {"0", "0.25", "1"}, {"0", "0", "0"}}),
        faseScritta({{"0.003", "0", "0"},
                     {"0.004", "-12.5", "3"},
                     {"0.0012345", "50", "2"},
                     {"-.0001", "0", "0"}}),
    };
    return fasi;
}

constexpr const char* chiusuraPiccola = "800000000\r\n-1000000000\r\n50\r\n-12.5\r\n1.4\r\n";

// What every report of the small wall begins with.
constexpr const char* fineAiTiranti =
    "#RESET 2,2,2,2,2,2,12,Arial\n"
    "#HEADER Program KORVEN 32\n"
    "#FOOTER KORVEN 32 1.1.0 – muro.OUT – Coulomb – 3 segmenti – nessun coefficiente di sicurezza "
    "sul terreno\n"
    "#FONTSIZE 16\n"
    "#CENTER\n"
    "CALCOLO DIAFRAMMA\n"
    "#LEFT\n"
    "\n"
    "#FONTSIZE 10\n"
    "Muro di prova\n"
    " Sponda destra\n"
    "\n"
    "DESCRIZIONE LITOSTRATIGRAFICA\n"
    "#STARTTABLE\n"
    "Prof. [m]\tGamma [kN/m³]\tGamma Sat. [kN/m³]\tPhi [°]\tCoes. [kN/m²]\tks [kN/m³]\n"
    "10.00\t18.00\t20.00\t30.00\t5.00\t15000.00\n"
    "#ENDTABLE\n"
    "\n"
    "PARAMETRI DEL DIAFRAMMA\n"
    "Condizioni di vincolo della sommità diaframma: libera\n"
    "Condizioni di vincolo del piede diaframma: libero\n"
    "Spinte attive e passive ricalcolate ad ogni fase di scavo\n"
    "Coefficiente di rigidezza ks ricalcolato ad ogni fase di scavo\n"
    "Calcolo effettuato in termini di tensioni efficaci\n"
    "Spinte attive e passive calcolate con il metodo di Coulomb\n"
    "Coefficiente di rigidezza ks calcolato con il metodo di Lancellotta\n"
    "#STARTLIST\n"
    "Lunghezza diaframma [m]\t3.00\n"
    "Rigidezza EJ diaframma [kN m²]\t123456.00\n"
    "Coefficiente 'm' per il calcolo di ks [-]\t0.70\n"
    "Pressione orizzontale costante [kN/m²]\t2.50\n"
    "Sovraccarico verticale lato monte [kN/m²]\t10.00\n"
    "Momento esterno applicato alla sommità del diaframma [kN m]\t-.50\n"
    "Forza orizzontale esterna applicata alla sommità del diaframma [kN]\t0.00\n"
    "Inclinazione del terreno a monte del diaframma [°]\t0.00\n"
    "Profondità falda a monte del diaframma [m]\t2.50\n"
    "#ENDLIST\n"
    "\n"
    "DESCRIZIONE TIRANTI\n"
    "#STARTTABLE\n"
    "Prof. [m]\tRigidezza [kN/m]\tPretens. [kN]\tTipologia\n"
    "1.00\t5000.00\t50.00\tSolo traz.\n"
    "#ENDTABLE\n"
    "\n"
    "DESCRIZIONE FASI DI SCAVO\n"
    "#STARTTABLE\n"
    "Prof. [m]\tNumero tot. tiranti\tSovracc. [kN/m²]\tProf. falda [m]\n"
    "0.50\t0.00\t0.00\t2.50\n"
    "1.50\t1.00\t0.00\t2.50\n"
    "#ENDTABLE\n"
    "\n"
    "RISULTATI FASE 1\n"
    "#STARTTABLE\n"
    "Profondità [m]\tSpostamento [cm]\tMomento [kN m]\n"
    "0.00\t0.20\t0.00\n"
    "1.00\t0.10\t5.00\n"
    "2.00\t0.00\t2.50\n"
    "3.00\t0.00\t0.00\n"
    "#ENDTABLE\n"
    "\n"
    "RISULTATI FASE 2\n"
    "#STARTTABLE\n"
    "Profondità [m]\tSpostamento [cm]\tMomento [kN m]\n"
    "0.00\t0.30\t0.00\n"
    "1.00\t0.40\t-125.00\n"
    "2.00\t0.12\t500.00\n"
    "3.00\t-.01\t0.00\n"
    "#ENDTABLE\n"
    "\n"
    "MASSIME TENSIONI APPLICATE AI TIRANTI\n"
    "\n"
    "#STARTTABLE\n"
    "Prof. tirante [m]\tTensione max. [kN]\n"
    "1.00\t65.00\n"  // 5 + 500 (0.004 - 0.001) t
    "#ENDTABLE\n"
    "\n";

constexpr const char* flessione =
    "VERIFICA DEI MOMENTI FLETTENTI\n"
    "\n"
    "#STARTLIST\n"
    "Momento resistente di calcolo (pos.) [kN m]\t1000.00\n"
    "Momento resistente di calcolo (neg.) [kN m]\t-800.00\n"
    "Momento massimo applicato (pos) [kN m]\t500.00\n"
    "Momento massimo applicato (neg) [kN m]\t-125.00\n"
    "F.S. parziale delle azioni [-]\t1.40\n"
    "Momento massimo di calcolo applicato (pos) [kN m]\t700.00\n"
    "Momento massimo di calcolo applicato (neg) [kN m]\t-175.00\n"
    "#ENDLIST\n"
    "\n"
    "Condizioni di sicurezza verificate (momento positivo)\n"
    "Condizioni di sicurezza verificate (momento negativo)\n";

std::string bytesCrLf(std::string_view testo) {
    std::string file;
    for (const char c : testo) file += c == '\n' ? "\r\n" : std::string(1, c);
    return base::inCp1252(file);
}

// The report that the result file of the small wall with a section gives.
std::string relazionePiccola(const project::Sezione& sezione) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    Progetto.sezione = sezione;
    file.scrivi(Progetto, fasiPiccole(), chiusuraPiccola);
    EXPECT_EQ(scriviRelazione(), file.cartella / "muro.TAB");
    return contenuto(file.cartella / "muro.TAB");
}

TEST(ScriviRelazione, EndsAfterTheAnchorForcesForASectionThatIsNotDefined) {
    EXPECT_EQ(relazionePiccola({}), bytesCrLf(std::string(fineAiTiranti) + "#ENDDOCUMENT\n"));
}

TEST(ScriviRelazione, WritesTheWholeReportOfADiaphragm) {
    EXPECT_EQ(relazionePiccola(structure::diaframmaArmatoAValle()),
              bytesCrLf(std::string(fineAiTiranti) +
                        "CALCOLO STRUTTURALE DIAFRAMMA\n"
                        "ARMATURA LATO VALLE\n"
                        "\n"
                        "#STARTLIST\n"
                        "Diametro armature [mm]\t24.00\n"
                        "Interasse armature [mm]\t200.00\n"
                        "Copriferro [mm]\t50.00\n"
                        "#ENDLIST\n"
                        "\n"
                        "CARATTERISTICHE DEI MATERIALI\n"
                        "\n"
                        "#STARTLIST\n"
                        "Modulo elastico acciaio [N/mm²]\t200000.00\n"
                        "Modulo elastico CLS [N/mm²]\t30000.00\n"
                        "Resistenza limite acciaio Fyk [N/mm²]\t430.00\n"
                        "Resistenza limite CLS Fck [N/mm²]\t25.00\n"
                        "#ENDLIST\n"
                        "\n" +
                        flessione + "#ENDDOCUMENT\n"));
}

TEST(ScriviRelazione, WritesTheWholeReportOfTubePiles) {
    EXPECT_EQ(relazionePiccola(structure::paliTubolari()),
              bytesCrLf(std::string(fineAiTiranti) +
                        "CALCOLO STRUTTURALE PALIFICATA\n"
                        "\n"
                        "#STARTLIST\n"
                        "Diametro esterno [mm]\t600.00\n"
                        "Diametro interno [mm]\t580.00\n"
                        "Interasse armature [mm]\t800.00\n"
                        "#ENDLIST\n"
                        "\n"
                        "CARATTERISTICHE DEI MATERIALI\n"
                        "\n"
                        "#STARTLIST\n"
                        "Modulo elastico acciaio [N/mm²]\t200000.00\n"
                        "Modulo elastico CLS [N/mm²]\t30000.00\n"
                        "Resistenza limite acciaio Fyk [N/mm²]\t430.00\n"
                        "Resistenza limite CLS Fck [N/mm²]\t25.00\n"
                        "#ENDLIST\n"
                        "\n" +
                        flessione + "#ENDDOCUMENT\n"));
}

TEST(ScriviRelazione, WritesTheWholeReportOfASheetPile) {
    EXPECT_EQ(relazionePiccola(structure::palancola()),
              bytesCrLf(std::string(fineAiTiranti) +
                        "CALCOLO STRUTTURALE PALANCOLA\n"
                        "\n"
                        "#STARTLIST\n"
                        "Larghezza totale elemento [mm]\t400.00\n"
                        "Larghezza ala [mm]\t100.00\n"
                        "Altezza ala [mm]\t190.00\n"
                        "Spessore palancola [mm]\t20.00\n"
                        "Spessore ala [mm]\t12.00\n"
                        "#ENDLIST\n"
                        "\n"
                        "CARATTERISTICHE DEI MATERIALI\n"
                        "\n"
                        "#STARTLIST\n"
                        "Modulo elastico acciaio [N/mm²]\t200000.00\n"
                        "Resistenza limite acciaio Fyk [N/mm²]\t430.00\n"
                        "#ENDLIST\n"
                        "\n" +
                        flessione + "#ENDDOCUMENT\n"));
}

// The shear of the last stage: at the anchor 2 x 2 - 0 = 4 t below it and 4 - (5 + 500 x 0.003) =
// -2.5 t above it, so Vmax is 4 t. The resistances of one pile are worked by
// hand in structure_section_test.cpp.
TEST(ScriviRelazione, WritesTheWholeReportOfReinforcedPilesWithTheirShearCheck) {
    auto s = structure::paliArmati();
    s.armDiamPalo = 60;
    s.armInterasse = 80;
    s.armDiamLong = 2;
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    s.fck = 40;
    s.fyk = 460;
    EXPECT_EQ(relazionePiccola(s),
              bytesCrLf(std::string(fineAiTiranti) +
                        "CALCOLO STRUTTURALE PALI ARMATI\n"
                        "\n"
                        "#STARTLIST\n"
                        "Diametro pali [mm]\t600.00\n"
                        "Diametro armature longitudinali [mm]\t20.00\n"
                        "Numero armature logitudinali [-]\t120.00\n"
                        "Copriferro armature logitudinali [mm]\t60.00\n"
                        "Diametro staffe [mm]\t10.00\n"
                        "Passo staffe [mm]\t200.00\n"
                        "#ENDLIST\n"
                        "\n"
                        "CARATTERISTICHE DEI MATERIALI\n"
                        "\n"
                        "#STARTLIST\n"
                        "Modulo elastico acciaio [N/mm²]\t200000.00\n"
                        "Modulo elastico CLS [N/mm²]\t30000.00\n"
                        "Resistenza limite acciaio Fyk [N/mm²]\t460.00\n"
                        "Resistenza limite CLS Fck [N/mm²]\t40.00\n"
                        "#ENDLIST\n"
                        "\n" +
                        flessione +
                        "\n"
                        "VERIFICA AL TAGLIO\n"
                        "#STARTLIST\n"
                        "Diametro staffe [mm]\t10.00\n"
                        "Passo staffe [mm]\t200.00\n"
                        "Capacità portante bielle CLS - Vrd2 [kN]\t2235.93\n"
                        "Capacità portante armatura d'anima - Vrd3 [kN]\t460.59\n"
                        "Taglio massimo agente sulla struttura [kN]\t40.00\n"
                        "Coeff. di sicurezza parziale [-]\t1.40\n"
                        "Taglio massimo di calcolo - Vsd [kN]\t56.00\n"
                        "#ENDLIST\n"
                        "#ENDDOCUMENT\n"));
}

TEST(ScriviRelazione, SaysCoulombAfterARunWithRankineOrBell) {
    for (const double metodo : {2.0, 3.0}) {
        RisultatiAMano file(3);
        Progetto = muroPiccolo();
        Progetto.metodoSpinte = metodo;
        file.scrivi(Progetto, fasiPiccole());
        const std::string relazione = contenuto(scriviRelazione());
        EXPECT_NE(relazione.find("calcolate con il metodo di Coulomb"), std::string::npos);
        EXPECT_EQ(Progetto.metodoSpinte, 1);
    }
}

TEST(ScriviRelazione, NamesTheMethodOfTheRunAtTheFootOfThePages) {
    const std::pair<double, const char*> casi[] = {
        {1, " \x96 Coulomb \x96 "}, {2, " \x96 Rankine \x96 "}, {3, " \x96 Bell \x96 "}};
    for (const auto& [metodo, nome] : casi) {
        RisultatiAMano file(3);
        Progetto = muroPiccolo();
        Progetto.metodoSpinte = metodo;
        file.scrivi(Progetto, fasiPiccole());
        const std::string relazione = contenuto(scriviRelazione());
        const auto piede = relazione.find("#FOOTER ");
        EXPECT_NE(relazione.substr(piede, relazione.find('\r', piede) - piede).find(nome),
                  std::string::npos)
            << nome;
    }
}

TEST(ScriviRelazione, NamesTheProjectOfTheRunAtTheFootOfThePages) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    file.scrivi(Progetto, fasiPiccole());
    project::progettiProtetti.corrente = file.cartella / "muro.vecchio.kvd";
    const std::string relazione = contenuto(scriviRelazione());
    project::progettiProtetti = {};
    EXPECT_NE(relazione.find(" \x96 muro.vecchio.kvd \x96 Coulomb"), std::string::npos);
}

TEST(ScriviRelazione, ShowsTheHeadingsInMemoryNotThoseOfTheFile) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    file.scrivi(Progetto, fasiPiccole());
    Progetto.titoli[1] = "Titolo nuovo";
    const std::string relazione = contenuto(scriviRelazione());
    EXPECT_NE(relazione.find("\r\nTitolo nuovo\r\n"), std::string::npos);
    EXPECT_EQ(relazione.find("Muro di prova"), std::string::npos);
}

TEST(ScriviRelazione, CutsItsNameAtTheFirstPointOfTheWholePath) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    std::filesystem::create_directory(file.cartella / "lavori.2026");
    fileCorrente = file.cartella / "lavori.2026/muro.OUT";
    file.scrivi(Progetto, fasiPiccole());
    std::filesystem::rename(file.percorso(), fileCorrente);
    EXPECT_EQ(scriviRelazione(), file.cartella / "lavori.TAB");
    EXPECT_FALSE(std::filesystem::exists(file.cartella / "lavori.2026/muro.TAB"));
    EXPECT_TRUE(std::filesystem::exists(file.cartella / "lavori.TAB"));
}

TEST(ScriviRelazione, ReplacesTheReportOfAnEarlierRun) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    file.scrivi(Progetto, fasiPiccole());
    test::metti(file.cartella / "muro.TAB", std::string(100000, 'x'));
    const std::string relazione = contenuto(scriviRelazione());
    EXPECT_TRUE(relazione.starts_with("#RESET"));
    EXPECT_TRUE(relazione.ends_with("#ENDDOCUMENT\r\n"));
}

TEST(ScriviRelazione, LeavesAnEarlierReportAloneWhenTheResultsAreBroken) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    file.scrivi(Progetto, {faseFerma(4)});
    test::metti(file.cartella / "muro.TAB", "vecchia");
    EXPECT_THROW(scriviRelazione(), base::ErroreFile);
    EXPECT_EQ(contenuto(file.cartella / "muro.TAB"), "vecchia");
}

TEST(ScriviRelazione, LeavesAnEarlierReportAloneOnAFullDisk) {
    RisultatiAMano file(3);
    Progetto = muroPiccolo();
    file.scrivi(Progetto, fasiPiccole());
    test::metti(file.cartella / "muro.TAB", "vecchia");
    const test::DiscoPieno disco(1000);
    EXPECT_THROW(scriviRelazione(disco), base::ErroreScrittura);
    EXPECT_EQ(contenuto(file.cartella / "muro.TAB"), "vecchia");
}

}  // namespace
}  // namespace korven::report
