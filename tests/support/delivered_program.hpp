#pragma once

#include <functional>

#include "base/folders/program_folder.hpp"
#include "drawings/hatch_library.hpp"
#include "masks/editing.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/hatch_chooser.hpp"
#include "shell/panels/layer_import.hpp"
#include "shell/panels/layers_panel.hpp"
#include "shell/panels/profile_chooser.hpp"
#include "shell/panels/profile_entry.hpp"
#include "shell/panels/section_panel.hpp"
#include "shell/panels/table_panels.hpp"
#include "shell/section/definej.hpp"
#include "support/desktop_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::test {

/// The program folder as it is delivered, with its texts in one language, and the forms that its
/// data describe.
class ProgrammaConsegnato {
 public:
    using Vista = std::function<void(QWidget& forma)>;

    explicit ProgrammaConsegnato(int lingua) : testi_(lingua) {
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        drawings::dimenticaCampiture();  // they have names in the language
        maschere_.leggiMaschereProgramma();
    }
    ProgrammaConsegnato(const ProgrammaConsegnato&) = delete;
    ProgrammaConsegnato& operator=(const ProgrammaConsegnato&) = delete;
    ~ProgrammaConsegnato() {
        base::impostaCartellaProgramma("");
        drawings::dimenticaCampiture();
    }

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

    /// The form of the layers with the panel beside it.
    void conPannelloStrati(base::Dialogo& dialogo, const shell::FileDiStrati& file,
                           const std::function<void(shell::Base2_32& forma)>& guarda) {
        masks::preparaMaschera(maschere_, masks::NumeroMaschera::strati, progettoSemplice(), 0);
        shell::Base2_32 forma(maschere_.corrente(), maschere_.valoriTesto(), dialogo, {}, nullptr);
        forma.affianca(new shell::PannelloStrati(forma, dialogo, file));
        guarda(forma);
        maschere_.rilasciaForm();
    }

    /// The forms of anchors, stages and wall with the panels beside them, on the small wall.
    void conPannelliVivi(base::Dialogo& dialogo, const Vista& guarda) {
        shell::VitaProgetto vita;
        project::Progetto = progettoSemplice();
        project::fileCorrente = "muro.kvd";
        vita.guarda();
        const auto pannelli = shell::pannelliForme(dialogo, vita);
        for (const auto numero : {masks::NumeroMaschera::tiranti, masks::NumeroMaschera::fasi}) {
            masks::preparaMaschera(maschere_, numero, project::Progetto, 0);
            shell::Base2_32 forma(maschere_.corrente(), maschere_.valoriTesto(), dialogo, {},
                                  nullptr);
            forma.affianca(pannelli.tabella(forma, numero));
            guarda(forma);
            maschere_.rilasciaForm();
        }
        conPannelloParatia(dialogo, pannelli, guarda);
        project::azzeraProgetto();
        project::fileCorrente.clear();
    }

    /// The dialogs of that panel: the hatch, and layers from a hole that lacks all values.
    static void perOgniDialogoStrati(const Vista& guarda) {
        shell::SceglieCampitura scelta("112105C3 Argilla grigia, con radici.", nullptr);
        guarda(scelta);
        const std::string ags =
            "GROUP,LOCA\nHEADING,LOCA_ID,LOCA_GL\nDATA,BH1,101.35\n"
            "GROUP,GEOL\nHEADING,LOCA_ID,GEOL_TOP,GEOL_BASE,GEOL_DESC\n"
            "DATA,BH1,0.5,3.4,Firm brown CLAY\nDATA,BH1,3.4,10,Dense SAND\n";
        shell::ImportaStrati importo(exchange::FileStrati(ags), {{"3", "18"}}, "scavo.ags",
                                     nullptr);
        guarda(importo);
    }

    /// The same with the panel beside it, a whole section in it, and the dialogs of that panel.
    static void conPannelloSezione(base::Dialogo& dialogo, const Vista& guarda) {
        project::Progetto = progettoSemplice();
        project::Progetto.rigidezzaEJ = 1234;
        project::fileCorrente = "/muro.kvd";
        for (const auto& sezione : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                                    structure::palancola(), structure::paliArmati()}) {
            project::Progetto.sezione = sezione;
            if (sezione.tipoPaliArmati)
                project::Progetto.sezione.armDiamStaffe = project::Progetto.sezione.armPassoStaffe =
                    1;
            shell::VitaProgetto vita;
            vita.guarda();
            bool modificato = false;
            shell::DefinEJ forma(project::Progetto.sezione, modificato, nullptr);
            forma.affianca(shell::pannelloSezione(vita, dialogo)(forma));
            guarda(forma);
        }
        shell::ScegliProfilo scelta(project::Parte::diaframma, structure::diaframmaSimmetrico(),
                                    masks::campoSezione(&project::Sezione::diametroMonte), dialogo,
                                    nullptr);
        guarda(scelta);
        shell::NuovoProfilo nuovo(project::Parte::palancola, structure::palancola(), nullptr);
        guarda(nuovo);
        project::Progetto = {};
        project::fileCorrente.clear();
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
    void conPannelloParatia(base::Dialogo& dialogo, const shell::PannelliForme& pannelli,
                            const Vista& guarda) {
        constexpr auto numero = masks::NumeroMaschera::paratia;
        masks::preparaMaschera(maschere_, numero, project::Progetto, 0);
        shell::Base1 forma(maschere_.corrente(), maschere_.valoriCombo(), maschere_.valoriTesto(),
                           dialogo, {}, nullptr);
        forma.affianca(pannelli.campi(forma, numero));
        guarda(forma);
        maschere_.rilasciaForm();
    }

    const TestiConsegnati testi_;
    masks::Maschere maschere_;
};

}  // namespace korven::test
