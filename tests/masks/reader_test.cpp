#include "masks/reader.hpp"

#include <gtest/gtest.h>

#include <random>

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "support/temporary_folder.hpp"

namespace korven::masks {
namespace {

const std::string campi =
    "1\r\nParametri\r\n1\r\nlibera|cerniera\r\n2\r\n"
    "Vincolo\r\n0\r\n1\r\n2\r\nprimo aiuto\r\n"
    " Lunghezza [m] \r\n0\r\n-1.5\r\n100\r\nsecondo, con virgola\r\n"
    "\xA7 Sigla\r\n40\r\n0\r\n0\r\n\r\n"
    "6 Profondit\x85\r\n3\r\n&Conferma\r\n&Annulla\r\n&Help\r\nMN=6\r\n";

Maschera letta(const std::string& byte) {
    base::LettoreRighe file("X.MAV", byte);
    return leggiMaschera(file);
}

std::string sostituito(std::string testo, const std::string& vecchio, const std::string& nuovo) {
    return testo.replace(testo.find(vecchio), vecchio.size(), nuovo);
}

long rigaGuasta(const std::string& byte) {
    try {
        (void)letta(byte);
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "X.MAV");
        EXPECT_FALSE(errore.atteso().empty());
        return errore.riga();
    }
    return -1;
}

TEST(LeggiMaschera, ReadsAFieldForm) {
    const Maschera maschera = letta(campi);
    EXPECT_EQ(maschera.genere, GenereMaschera::campi);
    EXPECT_EQ(maschera.titolo, "Parametri");
    ASSERT_EQ(maschera.nCombo(), 1);
    EXPECT_EQ(maschera.scelte[0], (std::vector<std::string>{"libera", "cerniera"}));
    ASSERT_EQ(maschera.nCampi(), 2);
    EXPECT_EQ(maschera.campi[1].etichetta, "Lunghezza [m]");
    EXPECT_EQ(maschera.campi[1].minimo, -1.5);
    EXPECT_EQ(maschera.campi[1].massimo, 100);
    EXPECT_EQ(maschera.campi[1].aiuto, "secondo, con virgola");  // a line, not a value
    EXPECT_EQ(maschera.campi[2].tipo, "40");
    EXPECT_EQ(maschera.pulsanti, (std::vector<std::string>{"&Conferma", "&Annulla", "&Help"}));
    EXPECT_EQ(maschera.contesto, 6);
}

TEST(LeggiMaschera, HidesTheSignOfAReadOnlyField) {
    const Maschera maschera = letta(campi);
    EXPECT_TRUE(maschera.campi[2].soloLettura);
    EXPECT_EQ(maschera.campi[2].etichetta, "Sigla");
    EXPECT_FALSE(maschera.campi[1].soloLettura);
}

TEST(LeggiMaschera, ConvertsTheReferenceAloneFromTheDosCodePage) {
    EXPECT_EQ(letta(campi).riferimento, "6 Profondità");
    EXPECT_EQ(letta(sostituito(campi, "primo aiuto", "pi\xF9")).campi[0].aiuto, "più");
}

TEST(LeggiMaschera, ReadsAGridWithoutANumberOfChoices) {
    const Maschera maschera =
        letta("4\nStrati\n2\nN\n###\n1\n500\n\nProf. [m]\n######\n0\n10\nx\n\n2\na\nb\n");
    EXPECT_EQ(maschera.genere, GenereMaschera::grigliaLibera);
    EXPECT_EQ(maschera.nCombo(), 0);
    EXPECT_EQ(maschera.nCampi(), 2);
    EXPECT_EQ(maschera.contesto, 0);  // no MN line
}

TEST(LeggiMaschera, EndsAValueAtACommaOrAtTheLineEnd) {
    const Maschera maschera =
        letta("1,Parametri,0\n1\nLunghezza, tutta\n0,-1, 2,aiuto, intero\n\n2,a , b\nmn=7\n");
    EXPECT_EQ(maschera.titolo, "Parametri");
    EXPECT_EQ(maschera.campi[0].etichetta, "Lunghezza, tutta");
    EXPECT_EQ(maschera.campi[0].massimo, 2);
    EXPECT_EQ(maschera.campi[0].aiuto, "aiuto, intero");
    EXPECT_EQ(maschera.pulsanti, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(maschera.contesto, 7);
}

TEST(LeggiMaschera, TakesAChoiceLineWithAndWithoutItsLastBar) {
    EXPECT_EQ(letta(sostituito(campi, "libera|cerniera", "libera|cerniera|")).scelte,
              letta(campi).scelte);
    EXPECT_EQ(letta(sostituito(campi, "libera|cerniera", "a||b")).scelte[0],
              (std::vector<std::string>{"a", "", "b"}));
}

TEST(LeggiMaschera, TranslatesTheLabelBeforeItsUnitAndTheChoicesAsAWhole) {
    base::tabellaTesti = {};
    const auto aggiungi = [](const std::string& chiave, const std::string& francese) {
        auto& riga = base::tabellaTesti.nuovaRiga();
        riga.testo[1] = chiave;
        riga.testo[3] = francese;
    };
    aggiungi("Lunghezza", "Longueur");
    aggiungi("libera|cerniera", "libre|articulation");
    aggiungi("Parametri", "Paramètres");
    aggiungi("primo aiuto", "première aide");
    aggiungi("Sigla", "Sigle");
    aggiungi("&Conferma", "&Confirmer");
    base::ordinaTesti(base::tabellaTesti);
    base::impostaLingua(3);
    const Maschera maschera = letta(campi);
    base::impostaLingua(1);
    base::tabellaTesti = {};
    EXPECT_EQ(maschera.campi[1].etichetta, "Longueur [m]");
    EXPECT_EQ(maschera.scelte[0], (std::vector<std::string>{"libre", "articulation"}));
    EXPECT_EQ(maschera.titolo, "Paramètres");
    EXPECT_EQ(maschera.campi[0].aiuto, "première aide");
    EXPECT_EQ(maschera.campi[2].etichetta, "Sigle");  // looked up without its sign
    EXPECT_EQ(maschera.pulsanti[0], "&Confirmer");
    EXPECT_EQ(maschera.riferimento, "6 Profondità");
}

TEST(LeggiMaschera, RefusesAnUnknownKind) {
    for (const auto* tipo : {"0", "5", "-1", "1.5", "uno", ""})
        EXPECT_EQ(rigaGuasta(sostituito(campi, "1\r\nPar", std::string(tipo) + "\r\nPar")), 1)
            << tipo;
}

TEST(LeggiMaschera, RefusesWhatIsNoNumberOrNoCount) {
    EXPECT_EQ(rigaGuasta(sostituito(campi, "\r\n-1.5\r\n", "\r\nmeno\r\n")), 13);
    EXPECT_EQ(rigaGuasta(sostituito(campi, "\r\n-1.5\r\n", "\r\n200\r\n")), 14);  // above the most
    EXPECT_EQ(rigaGuasta(sostituito(campi, "cerniera\r\n2", "cerniera\r\n25")), 5);  // 26 in all
    EXPECT_EQ(rigaGuasta(sostituito(campi, "\r\n3\r\n&C", "\r\n1\r\n&C")), 22);
    EXPECT_EQ(rigaGuasta(sostituito(campi, "MN=6", "MN=201")), 26);
    EXPECT_EQ(rigaGuasta(sostituito(campi, "MN=6", "altro")), 26);
    EXPECT_EQ(rigaGuasta(campi + "altro\r\n"), 27);
    EXPECT_EQ(rigaGuasta("2\nT\n1\n"), 3);  // row numbers and no column
    EXPECT_EQ(rigaGuasta(campi), -1);
}

TEST(LeggiMaschera, RefusesAFileCutShortAtAnyLine) {
    for (std::size_t fine = campi.find('\n'); fine != std::string::npos;
         fine = campi.find('\n', fine + 1)) {
        if (fine + 1 > campi.find("MN=")) break;
        const bool intera = fine + 1 == campi.find("MN=");
        EXPECT_EQ(rigaGuasta(campi.substr(0, fine + 1)) == -1, intera) << fine;
    }
}

TEST(LeggiMaschera, RefusesAMissingFile) {
    const test::CartellaProvvisoria cartella;
    EXPECT_THROW((void)leggiMaschera(cartella / "EDITT.MAV"), base::ErroreFile);
}

TEST(LeggiMaschera, AnswersAnyBytesWithAMaskOrAFault) {
    std::mt19937 caso(20);
    std::uniform_int_distribution<std::size_t> dove(0, campi.size() - 1);
    std::uniform_int_distribution<int> byte(0, 255);
    int guasti = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string guasta = campi;
        for (int n = 0; n <= i % 4; ++n) guasta[dove(caso)] = static_cast<char>(byte(caso));
        try {
            EXPECT_LE(letta(guasta).campi.size(), 25u);
        } catch (const base::ErroreFile&) {
            ++guasti;
        }
    }
    EXPECT_GT(guasti, 100);
}

TEST(VoceGuida, IsTheNumberAtTheHeadOfTheReferenceUpTo200) {
    Maschera maschera;
    for (const auto& [testo, voce] : std::initializer_list<std::pair<const char*, int>>{
             {"12 EDITX", 12}, {"200", 200}, {"201", 200}, {"-3", 0}, {"EDITX", 0}, {"", 0}}) {
        maschera.riferimento = testo;
        EXPECT_EQ(voceGuida(maschera), voce) << testo;
    }
}

}  // namespace
}  // namespace korven::masks
