#include "reading_bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::contenuto;
using test::dice;
using test::leggi;
using test::metti;
using test::progettoSemplice;

using LineaDiComando = test::BancoConsole;

TEST_F(LineaDiComando, HelpAndVersionEndWell) {
    for (const std::vector<std::string>& argomenti : {std::vector<std::string>{"--help"},
                                                      {"-h"},
                                                      {"--aiuto"},
                                                      {"calcola", "--help"},
                                                      {"calcola", "--aiuto"},
                                                      {"verifica", "-h"}}) {
        const auto lettura = leggi(argomenti);
        EXPECT_FALSE(lettura.esito.opzioni);
        EXPECT_EQ(lettura.esito.codice, 0);
        EXPECT_TRUE(dice(lettura.uscita, "--help")) << lettura.uscita;
        EXPECT_TRUE(lettura.errori.empty());
    }
    const auto versione = leggi({"--versione"});
    EXPECT_EQ(versione.esito.codice, 0);
    EXPECT_TRUE(versione.uscita.starts_with("KORVEN 32 ")) << versione.uscita;
    EXPECT_EQ(leggi({"--version"}).uscita, versione.uscita);
    for (const auto& comando : comandi())
        for (const char* opzione : {"--version", "--versione"}) {
            const auto dopo = leggi({std::string(comando.nome.italiano), opzione});
            EXPECT_EQ(dopo.esito.codice, 0);
            EXPECT_EQ(dopo.uscita, versione.uscita);
        }
    // The program tells it as it was read.
    const auto esito = console({"--versione"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita + esito.errori, versione.uscita);
}

TEST_F(LineaDiComando, WrongUsageEndsWithTwoAndAClearMessage) {
    const struct {
        std::vector<std::string> argomenti;
        const char* detto;
    } casi[] = {
        {{}, "manca il comando: calcola, relazione, allegato, verifica"},
        {{"calcola"}, "manca un argomento: PROGETTO.kvd\n"},
        {{"calcola", ""}, "valore non ammesso: PROGETTO.kvd"},
        {{"calcola", progetto, "--uscita", ""}, "valore non ammesso: --uscita"},
        {{"calcola", progetto, "--uscita=", "altrove"},
         "manca il valore di un'opzione: --uscita\n"},
        {{"calcola", progetto, "--nseg=", "50"}, "manca il valore di un'opzione: --nseg\n"},
        {{"calcola", progetto, "--uscita", "--json"}, "valore non ammesso: --uscita --json (DIR)"},
        {{"calcola", progetto, "--json=forse"}, "valore non ammesso: --json forse\n"},
        {{"calcola", progetto, "--nseg", "50abc"}, "valore non ammesso: --nseg 50abc (N)\n"},
        {{"calcola", progetto, "--nseg", "50,7"}, "valore non ammesso: --nseg 50,7 (N)\n"},
        {{"calcola", progetto, "--nseg", ""}, "valore non ammesso: --nseg"},
        {{"calcola", progetto, "--nseg", "cinquanta"}, "valore non ammesso: --nseg cinquanta (N)"},
        {{"calcola", progetto, "--lingua", "ita", "--lingua", "eng"},
         "un'opzione è data più volte: --lingua\n"},
        {{"calcola", progetto, "--lingua"}, "manca il valore di un'opzione: --lingua\n"},
        {{"disegna", progetto},
         "comando sconosciuto (disegna): calcola, relazione, allegato, verifica"},
        {{"calcola", progetto, "altro.kvd"}, "argomento sconosciuto: altro.kvd\n"},
        {{"--silenzioso", "calcola", progetto},
         "korven32c: le opzioni stanno dopo il comando: --silenzioso\n"},
        {{"--nseg", "50", "calcola", progetto}, "le opzioni stanno dopo il comando: --nseg\n"},
        {{"--nseg=50", "calcola", progetto}, "le opzioni stanno dopo il comando: --nseg=50\n"},
        {{"--silenzioso", "calcola", progetto, "--svelto"},
         "le opzioni stanno dopo il comando: --silenzioso\n"},
        {{"--silenzioso", progetto}, "le opzioni stanno dopo il comando: --silenzioso\n"},
        {{"altro", "calcola", progetto}, "argomento sconosciuto: altro\n"},
        {{"calcola", progetto, "--svelto"}, "argomento sconosciuto: --svelto\n"},
        {{"calcola", progetto, "--txt"}, "calcola: il comando non ha questa opzione: --txt\n"},
        {{"relazione", progetto, "--traccia"},
         "relazione: il comando non ha questa opzione: --traccia\n"},
        {{"verifica", progetto, "--ej", "mantieni"},
         "verifica: il comando non ha questa opzione: --ej\n"},
        {{"section", progetto, "--output=x"},
         "sezione: il comando non ha questa opzione: --output=x\n"},
        {{"diagramma", progetto, "--tipo", "taglio", "--fase", "21"},
         "valore non ammesso: --fase 21 (0-20)\n"},
        {{"tutto", progetto, "--uscita", "o", "--dpi", "10"},
         "valore non ammesso: --dpi 10 (20-1200)\n"},
        {{"calcola", progetto, "--ej", "forse"},
         "valore non ammesso: --ej forse (mantieni|ricalcola)\n"},
        {{"calcola", progetto, "--metodo-spinte", "culmann"}, "valore non ammesso"},
        {{"calcola", progetto, "--lingua", "rus"}, "valore non ammesso"},
        {{"calcola", progetto, "--max-iterazioni", "-1"}, "valore non ammesso"},
        {{"calcola", progetto, "--max-iterazioni", "molte"},
         "valore non ammesso: --max-iterazioni molte (>= 0)\n"},
        {{"calcola", progetto, "--cartella", cartella / "altrove"}, "valore non ammesso"},
        {{"calcola", progetto, "--uscita"}, "manca il valore di un'opzione: --uscita\n"},
        {{"imposta", progetto, "--uscita", "n.kvd"}, "manca un argomento: campo=valore\n"},
        {{"imposta", progetto, "nFasi=1"}, "manca un argomento: --uscita\n"},
        {{"diagramma", progetto, "--tipo", "taglio"},
         "manca un argomento, uno di questi: --dxf, --pdf, --svg, --png\n"},
        {{"imposta", progetto, "altro.kvd", "--uscita", "n.kvd"},
         "valore non ammesso: campo=valore altro.kvd\n"},
    };
    for (const auto& caso : casi) {
        const auto esito = leggi(caso.argomenti);
        EXPECT_EQ(esito.esito.codice, 2) << caso.detto;
        EXPECT_TRUE(esito.uscita.empty());
        EXPECT_TRUE(dice(esito.errori, caso.detto)) << esito.errori;
        EXPECT_TRUE(dice(esito.errori, "\nPer l'aiuto: korven32c ")) << esito.errori;
        EXPECT_TRUE(esito.errori.ends_with(" --aiuto\n")) << esito.errori;
        for (const char* inglese : {"required", "expected", "Could not", "missing", "convert"})
            EXPECT_FALSE(dice(esito.errori, inglese)) << esito.errori;
    }
    const auto esito = console(casi[0].argomenti);
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.uscita + esito.errori, leggi(casi[0].argomenti).errori);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

// "--json=true" and the like are understood.
TEST_F(LineaDiComando, ASwitchTakesTheWordsOfASwitch) {
    const std::pair<const char*, bool> casi[] = {
        {"--json", true}, {"--json=true", true}, {"--json=false", false}};
    for (const auto& [scritta, acceso] : casi) {
        const auto lettura = leggi({"calcola", progetto, scritta});
        ASSERT_TRUE(lettura.esito.opzioni) << lettura.errori;
        EXPECT_EQ(lettura.esito.opzioni->json, acceso) << scritta;
    }
}

TEST_F(LineaDiComando, FormatiArePartedByCommasByBlanksAndOneAfterTheOther) {
    const std::vector<std::string> entrambi = {"svg", "dxf"};
    for (const std::vector<std::string>& scritti :
         {std::vector<std::string>{"svg,dxf"}, {"svg", "dxf"}, {"svg", "--formati", "dxf"}}) {
        std::vector<std::string> argomenti = {"tutto", progetto, "--uscita", "o", "--formati"};
        argomenti.insert(argomenti.end(), scritti.begin(), scritti.end());
        const auto lettura = leggi(argomenti);
        ASSERT_TRUE(lettura.esito.opzioni) << lettura.errori;
        EXPECT_EQ(lettura.esito.opzioni->formati, entrambi);
    }
    EXPECT_EQ(leggi({"tutto", progetto, "--uscita", "o", "--formati", "svg,doc"}).esito.codice, 2);
}

TEST_F(LineaDiComando, AssignmentsKeepTheirCommas) {
    const std::vector<std::string> scritte = {"titoli[1]=Muro, lato nord", "gammaN[1]=18,5",
                                              "forzaTesta=-3"};
    std::vector<std::string> argomenti = {"imposta", progetto, "--uscita", "n.kvd"};
    argomenti.insert(argomenti.end(), scritte.begin(), scritte.end());
    const auto lettura = leggi(argomenti);
    ASSERT_TRUE(lettura.esito.opzioni) << lettura.errori;
    EXPECT_EQ(lettura.esito.opzioni->assegnazioni, scritte);
    EXPECT_EQ(lettura.esito.opzioni->progetto, progetto);
}

TEST_F(LineaDiComando, WrongUsageIsToldInTheLanguageAskedFor) {
    for (const std::vector<std::string>& lingua :
         {std::vector<std::string>{"--lingua", "deu"}, {"--lingua=deu"}}) {
        auto argomenti = lingua;
        argomenti.insert(argomenti.begin(), {"calcola", progetto, "--svelto"});
        const auto esito = console(argomenti);
        EXPECT_EQ(esito.codice, 2);
        EXPECT_TRUE(dice(esito.errori, "korven32c: unbekanntes Argument: --svelto\n"))
            << esito.errori;
    }
    // After "--" come names of files, whatever they look like.
    const auto esito = console({"calcola", "--svelto", "--", "--lingua", "deu"});
    EXPECT_EQ(esito.codice, 2);
    EXPECT_TRUE(dice(esito.errori, "argomento sconosciuto")) << esito.errori;
}

TEST_F(LineaDiComando, AProjectMayHaveTheNameOfAnOption) {
    fs::copy(progetto, cartella / "--lingua");
    const auto esito =
        console({"calcola", "--nseg", "10", "--", "--lingua"}, {.cartella = cartella.percorso()});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "--linOUT --lingua muro.kvd ");
}

TEST_F(LineaDiComando, AProgramFolderThatDoesNotExistIsWrongUsageWhateverElseIsAsked) {
    for (const std::vector<std::string>& altre :
         {std::vector<std::string>{}, {"--lingua", "deu"}, {"--json"}}) {
        auto argomenti = altre;
        argomenti.insert(argomenti.begin(),
                         {"calcola", progetto, "--cartella", cartella / "altrove"});
        const auto esito = console(argomenti);
        EXPECT_EQ(esito.codice, 2);
        EXPECT_TRUE(dice(esito.errori, "--cartella " + (cartella / "altrove"))) << esito.errori;
    }
}

TEST_F(LineaDiComando, AProgramFolderWithTheLooksOfAnOptionIsWrongUsageThoughItExists) {
    fs::create_directory(cartella / "-x");
    for (const std::vector<std::string>& opzione :
         {std::vector<std::string>{"--cartella", "-x"}, {"--cartella=-x"}}) {
        auto argomenti = opzione;
        argomenti.insert(argomenti.begin(), {"calcola", progetto, "--nseg", "10"});
        const auto esito = console(argomenti, {.cartella = cartella.percorso()});
        EXPECT_EQ(esito.codice, 2);
        EXPECT_TRUE(dice(esito.errori, "valore non ammesso: --cartella -x (DIR)\n"))
            << esito.errori;
    }
    const auto esito = console({"calcola", progetto, "--nseg", "10", "--cartella", "./-x"},
                               {.cartella = cartella.percorso()});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
}

TEST_F(LineaDiComando, VerificaMakesNoFolderForResults) {
    const auto esito = esegui("verifica", {"--uscita", cartella / "fuori"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_FALSE(fs::exists(cartella / "fuori"));
}

TEST_F(LineaDiComando, UscitaMakesTheFolderAndLeavesThatOfTheProjectUntouched) {
    const auto prima = file();
    const auto esito = esegui("relazione", {"--txt", "--uscita", cartella / "risultati/variante"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(file(), prima);
    for (const char* nome : {"muro.OUT", "muro.TAB", "muro.txt"})
        EXPECT_TRUE(fs::exists(cartella / (std::string("risultati/variante/") + nome))) << nome;
    EXPECT_FALSE(fs::exists(cartella / "risultati/variante/muro.kvd"));
}

TEST_F(LineaDiComando, ARelativePathIsMadeAbsoluteBeforeItsNameIsCut) {
    fs::create_directory(cartella / "sotto");
    const auto esito = console({"relazione", "../muro.kvd", "--nseg", "10", "--txt"},
                               {.cartella = cartella / "sotto"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "muro.OUT muro.TAB muro.kvd muro.txt ");
}

TEST_F(LineaDiComando, EjKeepsTheTypedStiffnessUnlessToldToRecompute) {
    auto d = progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    scrivi(d);
    const auto EJ = [&](std::vector<std::string> opzioni) {
        EXPECT_EQ(esegui("relazione", std::move(opzioni)).codice, 0);
        const std::string relazione = contenuto(cartella / "muro.TAB");
        const auto inizio = relazione.find("Rigidezza EJ");
        return relazione.substr(inizio, relazione.find("\r\n", inizio) - inizio);
    };
    const std::string scritta = base::inCp1252("Rigidezza EJ diaframma [kN m²]\t120000.00");
    EXPECT_EQ(EJ({}), scritta);
    EXPECT_EQ(EJ({"--ej", "mantieni"}), scritta);
    EXPECT_NE(EJ({"--ej", "ricalcola"}), scritta);
    EXPECT_EQ(EJ({}), scritta);
}

TEST_F(LineaDiComando, MetodoSpinteHoldsForTheRunThoughTheReportSaysCoulomb) {
    auto d = progettoSemplice();
    d.inclinazioneMonte = 15;
    scrivi(d);
    std::map<std::string, std::string> risultati;
    for (const char* metodo : {"coulomb", "rankine", "bell"}) {
        EXPECT_EQ(esegui("relazione", {"--metodo-spinte", metodo}).codice, 0);
        EXPECT_TRUE(dice(contenuto(cartella / "muro.TAB"), "metodo di Coulomb")) << metodo;
        const std::string out = contenuto(cartella / "muro.OUT");
        risultati[metodo] = out.substr(out.find("sigmaVv"));
    }
    EXPECT_NE(risultati["coulomb"], risultati["rankine"]);
    EXPECT_NE(risultati["coulomb"], risultati["bell"]);
    EXPECT_NE(risultati["rankine"], risultati["bell"]);
    // A run without the option finds a file of another method and computes with Coulomb.
    const auto esito = esegui("calcola");
    EXPECT_TRUE(dice(esito.uscita, "Calcolo eseguito.")) << esito.uscita;
    const std::string out = contenuto(cartella / "muro.OUT");
    EXPECT_EQ(out.substr(out.find("sigmaVv")), risultati["coulomb"]);
}

TEST_F(LineaDiComando, NsegReplacesTheContentOfItsFile) {
    EXPECT_EQ(console({"calcola", progetto, "--nseg", "7"}).codice, 0);
    const std::string conOpzione = contenuto(cartella / "muro.OUT");
    // The head with its tables, for each stage the names and the nodes, the closing numbers.
    const auto righe = std::count(conOpzione.begin(), conOpzione.end(), '\n');
    EXPECT_EQ(righe, 59 + 8 * 2 + 4 + 4 * 2 + 2 * (1 + 8) + 5);

    fs::remove(cartella / "muro.OUT");
    fs::create_directory(cartella / "casa");
    metti(cartella / "casa/NSEG.TXT", "7\r\n");  // found whatever its case
    EXPECT_EQ(console({"calcola", progetto, "--cartella", cartella / "casa"}).codice, 0);
    EXPECT_EQ(contenuto(cartella / "muro.OUT"), conOpzione);
}

TEST_F(LineaDiComando, LinguaGivesHeadingsInThatLanguageButLeavesTheUsersOwn) {
    EXPECT_EQ(esegui("relazione", {"--lingua", "deu"}).codice, 0);
    const std::string relazione = base::daCp1252(contenuto(cartella / "muro.TAB"));
    EXPECT_TRUE(dice(relazione, "\r\nBERECHNUNG DER WAND\r\n"));
    EXPECT_TRUE(dice(relazione, "\r\nERGEBNISSE DER PHASE 2\r\n"));
    EXPECT_TRUE(dice(relazione, "\r\nMuro di prova\r\n"));
    EXPECT_FALSE(dice(relazione, "DESCRIZIONE"));
    EXPECT_EQ(esegui("relazione", {"--lingua=ita"}).codice, 0);
    EXPECT_TRUE(dice(contenuto(cartella / "muro.TAB"), "\r\nCALCOLO DIAFRAMMA\r\n"));
}

TEST_F(LineaDiComando, CartellaBringsItsLanguageAndItsTexts) {
    const std::string casa = cartella / "casa";
    fs::create_directory(casa);
    const fs::path programma = fs::path(KORVEN_CONSOLE).parent_path();
    fs::copy(programma / "texts01.txt", casa + "/texts01.txt");
    fs::copy(programma / "texts06.txt", casa + "/texts06.txt");
    metti(casa + "/language.cfg", "2\r\n");
    EXPECT_EQ(esegui("relazione", {"--cartella", casa}).codice, 0);
    EXPECT_TRUE(dice(contenuto(cartella / "muro.TAB"), "BERECHNUNG DER WAND"));
    // An option goes before the file.
    EXPECT_EQ(esegui("relazione", {"--cartella", casa, "--lingua", "eng"}).codice, 0);
    EXPECT_TRUE(dice(contenuto(cartella / "muro.TAB"), "WALL CALCULATION"));
    // The environment names a folder too.
    const test::Ambiente ambiente{.variabili = {{"KORVEN32_HOME", casa}}};
    EXPECT_EQ(esegui("relazione", {}, ambiente).codice, 0);
    EXPECT_TRUE(dice(contenuto(cartella / "muro.TAB"), "BERECHNUNG DER WAND"));
}

TEST_F(LineaDiComando, ALanguageWithoutItsTextsOrACodeThatIsNoneIsBrokenInput) {
    const std::string casa = cartella / "casa";
    fs::create_directory(casa);
    const auto senza = esegui("calcola", {"--cartella", casa, "--lingua", "deu"});
    EXPECT_EQ(senza.codice, 3);
    EXPECT_TRUE(dice(senza.errori, "texts01.txt")) << senza.errori;
    for (const char* codice : {"7\r\n", "due\r\n", ""}) {
        metti(casa + "/language.cfg", codice);
        const auto esito = esegui("calcola", {"--cartella", casa});
        EXPECT_EQ(esito.codice, 3) << codice;
        EXPECT_TRUE(dice(esito.errori, "language.cfg, riga 1: ")) << esito.errori;
    }
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(LineaDiComando, SilenziosoPrintsNothingAtAllWhenAllIsWell) {
    for (const char* comando : {"calcola", "relazione", "verifica"}) {
        const auto esito = esegui(comando, {"--silenzioso"});
        EXPECT_EQ(esito.codice, 0);
        EXPECT_EQ(esito.uscita + esito.errori, "") << comando;
    }
}

TEST_F(LineaDiComando, SilenziosoStillTellsWhyARunWasRefused) {
    auto d = progettoSemplice();
    d.rigidezzaEJ = 0;
    scrivi(d);
    const auto esito = esegui("calcola", {"--silenzioso"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_EQ(esito.errori, "ATTENZIONE! Il valore di EJ non è ancora stato definito.\n");
    EXPECT_TRUE(esito.uscita.empty());
}

TEST(LeggiOpzioni, NamesTheHelpOfTheCommandThatIsTypedWrongly) {
    const auto detto = [](const std::vector<std::string>& argomenti) {
        const std::string errori = test::leggi(argomenti).errori;
        return errori.substr(errori.find('\n') + 1);
    };
    EXPECT_EQ(detto({"tutto", "muro.kvd"}), "Per l'aiuto: korven32c tutto --aiuto\n");
    EXPECT_EQ(detto({"section", "muro.kvd"}), "Per l'aiuto: korven32c sezione --aiuto\n");
    EXPECT_EQ(detto({"disegna", "muro.kvd"}), "Per l'aiuto: korven32c --aiuto\n");
    EXPECT_EQ(detto({}), "Per l'aiuto: korven32c --aiuto\n");
}

TEST(LeggiOpzioni, SaysInTheHelpOfAllWhereTheOptionsOfACommandAre) {
    const std::string fine = "Le opzioni di un comando: korven32c comando --aiuto";
    EXPECT_NE(test::leggi({"--aiuto"}).uscita.find(fine), std::string::npos);
    EXPECT_EQ(test::leggi({"calcola", "--aiuto"}).uscita.find(fine), std::string::npos);
}

}  // namespace
}  // namespace korven::batch
