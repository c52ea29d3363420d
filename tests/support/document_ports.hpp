#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "commands/document_ports.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// Answers the file dialogs from a script and writes down what they were given. Where the script
/// ends the dialogs are left without a name.
class DialogoFileFinto : public commands::DialogoFile {
 public:
    std::string apri(const std::string& attuale) override {
        attuali.push_back(attuale);
        cartelle.push_back(std::filesystem::current_path().string());
        return prossimo(aperti).value_or("");
    }
    std::string nuovo(const std::string& proposta) override {
        proposteNuovo.push_back(proposta);
        cartelleNuovo.push_back(std::filesystem::current_path().string());
        return prossimo(nuovi).value_or("");
    }
    std::optional<std::string> salva(const std::string& proposta) override {
        proposte.push_back(proposta);
        cartelleSalva.push_back(std::filesystem::current_path().string());
        if (!vaIn.empty()) std::filesystem::current_path(vaIn);
        return prossimo(salvati);
    }

    std::deque<std::string> aperti, salvati, nuovi;         ///< the answers
    std::vector<std::string> attuali, proposte;             ///< what was shown first
    std::vector<std::string> proposteNuovo, cartelleNuovo;  ///< of the dialog for a new name
    std::vector<std::string> cartelle;                      ///< where the open dialog began
    std::vector<std::string> cartelleSalva;                 ///< where the save dialog began
    std::string vaIn;  ///< folder that the save dialog leaves behind as the current one

 private:
    static std::optional<std::string> prossimo(std::deque<std::string>& risposte) {
        if (risposte.empty()) return std::nullopt;
        std::string risposta = risposte.front();
        risposte.pop_front();
        return risposta;
    }
};

class FinestraFinta : public commands::FinestraPrincipale {
 public:
    void titolo(const std::string& testo) override { ultimoTitolo = testo; }
    void stato(const std::string& testo) override { ultimoStato = testo; }
    void statoInBreve(const std::string& breve, const std::string& intero) override {
        ultimoStato = breve;
        perEsteso = intero;
    }
    std::string ultimoTitolo, ultimoStato;
    std::string perEsteso;  ///< of the last status in few words
};

/// A program folder and a folder of projects of their own, and the state of a program that has just
/// started; everything is put back at the end, the current folder too.
class AmbienteDocumento {
 public:
    AmbienteDocumento() {
        base::impostaCartellaProgramma(programma.percorso());
        riparti();
    }
    AmbienteDocumento(const AmbienteDocumento&) = delete;
    AmbienteDocumento& operator=(const AmbienteDocumento&) = delete;
    ~AmbienteDocumento() {
        std::filesystem::current_path(primaCartella_);
        base::impostaCartellaProgramma("");
        base::impostaLingua(1);
        base::impostaModoProva(nullptr);
        riparti();
    }

    CartellaProvvisoria programma, lavori;

 private:
    static void riparti() {
        project::azzeraProgetto();
        project::fileCorrente.clear();
        project::modificato = false;
        project::progettiProtetti = {};
        commands::recuperoTenuto = {};
    }
    std::filesystem::path primaCartella_ = std::filesystem::current_path();
};

}  // namespace korven::test
