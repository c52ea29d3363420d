#include "review/bench.hpp"
#include "review/remark_list.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::Sezione;

using Righe = std::vector<std::string>;

Righe trovati(const DatiProgetto& dati) {
    ElencoOsservazioni elenco;
    controlloMostrati(dati, elenco);
    Righe testo;
    for (const auto& r : elenco.ordinate()) testo.push_back((r.impedisce() ? "! " : "") + r.testo);
    return testo;
}

constexpr const char* troppo = ": valore troppo grande per essere mostrato";
constexpr double enorme = 1e308;  // ten times as much is no number

TEST(ControlloMostrati, FindsNothingInLargeValuesThatCanBeShown) {
    EXPECT_TRUE(trovati(test::progettoSemplice()).empty());
    EXPECT_TRUE(trovati(conModifica([](DatiProgetto& d) {
                    d.gammaN[1] = d.momentoTesta = 1.7e307;
                    d.lunghezzaParatia = d.profStrato[2] = d.gammaAcqua =
                        1.7e308;  // shown as stored
                })).empty());
}

TEST(ControlloMostrati, NamesEveryFieldAndItsRow) {
    EXPECT_EQ(trovati(conModifica([](DatiProgetto& d) {
                  d.gammaN[1] = -enorme;
                  d.gammaSat[2] = d.coesione[2] = d.ksStrato[2] = enorme;
                  d.rigidezzaEJ = d.pressioneOrizz = d.sovraccMonte = enorme;
                  d.momentoTesta = d.forzaTesta = d.sforzoNormale = enorme;
                  d.rigTirante[1] = d.pretTirante[1] = d.sovraccFase[2] = enorme;
                  d.gammaN[3] = d.pretTirante[2] = d.sovraccFase[3] = enorme;  // beyond the counts
              })),
              (Righe{std::string("! strato 1: Gamma [kN/m³]") + troppo,
                     std::string("! strato 2: Gamma Sat. [kN/m³]") + troppo,
                     std::string("! strato 2: Coes. [kN/m²]") + troppo,
                     std::string("! strato 2: ks [kN/m³]") + troppo,
                     std::string("! Rigidezza EJ diaframma [kN m²]") + troppo,
                     std::string("! Pressione orizzontale costante [kN/m²]") + troppo,
                     std::string("! Sovraccarico verticale lato monte [kN/m²]") + troppo,
                     std::string("! Momento esterno applicato alla sommità del diaframma [kN m]") +
                         troppo,
                     std::string("! Forza orizzontale esterna applicata alla sommità del diaframma "
                                 "[kN]") +
                         troppo,
                     std::string("! sforzo normale") + troppo,
                     std::string("! tirante 1: Rigidezza [kN/m]") + troppo,
                     std::string("! tirante 1: Pretens. [kN]") + troppo,
                     std::string("! fase 2: Sovracc. [kN/m²]") + troppo}));
}

TEST(ControlloMostrati, LooksAtTheSectionOfTheTypeInForceAlone) {
    auto d = test::progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    d.sezione.copriferroMonte = d.sezione.diametroValle = d.sezione.paliDiamEst = enorme;
    EXPECT_EQ(trovati(d), (Righe{std::string("! lato monte: Copriferro [mm]") + troppo,
                                 std::string("! lato valle: Diametro armature [mm]") + troppo}));
    const struct {
        Sezione sezione;
        double Sezione::*campo;
        const char* nome;
    } casi[] = {
        {structure::paliTubolari(), &Sezione::paliDiamEst, "Diametro esterno [mm]"},
        {structure::palancola(), &Sezione::palancolaSpessAla, "Spessore ala [mm]"},
        {structure::paliArmati(), &Sezione::armPassoStaffe, "Passo staffe [mm]"},
    };
    for (const auto& caso : casi) {
        d.sezione = caso.sezione;
        EXPECT_TRUE(trovati(d).empty());
        d.sezione.*caso.campo = enorme;
        EXPECT_EQ(trovati(d), Righe{std::string("! ") + caso.nome + troppo});
    }
}

}  // namespace
}  // namespace korven::review
