// The annex of every example on its pages, in the fonts that it is painted with.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <string>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "batch/options/reading_bench.hpp"
#include "batch/run/drawing_formats.hpp"
#include "device/document_files.hpp"
#include "device/document_fonts.hpp"
#include "document/markup_text.hpp"
#include "document/table_columns.hpp"
#include "dossier/dossier.hpp"
#include "factors/factor_rows.hpp"
#include "factors/requested_code.hpp"
#include "report/annex/annex.hpp"
#include "support/page_boxes.hpp"
#include "support/page_faults.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

class InSilenzio : public analysis::OsservatoreCorsa {};

constexpr std::array lingue = {"ita", "deu", "fra", "esp", "eng", "por"};

document::Impaginato pagine(const std::string& file, int nSeg,
                            const report::OpzioniAllegato& opzioni = {},
                            const std::optional<factors::NormaChiesta>& norma = {}) {
    const auto dati = test::leggiMuro(file);
    dossier::Identita identita;
    identita.file = file;
    identita.data = "2026-11-22";
    identita.comando =
        "korven32c allegato " + file + " --nseg " + std::to_string(nSeg) + " --data 2026-11-22";
    InSilenzio osservatore;
    return device::impaginato(report::allegato(dossier::fascicolo({.scritti = dati,
                                                                   .usati = dati,
                                                                   .nSeg = nSeg,
                                                                   .identita = identita,
                                                                   .sulProgetto = {},
                                                                   .norma = norma},
                                                                  osservatore),
                                               opzioni));
}

// The titles of the tables that are too wide for the page in the fonts that it is painted with.
std::string partite(const document::Impaginato& muro) {
    const device::CaratteriPagine misura;
    std::string trovate;
    for (const auto& blocco : muro.documento->blocchi)
        if (const auto* t = std::get_if<document::Tavola>(&blocco))
            if (document::disponi(t->prospetto, muro.formato.larghezzaTesto(), misura)
                    .parti.size() > 1)
                trovate += t->prospetto.titolo + "\n";
    return trovate;
}

// What stands on its pages badly parted.
std::string malParti(const document::Impaginato& muro) {
    constexpr std::size_t poche = 12;
    return test::titoliSoli(muro) + test::tavoleTorte(muro) + test::pagineVuote(muro, poche);
}

// The lines of a mark-up that would show '?' for a letter that Windows-1252 lacks.
std::string senzaLettera(const std::string& markup) {
    std::string trovate, riga;
    for (std::istringstream righe(markup); std::getline(righe, riga);)
        if (!base::rappresentabile(riga)) trovate += riga + '\n';
    return trovate;
}

TEST(PagineAllegato, HaveNothingUponAnotherThingBeyondTheMarginOrWithoutALetterInAnyLanguage) {
    const AmbienteDisegno ambiente(true);
    for (const char* sigla : lingue) {
        const test::InLingua lingua(sigla);
        auto muri = test::muriIn(KORVEN_EXAMPLES);
        muri.push_back(KORVEN_WALLS "/meccanismo.kvd");  // one that falls
        for (const std::string& file : muri) {
            const document::Impaginato muro = pagine(file, 50);
            EXPECT_GE(muro.pagine.size(), 5U);
            EXPECT_EQ(test::difetti(muro), "") << sigla << ' ' << file;
            EXPECT_EQ(malParti(muro), "") << sigla << ' ' << file;
            EXPECT_EQ(partite(muro), "") << sigla << ' ' << file;
            for (const auto uso : {document::Uso::testo, document::Uso::documento})
                EXPECT_EQ(senzaLettera(document::inMarkup(*muro.documento, uso)), "")
                    << sigla << ' ' << file;
        }
    }
}

// The finest mesh that every wall has, and a row for each of its nodes: tables over several pages.
TEST(PagineAllegato, OfTheFinestMeshAreAsCleanWithARowForEveryNode) {
    const AmbienteDisegno ambiente(true);
    constexpr int nSeg = 248;
    std::size_t quale = 0;
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        const char* sigla = lingue[quale++ % lingue.size()];
        const test::InLingua lingua(sigla);
        const auto pochi = pagine(file, nSeg), tutti = pagine(file, nSeg, {.righe = nSeg + 1});
        EXPECT_EQ(test::difetti(pochi), "") << sigla << ' ' << file;
        EXPECT_EQ(test::difetti(tutti), "") << sigla << ' ' << file;
        EXPECT_EQ(malParti(pochi) + malParti(tutti), "") << sigla << ' ' << file;
        // A page has room for some 60 rows.
        EXPECT_GE(tutti.pagine.size(), pochi.pagine.size() + 3) << file;
    }
    EXPECT_GE(quale, lingue.size());
}

// With every code that is delivered, each for another wall and in another language.
TEST(PagineAllegato, OfACodeAreAsClean) {
    const AmbienteDisegno ambiente(true);
    factors::Catalogo catalogo;
    factors::leggiCombinazioni(base::leggiFile(KORVEN_DATA "/combinazioni.txt"), "combinazioni.txt",
                               catalogo);
    ASSERT_GE(catalogo.norme.size(), 2U);
    const auto muri = test::muriIn(KORVEN_EXAMPLES);
    for (std::size_t i = 0; i < std::max(catalogo.norme.size(), lingue.size()); ++i) {
        const char* sigla = lingue[i % lingue.size()];
        const test::InLingua lingua(sigla);
        const auto& norma = catalogo.norme[i % catalogo.norme.size()];
        const auto muro = pagine(muri[i % muri.size()], 50, {}, factors::NormaChiesta{norma, {}});
        EXPECT_EQ(test::difetti(muro) + malParti(muro) + partite(muro), "")
            << sigla << ' ' << norma.nome;
    }
}

TEST(PagineAllegato, HoldTheHeadingsOfAllChaptersAsBookmarks) {
    const AmbienteDisegno ambiente(true);
    const auto muro = pagine(test::muriIn(KORVEN_EXAMPLES).front(), 20);
    int capitoli = 0;
    for (const auto& segnalibro : muro.segnalibri) capitoli += segnalibro.livello == 1 ? 1 : 0;
    EXPECT_GE(capitoli, 5);
}

}  // namespace
}  // namespace korven::batch
