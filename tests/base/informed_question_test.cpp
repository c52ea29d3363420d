#include <gtest/gtest.h>

#include <string>

#include "base/dialogo.hpp"

namespace korven::base {
namespace {

// A port that can only ask.
class SoloDomande : public Dialogo {
 public:
    void messaggio(std::string_view, std::string_view, Icona) override {}
    Risposta domanda(std::string_view testo, std::string_view titolo, Pulsanti, Icona) override {
        chiesto = std::string(titolo) + ": " + std::string(testo);
        return Risposta::si;
    }
    void puntatore(Puntatore) override {}

    std::string chiesto;
};

TEST(DomandaInformata, IsTheQuestionAloneWhereThereIsNoRoomForMore) {
    SoloDomande dialogo;
    EXPECT_EQ(dialogo.domandaInformata("Salvare?", "Muro", Pulsanti::siNo, Icona::domanda,
                                       "Il file è di ieri."),
              Risposta::si);
    EXPECT_EQ(dialogo.chiesto, "Muro: Salvare?");
}

}  // namespace
}  // namespace korven::base
