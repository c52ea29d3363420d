#pragma once

#include <functional>

#include "base/folders/program_folder.hpp"
#include "masks/editing.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/section/definej.hpp"
#include "support/desktop_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::test {

/// The program folder as it is delivered, with its texts in one language, and the forms that its
/// data describe.
class ProgrammaConsegnato {
 public:
    using Vista = std::function<void(QWidget& forma)>;

    explicit ProgrammaConsegnato(int lingua) : testi_(lingua) {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        maschere_.leggiMaschereProgramma();
    }
    ProgrammaConsegnato(const ProgrammaConsegnato&) = delete;
    ProgrammaConsegnato& operator=(const ProgrammaConsegnato&) = delete;
    ~ProgrammaConsegnato() { base::impostaCartellaProgramma(""); }

    /// The form of each mask in turn, with the small wall in it.
    void perOgniMaschera(base::Dialogo& dialogo, const Vista& guarda) {
        const auto dati = progettoSemplice();
        for (int numero = 1; numero <= 5; ++numero) {
            masks::preparaMaschera(maschere_, static_cast<masks::NumeroMaschera>(numero), dati, 0);
            const auto& maschera = maschere_.corrente();
            if (maschera.genere == masks::GenereMaschera::campi) {
                shell::Base1 forma(maschera, maschere_.valoriCombo(), maschere_.valoriTesto(),
                                   dialogo, {}, nullptr);
                guarda(forma);
            } else {
                shell::Base2_32 forma(maschera, maschere_.valoriTesto(), dialogo, {}, nullptr);
                guarda(forma);
            }
            maschere_.rilasciaForm();
        }
    }

    /// The form of the section in each of its types.
    static void perOgniTipoDiSezione(const Vista& guarda) {
        for (const auto tipo : project::tipiSezione) {
            project::Sezione sezione;
            sezione.*tipo = true;
            bool modificato = false;
            shell::DefinEJ forma(sezione, modificato, nullptr);
            guarda(forma);
        }
    }

 private:
    const TestiConsegnati testi_;
    masks::Maschere maschere_;
};

}  // namespace korven::test
