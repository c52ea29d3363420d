#include "base/folders/program_folder.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace korven::base {

namespace {

std::string& cartellaImposta() {
    static std::string cartella;
    return cartella;
}

// Empty if nobody has named one.
std::string cartellaNominata() {
    if (!cartellaImposta().empty()) return cartellaImposta();
    const char* casa = std::getenv("KORVEN32_HOME");
    return casa != nullptr ? casa : "";
}

char minuscola(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool stessoNome(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return minuscola(x) == minuscola(y); });
}

}  // namespace

std::string cartellaProgramma() {
    const std::string nominata = cartellaNominata();
    return nominata.empty() ? cartellaEseguibile() : nominata;
}

bool cartellaProgrammaNominata() { return !cartellaNominata().empty(); }

std::string cartellaEseguibile() {
    std::error_code errore;
    return std::filesystem::read_symlink("/proc/self/exe", errore).parent_path().string();
}

void impostaCartellaProgramma(std::string cartella) { cartellaImposta() = std::move(cartella); }

std::string fileProgramma(std::string_view nome) {
    namespace fs = std::filesystem;
    const fs::path cartella = cartellaProgramma();
    const fs::path esatto = cartella / nome;
    std::error_code errore;
    if (fs::exists(esatto, errore)) return esatto.string();
    std::string trovato;
    fs::directory_iterator voce(cartella, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        const std::string candidato = voce->path().filename().string();
        if (stessoNome(candidato, nome) && (trovato.empty() || candidato < trovato))
            trovato = candidato;
    }
    return trovato.empty() ? esatto.string() : (cartella / trovato).string();
}

}  // namespace korven::base
