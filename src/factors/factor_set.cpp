#include "factors/factor_set.hpp"

namespace korven::factors {

namespace {

// A factor below these is a slip: a soil stronger than its own value, a load that is made smaller.
constexpr double minimoDivisore = 0.5, minimoCarico = 0.5, massimoFattore = 10;
constexpr double massimoScavo = 5;  // [m]

constexpr VoceFattore voci[] = {
    {"attrito", &Fattori::attrito, "tangente dell'angolo di attrito", minimoDivisore,
     massimoFattore},
    {"coesione", &Fattori::coesione, "coesione efficace", minimoDivisore, massimoFattore},
    {"non-drenata", &Fattori::nonDrenata, "coesione non drenata", minimoDivisore, massimoFattore},
    {"peso", &Fattori::peso, "peso di volume", minimoDivisore, massimoFattore},
    {"permanente", &Fattori::permanente, "sovraccarico permanente sfavorevole", minimoCarico,
     massimoFattore},
    {"variabile", &Fattori::variabile, "sovraccarico variabile sfavorevole", minimoCarico,
     massimoFattore},
    {"testa-permanente", &Fattori::testaPermanente, "carico in testa permanente sfavorevole",
     minimoCarico, massimoFattore},
    {"testa-variabile", &Fattori::testaVariabile, "carico in testa variabile sfavorevole",
     minimoCarico, massimoFattore},
    {"favorevole-permanente", &Fattori::favorevolePermanente, "carico permanente favorevole", 0,
     massimoFattore},
    {"favorevole-variabile", &Fattori::favorevoleVariabile, "carico variabile favorevole", 0,
     massimoFattore},
    {"effetti", &Fattori::effetti, "effetti delle azioni", minimoCarico, massimoFattore},
    {"terra", &Fattori::terra, "resistenza del terreno a valle", 1, massimoFattore, false},
    {"scavo-quota", &Fattori::scavoQuota, "scavo imprevisto, quota dell'altezza", 0, 1},
    {"scavo-massimo", &Fattori::scavoMassimo, "scavo imprevisto, al più", 0, massimoScavo},
};

}  // namespace

std::span<const VoceFattore> vociFattori() { return voci; }

}  // namespace korven::factors
