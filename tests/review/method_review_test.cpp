#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "review/bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoKs;
using project::ModoSpinte;
using Righe = std::vector<std::string>;

TEST(ControlloMetodi, TellsThatReportAndFileForgetRankineAndBell) {
    const auto con = [](double metodo) {
        return righeDi(conModifica([&](DatiProgetto& d) { d.metodoSpinte = metodo; }),
                       {"relazione-con-coulomb"});
    };
    const std::string detto =
        ": la relazione dirà Coulomb, il comando seguente ricalcola con Coulomb e il file si "
        "riapre con Coulomb: scegliere di nuovo il metodo prima di ogni comando";
    EXPECT_EQ(con(valore(MetodoSpinte::rankine)), Righe{"metodo delle spinte = Rankine" + detto});
    EXPECT_EQ(con(valore(MetodoSpinte::bell)), Righe{"metodo delle spinte = Bell" + detto});
    EXPECT_EQ(con(valore(MetodoSpinte::coulomb)), Righe{});
}

TEST(ControlloMetodi, TellsThatBowlesLosesTheVerticalStressOfTheOtherSide) {
    const auto con = [](ModoSpinte spinte, ModoKs modoKs, MetodoKs metodo) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.modoSpinte = valore(spinte);
                           d.modoKs = valore(modoKs);
                           d.metodoKs = valore(metodo);
                       }),
                       {"bowles-senza-tensione"});
    };
    EXPECT_EQ(con(ModoSpinte::comeMonte, ModoKs::ricalcolato, MetodoKs::bowles),
              Righe{"opzione delle spinte = costantemente uguali al lato monte, opzione di ks = "
                    "ricalcolato ad ogni fase di scavo: ks secondo Bowles perde a valle "
                    "il termine della tensione verticale: scegliere anche ks uguale al lato monte, "
                    "o le spinte ricalcolate"});
    EXPECT_EQ(con(ModoSpinte::comeMonte, ModoKs::comeMonte, MetodoKs::bowles), Righe{});
    EXPECT_EQ(con(ModoSpinte::ricalcolate, ModoKs::ricalcolato, MetodoKs::bowles), Righe{});
    EXPECT_EQ(con(ModoSpinte::comeMonte, ModoKs::ricalcolato, MetodoKs::costante), Righe{});
}

TEST(ControlloMetodi, TellsThatTheLinearLawReachesTheLastValueFarBelowOnTheRetainedSide) {
    const auto con = [](MetodoKs metodo, double fondo) {
        return righeDi(conModifica([&](DatiProgetto& d) {
                           d.metodoKs = valore(metodo);
                           d.profStrato[1] = fondo;
                       }),
                       {"ks-ultimo-strato"});
    };
    EXPECT_EQ(
        con(MetodoKs::lineare, 11.9),
        Righe{"strato 2: ks [kN/m³] = 30000: a monte la legge lineare arriva a questo valore "
              "solo 100 m sotto il piede dell'ultimo strato: aggiungere un altro strato sotto "
              "il piede della paratia"});
    EXPECT_EQ(righeDi(conModifica([](DatiProgetto& d) {
                          d.metodoKs = valore(MetodoKs::lineare);
                          d.ksStrato[2] = d.ksStrato[1];
                      }),
                      {"ks-ultimo-strato"}),
              Righe{});
    EXPECT_EQ(con(MetodoKs::lineare, 12), Righe{});
    EXPECT_EQ(con(MetodoKs::costante, 4), Righe{});
}

// Each typed value, and the choice with which it does something.
TEST(ControlloMetodi, TellsTypedValuesThatTheMethodDoesNotRead) {
    const std::string invano = ": senza effetto: ";
    const auto senza = [](const Modifica& modifica) {
        return righeDi(conModifica(modifica), {"valore-senza-effetto"});
    };
    const auto metodoKs = [&](MetodoKs metodo, double coeffM) {
        return senza([&](DatiProgetto& d) {
            d.metodoKs = valore(metodo);
            d.coeffM = coeffM;
        });
    };
    const std::string daSe =
        "strati 1, 2: ks [kN/m³] = 15000, 30000" + invano + "il metodo scelto calcola ks da sé";
    EXPECT_EQ(metodoKs(MetodoKs::bowles, 0), Righe{daSe});
    EXPECT_EQ(metodoKs(MetodoKs::lancellotta, 500), Righe{daSe});
    for (const auto legge : {MetodoKs::costante, MetodoKs::lineare}) {
        EXPECT_EQ(metodoKs(legge, 0), Righe{});
        EXPECT_EQ(metodoKs(legge, 500), Righe{"coefficiente m = 500" + invano +
                                              "lo legge solo il metodo di Lancellotta per ks"});
    }
    EXPECT_EQ(senza([](DatiProgetto& d) {
                  d.metodoKs = valore(MetodoKs::bowles);
                  d.ksStrato[1] = d.ksStrato[2] = 0;
              }),
              Righe{});

    const auto sovraccarico = [&](ModoSpinte modo) {
        return senza([&](DatiProgetto& d) {
            d.modoSpinte = valore(modo);
            d.sovraccFase[2] = 1;
        });
    };
    EXPECT_EQ(sovraccarico(ModoSpinte::comeMonte),
              Righe{"fase 2: Sovracc. [kN/m²] = 10" + invano +
                    "con le spinte uguali al lato monte il carico sul fondo dello scavo non "
                    "agisce"});
    EXPECT_EQ(sovraccarico(ModoSpinte::ricalcolate), Righe{});

    const auto sforzo = [&](const project::Sezione& sezione) {
        return senza([&](DatiProgetto& d) {
            d.sezione = sezione;
            d.sforzoNormale = 5;
        });
    };
    EXPECT_EQ(sforzo({}), Righe{"sforzo normale = 50" + invano +
                                "conta solo nella verifica della sezione, che non è definita"});
    EXPECT_EQ(sforzo(structure::palancola()), Righe{});
}

}  // namespace
}  // namespace korven::review
