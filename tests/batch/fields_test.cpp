// The commands `campi` and `imposta` from outside.

#include <filesystem>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "project/typed_field.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::contenuto;
using test::dice;

class Campi : public test::BancoConsole {
 protected:
    test::EsitoProgramma campi(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"campi", progetto});
        return console(altri);
    }
    test::EsitoProgramma imposta(std::vector<std::string> altri) const {
        altri.insert(altri.begin(), {"imposta", progetto, "--uscita", nuovo});
        return console(altri);
    }

    std::string nuovo = cartella / "nuovo.kvd";
};

TEST_F(Campi, AreListedWithValueUnitAndWhatMayBeWritten) {
    const auto esito = campi();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.errori, "");
    const auto riga = [&esito](const std::string& nome) {
        const auto da = esito.uscita.find('\n' + nome + ' ');
        EXPECT_NE(da, std::string::npos) << nome;
        std::istringstream parole(esito.uscita.substr(da, esito.uscita.find('\n', da + 1) - da));
        std::string testo;
        for (std::string parola; parole >> parola;) testo += (testo.empty() ? "" : " ") + parola;
        return testo;
    };
    EXPECT_EQ(riga("phiStrato[2]"), "phiStrato[2] 34 ° angolo di attrito dello strato 2 0 ... 60");
    EXPECT_EQ(riga("gammaN[1]"), "gammaN[1] 18 kN/m³ peso naturale dello strato 1 0 ... 40");
    EXPECT_EQ(riga("vincoloTesta"), "vincoloTesta 1 vincolo in testa 1 (libera), 2 (cerniera)");
    EXPECT_EQ(riga("sezione.tipoPali"), "sezione.tipoPali 0 Pali affiancati 0 ... 1");
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Campi, AreATableWithAllTheirDigits) {
    auto d = test::progettoSemplice();
    d.coesione[1] = 0.0123457;
    d.titoli[2] = "a, \"b\"";
    scrivi(d);
    const auto esito = campi({"--csv", cartella / "c.csv", "--silenzioso"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.uscita, "");
    const std::string tabella = contenuto(cartella / "c.csv");
    EXPECT_TRUE(tabella.starts_with("campo,cosa,unita,valore,minimo,massimo,codici\r\n"));
    EXPECT_TRUE(
        dice(tabella, "\r\ncoesione[1],coesione dello strato 1,kN/m²,0.123457,0,10000,\r\n"))
        << tabella;
    EXPECT_TRUE(
        dice(tabella, "\r\nvincoloTesta,vincolo in testa,,1,,,\"1 (libera), 2 (cerniera)\""));
    EXPECT_TRUE(dice(tabella, "\r\ntitoli[2],titolo 2,,\"a, \"\"b\"\"\",,,\r\n")) << tabella;
}

// What is listed is taken back, of every delivered wall.
TEST_F(Campi, AreSetAgainByWhatIsListed) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        fs::copy_file(file, progetto, fs::copy_options::overwrite_existing);
        const Json lista = Json::parse(campi({"--json"}).uscita)["campi"];
        std::vector<std::string> scritte;
        for (const Json& campo : lista) {
            const Json& valore = campo["valore"];
            // A code that nobody chose yet is none.
            if (!campo["codici"].empty() && valore == 0 && campo["campo"] != "tipoTirante[1]")
                continue;
            scritte.push_back(campo["campo"].get<std::string>() + '=' +
                              (valore.is_string() ? valore.get<std::string>() : valore.dump()));
        }
        scritte.emplace_back("--json");
        const auto esito = imposta(scritte);
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_EQ(Json::parse(esito.uscita)["imposta"]["campi"], Json::array());
        EXPECT_EQ(contenuto(nuovo), contenuto(progetto));
    }
}

TEST_F(Campi, AreSetInANewFileAndTheChangesTold) {
    const std::string prima = contenuto(progetto);
    const auto esito = imposta({"phiStrato[2]=31.5", "vincoloPiede=cerniera"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "phiStrato[2]  angolo di attrito dello strato 2 [°]"))
        << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "File scritto: " + nuovo)) << esito.uscita;
    EXPECT_EQ(contenuto(progetto), prima);
    auto d = test::progettoSemplice();
    d.phiStrato[2] = 31.5;
    d.vincoloPiede = 2;
    EXPECT_EQ(contenuto(nuovo), base::inCp1252(project::testoProgetto(d)));
    const Json j = Json::parse(imposta({"phiStrato[2]=31.5", "--json"}).uscita);
    EXPECT_EQ(j["imposta"]["campi"],
              Json::parse(R"([{"campo":"phiStrato[2]","unita":"°","prima":34.0,"dopo":31.5,
                               "cosa":"angolo di attrito dello strato 2 [°]"}])"));
    EXPECT_EQ(j["file"]["scritti"], Json{nuovo});
}

TEST_F(Campi, AreRefusedAllTogetherWithoutAFile) {
    const auto esito = imposta({"phiStrato[2]=70", "phiStrato[9]=30", "gammaN[1]=18,5"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_EQ(esito.uscita, "");
    for (const char* detto :
         {"phiStrato[2] [°] = 70: ammessi valori da 0 a 60\n", "phiStrato[9]: questa riga non c'è",
          "gammaN[1] [kN/m³] = 18,5: il segno decimale è il punto: 18.5\n"})
        EXPECT_TRUE(dice(esito.errori, detto)) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
    const auto disordine = imposta({"profFase[1]=5.5", "--json"});
    EXPECT_EQ(disordine.codice, 3);
    const Json j = Json::parse(disordine.uscita);
    EXPECT_EQ(j["imposta"], nullptr);
    EXPECT_EQ(j["messaggi"][0],
              "profFase[2] = 5 m viene dopo profFase[1] = 5.5 m: le righe vanno in ordine di "
              "profondità");
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Campi, NeverTakeThePlaceOfTheProjectItsResultsOrItsReport) {
    fs::create_symlink(progetto, cartella / "altro.kvd");
    for (const char* nome : {"muro.kvd", "altro.kvd", "muro.OUT", "muro.TAB", "muro.txt"}) {
        const auto esito =
            console({"imposta", progetto, "--uscita", cartella / nome, "sovraccMonte=12"});
        EXPECT_NE(esito.codice, 0) << nome;
        EXPECT_TRUE(dice(esito.errori, "prenderebbe il posto")) << esito.errori;
    }
    EXPECT_EQ(contenuto(progetto),
              base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    EXPECT_FALSE(fs::exists(cartella / "muro.OUT"));
    // An earlier variant is replaced, as every other output.
    EXPECT_EQ(imposta({"sovraccMonte=12"}).codice, 0);
    EXPECT_EQ(imposta({"sovraccMonte=13"}).codice, 0);
    EXPECT_EQ(project::leggiDaFile(nuovo).sovraccMonte, 1.3);
}

TEST_F(Campi, ThatMakeADangerousWallAreToldSo) {
    const auto esito = imposta({"lunghezzaParatia=4.5"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.errori, "fase 2")) << esito.errori;
    EXPECT_TRUE(fs::exists(nuovo));
}

TEST_F(Campi, OfTheSectionLeaveATypedStiffnessAndSaySo) {
    auto d = test::progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    scrivi(d);
    const auto esito = imposta({"sezione.spessoreDiaframma=1000"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.errori,
                     "La rigidezza EJ resta quella scritta, 120000 kN m²/m, e la "
                     "sezione nuova dà "))
        << esito.errori;
    for (const std::vector<std::string>& scritte :
         {std::vector<std::string>{"sezione.spessoreDiaframma=1000", "rigidezzaEJ=0"},
          {"sezione.fyk=430"}})
        EXPECT_FALSE(dice(imposta(scritte).errori, "La rigidezza EJ")) << scritte.front();
}

TEST_F(Campi, ComputeWhatTheProgramComputesFromTheNewFile) {
    ASSERT_EQ(imposta({"pretTirante[1]=80", "coesione[2]=0.07"}).codice, 0);
    auto d = test::progettoSemplice();
    d.pretTirante[1] = 8;
    d.coesione[2] = 0.007;
    scrivi(d);
    const Json attesi = Json::parse(console({"equilibrio", progetto, "--json"}).uscita);
    const Json letti = Json::parse(console({"equilibrio", nuovo, "--json"}).uscita);
    EXPECT_EQ(letti["equilibrio"], attesi["equilibrio"]);
}

TEST_F(Campi, SpeakTheLanguageOfTheUserAndOneNameForPrograms) {
    const auto esito = campi({"--lingua", "deu"});
    EXPECT_TRUE(dice(esito.uscita, "phiStrato[2]")) << esito.uscita;
    EXPECT_FALSE(dice(esito.uscita, "angolo di attrito")) << esito.uscita;
    const auto rifiutato = imposta({"phiStrato[2]=70", "--language", "eng"});
    EXPECT_EQ(rifiutato.errori, "phiStrato[2] [°] = 70: values from 0 to 60 are allowed\n");
}

}  // namespace
}  // namespace korven::batch
