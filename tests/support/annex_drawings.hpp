#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/hatch_library.hpp"
#include "project/project_data.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/scene_parts.hpp"
#include "support/wall_files.hpp"

#ifndef KORVEN_EXAMPLES
#define KORVEN_EXAMPLES "data/examples"  // the build names the folder; a header alone has none
#endif

namespace korven::drawings {

/// Segments of the walls that are drawn.
inline constexpr int segmenti = 30;

/// Texts of a drawing against each other and its frame.
inline void verifica(const scene::Scena& s, const std::string& dove) {
    const auto testi = test::figure<scene::Testo>(s);
    for (std::size_t i = 0; i < testi.size(); ++i) {
        const scene::Riquadro r = testi[i].riquadro();
        EXPECT_TRUE(r.sinistra >= 0 && r.destra <= s.larghezza && r.alto >= 0 &&
                    r.basso <= s.altezza)
            << dove << testi[i].testo;
        EXPECT_GE(testi[i].corpo * altezzaMaiuscole / pixelCarta, 0.2) << dove << testi[i].testo;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(r.tocca(testi[j].riquadro()))
                << dove << testi[i].testo << " | " << testi[j].testo;
    }
}

/// With the delivered texts and hatches, in Italian at the end again.
class ProvaDisegniAllegato : public test::ProvaPlot {
 protected:
    ProvaDisegniAllegato() {
        const std::string cartella = KORVEN_PROGRAM_FOLDER;
        base::caricaTesti(cartella + "/texts01.txt", cartella + "/texts06.txt",
                          cartella + "/texts32.txt");
        base::impostaCartellaProgramma(cartella);  // with its hatches
        dimenticaCampiture();
    }
    ~ProvaDisegniAllegato() override {
        base::impostaLingua(1);
        dimenticaCampiture();
    }

    static std::vector<project::DatiProgetto> esempi() {
        std::vector<project::DatiProgetto> tutti;
        for (const auto& file : test::muriIn(KORVEN_EXAMPLES))
            tutti.push_back(test::leggiMuro(file));
        return tutti;
    }
};

}  // namespace korven::drawings
