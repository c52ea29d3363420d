#include "base/folders/program_folder.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace korven::base {

namespace {

namespace fs = std::filesystem;

// What this process was told of its folders; empty: nothing.
struct Cartelle {
    std::string nominata, utente;
};

Cartelle& cartelle() {
    static Cartelle imposte;
    return imposte;
}

// Empty if nobody has named one.
std::string cartellaNominata() {
    if (!cartelle().nominata.empty()) return cartelle().nominata;
    const char* casa = std::getenv("KORVEN32_HOME");
    return casa != nullptr ? casa : "";
}

fs::path cartellaEseguibile() {
    std::error_code errore;
    return fs::read_symlink("/proc/self/exe", errore).parent_path();
}

// The folders of an installed program below its prefix: those that are called, and those that they
// call.
fs::path prefisso(const fs::path& eseguibili) {
    if (eseguibili.filename() == "bin") return eseguibili.parent_path();
    if (eseguibili.filename() == "korven32" && eseguibili.parent_path().filename() == "lib")
        return eseguibili.parent_path().parent_path();
    return {};
}

struct Installazione {
    fs::path dati, programmi, documenti;
};

std::optional<Installazione> installazione() {
    const fs::path radice = prefisso(cartellaEseguibile());
    if (radice.empty()) return {};
    Installazione trovata{radice / "share" / "korven32", radice / "lib" / "korven32",
                          radice / "share" / "doc" / "korven32-data" / "html"};
    std::error_code errore;
    if (!fs::is_directory(trovata.dati, errore)) return {};
    return trovata;
}

char minuscola(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool stessoNome(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return minuscola(x) == minuscola(y); });
}

// Those that belong to the program: one that an earlier version has left with the user is passed
// over.
bool delProgramma(std::string_view nome) {
    std::string minuscolo(nome);
    std::transform(minuscolo.begin(), minuscolo.end(), minuscolo.begin(), minuscola);
    constexpr std::array<std::string_view, 3> tipi = {".rtn", ".mav", ".hlp"};
    const auto finisce = [&](std::string_view tipo) { return minuscolo.ends_with(tipo); };
    return std::any_of(tipi.begin(), tipi.end(), finisce) ||
           (minuscolo.starts_with("texts") && finisce(".txt")) || minuscolo == "profili.txt" ||
           minuscolo == "combinazioni.txt";
}

std::optional<std::string> cerca(const fs::path& cartella, std::string_view nome) {
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
    if (trovato.empty()) return {};
    return (cartella / trovato).string();
}

}  // namespace

std::string cartellaProgramma() {
    if (std::string nominata = cartellaNominata(); !nominata.empty()) return nominata;
    return cartelle().utente.empty() ? cartellaDati() : cartelle().utente;
}

std::string cartellaDati() {
    if (std::string nominata = cartellaNominata(); !nominata.empty()) return nominata;
    const auto installata = installazione();
    return (installata ? installata->dati : cartellaEseguibile()).string();
}

std::string cartellaAltriProgrammi() {
    const auto installata = installazione();
    return (installata ? installata->programmi : cartellaEseguibile()).string();
}

bool programmaInstallato() { return installazione().has_value(); }

bool cartellaProgrammaNominata() { return !cartellaNominata().empty(); }

void impostaCartellaProgramma(std::string cartella) { cartelle().nominata = std::move(cartella); }

void impostaCartellaUtente(std::string cartella) { cartelle().utente = std::move(cartella); }

std::string fileProgramma(std::string_view nome) {
    const std::string programma = cartellaProgramma(), dati = cartellaDati();
    const bool prima = delProgramma(nome);
    for (const std::string& cartella : {prima ? dati : programma, prima ? programma : dati})
        if (const auto file = cerca(cartella, nome)) return *file;
    return (fs::path(programma) / nome).string();
}

std::string fileDocumento(std::string_view nome) {
    const std::string intero(nome);
    std::error_code errore;
    if (const auto installata = installazione()) {
        const auto pagina =
            installata->documenti / ((nome == "README" ? "index" : intero) + ".html");
        return fs::exists(pagina, errore) ? pagina.string() : std::string();
    }
    const fs::path primo = fs::canonical(fs::path(cartellaDati()) / "documenti.md", errore);
    if (errore) return {};
    const auto sorgente = primo.parent_path() / (intero + ".md");
    return fs::exists(sorgente, errore) ? sorgente.string() : std::string();
}

}  // namespace korven::base
