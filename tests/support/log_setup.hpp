#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "drawings/log/stratigraphic_log.hpp"
#include "plot/text_width.hpp"
#include "project/project_data.hpp"
#include "support/hatch_setup.hpp"

namespace korven::test {

/// Every character is as wide as 0.4 of the text's height: 0.1 cm in the descriptions.
class MetricaFissa : public plot::MetricaTesto {
 public:
    [[nodiscard]] double larghezza(std::string_view, double altezza,
                                   std::string_view testo) const override {
        return 0.4 * altezza * static_cast<double>(base::numeroCaratteri(testo));
    }
};

/// A test of the stratigraphic log: three layers to 5, 10 and 20 m, so that a metre is a centimetre
/// of sheet and depth d lies at y = 21 - d. Pattern 5 is a dash of half a centimetre in the middle
/// of its tile of 1 cm. The columns begin at x 1.5, 2.7, 3.7, 6.9, 7.9, 11.1, 14.3 and 17.5.
class ProvaStratigrafia : public ProvaCampiture {
 protected:
    ProvaStratigrafia() {
        scriviLibreria(programma, {{5, {0.005, {{-50, 0, 50, 0}}, "trattini"}}});
        plot::statoPlot.metrica = &metrica;
        strati({5, 10, 20});
        dati.faldaMonte = 50;
    }

    void strati(const std::vector<double>& piedi) {
        dati.nStrati = static_cast<int>(piedi.size());
        for (std::size_t i = 0; i < piedi.size(); ++i)
            dati.profStrato[static_cast<long>(i + 1)] = piedi[i];
    }
    void disegna() { drawings::disegnaStratigrafia(dati); }

    /// True when pen `penna` has drawn a polyline just so.
    [[nodiscard]] static bool tracciata(int penna, const std::string& linea) {
        const auto tutte = polilinee(penna);
        return std::find(tutte.begin(), tutte.end(), linea) != tutte.end();
    }

    const MetricaFissa metrica;
    project::DatiProgetto dati;
};

}  // namespace korven::test
