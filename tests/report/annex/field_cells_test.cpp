#include "report/annex/field_cells.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "project/codes.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using project::DatiProgetto;

// All that the annex computes of a wall: stages, then resistances and actions of its section.
std::vector<double> numeri(const DatiProgetto& dati) {
    const auto parete = live::calcola(dati, 20);
    std::vector<double> tutti{parete.dati.rigidezzaEJ};
    for (const auto& fase : parete.fasi)
        for (const auto* curva : {&fase.y, &fase.momento, &fase.taglio})
            tutti.insert(tutti.end(), curva->begin(), curva->end());
    const auto controlli = live::controlliSezione(parete, nullptr);
    if (const auto& m = controlli.flessione)
        tutti.insert(tutti.end(), {m->mrPos, m->mrNeg, m->mdMax, m->mdMin});
    if (const auto& t = controlli.taglio) tutti.insert(tutti.end(), {t->Vrd2, t->Vrd3, t->Vsd});
    return tutti;
}

// Changes each number that is said not to be read; none may change a result. Gives back the names
// of those fields.
std::set<std::string> nonLetti(const DatiProgetto& dati) {
    dossier::Fascicolo f;
    f.scritti = dati;
    f.parete = live::calcola(dati, 20);
    const std::vector<double> prima = numeri(dati);
    std::set<std::string> nomi;
    for (const project::Campo& campo : project::campi()) {
        if (!campo.codici.empty() || project::righe(dati, campo.parte) == 0) continue;
        if (uso(f, campo).letto) continue;
        DatiProgetto altri = dati;
        bool numero = false;
        project::conValore(altri, campo, 1, [&](auto& valore) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(valore)>, double>) {
                valore = 1.3 * valore + 0.4;
                numero = true;
            }
        });
        if (!numero) continue;
        nomi.insert(std::string(campo.nome));
        EXPECT_EQ(numeri(altri), prima) << campo.nome;
    }
    return nomi;
}

TEST(CelleDeiCampi, SayOfNoFieldThatItIsNotReadWhichChangesAResult) {
    using enum project::MetodoKs;
    std::set<std::string> nomi;
    for (const auto& sezione : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                                structure::palancola(), structure::paliArmati()}) {
        DatiProgetto muro = test::progettoSemplice();
        muro.sezione = sezione;
        nomi.merge(nonLetti(muro));
        for (const auto ks : {bowles, lancellotta, costante, lineare}) {
            DatiProgetto altro = muro;
            altro.metodoKs = valore(ks);
            altro.metodoSpinte = valore(project::MetodoSpinte::bell);
            altro.modoSpinte = valore(project::ModoSpinte::comeMonte);
            nomi.merge(nonLetti(altro));
        }
    }
    for (const char* nome : {"suStrato", "coeffM", "ksStrato", "coesione", "faldaValle",
                             "sovraccFase", "opzioneRiservata"})
        EXPECT_TRUE(nomi.contains(nome)) << nome;
    EXPECT_GT(nomi.size(), 20U);  // with those of the other types of section
}

// A strut is horizontal: nothing of it is multiplied with the cosine of an inclination.
TEST(UsoDelCampo, SpeaksOfAnInclinationOnlyWhereAnAnchorMayHaveOne) {
    dossier::Fascicolo f;
    f.scritti = f.parete.dati = test::progettoSemplice();
    ASSERT_EQ(f.parete.dati.nTiranti, 1);
    const auto nota = [&] { return uso(f, project::campo(&DatiProgetto::rigTirante)).nota; };
    EXPECT_NE(nota().find("cos² α"), std::string::npos);
    f.parete.dati.tipoTirante[1] = project::valore(project::TipoTirante::trazioneCompressione);
    EXPECT_EQ(nota(), "orizzontale e per metro di paratia");
}

TEST(NomeDelCampo, IsWholeAndFitsStrutsToo) {
    const auto nome = [](project::Membro membro) { return nomeDetto(project::campo(membro)); };
    EXPECT_EQ(nome(&DatiProgetto::nTiranti), "Numero di tiranti e puntoni");
    EXPECT_EQ(nome(&DatiProgetto::tirantiFase), "Tiranti e puntoni in opera");
    EXPECT_EQ(nome(&DatiProgetto::profFase), "Profondità della fase");
}

}  // namespace
}  // namespace korven::report
