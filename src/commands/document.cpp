#include "commands/document.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "commands/document_names.hpp"
#include "commands/last_folder.hpp"
#include "commands/project_opening.hpp"
#include "commands/project_patterns.hpp"
#include "commands/recent_projects.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "project/project_file.hpp"

namespace korven::commands {

namespace {

using base::traduttore;
using project::fileCorrente;
using project::modificato;

constexpr const char* domandaSovrascrivere = "Il file indicato esiste già. Volete sovrascriverlo";

std::string attenzione() { return traduttore("ATTENZIONE") + "!"; }

// Names another file for a while, and for good only when all went well: an error leaves the project
// that was open under its own name, where it can be rescued.
class NomeProvvisorio {
 public:
    explicit NomeProvvisorio(std::string nome)
        : prima_(std::exchange(fileCorrente, std::move(nome))) {}
    NomeProvvisorio(const NomeProvvisorio&) = delete;
    NomeProvvisorio& operator=(const NomeProvvisorio&) = delete;
    ~NomeProvvisorio() {
        if (!tenuto_) fileCorrente = prima_;
    }
    void tieni(std::string nome) {
        fileCorrente = std::move(nome);
        tenuto_ = true;
    }

 private:
    std::string prima_;
    bool tenuto_ = false;
};

}  // namespace

bool Documento::domandaModifiche() {
    if (!modificato) return true;
    const auto risposta = dialogo_.domanda(
        traduttore("Il file corrente è stato modificato. Volete salvare le modifiche apportate") +
            "?",
        attenzione(), base::Pulsanti::siNoAnnulla, base::Icona::domanda);
    if (risposta == base::Risposta::si) return fileSalva();
    return risposta == base::Risposta::no;
}

void Documento::fileApri() {
    if (!domandaModifiche()) return;
    vaiAllUltimaCartella();
    apriNome(nomi_.apri(fileCorrente));
}

void Documento::apri(const std::string& nome) {
    if (domandaModifiche()) apriNome(nome);
}

void Documento::apriRecente(const std::string& percorso) {
    if (base::esisteFile(percorso))
        apri(percorso);
    else
        dialogo_.messaggio(traduttore("File non trovato") + base::duePunti() + percorso,
                           attenzione(), base::Icona::avviso);
}

void Documento::apriNome(const std::string& risposta) {
    const std::string nome = nomeDaAprire(risposta);
    if (nessunaScelta(nome)) return;
    if (const std::string file = trovaProgetto(nome); !file.empty()) {
        leggi(nome, file);
        ricordaCartella(nome);
    } else {
        comincia(nome);
    }
    finestra_.titolo(titoloFinestra(fileCorrente));
    modificato = false;
    aperto();
}

// What was kept of the project that was open before has been saved by now, or is not wanted.
void Documento::aperto() {
    custodisci();
    if (!offre_) return;
    std::string detto = offriRecuperi(offre_, dialogo_);
    if (detto.empty()) return;
    stato_ = std::move(detto);
    mostraStato();
}

void Documento::custodisci() {
    if (const std::string detto = recuperoTenuto.guarda(disco_); !detto.empty())
        finestra_.stato(detto);
}

void Documento::leggi(const std::string& nome, const std::string& file) {
    NomeProvvisorio provvisorio(file);
    togliResti(file);
    FileSuDisco suDisco;
    suDisco.ricorda(file);
    project::leggiProgetto();
    storia_.svuota();
    ++aperture_;
    provvisorio.tieni(nome);
    suDisco_ = std::move(suDisco);
    project::progettiProtetti.letto = file;
    ricordaRecente(file);
    mostra("File letto", file);
}

void Documento::comincia(const std::string& nome) {
    project::azzeraProgetto();
    ++aperture_;
    mettiNome(nome);
}

void Documento::mettiNome(const std::string& nome) {
    storia_.svuota();
    fileCorrente = nome;
    suDisco_.ricorda(nome);
    project::progettiProtetti.letto.clear();
    // A new user's first project would else lie unnoticed beside the examples.
    stato_ = traduttore("Nuovo progetto, non ancora salvato") + base::duePunti() + nome + " (" +
             traduttore("un'altra cartella si sceglie con Salva") + ")";
    mostraStato();
}

std::string Documento::nomeNuovo(const std::string& proposta) {
    for (;;) {
        const std::string nome = nomeDaAprire(nomi_.nuovo(proposta));
        if (nessunaScelta(nome)) return {};
        if (trovaProgetto(nome).empty() ||
            consente(traduttore(domandaSovrascrivere), base::Icona::domanda))
            return nome;
    }
}

void Documento::nuovo(const std::function<std::optional<std::string>()>& chiediModello) {
    if (!domandaModifiche()) return;
    const auto modello = chiediModello();
    if (!modello) return;
    vaiAllUltimaCartella();
    const std::string nome = nomeNuovo("");
    if (nome.empty()) return;
    try {
        std::optional<project::DatiProgetto> copiato;
        if (!modello->empty()) copiato = leggiModello(*modello);
        comincia(nome);
        if (copiato) project::Progetto = *std::move(copiato);
    } catch (const base::ErroreFile& errore) {
        dialogo_.messaggio(errore.what(), attenzione(), base::Icona::stop);
        return;
    }
    finestra_.titolo(titoloFinestra(nome));
    modificato = !modello->empty();
    aperto();  // unsaved work of a project of that name may wait
}

void Documento::duplica() {
    if (fileCorrente.empty() || !domandaModifiche()) return;
    const std::string nome = nomeNuovo(nomeCopia(fileCorrente, base::esisteNome));
    if (nome.empty()) return;
    mettiNome(nome);
    finestra_.titolo(titoloFinestra(nome));
    modificato = true;
    aperto();
}

bool Documento::apriAllAvvio(const std::string& argomento) {
    if (!base::esisteFile(argomento)) {
        mostra("File non trovato", argomento);
        return false;
    }
    // The program is about to change its folder, from where a relative name would lead elsewhere.
    const std::string nome = std::filesystem::absolute(argomento).string();
    leggi(nome, nome);
    vaiAllaCartellaDi(nome);
    finestra_.titolo(titoloFinestra(nome));
    aperto();
    return true;
}

bool Documento::fileSalva() {
    if (fileCorrente.empty()) return false;
    // The dialog makes the folder of the name that it returns the current one.
    std::error_code nessuna;
    const auto cartella = std::filesystem::current_path(nessuna);
    for (;;) {
        const auto risposta = nomi_.salva(nomeProposto(fileCorrente));
        if (!risposta) return false;
        const std::string nome = nomeDaSalvare(*risposta);
        try {
            if (!accettaNome(nome)) continue;
            scrivi(nome);
            return true;
        } catch (const base::ErroreFile& errore) {
            std::filesystem::current_path(cartella, nessuna);
            dialogo_.messaggio(errore.what(), attenzione(), base::Icona::stop);
        }
    }
}

bool Documento::consente(const std::string& testo, base::Icona icona) {
    return dialogo_.domanda(testo + "?", attenzione(), base::Pulsanti::siNo, icona) ==
           base::Risposta::si;
}

bool Documento::accettaNome(const std::string& nome) {
    if (!base::esisteFile(nome)) return true;
    if (!consente(traduttore(domandaSovrascrivere), base::Icona::domanda)) return false;
    if (!suDisco_.cambiato(nome)) return true;
    return consente(traduttore("Un altro programma ha modificato questo file dopo la lettura. "
                               "Volete perdere quelle modifiche e sovrascriverlo"),
                    base::Icona::avviso);
}

void Documento::scrivi(const std::string& nome) {
    NomeProvvisorio provvisorio(nome);
    project::scriviProgetto(disco_);
    provvisorio.tieni(nome);
    suDisco_.ricorda(nome);
    ricordaCartella(nome);
    ricordaRecente(nome);
    project::progettiProtetti.letto = nome;
    modificato = false;
    finestra_.titolo(titoloFinestra(nome));
    mostra("File scritto", nome);
    custodisci();
}

void Documento::mostra(const std::string& cosa, const std::string& percorso) {
    stato_ = traduttore(cosa) + ": " + percorso;
    mostraStato();
}

void Documento::mostraStato() { finestra_.stato(stato_); }

}  // namespace korven::commands
