#include "comparison/document.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"
#include "document/layout.hpp"

namespace korven::comparison {
namespace {

template <class Blocco>
std::vector<Blocco> tutti(const document::Documento& d) {
    std::vector<Blocco> trovati;
    for (const auto& blocco : d.blocchi)
        if (const auto* uno = std::get_if<Blocco>(&blocco)) trovati.push_back(*uno);
    return trovati;
}

document::Documento documentoDi(const project::DatiProgetto& prima,
                                const project::DatiProgetto& dopo) {
    return documento(std::make_shared<const Confronto>(test::confronto(prima, dopo)), "2026-01-31");
}

TEST(DocumentoConfronto, HasTheTablesAndThePageOfBothWalls) {
    const auto d = documentoDi(test::trave(3), test::trave(6));
    EXPECT_EQ(tutti<document::Tavola>(d).size(), 3U);  // fields, walls, stages
    ASSERT_EQ(tutti<document::Figura>(d).size(), 1U);
    EXPECT_EQ(tutti<document::Figura>(d)[0].descrizione.find("%"), std::string::npos);
    EXPECT_EQ(d.data, "2026-01-31");
    EXPECT_EQ(d.testata[1], "prima.kvd / dopo.kvd");
    const std::string impronta = dossier::impronta(test::trave(6));
    EXPECT_TRUE(tutti<document::Paragrafo>(d)[1].testo.ends_with(
        " (SHA-256 " + std::string(dossier::inBreve(impronta)) + ")"));
}

TEST(DocumentoConfronto, HasItsCurvesForTheScreenToo) {
    const auto c =
        std::make_shared<const Confronto>(test::confronto(test::trave(3), test::trave(6)));
    const auto figure = tutti<document::Figura>(documentoCurve(c));
    ASSERT_EQ(figure.size(), 1U);
    EXPECT_EQ(figure[0].descrizione,
              tutti<document::Figura>(documento(c, "2026-01-31"))[0].descrizione);
    const auto fatto =
        document::impagina(documentoCurve(c), formatoCurve(), document::CaratteriStimati());
    ASSERT_EQ(fatto.pagine.size(), 1U);
    ASSERT_EQ(fatto.pagine[0].disegni.size(), 1U);
    EXPECT_EQ(fatto.pagine[0].disegni[0].scala, 1) << "nothing else takes its room";
    EXPECT_TRUE(fatto.pagine[0].scritte.empty() && fatto.pagine[0].filetti.empty());
}

TEST(DocumentoConfronto, TellsTheOptionsOfBothAndWhereTheDifferencesComeFrom) {
    Muro prima = test::muro(test::trave(3)), dopo = test::muro(test::trave(6));
    for (Muro* muro : {&prima, &dopo})
        muro->fascicolo.identita.opzioni = {"--metodo-spinte bell", "--nseg 20"};
    const auto d =
        documento(std::make_shared<const Confronto>(confronta(std::move(prima), std::move(dopo))),
                  "2026-01-31");
    const auto paragrafi = tutti<document::Paragrafo>(d);
    EXPECT_TRUE(std::any_of(paragrafi.begin(), paragrafi.end(), [](const auto& p) {
        return p.testo ==
               "Opzioni, per ambedue al posto di ciò che i progetti dicono: --metodo-spinte bell, "
               "--nseg 20.";
    }));
    const auto tavole = tutti<document::Tavola>(d);
    ASSERT_EQ(tavole.size(), 3U);
    for (const std::size_t quale : {1, 2}) {
        const auto& note = tavole[quale].prospetto.note;
        EXPECT_EQ(std::count_if(note.begin(), note.end(),
                                [](const std::string& nota) {
                                    return nota.starts_with(
                                        "Le differenze sono dei valori non arrotondati");
                                }),
                  1);
    }
}

TEST(DocumentoConfronto, ListsTheRemarksThatOnlyOneOfThemHas) {
    const auto d = documentoDi(korven::test::progettoSemplice(), test::cade());
    const auto titoli = tutti<document::Titolo>(d);
    EXPECT_TRUE(std::any_of(titoli.begin(), titoli.end(),
                            [](const auto& t) { return t.testo == "Osservazioni che cambiano"; }));
    const auto paragrafi = tutti<document::Paragrafo>(d);
    EXPECT_TRUE(std::any_of(paragrafi.begin(), paragrafi.end(),
                            [](const auto& p) { return p.testo.starts_with("solo dopo: "); }));
}

TEST(DocumentoConfronto, SaysInWordsThatNoFieldDiffers) {
    const auto d = documentoDi(test::trave(3), test::trave(3));
    EXPECT_EQ(tutti<document::Tavola>(d).size(), 2U);
    const auto paragrafi = tutti<document::Paragrafo>(d);
    EXPECT_TRUE(std::any_of(paragrafi.begin(), paragrafi.end(),
                            [](const auto& p) { return p.testo == "Nessun campo è diverso."; }));
}

}  // namespace
}  // namespace korven::comparison
