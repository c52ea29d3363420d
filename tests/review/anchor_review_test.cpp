#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "review/bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

using Righe = std::vector<std::string>;

TEST(ControlloPosa, TellsAnAnchorThatNoStagePutsInPlace) {
    const std::string mai = ": nessuna fase lo mette in opera: non agisce";
    aspetta({{[](DatiProgetto& d) { d.tirantiFase[2] = 0; }, {"tirante 1: Prof. [m] = 1.5" + mai}},
             {[](DatiProgetto& d) {
                  test::aggiungiTirante(d, 3, 500);
                  test::aggiungiTirante(d, 4.5, 500);
              },
              {"tiranti 2, 3: Prof. [m] = 3, 4.5" + mai}},
             {[](DatiProgetto& d) {
                  test::aggiungiTirante(d, 3.1, 500);
                  d.tirantiFase[2] = 2;
              },
              {}}});
}

// Stage 2 is 5 m deep and puts the anchor in place.
TEST(ControlloPosa, TellsAnAnchorBelowTheExcavationOfTheStageThatPutsItInPlace) {
    const std::string sotto =
        ": sta sotto il fondo dello scavo della fase che lo mette in opera: controllare profondità "
        "e fase";
    aspetta({{[](DatiProgetto& d) { d.profTirante[1] = 5.1; },
              {"tirante 1: Prof. [m] = 5.1, fase 2: Prof. [m] = 5" + sotto}},
             {[](DatiProgetto& d) { d.profTirante[1] = 4.8; }, {}},
             {[](DatiProgetto& d) {  // in place from the first stage, 2 m deep
                  d.profTirante[1] = 3.1;
                  d.tirantiFase[1] = 1;
              },
              {"tirante 1: Prof. [m] = 3.1, fase 1: Prof. [m] = 2" + sotto}},
             {[](DatiProgetto& d) {
                  d.profTirante[1] = 1.92;
                  d.tirantiFase[1] = 1;
              },
              {}}});
}

// Of 12 m in 20 segments the nodes are 0.6 m apart.
TEST(ControlloNodiTiranti, TellsAnAnchorThatIsMovedByMoreThanAHandsBreadth) {
    const std::string detto = " m: con più segmenti il nodo si avvicina";
    const auto a = [](double profondita, const char* nSeg) {
        return righe(conModifica([&](DatiProgetto& d) { d.profTirante[1] = profondita; }), nSeg);
    };
    EXPECT_EQ(a(1.35, "20"),
              Righe{"tirante 1: Prof. [m] = 1.35: agisce sul nodo più vicino, a 1.20" + detto});
    EXPECT_EQ(a(1.51, "20"),
              Righe{"tirante 1: Prof. [m] = 1.51: agisce sul nodo più vicino, a 1.80" + detto});
    EXPECT_EQ(a(1.3, "20"), Righe{});
    EXPECT_EQ(a(1.35, "120"), Righe{});
    EXPECT_EQ(righe(conModifica([](DatiProgetto& d) {
                        d.profTirante[1] = 0.9;
                        test::aggiungiTirante(d, 3.3, 500);
                        d.tirantiFase[2] = 2;
                    }),
                    "20"),
              Righe{"tiranti 1, 2: Prof. [m] = 0.9, 3.3: agisce sul nodo più vicino, a 1.20, 3.60" +
                    detto});
}

TEST(ControlloNodiTiranti, TellsAnAnchorOnTheNodeOfARestraint) {
    const std::string detto = ": sta sul nodo del vincolo: la sua rigidezza non conta";
    const auto con = [](double profondita, double testa, double piede) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.profTirante[1] = profondita;
                           d.vincoloTesta = testa;
                           d.vincoloPiede = piede;
                       }),
                       {"tirante-sul-vincolo"});
    };
    EXPECT_EQ(con(0.1, 2, 1), Righe{"tirante 1: Prof. [m] = 0.1" + detto});
    EXPECT_EQ(con(0.1, 1, 3), Righe{});
    EXPECT_EQ(con(0.6, 2, 3), Righe{});
    for (const double piede : {2.0, 3.0})
        EXPECT_EQ(con(12, 1, piede), Righe{"tirante 1: Prof. [m] = 12" + detto});
    EXPECT_EQ(con(12, 2, 1), Righe{});
}

}  // namespace
}  // namespace korven::review
