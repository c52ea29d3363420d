#include "commands/rescue/rescue_names.hpp"

#include <algorithm>
#include <filesystem>

#include "base/folders/file_names.hpp"
#include "base/folders/user_data.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view coda = "_recuperato", estensione = ".kvd";

// A number from 2 on as it is written.
bool numerato(std::string_view cifre) {
    return !cifre.empty() && cifre.front() != '0' && cifre != "1" &&
           std::all_of(cifre.begin(), cifre.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

std::string nomeRecupero(std::string_view percorso,
                         const std::function<bool(const std::string&)>& esiste) {
    return base::nomeLibero(percorso, coda, estensione, esiste);
}

std::string nomeRighe(std::string_view percorso,
                      const std::function<bool(const std::string&)>& esiste) {
    return base::nomeLibero(percorso, "_righe", ".txt", esiste);
}

bool eNomeRecupero(std::string_view nome, std::string_view percorso) {
    const std::string file = fs::path(nome).filename().string();
    const std::string radice = fs::path(percorso).stem().string().append(coda);
    if (!file.starts_with(radice) || !file.ends_with(estensione)) return false;
    if (file.size() == radice.size() + estensione.size()) return true;
    if (file.size() < radice.size() + 1 + estensione.size() || file[radice.size()] != '_')
        return false;
    const std::string_view cifre = std::string_view(file).substr(radice.size() + 1);
    return numerato(cifre.substr(0, cifre.size() - estensione.size()));
}

const std::string& progettoAperto() {
    const std::string& inCorsa = project::progettiProtetti.corrente;
    return inCorsa.empty() ? project::fileCorrente : inCorsa;
}

std::string cartellaRecuperi() {
    return fs::path(base::cartellaDatiUtente()).parent_path().string();
}

}  // namespace korven::commands
