#include "masks/editing.hpp"

#include <algorithm>

#include "base/number_text.hpp"
#include "masks/edited_fields.hpp"
#include "masks/edited_tables.hpp"

namespace korven::masks {

namespace {

using Testi = std::vector<std::string>;

// What each editor shows and takes back; in the order of the masks.
struct Editore {
    Testi (*testi)(const project::DatiProgetto&);
    bool (*riprendi)(project::DatiProgetto&, const Testi&);
    int capienza;  // rows; 0 for a form of fields
};

constexpr Editore editori[] = {
    {testiTitoli, riprendiTitoli, 0},
    {testiParatia, riprendiParatia, 0},
    {testiStrati, riprendiStrati, project::massimoStrati},
    {testiTiranti, riprendiTiranti, project::massimoTiranti},
    {testiFasi, riprendiFasi, project::massimoFasi},
};

const Editore& editore(NumeroMaschera numero) {
    return editori[static_cast<std::size_t>(numero) - 1];
}

Testi letti(const Maschere& maschere) {
    Testi testi;
    const int tutti =
        static_cast<int>(maschere.valoriCombo().size() + maschere.valoriTesto().size());
    for (int i = 1; i <= tutti; ++i) testi.push_back(maschere.leggiCampo(i));
    return testi;
}

}  // namespace

void preparaMaschera(Maschere& maschere, NumeroMaschera numero, const project::DatiProgetto& dati,
                     int fase) {
    maschere.selezionaMaschera(static_cast<int>(numero));
    int indice = 0;
    for (const auto& testo : editore(numero).testi(dati)) maschere.impostaCampo(++indice, testo);
    if (numero == NumeroMaschera::titoli) maschere.impostaCampo(campoFase, std::to_string(fase));
}

int capienza(NumeroMaschera numero) { return editore(numero).capienza; }

std::string testoRighe(const Maschere& maschere) {
    const auto colonne = static_cast<std::size_t>(maschere.corrente().nCampi()) - 1;
    std::string testo;
    for (std::size_t i = 1; i < maschere.valoriTesto().size(); ++i)
        testo.append(maschere.valoriTesto()[i]).append(i % colonne == 0 ? "\r\n" : "\t");
    return testo;
}

bool riprendiMaschera(const Maschere& maschere, NumeroMaschera numero, project::DatiProgetto& dati,
                      int& fase) {
    if (numero == NumeroMaschera::titoli) {
        const double scritta = base::leggiNumero(maschere.leggiCampo(campoFase)).value_or(0);
        fase = static_cast<int>(std::clamp(scritta, 0.0, double{project::massimoFasi}));
    }
    return riprendi(numero, letti(maschere), dati);
}

bool riprendi(NumeroMaschera numero, const Testi& testi, project::DatiProgetto& dati) {
    return editore(numero).riprendi(dati, testi);
}

}  // namespace korven::masks
