#include "desk/study_result.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "live/wall.hpp"
#include "project/program_numbers.hpp"
#include "studies/assignments.hpp"
#include "support/study_desk.hpp"

namespace korven::desk {
namespace {

using test::fatto;
using test::lunghezze;
using test::muro;

// Each row is what the wall of these data comes to by itself.
TEST(RisultatoStudio, OfEachVariantIsThatOfItsWall) {
    const auto f = fatto(lunghezze());
    ASSERT_EQ(f->numero(), 5U);
    EXPECT_TRUE(f->intero());
    const auto& nomi = f->studio->righe->nomi();
    const auto posto =
        static_cast<std::size_t>(std::ranges::find(nomi, "momento_massimo_kNm") - nomi.begin());
    for (std::uint64_t i = 0; i < 5; ++i) {
        auto dati = muro();
        dati.lunghezzaParatia = 16 + static_cast<double>(i);
        const auto parete = live::calcola(dati, 50);
        ASSERT_TRUE(parete.sta());
        EXPECT_EQ(f->riga(i)[0], dati.lunghezzaParatia);
        EXPECT_NEAR(f->riga(i)[posto], project::kN(parete.estremi.momentoMassimo.valore), 1e-6);
    }
}

// The rows of `korven32c serie`, head and all, in the order of the variants.
TEST(RisultatoStudio, IsWrittenAsTheCommandLineWritesIt) {
    const auto f = fatto(lunghezze());
    std::istringstream righe(csv(*f));
    std::string riga;
    ASSERT_TRUE(std::getline(righe, riga));
    EXPECT_TRUE(riga.starts_with("variante,lunghezzaParatia [m],")) << riga;
    std::vector<std::string> prime;
    while (std::getline(righe, riga))
        prime.push_back(riga.substr(0, riga.find(',', riga.find(',') + 1)));
    EXPECT_EQ(prime, (std::vector<std::string>{"1,16", "2,17", "3,18", "4,19", "5,20"}));
}

TEST(RisultatoStudio, TellsInItsDocumentWhatElseMakesAVariantFail) {
    auto scritto = lunghezze();
    scritto.fallisce = {{"spostamento_massimo_m", ">", "30"}, {"riduzione", "<", "1.3"}};
    scritto.sicurezza = true;
    const auto d = documento(fatto(scritto), "momento_massimo_kNm",
                             {"/lavori/muro.kvd", muro(), "2026-01-31"});
    std::string detto;
    for (const auto& blocco : d.blocchi)
        if (const auto* paragrafo = std::get_if<document::Paragrafo>(&blocco))
            if (paragrafo->testo.starts_with("Fallisce anche con: ")) detto = paragrafo->testo;
    EXPECT_EQ(
        detto,
        "Fallisce anche con: Spostamento massimo > 30 mm, Riduzione della resistenza F < 1.3.");
}

TEST(RisultatoStudio, KeepsWhatIsDoneWhereItIsStopped) {
    auto s = lunghezze();
    s.variazioni[0].numeri[2] = "0.001";
    const auto letto = leggi(muro(), 50, s);
    const auto f = esegui(letto.studio, 1, [](std::uint64_t fatte) { return fatte < 100; });
    EXPECT_GE(f->numero(), 100U);
    EXPECT_LT(f->numero(), 4001U);
    EXPECT_FALSE(f->intero());
    EXPECT_TRUE(frasi(*f)[0].starts_with("Lo studio è stato fermato"));
    EXPECT_EQ(frasi(*f)[1], "Varianti: " + std::to_string(f->numero()) +
                                "; in equilibrio in tutte le fasi: " +
                                std::to_string(f->conto.riassunto().stanno()) + ".");
}

TEST(RisultatoStudio, IsDrawnForAResultThatItHas) {
    const auto f = fatto(lunghezze());
    EXPECT_EQ(documentoGrafico(f, "momento_massimo_kNm").blocchi.size(), 1U);
    EXPECT_TRUE(documentoGrafico(f, "riduzione").blocchi.empty());
    EXPECT_GT(formatoGrafico(*f, "momento_massimo_kNm").larghezza, 400);
    const auto d = documento(f, "momento_massimo_kNm", {"/lavori/muro.kvd", muro(), "2026-01-31"});
    std::size_t figure = 0, tavole = 0;
    for (const auto& blocco : d.blocchi) {
        figure += std::holds_alternative<document::Figura>(blocco);
        tavole += std::holds_alternative<document::Tavola>(blocco);
    }
    EXPECT_EQ(figure, 1U);
    EXPECT_EQ(tavole, 1U);
    const auto libro = cartella(*f, {"/lavori/muro.kvd", muro(), "2026-01-31"});
    ASSERT_EQ(libro.fogli.size(), 1U);
    EXPECT_EQ(libro.fogli[0].prospetto.righe.size(), 5U);
    EXPECT_EQ(libro.fogli[0].prospetto.note[0],
              "Varia: Lunghezza della paratia [m], da 16 a 20, passo 1.");
}

TEST(RisultatoStudio, OfSamplesHasTablesOfTheirSpread) {
    StudioScritto s;
    s.campioni = true;
    s.numero = 20;
    s.variazioni = {{"phiStrato[1]", 0, {"32", "2", ""}}};
    const auto f = fatto(s);
    const ProgettoDetto progetto{"/lavori/muro.kvd", muro(), "2026-01-31"};
    const auto d = documento(f, "momento_massimo_kNm", progetto);
    EXPECT_EQ(std::ranges::count_if(d.blocchi,
                                    [](const auto& blocco) {
                                        return std::holds_alternative<document::Tavola>(blocco);
                                    }),
              3);
    for (const auto& blocco : d.blocchi) {
        const auto* paragrafo = std::get_if<document::Paragrafo>(&blocco);
        EXPECT_FALSE(paragrafo != nullptr && paragrafo->testo.starts_with("Valori;"))
            << "no table as lines";
    }
    EXPECT_EQ(cartella(*f, progetto).fogli.size(), 3U);
}

// Verdicts and results have words, not the names of the columns of a file.
TEST(RisultatoStudio, IsToldInWords) {
    auto s = lunghezze();
    s.variazioni[0].numeri = {"8", "16", "8"};
    s.fallisce = {{"spostamento_massimo_m", ">", "0"}};
    EXPECT_TRUE(avvisi(*fatto(s)).empty());
    const auto dette = frasi(*fatto(s));
    EXPECT_EQ(std::ranges::count(dette, "  in equilibrio con Spostamento massimo > 0 mm: 1"), 1);
    for (const std::string& una : dette) EXPECT_EQ(una.find('_'), std::string::npos) << una;
}

TEST(VariantePresa, IsTheProjectWithItsFields) {
    const auto f = fatto(lunghezze());
    EXPECT_EQ(assegnazioni(*f, 3), std::vector<std::string>{"lunghezzaParatia=19"});
    const auto presa = prendi(*f, 3, muro());
    EXPECT_EQ(presa.perche, "");
    auto attesa = muro();
    attesa.lunghezzaParatia = 19;
    EXPECT_TRUE(presa.dati == attesa);
    const auto altra = prendi(*f, 0, presa.dati);
    EXPECT_EQ(altra.perche, "") << "another variant of the same project";
    EXPECT_EQ(altra.dati.lunghezzaParatia, 16);
}

TEST(VariantePresa, SaysWhyItIsNoWallToBeBuilt) {
    auto s = lunghezze();
    s.variazioni[0].numeri = {"0", "16", "8"};
    s.fallisce = {{"spostamento_massimo_m", ">", "1"}, {"taglio_massimo_kN", ">", "1e9"}};
    const auto f = fatto(s);
    const auto avviso = [&](std::uint64_t i) { return prendi(*f, i, muro()).avviso; };
    EXPECT_TRUE(avviso(0).starts_with("Nessun calcolo accetta i dati di questa variante: "))
        << avviso(0);
    EXPECT_TRUE(
        avviso(1).starts_with("Questa variante non è in equilibrio: la paratia è un "
                              "meccanismo nella fase 2"))
        << avviso(1);
    EXPECT_EQ(avviso(2), "Questa variante fallisce: Spostamento massimo > 1 mm");
    EXPECT_EQ(prendi(*fatto(lunghezze()), 0, muro()).avviso, "");
}

// The wall is dug 10 m deep; with two anchors it stands a little shorter too.
TEST(VariantePresa, SaysThatItsToeIsDugFree) {
    auto s = lunghezze();
    s.variazioni[0].numeri = {"9.6", "9.6", "1"};
    const auto f = fatto(s);
    ASSERT_EQ(f->conto.riassunto().stanno(), 1U);
    EXPECT_EQ(f->conto.riassunto().piediScavati(), 1U);
    EXPECT_EQ(prendi(*f, 0, muro()).avviso,
              "In questa variante lo scavo raggiunge o supera il piede della paratia: non è una "
              "parete da costruire.");
}

TEST(VariantePresa, IsToldInWordsAndUnits) {
    const auto f = fatto(lunghezze());
    EXPECT_EQ(valoriDetti(*f, 3), std::vector<std::string>{"Lunghezza della paratia: 19 m"});
}

// The parts of a fact belong to its paragraph; samples tell their law.
TEST(RisultatoStudio, OnPaperKeepsTheFactsTogether) {
    StudioScritto s;
    s.campioni = true;
    s.numero = 20;
    s.variazioni = {{}, {"phiStrato[1]", 0, {"32", "2", ""}}};
    const auto f = fatto(s);
    const auto d = documento(f, "momento_massimo_kNm", {"/lavori/muro.kvd", muro(), "2026-01-31"});
    std::vector<std::string> testi;
    for (const auto& blocco : d.blocchi)
        if (const auto* p = std::get_if<document::Paragrafo>(&blocco)) testi.push_back(p->testo);
    EXPECT_EQ(
        std::ranges::count_if(
            testi,
            [](const auto& t) { return t.ends_with("[°], normale, media 32, scarto tipo 2."); }),
        1);
    const auto governo = std::ranges::find_if(
        testi, [](const auto& t) { return t.starts_with("Varianti in equilibrio, per l'uso"); });
    ASSERT_NE(governo, testi.end());
    EXPECT_NE(governo->find(":\n\u00a0"), std::string::npos) << *governo;
}

TEST(StudioAttuale, IsOneOfWhatIsTypedAndOfTheProject) {
    const auto f = fatto(lunghezze());
    EXPECT_TRUE(attuale(*f, lunghezze(), muro()));
    EXPECT_TRUE(attuale(*f, lunghezze(), prendi(*f, 3, muro()).dati)) << "a variant was taken";
    auto altro = lunghezze();
    altro.variazioni[0].numeri[2] = "0.5";
    EXPECT_FALSE(attuale(*f, altro, muro()));
    auto dati = muro();
    dati.sovraccMonte += 1;
    EXPECT_FALSE(attuale(*f, lunghezze(), dati));
}

TEST(VariantePresa, IsNoneOfAProjectThatHasChangedSince) {
    const auto f = fatto(lunghezze());
    auto dati = muro();
    dati.sovraccMonte += 1;
    EXPECT_TRUE(prendi(*f, 3, dati).perche.starts_with("Il progetto è cambiato"));
}

// A field that the project no longer has is named, a line each.
TEST(VariantePresa, IsNoneOfAProjectWithoutTheFieldsOfTheStudy) {
    auto s = lunghezze();
    s.variazioni.push_back({"phiStrato[3]", 0, {"30", "31", "1"}});
    const auto f = fatto(s);
    auto dati = muro();
    ASSERT_GE(dati.nStrati, 3);
    dati.nStrati = 2;
    const auto presa = prendi(*f, 0, dati);
    EXPECT_NE(presa.perche.find("phiStrato[3]"), std::string::npos) << presa.perche;
    EXPECT_EQ(presa.dati, dati);
}

TEST(StudioScritto, IsAnotherWhenACriterionIs) {
    StudioScritto s = lunghezze();
    s.fallisce = {{"spostamento_massimo_m", ">", "30"}};
    EXPECT_EQ(s, StudioScritto(s));
    for (const CriterioScritto& altro : {CriterioScritto{"riduzione", ">", "30"},
                                         CriterioScritto{"spostamento_massimo_m", ">=", "30"},
                                         CriterioScritto{"spostamento_massimo_m", ">", "31"}}) {
        auto diverso = s;
        diverso.fallisce = {altro};
        EXPECT_NE(s, diverso);
    }
}

TEST(GraficoStudio, OfAResultThatTheStudyHasNotIsEmpty) {
    const auto f = fatto(lunghezze());
    EXPECT_TRUE(documentoGrafico(f, "non_esiste").blocchi.empty());
    const auto nessuno = formatoGrafico(*f, "non_esiste"),
               suo = formatoGrafico(*f, "momento_massimo_kNm");
    EXPECT_LT(nessuno.larghezza, suo.larghezza);
    EXPECT_LT(nessuno.altezza, suo.altezza);
}

}  // namespace
}  // namespace korven::desk
