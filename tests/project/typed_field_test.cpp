#include "project/typed_field.hpp"

#include <gtest/gtest.h>

#include <limits>

#include "project/codes.hpp"
#include "project/project_file.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::project {
namespace {

using enum MotivoRifiuto;

CampoNominato nominato(std::string_view nome) { return campoNominato(nome).value(); }

std::optional<MotivoRifiuto> motivo(std::string_view nome, std::string_view testo) {
    const auto letto = valoreScritto(nominato(nome), testo);
    const auto* rifiuto = std::get_if<Rifiuto>(&letto);
    return rifiuto ? std::optional(rifiuto->motivo) : std::nullopt;
}

double numero(std::string_view nome, std::string_view testo) {
    return std::get<double>(std::get<ValoreCampo>(valoreScritto(nominato(nome), testo)));
}

std::string testo(std::string_view nome, std::string_view scritto) {
    return std::get<std::string>(std::get<ValoreCampo>(valoreScritto(nominato(nome), scritto)));
}

TEST(CampoScritto, IsAFieldOfTheProjectByItsStableName) {
    const DatiProgetto d = test::progettoSemplice();  // two layers
    const auto letto = campoScritto(d, "phiStrato[2]");
    ASSERT_TRUE(std::holds_alternative<CampoNominato>(letto));
    EXPECT_EQ(std::get<CampoNominato>(letto).campo, &campo(&DatiProgetto::phiStrato));
    EXPECT_EQ(std::get<CampoNominato>(letto).riga, 2);
}

TEST(CampoScritto, SaysWhyANameIsNone) {
    const DatiProgetto d = test::progettoSemplice();
    const auto rifiuto = [&d](std::string_view nome) {
        return std::get<Rifiuto>(campoScritto(d, nome));
    };
    EXPECT_EQ(rifiuto("lunghezza").motivo, nomeIgnoto);
    EXPECT_EQ(rifiuto("").motivo, nomeIgnoto);
    EXPECT_EQ(rifiuto("phiStrato[x]").motivo, nomeIgnoto);
    EXPECT_EQ(rifiuto("lunghezzaParatia[1]").motivo, nomeIgnoto);
    EXPECT_EQ(rifiuto("phiStrato").motivo, senzaRiga);
    EXPECT_EQ(rifiuto("phiStrato").righe, 2);
    for (const char* nome : {"phiStrato[3]", "phiStrato[0]", "phiStrato[-1]", "titoli[7]"})
        EXPECT_EQ(rifiuto(nome).motivo, rigaAssente) << nome;
    EXPECT_EQ(rifiuto("titoli[7]").righe, numeroTitoli);
    EXPECT_EQ(rifiuto("phiStrato[3]").campo, &campo(&DatiProgetto::phiStrato));
}

TEST(CampoScritto, HasASimilarNameForOtherCapitalsAndForAForgottenSection) {
    EXPECT_EQ(nomeSimile("phistrato[2]"), "phiStrato[2]");
    EXPECT_EQ(nomeSimile("spessoreDiaframma"), "sezione.spessoreDiaframma");
    EXPECT_EQ(nomeSimile("SEZIONE.FCK"), "sezione.fck");
    EXPECT_EQ(nomeSimile("lungezzaParatia"), "lunghezzaParatia");
    EXPECT_EQ(nomeSimile("phiStrat[2]"), "phiStrato[2]");
    EXPECT_FALSE(nomeSimile("larghezza"));
    EXPECT_FALSE(nomeSimile(""));
}

TEST(ValoreScritto, IsStoredInTheUnitsOfTheFile) {
    EXPECT_EQ(numero("gammaN[1]", "18.5"), 1.85);
    EXPECT_EQ(numero("phiStrato[1]", " 31.5 "), 31.5);
    EXPECT_EQ(numero("sezione.spessoreDiaframma", "800"), 80);
    EXPECT_EQ(numero("sezione.armNumLong", "8"), 0.8);
    EXPECT_EQ(numero("rigidezzaEJ", "5.4e5"), 54000);
    EXPECT_EQ(numero("forzaTesta", "-12.5"), -1.25);
    EXPECT_EQ(numero("nStrati", "3"), 3);
}

// 0.07 / 10 is the double after 0.007; a file has "0.007".
TEST(ValoreScritto, IsTheNumberThatAFileGivesBack) {
    EXPECT_NE(conservato(campo(&DatiProgetto::coesione), 0.07), 0.007);
    EXPECT_EQ(numero("coesione[1]", "0.07"), 0.007);
    EXPECT_EQ(numero("phiStrato[1]", "31.123456789"), 31.1234568);  // seven decimals
    EXPECT_EQ(numero("pretTirante[1]", "0.0000004"), 0);
    EXPECT_EQ(comeNelFile(1.00000005), 1.0000001);  // half away from zero
    EXPECT_EQ(conservatoNelFile(campo(&DatiProgetto::coesione), 0.07), 0.007);
}

TEST(ValoreScritto, TakesCodesByNumberAndByName) {
    EXPECT_EQ(numero("metodoSpinte", "2"), valore(MetodoSpinte::rankine));
    EXPECT_EQ(numero("metodoSpinte", "rankine"), valore(MetodoSpinte::rankine));
    EXPECT_EQ(numero("vincoloPiede", "Incastro"), valore(VincoloPiede::incastro));
    EXPECT_EQ(numero("modoSpinte", "COMEMONTE"), valore(ModoSpinte::comeMonte));
    EXPECT_EQ(numero("tipoTirante[1]", "soloTrazione"), 0);
    for (const char* testo : {"0", "5", "1.5", "-1", "mohr", ""})
        EXPECT_EQ(motivo("vincoloPiede", testo), codiceIgnoto) << testo;
    EXPECT_EQ(motivo("tipoTirante[1]", "2"), codiceIgnoto);
}

TEST(ValoreScritto, TakesFlagsAsTheFileAndAsPeopleWriteThem) {
    EXPECT_EQ(numero("sezione.tipoPali", "0"), 0);
    EXPECT_EQ(numero("sezione.tipoPali", "1"), 1);
    EXPECT_EQ(numero("sezione.tipoPali", "-1"), 1);
    EXPECT_EQ(motivo("sezione.tipoPali", "2"), fuoriLimiti);
    EXPECT_EQ(motivo("sezione.tipoPali", "si"), nonNumero);
}

TEST(ValoreScritto, SaysWhyATextIsNoNumber) {
    for (const char* testo : {"", " ", "abc", "12 m", "1e", "nan", "inf", "1.234,5", "1,2,3"})
        EXPECT_EQ(motivo("lunghezzaParatia", testo), nonNumero) << testo;
    EXPECT_EQ(motivo("lunghezzaParatia", "8,5"), virgola);
    EXPECT_EQ(motivo("vincoloPiede", "1,5"), virgola);
}

TEST(ValoreScritto, KeepsTheLimitsOfTheEditorsThemselvesIncluded) {
    EXPECT_FALSE(motivo("lunghezzaParatia", "0"));
    EXPECT_FALSE(motivo("lunghezzaParatia", "100"));
    EXPECT_EQ(motivo("lunghezzaParatia", "100.0001"), fuoriLimiti);
    EXPECT_EQ(motivo("lunghezzaParatia", "-0.1"), fuoriLimiti);
    EXPECT_EQ(motivo("lunghezzaParatia", "1e999"), fuoriLimiti);
    EXPECT_FALSE(motivo("gammaN[1]", "40"));  // kN/m3, and 4 as stored
    EXPECT_EQ(motivo("gammaN[1]", "41"), fuoriLimiti);
    EXPECT_FALSE(motivo("sezione.spessoreDiaframma", "1000000"));  // its form takes any
}

TEST(ValoreScritto, TakesWholeCountsWithinTheirTable) {
    EXPECT_FALSE(motivo("nTiranti", "20"));
    EXPECT_EQ(motivo("nTiranti", "21"), fuoriLimiti);
    EXPECT_EQ(motivo("nTiranti", "-1"), fuoriLimiti);
    EXPECT_EQ(motivo("nTiranti", "1.5"), nonIntero);
}

TEST(ValoreScritto, TakesTextsThatAFileHolds) {
    EXPECT_EQ(testo("titoli[1]", " Città di Rovèn "), " Città di Rovèn ");
    EXPECT_EQ(testo("descrStrato[1]", "105C3 limo, 1,5 m"), "105C3 limo, 1,5 m");
    EXPECT_EQ(testo("titoli[1]", ""), "");
    EXPECT_EQ(motivo("titoli[1]", "due\nrighe"), carattere);
    EXPECT_EQ(motivo("titoli[1]", "φ = 30"), carattere);
    EXPECT_FALSE(motivo("titoli[1]", std::string(80, 'x')));
    EXPECT_EQ(motivo("titoli[1]", std::string(81, 'x')), troppoLungo);
    EXPECT_FALSE(motivo("descrStrato[1]", std::string(300, 'x')));
}

TEST(ValoreScritto, TellsTheFieldItsRowAndWhatWasTyped) {
    const auto letto = valoreScritto(nominato("phiStrato[2]"), "8,5");
    const Rifiuto rifiuto = std::get<Rifiuto>(letto);
    EXPECT_EQ(rifiuto.nome, "phiStrato[2]");
    EXPECT_EQ(rifiuto.scritto, "8,5");
    EXPECT_EQ(rifiuto.campo, &campo(&DatiProgetto::phiStrato));
}

TEST(NumeroDiUnCampo, IsRefusedWhereATypedOneWouldBe) {
    const Campo& lunghezza = campo(&DatiProgetto::lunghezzaParatia);
    EXPECT_FALSE(motivoRifiuto(lunghezza, 12.5));
    EXPECT_EQ(motivoRifiuto(lunghezza, -1), fuoriLimiti);
    EXPECT_EQ(motivoRifiuto(lunghezza, std::numeric_limits<double>::quiet_NaN()), nonNumero);
    EXPECT_EQ(motivoRifiuto(lunghezza, std::numeric_limits<double>::infinity()), nonNumero);
    EXPECT_EQ(motivoRifiuto(campo(&DatiProgetto::descrStrato), 1), nonNumero);
    EXPECT_EQ(motivoRifiuto(campo(&DatiProgetto::vincoloPiede), 0.5), codiceIgnoto);
    EXPECT_EQ(motivoRifiuto(campo(&DatiProgetto::nFasi), 2.5), nonIntero);
    EXPECT_EQ(motivoRifiuto(campo(&Sezione::tipoPali), 0.5), fuoriLimiti);
}

TEST(NumeroDiUnCampo, IsLostInAFileForAMethodAfterCoulomb) {
    const Campo& metodo = campo(&DatiProgetto::metodoSpinte);
    EXPECT_TRUE(tornaDalFile(metodo, 0));
    EXPECT_TRUE(tornaDalFile(metodo, valore(MetodoSpinte::coulomb)));
    EXPECT_FALSE(tornaDalFile(metodo, valore(MetodoSpinte::bell)));
    EXPECT_TRUE(tornaDalFile(campo(&DatiProgetto::metodoKs), valore(MetodoKs::lineare)));
}

TEST(TestoDaScrivere, IsInTheShownUnitWithoutTheNoiseOfAProduct) {
    DatiProgetto d = test::progettoSemplice();
    d.coesione[1] = 0.007;
    EXPECT_EQ(testoDaScrivere(d, nominato("coesione[1]")), "0.07");
    EXPECT_EQ(testoDaScrivere(d, nominato("nFasi")), "2");
    EXPECT_EQ(testoDaScrivere(d, nominato("sezione.tipoDiaframma")), "1");
    EXPECT_EQ(testoDaScrivere(d, nominato("descrStrato[2]")), "2 Ghiaia");
}

TEST(Metti, MakesNewRowsEmptyWhateverTheTableHeldThere) {
    DatiProgetto d = test::progettoSemplice();
    d.gammaN[3] = 1.9;
    d.suStrato[3] = 4;
    d.descrStrato[3] = "vecchio";
    metti(d, nominato("nStrati"), 3.0);
    EXPECT_EQ(d.nStrati, 3);
    EXPECT_EQ(d.gammaN[3], 0);
    EXPECT_EQ(d.suStrato[3], 0);
    EXPECT_EQ(d.descrStrato[3], "");
    EXPECT_GT(d.gammaN[2], 0);
}

TEST(Metti, LeavesNothingInRowsThatGo) {
    DatiProgetto d = test::progettoSemplice();
    metti(d, nominato("nStrati"), 1.0);
    metti(d, nominato("nStrati"), 2.0);
    EXPECT_GT(d.profStrato[1], 0);
    EXPECT_EQ(d.profStrato[2], 0);
}

// What is put into memory is what a program reads that begins with the file.
TEST(Metti, GivesTheProjectThatItsFileGivesBack) {
    DatiProgetto d = comeRiletto(test::progettoSemplice());
    const std::pair<const char*, const char*> scritti[] = {
        {"nFasi", "3"},          {"profFase[3]", "7.3000000004"},
        {"coesione[2]", "0.07"}, {"descrStrato[1]", "105C3 sabbia"},
        {"titoli[6]", "è"},      {"sezione.tipoPali", "-1"},
        {"nTiranti", "0"},       {"sforzoNormale", "-0.00000000001"},
        {"gammaSat[1]", "20.7"}, {"sezione.palancolaSpessore", "12.7"}};
    for (const auto& [nome, scritto] : scritti)
        metti(d, nominato(nome), std::get<ValoreCampo>(valoreScritto(nominato(nome), scritto)));
    EXPECT_EQ(comeRiletto(d), d);
    EXPECT_EQ(d.profFase[3], 7.3);
    EXPECT_EQ(std::get<double>(valoreConservato(d, nominato("nFasi"))), 3);
    EXPECT_EQ(std::get<double>(valoreConservato(d, nominato("sezione.tipoPali"))), 1);
    EXPECT_EQ(std::get<std::string>(valoreConservato(d, nominato("titoli[6]"))), "è");
}

TEST(Metti, TakesBackWhatIsShownOfAnyField) {
    DatiProgetto d = comeRiletto(test::progettoSemplice());
    test::primiCodici(d);
    const DatiProgetto prima = d;
    int visti = 0;
    perOgniValore(prima, [&](const CampoNominato& uno) {
        const std::string nome = nomeStabile(*uno.campo, uno.riga);
        const auto letto = valoreScritto(uno, testoDaScrivere(d, uno));
        ASSERT_TRUE(std::holds_alternative<ValoreCampo>(letto)) << nome;
        metti(d, uno, std::get<ValoreCampo>(letto));
        EXPECT_EQ(d, prima) << nome;
        ++visti;
    });
    // The lines of the file, of which each is a field.
    EXPECT_EQ(visti, 1 + 8 * 2 + 19 + 1 + 4 + 1 + 4 * 2 + 6 + 16 + 6 + 8 + 1);
}

}  // namespace
}  // namespace korven::project
