// A form that is opened and confirmed without an edit changes no data, whatever the numbers: each
// goes out through ten times its value and fifteen digits, and must be the same double after it.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "masks/edited_section.hpp"
#include "masks/editing.hpp"
#include "masks/field_model.hpp"
#include "masks/grid_model.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/plain_masks.hpp"

namespace korven::masks {
namespace {

// What engineers type, what files hold, and what a calculation leaves.
class Valori {
 public:
    double prossimo() {
        ++quanti_;
        const double k = static_cast<double>(quanti_);
        switch (quanti_ % 4) {
            case 0:
                return k / 100;
            case 1:
                return k / 1000;
            case 2:
                return std::round(tratto_(caso_) * 1e7) / 1e7;
            default:
                return tratto_(caso_);
        }
    }
    [[nodiscard]] int quanti() const { return quanti_; }

 private:
    std::mt19937 caso_{13};
    std::uniform_real_distribution<double> tratto_{-5000, 5000};
    int quanti_ = 0;
};

template <class Colonna>
void riempi(Colonna& colonna, int righe, Valori& valori) {
    for (int i = 1; i <= righe; ++i) colonna[i] = valori.prossimo();
}

// Depths in order, or the editor would rightly sort them.
template <class Colonna>
void riempiProfondita(Colonna& colonna, int righe, Valori& valori) {
    for (int i = 1; i <= righe; ++i)
        colonna[i] = colonna[i - 1] + std::abs(valori.prossimo()) / 100;
}

void riempi(project::DatiProgetto& d, Valori& valori) {
    d.nStrati = project::massimoStrati;
    riempiProfondita(d.profStrato, project::massimoStrati, valori);
    for (auto* colonna :
         {&d.gammaN, &d.gammaSat, &d.phiStrato, &d.coesione, &d.suStrato, &d.ksStrato})
        riempi(*colonna, project::massimoStrati, valori);
    for (int i = 1; i <= project::massimoStrati; ++i)
        d.descrStrato[i] =
            i % 3 == 0 ? "" : "  10C3 Sabbia, \"fine\" n. " + std::to_string(i) + ' ';
    d.nTiranti = project::massimoTiranti;
    riempiProfondita(d.profTirante, project::massimoTiranti, valori);
    for (auto* colonna : {&d.rigTirante, &d.pretTirante, &d.tipoTirante})
        riempi(*colonna, project::massimoTiranti, valori);
    d.nFasi = project::massimoFasi;
    riempiProfondita(d.profFase, project::massimoFasi, valori);
    riempi(d.tirantiFase, project::massimoFasi, valori);
    riempi(d.sovraccFase, project::massimoFasi, valori);
    riempi(d.faldaFase, project::massimoFasi, valori);
    for (double* campo : {&d.lunghezzaParatia, &d.rigidezzaEJ, &d.coeffM, &d.pressioneOrizz,
                          &d.sovraccMonte, &d.momentoTesta, &d.forzaTesta, &d.sforzoNormale,
                          &d.inclinazioneMonte, &d.faldaMonte, &d.gammaAcqua})
        *campo = valori.prossimo();
    for (double* codice : {&d.vincoloTesta, &d.vincoloPiede, &d.modoSpinte, &d.modoKs,
                           &d.modoTensioni, &d.metodoSpinte, &d.metodoKs})
        *codice = 2;
    for (int i = 1; i <= 6; ++i) d.titoli[i] = " Lotto " + std::to_string(i) + "  ";
    d.sezione.tipoPali = true;
    for (const auto& campo : campiSezione) d.sezione.*campo.valore = valori.prossimo();
}

class FormeSenzaModifiche : public ::testing::Test {
 protected:
    void SetUp() override { maschere.leggiMaschere(test::maschereSemplici(cartella)); }

    // Opens an editor and confirms it at once; true if the project counts as modified.
    bool apriEConferma(NumeroMaschera numero) {
        preparaMaschera(maschere, numero, dati, fase);
        if (maschere.corrente().genere == GenereMaschera::campi) {
            ModelloCampi forma(maschere.corrente(), maschere.valoriCombo(), maschere.valoriTesto());
            EXPECT_TRUE(forma.conferma(dialogo));
            maschere.conferma(forma.valoriCombo(), forma.valoriTesto());
        } else {
            ModelloGriglia forma(maschere.corrente(), maschere.valoriTesto());
            EXPECT_TRUE(forma.conferma(dialogo));
            maschere.conferma({}, forma.valoriTesto());
        }
        const bool diverso = riprendiMaschera(maschere, numero, dati, fase);
        maschere.rilasciaForm();
        return diverso;
    }

    test::CartellaProvvisoria cartella;
    test::DialogoFinto dialogo;
    Maschere maschere;
    project::DatiProgetto dati;
    int fase = 0;
};

TEST_F(FormeSenzaModifiche, LeaveTenThousandValuesOfAllTablesAsTheyAre) {
    Valori valori;
    while (valori.quanti() < 10000) {
        riempi(dati, valori);
        const project::DatiProgetto prima = dati;
        for (const auto tabella :
             {NumeroMaschera::strati, NumeroMaschera::tiranti, NumeroMaschera::fasi})
            EXPECT_TRUE(apriEConferma(tabella));  // a table counts as modified all the same
        EXPECT_FALSE(apriEConferma(NumeroMaschera::paratia));
        EXPECT_FALSE(apriEConferma(NumeroMaschera::titoli));
        bool modificato = false;
        SezioneEditata(dati.sezione, modificato).conferma();
        EXPECT_TRUE(dati == prima);
        EXPECT_EQ(project::testoProgetto(dati), project::testoProgetto(prima));
    }
}

// The rows move, their values do not change with them.
TEST_F(FormeSenzaModifiche, KeepTheValuesOfRowsThatMoveWhenOneIsTakenOutOrInserted) {
    Valori valori;
    riempi(dati, valori);
    dati.nTiranti = 19;
    const project::DatiProgetto prima = dati;
    preparaMaschera(maschere, NumeroMaschera::tiranti, dati, fase);
    ModelloGriglia senza(maschere.corrente(), maschere.valoriTesto());
    senza.eliminaRiga();
    maschere.conferma({}, senza.valoriTesto());
    (void)riprendiMaschera(maschere, NumeroMaschera::tiranti, dati, fase);
    ASSERT_EQ(dati.nTiranti, 18);
    for (int i = 1; i <= 18; ++i) {
        EXPECT_EQ(dati.profTirante[i], prima.profTirante[i + 1]);
        EXPECT_EQ(dati.rigTirante[i], prima.rigTirante[i + 1]);
    }

    dati = prima;
    preparaMaschera(maschere, NumeroMaschera::tiranti, dati, fase);
    ModelloGriglia con(maschere.corrente(), maschere.valoriTesto());
    con.inserisciRiga(dialogo);
    for (const char cifra : {'0', '1', '2', '3'}) {
        con.premi(Tasto::carattere, std::string(1, cifra), dialogo);
        con.premi(Tasto::invio, {}, dialogo);
    }
    maschere.conferma({}, con.valoriTesto());
    (void)riprendiMaschera(maschere, NumeroMaschera::tiranti, dati, fase);
    ASSERT_EQ(dati.nTiranti, 20);
    EXPECT_EQ(dati.rigTirante[1], 0.1);
    for (int i = 2; i <= 20; ++i) {
        EXPECT_EQ(dati.profTirante[i], prima.profTirante[i - 1]);
        EXPECT_EQ(dati.pretTirante[i], prima.pretTirante[i - 1]);
    }
}

}  // namespace
}  // namespace korven::masks
