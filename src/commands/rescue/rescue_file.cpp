#include "commands/rescue/rescue_file.hpp"

#include <cassert>
#include <filesystem>
#include <utility>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "commands/rescue/rescue_names.hpp"
#include "project/project_file.hpp"
#include "project/rescue_mark.hpp"

namespace korven::commands {

namespace {

using base::Serratura;

// Taken by a file, or by a program that is about to make it. Leaves the lock of a free name with
// its caller; the file is looked for once more under the lock.
bool preso(const std::string& nome, Serratura& serratura) {
    return base::esisteNome(nome) ||
           serratura.prendi(base::nomeSerratura(nome)) == Serratura::Esito::occupata ||
           base::esisteNome(nome);
}

// A link that somebody lays under the name in the meantime is not followed: one that came before
// the writer is seen here, one that comes later is replaced.
bool scrittoNuovo(const std::string& nome, const std::string& byte, const base::Disco& disco) {
    base::ScrittoreFile scrittore(nome, disco);
    scrittore.scrivi(byte);
    if (base::esisteNome(nome)) return false;
    scrittore.concludi();
    return true;
}

}  // namespace

std::string byteRecupero(const project::DatiProgetto& dati, const std::string& progetto) {
    return base::inCp1252(project::testoProgetto(dati)) + project::segnoRecupero(progetto);
}

FileRecupero FileRecupero::crea(const std::string& cartella, const std::string& progetto,
                                std::string byte, const base::Disco& disco) {
    const auto modello =
        std::filesystem::path(cartella) / std::filesystem::path(progetto).filename();
    auto serratura = std::make_unique<Serratura>();
    std::string nome;
    do
        nome = nomeRecupero(modello.string(),
                            [&](const std::string& altro) { return preso(altro, *serratura); });
    while (!scrittoNuovo(nome, byte, disco));
    return {std::move(nome), std::move(serratura), std::move(byte)};
}

std::optional<FileRecupero> FileRecupero::prendi(const std::string& percorso) {
    auto serratura = std::make_unique<Serratura>();
    if (serratura->prendi(base::nomeSerratura(percorso)) == Serratura::Esito::occupata ||
        !base::fileProprio(percorso))
        return std::nullopt;
    return FileRecupero(percorso, std::move(serratura), base::leggiFile(percorso));
}

bool FileRecupero::intatto() const {
    return base::fileProprio(percorso_) && base::ImprontaFile(percorso_) == impronta_;
}

void FileRecupero::riscrivi(std::string byte, const base::Disco& disco) {
    assert(intatto());
    base::scriviFile(percorso_, byte, disco);
    byte_ = std::move(byte);
    impronta_ = base::ImprontaFile(percorso_);
}

void FileRecupero::togli() {
    if (intatto()) base::cancellaFile(percorso_);
    serratura_->lascia();
}

}  // namespace korven::commands
