#include "studies/columns.hpp"

#include <gtest/gtest.h>

#include <set>

#include "studies/small_study.hpp"

namespace korven::studies {
namespace {

std::vector<std::string> nomi(const std::vector<Colonna>& colonne) {
    std::vector<std::string> tutti;
    for (const Colonna& c : colonne) tutti.push_back(c.nome);
    return tutti;
}

double valore(const RisultatoVariante& r, const std::string& nome) {
    for (const Colonna& c : colonne(2, true))
        if (c.nome == nome) return c.valore(r, c.tirante);
    ADD_FAILURE() << nome;
    return 0;
}

TEST(Colonne, HaveNamesOfTheirOwnAndOneForEachAnchor) {
    const auto tutti = nomi(colonne(3, true));
    EXPECT_EQ(std::set<std::string>(tutti.begin(), tutti.end()).size(), tutti.size());
    EXPECT_EQ(tutti.front(), colonnaCausa);
    for (const char* nome : {"tiro_1_kN", "tiro_2_kN", "tiro_3_kN"})
        EXPECT_EQ(std::count(tutti.begin(), tutti.end(), nome), 1) << nome;
    EXPECT_EQ(std::count(tutti.begin(), tutti.end(), "tiro_4_kN"), 0);
}

TEST(Colonne, LeaveOutWhatNeedsASearchUnlessItIsAskedFor) {
    for (const Colonna& c : colonne(1, false)) EXPECT_FALSE(c.riduzione || c.lunghezza) << c.nome;
    const auto scelta = scegliColonne({"riduzione"}, 1, false);
    EXPECT_EQ(nomi(scelta.colonne), (std::vector<std::string>{"causa", "riduzione"}));
    EXPECT_TRUE(scelta.colonne.back().riduzione);
}

TEST(Colonne, AreChosenInTheOrderOfTheTableAlwaysWithTheVerdict) {
    const auto scelta = scegliColonne({"tiro_2_kN", "momento_massimo_kNm"}, 2, false);
    EXPECT_EQ(nomi(scelta.colonne),
              (std::vector<std::string>{"causa", "momento_massimo_kNm", "tiro_2_kN"}));
    EXPECT_EQ(scegliColonne({"causa", "tiro_3_kN"}, 2, false).sconosciuto, "tiro_3_kN");
}

TEST(Colonne, AreCountedByWhereTheyAreNotWritten) {
    const auto scelta = scegliColonne({"momento_massimo_kNm", "uso_bielle"}, 0, false);
    const auto tutte = conQuelleContate(scelta.colonne, 0);
    EXPECT_EQ(nomi(tutte),
              (std::vector<std::string>{"causa", "fase_caduta", "momento_massimo_kNm",
                                        "uso_momento_positivo", "uso_momento_negativo",
                                        "uso_bielle", "uso_armatura_taglio", "passiva_usata"}));
    for (const Colonna& c : tutte)
        EXPECT_EQ(c.scritta,
                  c.nome == "causa" || c.nome == "momento_massimo_kNm" || c.nome == "uso_bielle")
            << c.nome;
    const auto intere = colonne(2, true);
    EXPECT_EQ(nomi(conQuelleContate(intere, 2)), nomi(intere));
}

TEST(Colonne, HoldNumbersInTheUnitOfTheirNames) {
    RisultatoVariante r;
    r.estremi.spostamento = {-0.0123, 4.5, 2};
    r.estremi.momentoMassimo = {12.34567891, 6, 3};
    r.estremi.taglio = {-7.5, 1.5, 1};
    r.tiri = {10, -2};
    EXPECT_EQ(valore(r, "spostamento_massimo_m"), 0.0123);
    EXPECT_EQ(valore(r, "z_spostamento_m"), 4.5);
    EXPECT_EQ(valore(r, "momento_massimo_kNm"), 123.456789);  // t m times 10, six decimals
    EXPECT_EQ(valore(r, "fase_momento_massimo"), 3);
    EXPECT_EQ(valore(r, "momento_minimo_kNm"), 0);
    EXPECT_TRUE(std::isnan(valore(r, "z_momento_minimo_m")));  // nowhere
    EXPECT_EQ(valore(r, "taglio_massimo_kN"), 75);
    EXPECT_EQ(valore(r, "tiro_2_kN"), -20);
}

TEST(Colonne, HaveNoNumbersOfAWallThatDoesNotStand) {
    RisultatoVariante r;
    r.estremi.momentoMassimo = {12, 6, 1};
    r.tiri = {10};
    r.causa = safety::Causa::meccanismo;
    r.motivo = Motivo::rotazione;
    r.faseCaduta = 2;
    EXPECT_TRUE(std::isnan(valore(r, "momento_massimo_kNm")));
    EXPECT_TRUE(std::isnan(valore(r, "tiro_1_kN")));
    EXPECT_EQ(valore(r, "fase_caduta"), 2);
    EXPECT_EQ(paroleCausa().at(static_cast<std::size_t>(valore(r, "causa"))), "meccanismo");
    EXPECT_EQ(paroleMotivo().at(static_cast<std::size_t>(valore(r, "motivo"))), "rotazione");
}

// 140 of 200 kNm; the negative moment's resistance is below 0 as the moment is.
TEST(Colonne, HoldTheUseOfTheSectionAsDesignValueOverResistance) {
    RisultatoVariante r;
    r.flessione = results::ConfrontoMomenti{
        .mrPos = 20, .mrNeg = -10, .mdMax = 14, .mdMin = -7, .negativo = true};
    r.taglio = structure::ConfrontoTaglio{400, 160, 0, 0, 120};
    EXPECT_EQ(valore(r, "uso_momento_positivo"), 0.7);
    EXPECT_EQ(valore(r, "uso_momento_negativo"), 0.7);
    EXPECT_EQ(valore(r, "uso_bielle"), 0.3);
    EXPECT_EQ(valore(r, "uso_armatura_taglio"), 0.75);
    r.flessione->negativo = false;
    r.taglio->Vrd3 = 0;
    EXPECT_TRUE(std::isnan(valore(r, "uso_momento_negativo")));
    EXPECT_TRUE(std::isnan(valore(r, "uso_armatura_taglio")));
}

TEST(TirantiPossibili, AreAllThatFitWhereTheirNumberVaries) {
    const auto dati = test::esempioStudio("diaframma_due_ordini");
    const std::vector uno{test::campoDi("lunghezzaParatia")}, righe{test::campoDi("nTiranti")};
    EXPECT_EQ(tirantiPossibili(dati, uno), 2);
    EXPECT_EQ(tirantiPossibili(dati, righe), 20);
}

TEST(NessunaColonna, NamesTheNearestResultOrAllOfThem) {
    EXPECT_EQ(nessunaColonna("momento_masimo_kNm", 0),
              "nessun risultato si chiama così; forse momento_massimo_kNm?");
    const std::string tutte = nessunaColonna("zzzzzzzzzzzz", 2);
    EXPECT_TRUE(tutte.starts_with("nessun risultato si chiama così: ci sono ")) << tutte;
    for (const Colonna& colonna : colonne(2, true))
        EXPECT_NE(tutte.find(colonna.nome), std::string::npos) << colonna.nome;
}

}  // namespace
}  // namespace korven::studies
