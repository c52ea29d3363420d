#include "commands/report_export.hpp"

#include <cstdlib>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/folders/program_folder.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "commands/report_files.hpp"
#include "markup/text_renderer.hpp"
#include "project/output_guard.hpp"

namespace korven::commands {

using base::traduttore;

namespace {

constexpr std::size_t coda = 4;  // characters at the end that are looked through for a point

std::string_view ultimi(std::string_view testo, std::size_t caratteri) {
    for (std::size_t i = base::numeroCaratteri(testo); i > caratteri; --i)
        testo.remove_prefix(base::lunghezzaPrimoCarattere(testo));
    return testo;
}

void avvisa(const PorteEsportazione& porte, const std::string& testo, base::Icona icona) {
    porte.dialogo.messaggio(testo, traduttore("ATTENZIONE") + "!", icona);
}

void nessunVisualizzatore(const PorteEsportazione& porte, const std::string& testo,
                          const std::string& file) {
    avvisa(porte, testo + '\n' + base::maiuscolo(file), base::Icona::informazione);
}

// The file to write: the usual one, or the one chosen instead; nothing ends the export.
std::optional<std::string> destinazioneTxt(const std::string& percorso,
                                           const PorteEsportazione& porte) {
    const std::string nome = nomeTesto(percorso);
    if (!base::esisteFile(nome)) return nome;
    const auto risposta = porte.dialogo.domanda(
        traduttore("Volete sovrascrivere il file") + '\n' + nome + '?',
        traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo, base::Icona::avviso);
    if (risposta == base::Risposta::si) return nome;
    return nomeTxtScelto(porte.chiediNome(nome));
}

// False when nothing was written, which a box has told then.
bool salvaTxt(const std::string& percorso, const std::string& nome,
              const PorteEsportazione& porte) {
    auto file = base::LettoreRighe::apri(percorso);
    const auto testo = markup::renderText(file);
    try {
        if (!testo)
            throw base::ErroreFile(percorso, 0,
                                   traduttore("la relazione non apre nessun documento (#RESET)"));
        project::controllaUscita(nome, percorso);
        base::scriviFile(nome, *testo, porte.disco);
        return true;
    } catch (const base::ErroreFile& errore) {
        avvisa(porte, errore.what(), base::Icona::avviso);
        return false;
    }
}

std::string bloccoNote() {
    const char* cartella = std::getenv("windir");
    if (cartella == nullptr || *cartella == '\0') return {};
    std::string programma = std::string(cartella) + "/notepad.exe";
    return base::esisteFile(programma) ? programma : std::string();
}

bool mostraTxt(const std::string& file, base::AvviaProgramma& programmi) {
    if (const std::string note = bloccoNote(); !note.empty()) {
        programmi.avvia(note, {file}, base::Finestra::massima);
        return true;  // whether it starts is not looked at
    }
    const std::string scelto = leggiVisualizzatori().txt;
    if (!scelto.empty() && programmi.avvia(scelto, {file}, base::Finestra::minima)) return true;
    return programmi.apri(file);
}

std::string programmaEsistente(const std::string& riga) {
    std::string nome(base::senzaSpaziEsterni(riga));
    return base::esisteFile(nome) ? nome : std::string();
}

}  // namespace

std::string convertitore() { return base::cartellaAltriProgrammi() + "/outdoc"; }

std::optional<std::string> nomeTxtScelto(std::string_view risposta) {
    if (ultimi(risposta, coda).find('.') != std::string_view::npos)
        risposta = risposta.substr(0, risposta.rfind('.'));
    const std::string_view nome = risposta.substr(risposta.rfind('/') + 1);
    if (nome.empty() || nome == "*") return std::nullopt;
    return std::string(risposta).append(".txt");
}

Visualizzatori leggiVisualizzatori() {
    const std::string percorso = base::fileProgramma("editor.cfg");
    Visualizzatori letti;
    if (!base::esisteFile(percorso)) return letti;
    auto file = base::LettoreRighe::apri(percorso);
    for (std::string* programma : {&letti.doc, &letti.txt})
        if (!file.fine()) *programma = programmaEsistente(file.riga({}));
    return letti;
}

void esportaTxt(const std::string& percorso, const PorteEsportazione& porte) {
    if (!base::esisteFile(percorso)) return;
    const auto nome = destinazioneTxt(percorso, porte);
    if (!nome || !salvaTxt(percorso, *nome, porte) || mostraTxt(*nome, porte.programmi)) return;
    nessunVisualizzatore(porte,
                         traduttore("Non è stato trovato un editor di testi per il formato TXT. "
                                    "Il programma ha comunque creato il file:"),
                         *nome);
}

void esportaDoc(const std::string& percorso, const PorteEsportazione& porte) {
    if (!base::esisteFile(percorso)) return;
    const std::string nome = base::nomeDocumento(percorso);
    bool creato = true;
    try {
        scriviDocumento(percorso, porte.programmi, porte.outdoc);
    } catch (const base::ErroreFile& errore) {
        avvisa(porte, errore.what(), base::Icona::avviso);
        creato = false;
    }
    const std::string scelto = leggiVisualizzatori().doc;
    if (!creato && !base::esisteFile(nome)) return;
    const bool mostrato =
        !scelto.empty() && porte.programmi.avvia(scelto, {nome}, base::Finestra::massima);
    if (creato && !mostrato)
        nessunVisualizzatore(
            porte,
            traduttore("Non è stato trovato nè un visualizzatore nè un editor di testi per il "
                       "formato DOC. Il programma ha comunque creato il file:"),
            nome);
}

std::string scriviDocumento(const std::string& relazione, base::AvviaProgramma& programmi,
                            const std::string& outdoc) {
    std::string nome = base::nomeDocumento(relazione);
    project::controllaUscita(nome, relazione);
    const base::ImprontaFile prima(nome);
    const auto codice = programmi.esegui(outdoc, {relazione});
    if (!codice) throw base::ErroreFile(outdoc, 0, traduttore("impossibile avviare il programma"));
    if (*codice != 0 || !base::esisteFile(nome) || base::ImprontaFile(nome) == prima)
        throw base::ErroreFile(nome, 0, traduttore("impossibile scrivere il file"));
    return nome;
}

}  // namespace korven::commands
