#include "masks/field_check.hpp"

#include <gtest/gtest.h>

#include "masks/column_keys.hpp"
#include "support/dialog_double.hpp"
#include "support/mask_setup.hpp"

namespace korven::masks {
namespace {

using test::campoMaschera;

TEST(ControllaNumero, AcceptsTheLimitsThemselves) {
    EXPECT_EQ(controllaNumero("-5", -5, 10), Vizio::nessuno);
    EXPECT_EQ(controllaNumero("10", -5, 10), Vizio::nessuno);
    EXPECT_EQ(controllaNumero("10.0001", -5, 10), Vizio::intervallo);
    EXPECT_EQ(controllaNumero("-5.1", -5, 10), Vizio::intervallo);
}

TEST(ControllaNumero, AcceptsNothingAtAll) {
    EXPECT_EQ(controllaNumero("", 5, 10), Vizio::nessuno);
    EXPECT_EQ(controllaNumero("   ", 5, 10), Vizio::nessuno);
}

TEST(ControllaNumero, ReadsAnExponent) {
    EXPECT_EQ(controllaNumero("1e3", 1000, 1000), Vizio::nessuno);
    EXPECT_EQ(controllaNumero("1E3", 0, 999), Vizio::intervallo);
}

TEST(ControllaNumero, RefusesInnerBlanksAndLetters) {
    for (const auto* testo : {"1 2", "1d3", "1,5", "12a", "1\t", "- 1"})
        EXPECT_EQ(controllaNumero(testo, -1000, 1000), Vizio::alfanumerico) << testo;
    EXPECT_EQ(controllaNumero("  12 ", 0, 20), Vizio::nessuno);
}

TEST(ControllaNumero, ComparesAsZeroWhatBeginsWithNoNumber) {
    EXPECT_EQ(controllaNumero("e", 0, 1), Vizio::nessuno);
    EXPECT_EQ(controllaNumero("-", 1, 2), Vizio::intervallo);
}

TEST(ControllaNumero, RefusesANumberTooLargeForADouble) {
    EXPECT_EQ(controllaNumero("1e999", 0, 1), Vizio::intervallo);
    EXPECT_EQ(controllaNumero("-.1e999", -1, 1), Vizio::intervallo);
    EXPECT_EQ(controllaNumero("1e-999", 0, 1), Vizio::nessuno);
}

TEST(ControllaCampo, CountsTheCharactersOfATextNotItsBytes) {
    const auto campo = campoMaschera("x", "4");
    EXPECT_EQ(controllaCampo(campo, "àèìò"), Vizio::nessuno);
    EXPECT_EQ(controllaCampo(campo, "abcde"), Vizio::lunghezza);
    EXPECT_EQ(controllaCampo(campoMaschera("x", "4@"), "abcdefgh"), Vizio::nessuno);
    EXPECT_EQ(controllaCampo(campoMaschera("x", "##.##@"), "12.34"), Vizio::nessuno);
}

TEST(ControllaCampo, LetsAPictureWithoutAnAtSignTakeNothing) {
    EXPECT_EQ(controllaCampo(campoMaschera("x", "##.##"), "1"), Vizio::lunghezza);
    EXPECT_EQ(controllaCampo(campoMaschera("x", "##.##"), ""), Vizio::nessuno);
}

TEST(ControllaCella, CountsTheSlashToTheLengthOfAText) {
    EXPECT_EQ(controllaCella(campoMaschera("x", "/2345"), "abcde"), Vizio::nessuno);
    EXPECT_EQ(controllaCella(campoMaschera("x", "/2345"), "abcdef"), Vizio::lunghezza);
    EXPECT_EQ(controllaCella(campoMaschera("x", "/@345"), "abcdef"), Vizio::nessuno);
}

TEST(ControllaCella, TakesTheKeysOfAColumnAndNothingElse) {
    const auto tipo = campoMaschera("Tipo", "#", 0, 1, "Kind$$$0=tension,1=both");
    EXPECT_EQ(controllaCella(tipo, "0"), Vizio::nessuno);
    EXPECT_EQ(controllaCella(tipo, " 1 "), Vizio::nessuno);
    EXPECT_EQ(controllaCella(tipo, ""), Vizio::nessuno);
    for (const auto* testo : {"2", "01", "1.0", "tension", "0,1", "a"})
        EXPECT_EQ(controllaCella(tipo, testo), Vizio::chiave) << testo;
}

TEST(ControllaCella, ChecksTheNumberOfAKeyToo) {
    const auto tipo = campoMaschera("Tipo", "#", 0, 1, "$$$0=a,5=b,x=c");
    EXPECT_EQ(controllaCella(tipo, "5"), Vizio::intervallo);
    EXPECT_EQ(controllaCella(tipo, "X"), Vizio::alfanumerico);
    EXPECT_EQ(controllaCella(campoMaschera("T", "/", 0, 0, "$$$ab=c"), "AB"), Vizio::lunghezza);
}

TEST(ChiaviColonna, AreTrimmedAndInUpperCase) {
    EXPECT_EQ(chiaviColonna("x$$$ a =uno, b=due,c,,=z"), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_TRUE(chiaviColonna("no keys").empty());
    EXPECT_EQ(aiutoMostrato("Kind$$$0=tension"), "Kind\n0=tension");
}

// A list without any key allows nothing but an empty cell.
TEST(ChiaviColonna, MayBeAListThatAllowsNothing) {
    EXPECT_FALSE(ammessa("x$$$", "1"));
    EXPECT_TRUE(ammessa("x", "1"));
}

TEST(Segnala, TellsTheExactWords) {
    test::DialogoFinto dialogo;
    const auto campo = campoMaschera("Peso", "0", -2.5, 1000000);
    segnala(Vizio::intervallo, campo, "Peso", "\r", dialogo);
    segnala(Vizio::alfanumerico, campo, "Peso", "\r", dialogo);
    segnala(Vizio::lunghezza, campo, "Peso", "\r", dialogo);
    segnala(Vizio::chiave, campo, "Peso", "\r", dialogo);
    const std::vector<std::string> attesi = {
        "Vi e' un errore di digitazione del valore introdotto o il valore è fuori dal range "
        "previsto; deve infatti appartenere all'intervallo:\r-2.5; 1000000",
        "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.",
        "Il dato introdotto eccede la lunghezza ammessa. Viene quindi troncato alla massima "
        "lunghezza ammissibile.",
        "Il dato inserito non e' compreso tra quelli ammissibili."};
    ASSERT_EQ(dialogo.messaggi.size(), attesi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i)
        EXPECT_EQ(dialogo.messaggi[i],
                  (test::DialogoFinto::Detto{attesi[i], "Peso", base::Icona::stop}));
}

TEST(Tagliato, CountsCharacters) {
    EXPECT_EQ(tagliato("àbcdè", 3), "àbc");
    EXPECT_EQ(tagliato("ab", 3), "ab");
    EXPECT_EQ(tagliato("ab", 0), "");
}

}  // namespace
}  // namespace korven::masks
