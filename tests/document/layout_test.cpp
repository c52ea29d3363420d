#include "document/layout.hpp"

#include <gtest/gtest.h>

#include <random>

#include "support/laid_out.hpp"
#include "support/page_boxes.hpp"
#include "support/page_faults.hpp"
#include "support/sample_document.hpp"

namespace korven::document {
namespace {

using test::difetti;
using test::posto;
using test::righe;
using test::righePerPagina;
using test::testi;

TEST(Impagina, LaysNothingUponAnotherThingOrBeyondTheMargins) {
    const Impaginato fatto = impagina(test::documentoCompleto(), Formato{}, CaratteriStimati());
    EXPECT_EQ(difetti(fatto), "");
    EXPECT_GT(fatto.pagine.size(), 3U);
}

// A drawing 10 cm high, 6 at least, below lines that leave it 8 or 4.
TEST(Impagina, MakesADrawingLowerThatStaysOnThePageOfWhatStandsAboveIt) {
    Figura figura{"Inviluppi", "", 17, 10, [] {}, 6, [](double) {}};
    const double rigaPt = 9.5 * 1.32, didascalia = 22;
    const auto sopra = [&](double restoCm) {
        return righe(static_cast<int>(
            (Formato{}.altezzaTesto() - didascalia - restoCm * puntiPerCentimetro) / rigaPt));
    };
    const Impaginato basso = posto({sopra(8), figura});
    ASSERT_EQ(basso.pagine.size(), 1U);
    EXPECT_LT(basso.pagine[0].disegni.at(0).altezza, 8.5);
    EXPECT_GE(basso.pagine[0].disegni.at(0).altezza, 6);
    EXPECT_EQ(test::difetti(basso), "");
    const Impaginato intero = posto({sopra(4), figura});
    ASSERT_EQ(intero.pagine.size(), 2U);
    EXPECT_EQ(intero.pagine[1].disegni.at(0).altezza, 10);
    figura.altezzaMinima = 0;
    figura.disegnaBassa = nullptr;
    EXPECT_EQ(posto({sopra(8), figura}).pagine.size(), 2U);
}

// A third of a page is left, the drawing needs more.
TEST(Impagina, FillsThePageThatHasNoRoomForADrawingWithTheTextBehindIt) {
    const Figura figura{"Inviluppi", "", 17, 12, [] {}};
    const Impaginato fatto =
        posto({righe(2 * righePerPagina() / 3), figura, righe(righePerPagina() / 4),
               Paragrafo{"I nodi:"}, Tavola{test::nodi(60)}});
    ASSERT_GE(fatto.pagine.size(), 2U);
    EXPECT_TRUE(fatto.pagine[0].disegni.empty());
    EXPECT_TRUE(testi(fatto, 0).ends_with('|' + std::to_string(righePerPagina() / 4)));
    ASSERT_EQ(fatto.pagine[1].disegni.size(), 1U);
    EXPECT_TRUE(testi(fatto, 1).starts_with("Inviluppi|I nodi:|Nodi della fase 2|"));
    EXPECT_EQ(difetti(fatto), "");
}

TEST(Impagina, LeavesNoDrawingBehindTheHeadingThatFollowsItNorOutOfOrder) {
    const Figura prima{"Paratia", "", 17, 12, [] {}}, seconda{"Sezione", "", 17, 3, [] {}};
    const auto sopra = righe(2 * righePerPagina() / 3);
    const Impaginato fatto = posto({sopra, prima, seconda, righe(12), Titolo{2, "Dopo"}, righe(2)});
    ASSERT_EQ(fatto.pagine.size(), 2U);
    EXPECT_TRUE(testi(fatto, 0).ends_with("|11|12"));
    EXPECT_EQ(testi(fatto, 1), "Paratia|Sezione|Dopo|1|2");
    EXPECT_EQ(posto({sopra, prima}).pagine.at(1).disegni.size(), 1U) << "the last of all";
}

// Two drawings that can be 3 cm lower each give a table its room.
TEST(Impagina, MakesDrawingsLowerForWhatStandsBelowThem) {
    const Figura figura{"Curve", "", 17, 10, [] {}, 7, [](double) {}};
    auto sotto = test::larga(3, 5);
    sotto.note = {"Vale per tutte."};
    const Impaginato fatto = posto({figura, figura, Tavola{sotto}, righe(righePerPagina())});
    ASSERT_EQ(fatto.pagine.size(), 2U);
    EXPECT_TRUE(testi(fatto, 0).ends_with("|Vale per tutte."));
    double basse = 0;
    for (const Disegno& d : fatto.pagine[0].disegni) {
        EXPECT_GE(d.altezza, 7);
        basse += 10 - d.altezza;
    }
    EXPECT_GT(basse, 0);
    EXPECT_EQ(difetti(fatto), "");
}

// Room for the chapter's first words, not for the table of its first part.
TEST(Impagina, LeavesNoChapterAtAFootWithoutItsFirstPart) {
    const Impaginato fatto =
        posto({righe(righePerPagina() * 62 / 100), Titolo{1, "Terreno"}, Paragrafo{"Di ogni nodo."},
               Titolo{2, "Fase 1"}, Tavola{test::larga(3, 14)}});
    ASSERT_EQ(fatto.pagine.size(), 2U);
    EXPECT_TRUE(testi(fatto, 1).starts_with("Terreno|Di ogni nodo.|Fase 1|"));
}

// The page before a new chapter is as empty as it comes out: nothing moves there to fill it.
TEST(Impagina, FillsThePagesBeforeOneThatBeginsAnyway) {
    std::string testo = "Avviso.";
    for (int i = 1; i < 12; ++i) testo += "\nperché";
    const Impaginato fatto = posto({righe(23), Tavola{test::larga(3, 6)}, Paragrafo{testo},
                                    test::figura(17, 9.5), SaltoPagina{}, righe(3)});
    EXPECT_NE(testi(fatto, 0).find("Avviso."), std::string::npos);
}

// As many lines as fit would leave two for the last page.
TEST(Impagina, LeavesNoLastPageWithHardlyAnythingOnIt) {
    const Impaginato fatto = posto({righe(righePerPagina() - 12), Titolo{2, "Il comando"}, righe(4),
                                    Titolo{2, "Il file"}, righe(8)});
    ASSERT_EQ(fatto.pagine.size(), 2U);
    EXPECT_EQ(testi(fatto, 1), "Il comando|1|2|3|4|Il file|1|2|3|4|5|6|7|8");
}

TEST(Impagina, GivesEachPageItsHeadItsFootAndItsNumber) {
    const Impaginato fatto = posto({righe(1), SaltoPagina{}, righe(1)});
    ASSERT_EQ(fatto.pagine.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        std::vector<std::string> bordo;
        for (const auto& s : fatto.pagine[i].scritte)
            if (s.y < Formato{}.sopra || s.y > Formato{}.altezza - Formato{}.sotto)
                bordo.push_back(s.testo);
        EXPECT_EQ(bordo, (std::vector<std::string>{"Muro", "KORVEN 32", "muro.kvd",
                                                   std::to_string(i + 1) + " / 2"}));
    }
}

TEST(Impagina, HasOnePageForADocumentWithoutBlocksAndNoneForABreakAtTheEnd) {
    EXPECT_EQ(posto({}).pagine.size(), 1U);
    EXPECT_EQ(posto({SaltoPagina{}, righe(1), SaltoPagina{}, SaltoPagina{}}).pagine.size(), 1U);
}

TEST(Impagina, KeepsAHeadingWithWhatFollowsIt) {
    for (int livello = 1; livello <= 3; ++livello)
        for (int prima = righePerPagina() - 6; prima <= righePerPagina(); ++prima) {
            const Impaginato fatto =
                posto({righe(prima), Titolo{livello, "Titolo"}, Paragrafo{"sotto\nancora"}});
            const std::string ultima = testi(fatto, fatto.pagine.size() - 1);
            EXPECT_NE(ultima.find("Titolo|sotto|ancora"), std::string::npos) << prima << ultima;
        }
}

TEST(Impagina, LeavesNoLineOfAParagraphAlone) {
    for (int prima = righePerPagina() - 7; prima <= righePerPagina(); ++prima) {
        const Impaginato fatto = posto({righe(prima), Paragrafo{"a\nb\nc\nd\ne"}});
        for (std::size_t i = 0; i < fatto.pagine.size(); ++i) {
            const std::string pagina = "|" + testi(fatto, i) + "|";
            EXPECT_EQ(pagina.find("|a|") == std::string::npos,
                      pagina.find("|b|") == std::string::npos);
            EXPECT_EQ(pagina.find("|d|") == std::string::npos,
                      pagina.find("|e|") == std::string::npos);
        }
    }
}

// Of a long one the last two lines are enough.
TEST(Impagina, LeavesALongTextWhereItIs) {
    const Impaginato fatto = posto({righe(righePerPagina() - 4), Tavola{test::nodi(60)}});
    const std::string seconda = testi(fatto, 1);
    const std::string ultime = std::to_string(righePerPagina() - 5) + "|" +
                               std::to_string(righePerPagina() - 4) + "|Nodi della fase 2|";
    EXPECT_TRUE(seconda.starts_with(ultime)) << seconda.substr(0, 60);
}

TEST(Impagina, BeginsAPageForAHeadingThatWantsMoreRoomThanIsLeft) {
    const auto pagine = [](double posto_) {
        return posto({righe(righePerPagina() / 2), Titolo{2, "Fase 2", posto_}, righe(1)})
            .pagine.size();
    };
    EXPECT_EQ(pagine(0), 1U);
    EXPECT_EQ(pagine(11), 1U);  // of the 12.6 cm that are left
    EXPECT_EQ(pagine(14), 2U);
}

TEST(Impagina, MakesADrawingSmallerThatIsLargerThanThePage) {
    for (const auto& [larga, alta] :
         {std::pair{30.0, 10.0}, std::pair{10.0, 60.0}, std::pair{40.0, 40.0}}) {
        const Impaginato fatto =
            posto({Titolo{1, "Fasi"}, Titolo{2, "Fase 1"}, test::figura(larga, alta)});
        ASSERT_EQ(fatto.pagine.size(), 1U) << "headings, drawing and caption on one page";
        EXPECT_EQ(difetti(fatto), "");
        EXPECT_LT(fatto.pagine[0].disegni.at(0).scala, 1);
    }
    const Impaginato vera = posto(
        {Titolo{1, "Fasi"}, Titolo{2, "Fase 1"}, test::figura(larghezzaFigura, altezzaFigura)});
    EXPECT_EQ(vera.pagine.size(), 1U);
    EXPECT_EQ(vera.pagine.at(0).disegni.at(0).scala, 1) << "the largest at true size";
}

TEST(Impagina, KnowsWhereItsHeadingsStand) {
    const Impaginato fatto =
        posto({Titolo{1, "Uno"}, righe(3), SaltoPagina{}, Titolo{2, "Due"}, righe(1)});
    ASSERT_EQ(fatto.segnalibri.size(), 2U);
    EXPECT_EQ(fatto.segnalibri[0].testo, "Uno");
    EXPECT_EQ(fatto.segnalibri[0].pagina, 0U);
    EXPECT_EQ(fatto.segnalibri[1].livello, 2);
    EXPECT_EQ(fatto.segnalibri[1].pagina, 1U);
    EXPECT_NEAR(fatto.segnalibri[1].y, Formato{}.sopra, 1e-9);
}

TEST(Impagina, SetsAnyMixtureOfBlocksWithoutFault) {
    std::mt19937 caso(32);
    const auto intero = [&](int da, int a) { return std::uniform_int_distribution(da, a)(caso); };
    for (int giro = 0; giro < 40; ++giro) {
        std::vector<Blocco> blocchi;
        for (int i = intero(1, 14); i > 0; --i) switch (intero(0, 6)) {
                case 0:
                    blocchi.push_back(
                        Titolo{intero(1, 3), std::string(static_cast<size_t>(intero(1, 90)), 'T')});
                    blocchi.push_back(righe(intero(1, 9)));
                    break;
                case 1:
                    blocchi.push_back(righe(intero(1, 70)));
                    break;
                case 2:
                    blocchi.push_back(Tavola{test::nodi(intero(0, 90))});
                    break;
                case 3:
                    blocchi.push_back(Tavola{test::larga(intero(2, 40), intero(1, 9))});
                    break;
                case 4:
                    blocchi.push_back(test::figura(intero(1, 25), intero(1, 30)));
                    break;
                case 5:
                    blocchi.push_back(SaltoPagina{});
                    break;
                default:
                    blocchi.push_back(Tavola{test::parole()});
            }
        const Impaginato fatto = posto(blocchi);
        EXPECT_EQ(difetti(fatto), "") << giro;
        EXPECT_EQ(test::titoliSoli(fatto), "") << giro;
        EXPECT_EQ(test::tavoleTorte(fatto), "") << giro;
    }
}

TEST(Impagina, FitsOtherSheetsToo) {
    Formato letter;
    letter.larghezza = 612;
    letter.altezza = 792;
    EXPECT_EQ(difetti(impagina(test::documentoCompleto(), letter, CaratteriStimati())), "");
    std::swap(letter.larghezza, letter.altezza);
    EXPECT_EQ(difetti(impagina(test::documentoCompleto(), letter, CaratteriStimati())), "");
}

TEST(Impagina, ShortensAHeadThatNoLineHolds) {
    Documento d;
    d.testata = {std::string(300, 'n'), std::string(300, 'm')};
    d.piede = std::string(300, 'k');
    const Impaginato fatto = impagina(d, Formato{}, CaratteriStimati());
    EXPECT_EQ(difetti(fatto), "");
}

}  // namespace
}  // namespace korven::document
