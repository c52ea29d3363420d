// The command `serie` from outside.

#include <signal.h>

#include <chrono>
#include <nlohmann/json.hpp>
#include <sstream>
#include <thread>

#include "batch/series_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::contenuto;
using test::dice;
using test::linee;
using test::Serie;

TEST_F(Serie, WritesARowForEachVariantInTheirOrder) {
    const auto esito = serie(studio());
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const auto righe = linee(esito.uscita);
    ASSERT_EQ(righe.size(), 61u);
    EXPECT_TRUE(righe[0].starts_with("variante,lunghezzaParatia [m],sovraccMonte [kN/m²],causa,"))
        << righe[0];
    EXPECT_TRUE(righe[1].starts_with("1,9,0,meccanismo,rotazione,")) << righe[1];
    EXPECT_TRUE(righe[3].starts_with("3,9,40,meccanismo,"));
    EXPECT_TRUE(righe[60].starts_with("60,18.5,40,eseguito,,,"));
    EXPECT_TRUE(dice(esito.errori, "Varianti: 60; ")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Serie, GivesTheSameBytesWithAnyNumberOfThreadsAndInParts) {
    const std::string uno = serie(studio({"-j", "1"})).uscita;
    EXPECT_EQ(serie(studio({"-j", "4", "--silenzioso"})).uscita, uno);
    std::string insieme;
    for (const char* parte : {"1/3", "2/3", "3/3"})
        insieme += serie(studio({"--parte", parte})).uscita;
    EXPECT_EQ(insieme, uno);
}

TEST_F(Serie, WritesObjectsALineForPrograms) {
    const auto esito = serie(studio({"--json", "--silenzioso"}));
    EXPECT_EQ(esito.errori, "");
    const auto righe = linee(esito.uscita);
    ASSERT_EQ(righe.size(), 60u);
    const Json ultima = Json::parse(righe.back());
    EXPECT_EQ(ultima["variante"], 60);
    EXPECT_EQ(ultima["lunghezzaParatia"], 18.5);
    EXPECT_EQ(ultima["causa"], "eseguito");
    EXPECT_TRUE(ultima["motivo"].is_null());
    EXPECT_GT(ultima["spostamento_massimo_m"].get<double>(), 0);
}

TEST_F(Serie, BearsItsNameOnlyOnceItIsDone) {
    const std::string tutto = serie(studio()).uscita;
    const auto esito = serie(studio({"--uscita", file}));
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.uscita, "File scritto: " + file)) << esito.uscita;
    EXPECT_EQ(contenuto(file), tutto);
    EXPECT_FALSE(fs::exists(parziale));
}

TEST_F(Serie, GoesOnWithTheBytesOfAStudyThatWasNeverInterrupted) {
    const auto intero = serie(studio());
    // Cut in the middle of a row.
    test::metti(parziale, intero.uscita.substr(0, intero.uscita.size() / 2));
    const auto esito = serie(studio({"--uscita", file, "--riprendi"}));
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(contenuto(file), intero.uscita);
    EXPECT_EQ(esito.errori, intero.errori);  // what it comes to is the same too
    // Without a file it begins.
    fs::remove(file);
    EXPECT_EQ(serie(studio({"--uscita", file, "--riprendi"})).codice, 0);
    EXPECT_EQ(contenuto(file), intero.uscita);
}

TEST_F(Serie, LeavesTheFileOfAnotherStudyAloneUnlessItBeginsAnew) {
    const std::string altro =
        serie({"--griglia", "lunghezzaParatia=9:18.5:0.5", "--griglia", "sovraccMonte=1:41:20"})
            .uscita;
    test::metti(parziale, altro);
    const auto esito = serie(studio({"--uscita", file, "--riprendi"}));
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, "altro studio")) << esito.errori;
    EXPECT_EQ(contenuto(parziale), altro);
    EXPECT_EQ(serie(studio({"--uscita", file})).codice, 0);
    EXPECT_FALSE(fs::exists(parziale));
    EXPECT_EQ(contenuto(file), serie(studio()).uscita);
}

TEST_F(Serie, EndsWithinASecondOfAnInterruptAndKeepsWhatIsDone) {
    const std::vector<std::string> argomenti = {"serie",     progetto,
                                                "--griglia", "phiStrato[1]=20:40:0.001",
                                                "--griglia", "sovraccMonte=0:99:1",
                                                "--uscita",  file};
    test::ProgrammaInCorso programma(KORVEN_CONSOLE, argomenti);
    ASSERT_TRUE(programma.aspettaSegnale(SIGINT));
    for (int i = 0; i < 200 && !(fs::exists(parziale) && fs::file_size(parziale) > 20000); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const auto prima = std::chrono::steady_clock::now();
    programma.segnale(SIGINT);
    programma.segnale(SIGINT);  // as `timeout` does: one request, and no second one
    const auto esito = programma.attendi();
    EXPECT_LT(std::chrono::steady_clock::now() - prima, std::chrono::seconds(5));  // a busy machine
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "Studio interrotto: ")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, parziale));
    const auto righe = linee(contenuto(parziale));
    EXPECT_GT(righe.size(), 10u);
    EXPECT_TRUE(righe.back().starts_with(std::to_string(righe.size() - 1) + ",")) << righe.back();
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(Serie, ComputesSomeVariantsBothWays) {
    const auto esito = serie(studio({"--controllo", "20"}));
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "3 varianti calcolate in ambedue i modi: 0 diverse"))
        << esito.errori;
}

TEST_F(Serie, ChoosesColumnsAndComputesTheMarginWhereItIsAskedFor) {
    const auto righe = linee(
        serie({"--griglia", "phiStrato[1]=30:32:2", "--colonne", "riduzione,tiro_2_kN"}).uscita);
    ASSERT_EQ(righe.size(), 3u);
    EXPECT_EQ(righe[0], "variante,phiStrato[1] [°],causa,tiro_2_kN,riduzione");
    EXPECT_TRUE(righe[2].starts_with("2,32,eseguito,"));
    const std::string F = righe[2].substr(righe[2].rfind(',') + 1);
    EXPECT_GT(std::stod(F), 1);
    const auto sicure = linee(serie({"--griglia", "phiStrato[1]=32:32:1", "--sicurezza"}).uscita);
    EXPECT_TRUE(dice(sicure[0], ",riduzione,")) << sicure[0];
    EXPECT_TRUE(dice(sicure[0], "lunghezza_minima_esito"));
}

TEST_F(Serie, ComesToTheSameWhateverColumnsAreWritten) {
    const std::string tutto = serie(studio()).errori;
    EXPECT_TRUE(dice(tutto, "Varianti in equilibrio, per l'uso che in ciascuna")) << tutto;
    EXPECT_TRUE(dice(tutto, "Varianti in equilibrio, ma con un uso maggiore di 100 %")) << tutto;
    for (const char* colonne : {"passiva_usata", "spostamento_massimo_m", "causa"})
        EXPECT_EQ(serie(studio({"--colonne", colonne})).errori, tutto) << colonne;
    // What was not written is not there to be read again.
    const auto poche = serie(studio({"--colonne", "causa"}));
    test::metti(parziale, poche.uscita.substr(0, poche.uscita.size() / 2));
    const auto ripresa = serie(studio({"--colonne", "causa", "--uscita", file, "--riprendi"}));
    EXPECT_EQ(contenuto(file), poche.uscita);
    EXPECT_TRUE(dice(ripresa.errori, "Varianti riprese dal file: 2")) << ripresa.errori;
}

TEST_F(Serie, TakesTheSpecifiedRunInThePlaceOfTheEquilibrium) {
    const std::vector<std::string> griglia = {"--griglia", "phiStrato[1]=30:30:1", "--colonne",
                                              "spostamento_massimo_m,momento_massimo_kNm"};
    auto iterazione = griglia;
    iterazione.insert(iterazione.end(), {"--soluzione", "iterazione"});
    const auto spostamento = [&](const std::vector<std::string>& argomenti) {
        const auto righe = linee(serie(argomenti).uscita);
        std::istringstream campi(righe.at(1));
        std::string campo;
        for (int i = 0; i < 4; ++i) std::getline(campi, campo, ',');
        return std::stod(campo);
    };
    EXPECT_NEAR(spostamento(iterazione), spostamento(griglia), 1e-7);
}

TEST_F(Serie, TellsHowProbableFailureIsAndDrawsAResult) {
    const std::string disegno = cartella / "grafico.svg";
    const auto esito = serie({"--campioni", "500", "--legge", "phiStrato[1]=normale(32,2)",
                              "--legge", "sovraccMonte=uniforme(0,40)", "--grafico",
                              "momento_massimo_kNm", "--svg", disegno, "--uscita", file});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "con il 95 % di confidenza tra 0 e 0.00762")) << esito.errori;
    EXPECT_TRUE(dice(contenuto(disegno), "<svg"));
    const auto altro = serie({"--griglia", "phiStrato[1]=20:30:1", "--grafico",
                              "spostamento_massimo_m", "--svg", disegno});
    EXPECT_EQ(altro.codice, 0) << altro.errori;
    EXPECT_TRUE(dice(contenuto(disegno), "<svg"));
    EXPECT_EQ(serie({"--griglia", "phiStrato[1]=20:30:1", "--svg", disegno}).codice, 2);
}

TEST_F(Serie, DrawsAResultThatIsNoColumnOtherwise) {
    const std::string disegno = cartella / "grafico.svg";
    const auto esito = serie({"--griglia", "phiStrato[1]=30:32:2", "--colonne", "tiro_2_kN",
                              "--grafico", "riduzione", "--svg", disegno});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(linee(esito.uscita).at(0), "variante,phiStrato[1] [°],causa,tiro_2_kN,riduzione");
    EXPECT_TRUE(dice(contenuto(disegno), "<svg"));
}

TEST_F(Serie, SaysWhyAResultIsNone) {
    const std::pair<std::vector<std::string>, const char*> casi[] = {
        {{"--grafico", "causa"}, "--grafico causa: si disegnano i numeri"},
        {{"--grafico", "z_taglio_m"}, "--grafico z_taglio_m: si disegnano i numeri"},
        {{"--grafico", "nope"}, "--grafico nope: nessun risultato si chiama così: ci sono causa, "},
        {{"--colonne", "momento_massimo_kN"},
         "--colonne momento_massimo_kN: nessun risultato si chiama così; forse "
         "momento_massimo_kNm?"},
        {{"--colonne", "tiro_9_kN"}, "ci sono causa, "},
    };
    for (const auto& [opzioni, detto] : casi) {
        std::vector<std::string> argomenti{"--griglia", "phiStrato[1]=20:30:1"};
        argomenti.insert(argomenti.end(), opzioni.begin(), opzioni.end());
        if (opzioni[0] == "--grafico")
            argomenti.insert(argomenti.end(), {"--svg", cartella / "grafico.svg"});
        const auto esito = serie(argomenti);
        EXPECT_EQ(esito.codice, 2) << opzioni[1];
        EXPECT_TRUE(dice(esito.errori, detto)) << esito.errori;
        EXPECT_EQ(esito.uscita, "");
    }
}

TEST_F(Serie, AsksBeforeMoreVariantsThanAnybodyMeans) {
    const std::vector<std::string> griglia{"--griglia", "lunghezzaParatia=8:12:0.0000001",
                                           "--uscita", file};
    const auto esito = serie(griglia);
    EXPECT_EQ(esito.codice, 2);
    EXPECT_TRUE(dice(esito.errori, "40000001 varianti: le righe prenderanno circa "))
        << esito.errori;
    EXPECT_TRUE(dice(esito.errori, " GB, il calcolo circa ")) << esito.errori;
    EXPECT_FALSE(fs::exists(parziale));
    auto parte = griglia;  // a part that is small enough is none of its business
    parte.insert(parte.end(), {"--parte", "1/4000001", "--silenzioso"});
    EXPECT_EQ(serie(parte).codice, 0);
}

TEST_F(Serie, SaysWhichFieldsChangeNothing) {
    const auto esito = serie(
        {"--griglia", "opzioneRiservata=0:3:1", "--griglia", "sezione.spessoreDiaframma=60:80:10"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.errori,
                     "opzioneRiservata: da 0 a 3 nessun risultato cambia, in questo progetto "
                     "com'è."))
        << esito.errori;
    const bool scritta = dice(esito.errori, "La rigidezza EJ resta quella scritta");
    EXPECT_EQ(scritta, project::leggiDaFile(progetto).rigidezzaEJ != 0) << esito.errori;
    EXPECT_FALSE(dice(serie(studio()).errori, "nessun risultato cambia"));
}

TEST_F(Serie, EndsWith3ForAValueThatItsFieldDoesNotTake) {
    EXPECT_EQ(serie({"--griglia", "phiStrato[1]=50:70:10"}).codice, 3);
    EXPECT_EQ(serie({"--griglia", "nStrati=1:3:0.5"}).codice, 3);
    EXPECT_EQ(serie({"--griglia", "phiStrato[1]=50:abc:10"}).codice, 2);
    const auto legge = serie({"--campioni", "10", "--legge", "gammaAcqua=normale(12,2)"});
    EXPECT_EQ(legge.codice, 3);
    EXPECT_TRUE(dice(legge.errori, "media della legge: ")) << legge.errori;
    EXPECT_EQ(legge.uscita, "");
}

TEST_F(Serie, TellsFirstOfAllThatManyValuesWereSetToALimit) {
    const auto esito = serie({"--campioni", "100", "--legge", "gammaAcqua=normale(1.4,0.1)"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const auto molti = esito.errori.find("limite del campo, e posti al limite. I risultati non");
    EXPECT_LT(molti, esito.errori.find("Varianti: 100;")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, " valori su 100 oltre 1.5 t/m³,")) << esito.errori;
}

TEST_F(Serie, SaysThatAPartHasNoVariants) {
    const auto vuota = serie({"--griglia", "phiStrato[1]=30:31:1", "--parte", "3/3"});
    EXPECT_EQ(vuota.codice, 0);
    EXPECT_EQ(vuota.uscita, "");
    EXPECT_TRUE(dice(vuota.errori, "Alla parte 3 di 3 non toccano varianti: in tutto sono 2."))
        << vuota.errori;
    EXPECT_FALSE(dice(vuota.errori, "Varianti: 0")) << vuota.errori;
}

TEST_F(Serie, RefusesWrongUsage) {
    const std::vector<std::vector<std::string>> casi = {
        {},
        {"--griglia", "phiStrato[1]=8:27:1", "--piano", "p.csv"},
        {"--campioni", "10"},
        {"--legge", "phiStrato[1]=normale(32,2)"},
        {"--griglia", "phiStrato[1]=8:27:1", "--ipercubo"},
        {"--griglia", "phiStrato[1]=8:27:1", "--riprendi"},
        {"--griglia", "phiStrato[1]=8:27:1", "--parte", "3/2"},
        {"--griglia", "phiStrato[1]=8:27:1", "--parte", "0/2"},
        {"--griglia", "phiStrato[1]=8:27:1", "-j", "0"},
        {"--griglia", "phiStrato[9]=8:27:1"},
        {"--griglia", "phiStrato[1]=8:27"},
    };
    for (const auto& caso : casi) {
        const auto esito = serie(caso);
        EXPECT_EQ(esito.codice, 2) << (caso.empty() ? "" : caso.back()) << esito.errori;
        EXPECT_EQ(esito.uscita, "");
    }
}

TEST_F(Serie, TellsLineAndColumnOfAFaultOfAPlanAndWritesNothing) {
    test::metti(cartella / "piano.csv",
                "phiStrato[1],lunghezzaParatia\n30,12\n31,\"12,5\"\n99,12\n");
    const auto esito = serie({"--piano", cartella / "piano.csv", "--uscita", file});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, "3")) << esito.errori;  // the line of the comma
    EXPECT_TRUE(dice(esito.errori, "4")) << esito.errori;  // and that of 99 degrees
    EXPECT_FALSE(fs::exists(file) || fs::exists(parziale));
    EXPECT_EQ(serie({"--piano", cartella / "non_c_e.csv"}).codice, 3);
}

TEST_F(Serie, NeverTakesThePlaceOfTheProjectOrItsResults) {
    const std::string prima = contenuto(progetto);
    EXPECT_EQ(serie(studio({"--uscita", progetto})).codice, 3);
    EXPECT_EQ(serie(studio({"--uscita", cartella / "muro.OUT"})).codice, 3);
    EXPECT_EQ(contenuto(progetto), prima);
    test::metti(cartella / "piano.csv", "phiStrato[1]\n30\n");
    EXPECT_EQ(serie({"--piano", cartella / "piano.csv", "--uscita", cartella / "piano.csv"}).codice,
              2);
    EXPECT_EQ(contenuto(cartella / "piano.csv"), "phiStrato[1]\n30\n");
}

TEST_F(Serie, TellsOfAReaderThatHasGone) {
    const auto esito = console({"serie", progetto, "--griglia", "phiStrato[1]=20:40:0.001"},
                               {.uscitaNonLetta = true});
    EXPECT_EQ(esito.codice, 3);
}

TEST_F(Serie, SaysWhatIsDangerousInTheProjectFirst) {
    std::string testo = contenuto(progetto);
    const auto esito = serie({"--griglia", "phiStrato[1]=30:30:1", "--nseg", "2"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "--nseg")) << esito.errori;
}

}  // namespace
}  // namespace korven::batch
