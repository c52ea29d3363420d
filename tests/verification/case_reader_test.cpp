#include "verification/case_reader.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "project/codes.hpp"

namespace korven::verification {
namespace {

constexpr const char* testa = "titolo: T\nfonte: F\n";
constexpr const char* parete =
    "[parete]\nsegmenti = 100\nlunghezzaParatia = 10\nrigidezzaEJ = 5000\nprofStrato = 20\n"
    "profFase = 2 4\n";

Caso letto(const std::string& testo) { return leggiCaso("/x/prova.txt", testo, KORVEN_EXAMPLES); }

Caso conAttesi(const std::string& attesi) {
    return letto(std::string(testa) + parete + "[attesi]\n" + attesi + '\n');
}

// Line of the error and what was expected there, behind that word; line -1 without an error.
std::pair<long, std::string> errore(const std::string& testo) {
    constexpr std::string_view capo = "atteso: ";
    try {
        std::ignore = letto(testo);
    } catch (const base::ErroreFile& e) {
        const std::string perche = e.atteso();
        return {e.riga(), perche.starts_with(capo) ? perche.substr(capo.size()) : perche};
    }
    return {-1, ""};
}

std::string erroreDi(const std::string& attesi) {
    const auto [riga, testo] = errore(std::string(testa) + parete + "[attesi]\n" + attesi + '\n');
    EXPECT_TRUE(riga == 10 || riga <= 0) << riga;
    return testo;
}

TEST(LeggiCaso, TakesFieldsInShownUnitsAndCountsTheRows) {
    const Caso caso = letto(std::string(testa) +
                            "[parete]\nlunghezzaParatia = 10\nrigidezzaEJ = 5000\n"
                            "profStrato = 4 20\ngammaN = 18 19.5\nmetodoSpinte = rankine\n"
                            "profFase = 3\nforzaTesta = -25\nsezione.spessoreDiaframma = 600\n"
                            "[attesi]\nesito = equilibrio\n");
    const auto& d = caso.parete.dati;
    EXPECT_EQ(d.nStrati, 2);
    EXPECT_DOUBLE_EQ(d.gammaN[2], 1.95);
    EXPECT_EQ(d.metodoSpinte, project::MetodoSpinte::rankine);
    EXPECT_EQ(d.nFasi, 1);
    EXPECT_DOUBLE_EQ(d.forzaTesta, -2.5);
    EXPECT_DOUBLE_EQ(d.rigidezzaEJ, 500);
    EXPECT_DOUBLE_EQ(d.sezione.spessoreDiaframma, 60);
    EXPECT_EQ(caso.nome, "prova");
}

TEST(LeggiCaso, BeginsWithoutWaterAndWithTheFirstCodeOfEachChoice) {
    const auto& d = conAttesi("esito = equilibrio").parete.dati;
    EXPECT_DOUBLE_EQ(d.faldaMonte, 100);
    EXPECT_DOUBLE_EQ(d.faldaFase[2], 100);
    EXPECT_EQ(d.vincoloPiede, project::VincoloPiede::libero);
    EXPECT_EQ(d.metodoKs, project::MetodoKs::costante);
}

TEST(LeggiCaso, SetsOneRowOfATable) {
    const Caso caso = letto(std::string(testa) + parete + "profFase[2] = 5\n[attesi]\n" +
                            "esito fase 1 = equilibrio\n");
    EXPECT_DOUBLE_EQ(caso.parete.dati.profFase[1], 2);
    EXPECT_DOUBLE_EQ(caso.parete.dati.profFase[2], 5);
}

TEST(LeggiCaso, BeginsWithAnExampleAndChangesTheVariant) {
    const Caso caso = letto(std::string(testa) +
                            "[parete]\nbase = palancola_mensola\nsegmenti = 50\n"
                            "[variante]\nsegmenti = 100\nsovraccMonte = 20\n"
                            "[attesi]\nmomento_massimo fase 1 = variante x 2 entro 1 %\n");
    EXPECT_EQ(caso.parete.dati.nStrati, 3);
    ASSERT_TRUE(caso.variante);
    EXPECT_EQ(caso.variante->segmenti, 100);
    EXPECT_DOUBLE_EQ(caso.variante->dati.sovraccMonte, 2);
    EXPECT_EQ(caso.parete.segmenti, 50);
    EXPECT_DOUBLE_EQ(caso.attese[0].confronto->fattore, 2);
}

TEST(LeggiCaso, TakesOneKindOfSectionAtATime) {
    const Caso caso = letto(std::string(testa) + "[parete]\nsezione.tipoPali = 1\n[attesi]\n" +
                            "rigidezza_sezione = 1 kN m² entro 1 %\n");
    EXPECT_TRUE(caso.parete.dati.sezione.tipoPali);
    EXPECT_FALSE(caso.parete.dati.sezione.tipoDiaframma);
}

TEST(LeggiCaso, ReadsWhatIsExpected) {
    const Attesa a =
        conAttesi("momento fase 1 z 2.5 = -12.50 kN m/m entro 0.1 % solo corsa").attese.front();
    EXPECT_EQ(a.grandezza->nome, "momento");
    EXPECT_EQ(a.luogo, (Luogo{1, 2.5, 0}));
    EXPECT_DOUBLE_EQ(*a.valore, -12.5);
    EXPECT_EQ(a.decimali, 2);
    EXPECT_TRUE(a.tolleranza.relativa);
    EXPECT_DOUBLE_EQ(a.tolleranza.valore, 0.001);
    EXPECT_EQ(a.solo, Metodo::corsa);
}

TEST(LeggiCaso, TakesTheLastStageWhereNoneIsNamed) {
    EXPECT_EQ(conAttesi("momento z 2.5 = 1 kN m/m entro 0.1 kN m/m").attese.front().luogo.fase, 2);
}

TEST(LeggiCaso, RefusesExpectationsThatMeanNothing) {
    EXPECT_EQ(erroreDi("momeno z 1 = 1 kN m/m entro 1 %"),
              "il nome di una grandezza, non «momeno z 1»");
    EXPECT_EQ(erroreDi("momento z 1.03 = 1 kN m/m entro 1 %"),
              "la profondità di un nodo, non «1.03»");
    EXPECT_EQ(erroreDi("momento = 1 kN m/m entro 1 %"), "una profondità: «z 2.5»");
    EXPECT_EQ(erroreDi("momento z 2.5 quota 1 = 1 kN m/m entro 1 %"),
              "fase, z o tirante, non «quota»");
    EXPECT_EQ(erroreDi("momento fase 3 z 1 = 1 kN m/m entro 1 %"),
              "il numero di una fase o di un tirante che c'è, non «3»");
    EXPECT_EQ(erroreDi("momento z 1 = 1 kN entro 1 %"), "l'unità «kN m/m»");
    EXPECT_EQ(erroreDi("momento z 1 = 1 kN m/m"), "una tolleranza: «entro 0.1 %»");
    EXPECT_EQ(erroreDi("momento z 1 = 1 kN m/m entro 0 %"), "una tolleranza maggiore di 0");
    EXPECT_EQ(erroreDi("momento z 1 = 1 kN m/m entro 1 mm"), "una tolleranza in % o in kN m/m");
    EXPECT_EQ(erroreDi("momento z 1 = 1,5 kN m/m entro 1 %"), "un numero, non «1,5»");
    EXPECT_EQ(erroreDi("momento z 1 = variante entro 1 %"),
              "una parete variante, con la quale si confronta");
    EXPECT_EQ(erroreDi("esito = bene"), "un esito, non «bene»");
    EXPECT_EQ(erroreDi("acqua z 1 = 1 kN/m² entro 1 % solo corsa"),
              "un calcolo che conosce la grandezza, non «corsa»");
}

TEST(LeggiCaso, RefusesADepthThatIsNoNodeOfTheVariant) {
    const std::string inizio = std::string(testa) + parete;
    EXPECT_EQ(errore(inizio + "[variante]\nsegmenti = 30\n[attesi]\n" +
                     "spostamento z 0.5 = variante entro 1 %\n")
                  .second,
              "la profondità di un nodo, non «0.5»");
    EXPECT_EQ(errore(inizio + "[variante]\nsegmenti = 40\n[attesi]\n" +
                     "spostamento z 0.5 = variante entro 1 %\n")
                  .first,
              -1);
}

TEST(LeggiCaso, SaysInItsErrorsThatSomethingWasExpectedThere) {
    const auto frase = [](const std::string& testo) -> std::string {
        try {
            std::ignore = letto(testo);
        } catch (const base::ErroreFile& e) {
            return e.what();
        }
        return {};
    };
    EXPECT_EQ(frase("titolo\n"), "/x/prova.txt, riga 1: atteso: un nome, «:» e un valore");
    EXPECT_EQ(frase("fonte: F\n"), "/x/prova.txt: atteso: un titolo");
}

TEST(LeggiCaso, RefusesFieldsThatItDoesNotKnow) {
    const std::string inizio = std::string(testa) + "[parete]\n";
    EXPECT_EQ(errore(inizio + "gama = 1\n"),
              (std::pair(4L, std::string("il nome di un campo, non «gama»"))));
    EXPECT_EQ(errore(inizio + "profFase = 1 x\n").second, "un numero, non «x»");
    EXPECT_EQ(errore(inizio + "profFase[21] = 1\n").second, "una riga che la tabella ha");
    EXPECT_EQ(errore(inizio + "base = ../muro\n").second, "un progetto di esempio, non «../muro»");
    EXPECT_EQ(errore(inizio + "segmenti = 2.5\n").second,
              "un numero intero di segmenti, da 3 in su");
    EXPECT_EQ(errore("titolo: T\nfont: F\n").second,
              "titolo, fonte, calcolo, tolleranza o noto, non «font»");
}

TEST(LeggiCaso, RefusesACaseThatSaysTooLittle) {
    EXPECT_EQ(errore("fonte: F\n").second, "un titolo");
    EXPECT_EQ(errore("titolo: T\n").second, "una fonte: da dove vengono i valori attesi");
    EXPECT_EQ(errore(testa).second, "una grandezza attesa");
    EXPECT_EQ(errore(std::string(testa) + "[pareti]\n"),
              (std::pair(3L, std::string("una delle parti «parete», «variante» e «attesi», tra "
                                         "parentesi quadre"))));
}

TEST(LeggiCaso, RefusesAWallThatARunWouldRefuse) {
    EXPECT_FALSE(
        errore(std::string(testa) + "[parete]\nprofFase = 1\n[attesi]\nesito = equilibrio\n")
            .second.empty());
    EXPECT_EQ(errore(std::string(testa) + parete + "segmenti = 1000\n[attesi]\n" +
                     "spostamento z 0 = 1 mm entro 1 %\n")
                  .second,
              "troppi segmenti per il calcolo della relazione: «solo equilibrio»");
}

TEST(LeggiGruppo, KeepsTheTheoryAsItIs) {
    const Gruppo g =
        leggiGruppo("/x/travi/gruppo.txt", "ordine: 3\ntitolo: T\n[teoria]\n# One\n\nTwo = 2\n");
    EXPECT_EQ(g.nome, "travi");
    EXPECT_EQ(g.ordine, 3);
    EXPECT_EQ(g.teoria, "# One\n\nTwo = 2\n");
}

TEST(LeggiGruppo, RefusesWhatAGroupDoesNotSay) {
    try {
        std::ignore = leggiGruppo("/x/travi/gruppo.txt", "ordin: 3\n");
        FAIL() << "taken";
    } catch (const base::ErroreFile& e) {
        EXPECT_EQ(e.riga(), 1);
        EXPECT_EQ(e.atteso(), "atteso: ordine, titolo, descrizione, figura o curva, non «ordin»");
    }
}

TEST(LeggiCaso, SaysWhichPlaceAQuantityWants) {
    EXPECT_EQ(erroreDi("tiro = 1 kN/m entro 1 %"), "un tirante: «tirante 1»");
    EXPECT_EQ(erroreDi("momento_massimo z 1 = 1 kN m/m entro 1 %"),
              "una grandezza senza profondità e senza tirante");
    EXPECT_EQ(erroreDi("rigidezza_sezione fase 1 = 1 kN m² entro 1 %"), "una grandezza senza fase");
}

TEST(LeggiCaso, TakesNoTextForAField) {
    EXPECT_EQ(errore(std::string(testa) + "[parete]\ndescrStrato = 1\n").second,
              "un campo di numeri, non «descrStrato»");
}

TEST(LeggiCaso, TakesTheStiffnessOfTheSectionWhereNoneIsWritten) {
    const Caso caso = letto(std::string(testa) +
                            "[parete]\nsegmenti = 50\nbase = palancola_mensola\n"
                            "rigidezzaEJ = 0\n[attesi]\nesito = equilibrio\n");
    EXPECT_GT(caso.parete.dati.rigidezzaEJ, 0);
}

}  // namespace
}  // namespace korven::verification
