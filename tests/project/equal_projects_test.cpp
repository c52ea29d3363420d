#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>

#include "project/field_table.hpp"
#include "support/sample_projects.hpp"

namespace korven::project {
namespace {

// A value that the field does not have now.
void cambia(DatiProgetto& dati, const Campo& campo, int riga) {
    conValore(dati, campo, riga, [](auto& valore) {
        using Valore = std::remove_cvref_t<decltype(valore)>;
        if constexpr (std::is_same_v<Valore, std::string>)
            valore += "x";
        else if constexpr (std::is_same_v<Valore, bool>)
            valore = !valore;
        else
            valore += 1;
    });
}

// Whether there is unsaved work, and whether a wall is computed anew, hangs on it.
TEST(ProgettiUguali, AreNoLongerWhenAnyOneFieldIsAnother) {
    const DatiProgetto prima = test::progettoSemplice();
    for (const Campo& campo : campi()) {
        DatiProgetto dopo = prima;
        EXPECT_EQ(dopo, prima);
        cambia(dopo, campo, 1);
        EXPECT_NE(dopo, prima) << campo.nome;
    }
}

TEST(ProgettiUguali, AreNoLongerWhenTheLastRowOfATableIsAnother) {
    const DatiProgetto prima = test::progettoSemplice();
    const std::function<void(DatiProgetto&)> ultime[] = {
        [](auto& d) { d.profStrato[massimoStrati] += 1; },
        [](auto& d) { d.descrStrato[massimoStrati] += "x"; },
        [](auto& d) { d.profTirante[massimoTiranti] += 1; },
        [](auto& d) { d.tirantiFase[20] += 1; },
        [](auto& d) { d.sovraccFase[50] += 1; },
        [](auto& d) { d.faldaFase[100] += 1; },
        [](auto& d) { d.titoli[numeroTitoli] += "x"; }};
    for (const auto& cambiata : ultime) {
        DatiProgetto dopo = prima;
        cambiata(dopo);
        EXPECT_NE(dopo, prima);
    }
}

}  // namespace
}  // namespace korven::project
