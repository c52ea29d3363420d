#include "plot/drawing_aside.hpp"

#include <gtest/gtest.h>

#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

class DisegnoAParteTest : public test::ProvaPlot {};

TEST_F(DisegnoAParteTest, GivesThePlotterBackAsItWasWhateverEndsIt) {
    plotApri(0, 0, 10, 10);
    plotPenna(1);
    plotMuovi(2, 3, pennaGiu);
    const PennaPlot penna = statoPlot.penna;
    try {
        const DisegnoAParte altro;
        EXPECT_TRUE(statoPlot.archivio.lineeInMemoria().empty());
        plotApri(0, 0, 1, 1);
        plotPenna(2);
        plotMuovi(1, 1, pennaGiu);
        plotMuovi(0, 1, pennaGiu);
        throw 1;
    } catch (int) {
    }
    EXPECT_EQ(statoPlot.archivio.lineeInMemoria().size(), 1U);
    EXPECT_EQ(statoPlot.penna, penna);
    EXPECT_EQ(statoPlot.posizione.x, 2);
    EXPECT_EQ(statoPlot.estensione.xmax, 10 + statoPlot.scostamentoX);
}

TEST_F(DisegnoAParteTest, KeepsMetricAndWatchButNoSurface) {
    const MetricaStimata metrica;
    statoPlot.metrica = &metrica;
    {
        const DisegnoAParte altro;
        EXPECT_EQ(statoPlot.metrica, &metrica);
        EXPECT_EQ(statoPlot.superficie, nullptr);
    }
    EXPECT_EQ(statoPlot.metrica, &metrica);
    statoPlot.metrica = nullptr;
}

}  // namespace
}  // namespace korven::plot
