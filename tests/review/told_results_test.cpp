// What the stages of the delivered examples and of the walls of which a run alone tells too little
// are told. A sound wall is told little: whoever adds a remark looks here whether it says something
// to an engineer. What is told of their data stands in tests/examples and told_walls_test.cpp.

#include <gtest/gtest.h>

#include <map>

#include "review/margins.hpp"
#include "review/result_review.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

Osservazioni risultati(const std::string& percorso) {
    return esaminaRisultati(test::leggiMuro(percorso), 50);
}

Righe codici(const std::string& percorso) {
    Righe trovati;
    for (const auto& o : risultati(percorso)) trovati.emplace_back(o.codice);
    return trovati;
}

std::string esempio(const std::string& nome) {
    return std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd";
}

std::string muro(const std::string& nome) {
    return std::string(KORVEN_WALLS) + "/" + nome + ".kvd";
}

const std::map<std::string, Righe> esempi = {
    {"diaframma_due_ordini", {}},
    {"diaframma_piede_roccia", {}},
    {"palancola_mensola", {}},
    {"pali_armati_staffe", {"taglio-non-verificato", "riduzione-bassa"}},
    {"pali_tubolari_cerniera", {}},
    {"paratia_lunga_incastro",
     {"verdetto-con-la-maglia", "taglio-maggiore-della-statica", "scavo-spostato-dai-nodi"}},
    {"trincea_puntellata", {"scavo-spostato-dai-nodi"}},
};

TEST(EsempiRaccontati, AreToldLittle) {
    EXPECT_EQ(test::muriIn(KORVEN_EXAMPLES).size(), esempi.size());
    for (const auto& [nome, attesi] : esempi) EXPECT_EQ(codici(esempio(nome)), attesi) << nome;
}

TEST(EsempiRaccontati, AreToldWhatTheirStagesComeTo) {
    EXPECT_EQ(
        righe(risultati(esempio("pali_armati_staffe"))),
        (Righe{"[pericolo] taglio-non-verificato: taglio di progetto 255.73 kN/m (fase 3, a 1.60 "
               "m), resistenza dell'armatura d'anima 241.22 kN/m, usata per 106.0 %: infittire le "
               "staffe o aumentarne il diametro, o ridurre il taglio con tiranti, scavo e carichi",
               "[da vedere] riduzione-bassa: fase 3: Prof. [m] = 7.8: riduzione della resistenza F "
               "= 1.44, sotto 1.50; con F maggiore: ruota attorno alla profondità di 1.60 m, il "
               "piede verso lo scavo; controllare infissione, tiranti e carichi"}));
    EXPECT_EQ(
        righe(risultati(esempio("paratia_lunga_incastro"))),
        (Righe{
            "[pericolo] verdetto-con-la-maglia: Il verdetto non è a convergenza: lo sfruttamento "
            "cresce, "
            "flessione con momento negativo da 90.2 % con 50 segmenti a 98.2 % con 200, verso "
            "101.9 % con maglie sempre più fini. Con queste maglie la sezione è verificata, "
            "con il valore a cui tendono no: verificarla con quello.",
            "[da vedere] taglio-maggiore-della-statica: taglio massimo del diagramma 1120.0 kN/m "
            "(fase 5, a 26.00 m), dell'equilibrio -385.2 kN/m (fase 5, a 18.72 m); al piede "
            "incastrato il diagramma conta le molle dell'incastro: il primo non è della paratia",
            "[da vedere] scavo-spostato-dai-nodi: fase 4: Prof. [m] = 11.5: conta dal nodo a 11.96 "
            "m, 0.46 m più in basso; con questa maglia, per tutte le cause "
            "insieme, il momento è falsato di 8.1 %: aumentare i "
            "segmenti"}));
}

// The water and the stresses of four of them are told before they run.
const std::map<std::string, Righe> muri = {
    {"acqua_1000", {}},
    {"acqua_a_zero", {}},
    {"acqua_fase_a_zero", {}},
    {"tensioni_totali_sabbia", {}},
    {"banchina", {"riduzione-insufficiente", "spostamento-eccessivo"}},
    {"quasi_meccanismo",
     {"riduzione-insufficiente", "spostamento-eccessivo", "verdetto-con-la-maglia",
      "passiva-molto-usata"}},
    {"meccanismo", {"meccanismo"}},
    {"puntone_rigidissimo", {"tiro-sbagliato"}},
    {"oscilla_1", {"iterazione-che-oscilla", "scavo-spostato-dai-nodi"}},
    {"oscilla_2",
     {"iterazione-che-oscilla", "verifica-fallita-in-equilibrio", "verifica-fallita-in-equilibrio",
      "passiva-molto-usata"}},
    {"oscilla_3", {"iterazione-che-oscilla", "strato-spostato-dai-nodi"}},
    {"singolare_1", {"iterazione-che-oscilla"}},
    {"singolare_2", {"iterazione-che-oscilla", "scavo-spostato-dai-nodi"}},
    {"singolare_3", {"iterazione-che-oscilla"}},
};

TEST(MuriRaccontati, AreEachToldWhatIsWrongWithThemOrThatTheyStand) {
    EXPECT_EQ(test::muriIn(KORVEN_WALLS).size(), muri.size());
    for (const auto& [nome, attesi] : muri) EXPECT_EQ(codici(muro(nome)), attesi) << nome;
}

// Factor, movement and lengths by an independent calculation.
TEST(MuriRaccontati, AreToldByHowMuch) {
    EXPECT_EQ(
        righe(risultati(muro("banchina"))),
        (Righe{
            "[pericolo] riduzione-insufficiente: fase 2: Prof. [m] = 3.5: riduzione della "
            "resistenza F = 1.03, sotto 1.25; con F maggiore: ruota attorno alla profondità di "
            "8.46 m, la testa "
            "verso lo scavo; allungare la paratia, aggiungere un tirante o ridurre scavo e carichi",
            "[pericolo] spostamento-eccessivo: fase 2: Prof. [m] = 3.5: spostamento "
            "massimo 99.9 mm a 0.00 m di profondità, 1/35 dello scavo, più di 1/50: "
            "controllare rigidezza, tiranti, infissione e valori di ks"}));
    EXPECT_EQ(
        righe(risultati(muro("meccanismo"))),
        Righe{
            "[impedisce] meccanismo: la paratia è un meccanismo nella fase 1: ruota attorno alla "
            "profondità di 8.93 m, la testa verso lo scavo; mancano 25.7 kN m/m; al limite: "
            "monte attivo 0.19-8.74 m, monte passivo 9.11-9.30 m, valle attivo 9.11-9.30 m, valle "
            "passivo 5.02-8.74 m; di solito aiuta una paratia più lunga: circa 9.42 m"});
    EXPECT_EQ(righe(risultati(muro("puntone_rigidissimo"))),
              Righe{"[pericolo] tiro-sbagliato: puntone 1: Rigidezza [kN/m] = 1000000000: la "
                    "relazione dà il tiro 0.00 kN/m, quello vero è 42.20 kN/m (fase 2): lo calcola "
                    "da spostamenti con sette decimali, che bastano fino a una rigidezza di circa "
                    "4200000 kN/m; usare il tiro vero o una rigidezza minore"});
    EXPECT_EQ(righe(risultati(muro("oscilla_3")))[0],
              "[impedisce] iterazione-che-oscilla: la paratia è in equilibrio nella fase 2, con "
              "uno spostamento massimo di 3.1 mm: oscilla soltanto l'iterazione; il suo equilibrio "
              "si calcola con korven32c equilibrio");
}

// The quay wall with enough embedment, the prop with a stiffness that a section has, and the
// mechanism longer and stiffer.
TEST(MuriRaccontati, AreToldNothingOfTheirDangerOnceItIsMended) {
    auto lunga = test::leggiMuro(muro("banchina"));
    lunga.lunghezzaParatia += 4;
    for (const auto& o : esaminaRisultati(lunga, 50))
        EXPECT_NE(o.codice, "riduzione-insufficiente") << o.testo;
    auto puntone = test::leggiMuro(muro("puntone_rigidissimo"));
    puntone.rigTirante[1] = 1e4;
    EXPECT_EQ(righe(esaminaRisultati(puntone, 50)), Righe{});
    auto ferma = test::leggiMuro(muro("meccanismo"));
    ferma.lunghezzaParatia = 13;
    ferma.rigidezzaEJ *= 4;
    EXPECT_EQ(righe(esaminaRisultati(ferma, 50)), Righe{});
}

}  // namespace
}  // namespace korven::review
