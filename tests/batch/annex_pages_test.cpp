// The annex of every example on its pages, in the fonts that it is painted with.

#include <gtest/gtest.h>

#include "batch/options/reading_bench.hpp"
#include "batch/run/drawing_formats.hpp"
#include "device/document_files.hpp"
#include "dossier/dossier.hpp"
#include "report/annex/annex.hpp"
#include "support/page_boxes.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

class InSilenzio : public analysis::OsservatoreCorsa {};

document::Impaginato pagine(const std::string& file) {
    const auto dati = test::leggiMuro(file);
    dossier::Identita identita;
    identita.file = file;
    identita.data = "2026-11-22";
    identita.comando = "korven32c allegato " + file + " --nseg 20 --data 2026-11-22";
    InSilenzio osservatore;
    return device::impaginato(report::allegato(dossier::fascicolo(
        {.scritti = dati, .usati = dati, .nSeg = 20, .identita = identita, .sulProgetto = {}},
        osservatore)));
}

TEST(PagineAllegato, HaveNothingUponAnotherThingOrBeyondTheMarginInAnyLanguage) {
    const AmbienteDisegno ambiente(true);
    for (const char* sigla : {"ita", "deu", "fra", "esp", "eng", "por"}) {
        const test::InLingua lingua(sigla);
        for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
            const document::Impaginato muro = pagine(file);
            EXPECT_GE(muro.pagine.size(), 5U);
            EXPECT_EQ(test::difetti(muro), "") << sigla << ' ' << file;
        }
    }
}

TEST(PagineAllegato, HoldTheHeadingsOfAllChaptersAsBookmarks) {
    const AmbienteDisegno ambiente(true);
    const auto muro = pagine(test::muriIn(KORVEN_EXAMPLES).front());
    int capitoli = 0;
    for (const auto& segnalibro : muro.segnalibri) capitoli += segnalibro.livello == 1 ? 1 : 0;
    EXPECT_GE(capitoli, 5);
}

}  // namespace
}  // namespace korven::batch
