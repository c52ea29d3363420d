#include "commands/document_names.hpp"

#include <filesystem>

#include "base/code_page.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"

namespace korven::commands {

namespace {

std::string conEstensione(std::string_view nome) {
    return std::string(nome).append(".").append(estensioneProgetti);
}

std::string_view primaDelPunto(std::string_view testo) { return testo.substr(0, testo.find('.')); }

// The last `n` characters of a text, as bytes.
std::string_view ultimiCaratteri(std::string_view testo, int n) {
    std::size_t inizio = testo.size();
    while (inizio > 0 && n > 0) {
        --inizio;
        if ((static_cast<unsigned char>(testo[inizio]) & 0xC0) != 0x80) --n;
    }
    return testo.substr(inizio);
}

}  // namespace

std::string nomeDaAprire(std::string_view risposta) {
    if (ultimiCaratteri(risposta, 4).find('.') != std::string_view::npos)
        risposta = risposta.substr(0, risposta.rfind('.'));
    return conEstensione(risposta);
}

bool nessunaScelta(std::string_view nome) {
    const std::string file = nomeProposto(nome);
    return file == modelloProgetti || file == conEstensione("");
}

std::string nomeDaSalvare(std::string_view risposta) {
    return base::finoAlPrimoPunto(risposta, estensioneProgetti);
}

std::string nomeProposto(std::string_view percorso) {
    return std::filesystem::path(percorso).filename().string();
}

std::string nomeCopia(std::string_view percorso,
                      const std::function<bool(const std::string&)>& esiste) {
    return nomeProposto(base::nomeLibero(percorso, "_copia", conEstensione(""), esiste));
}

std::string titoloFinestra(std::string_view percorso) {
    return "KORVEN 32 - " + base::minuscolo(primaDelPunto(nomeProposto(percorso)));
}

std::string rigaFileCorrente(std::string_view percorso) {
    if (percorso.empty()) return {};
    std::string nome = base::maiuscolo(primaDelPunto(percorso));
    if (const auto e = nome.find('&'); e != std::string::npos) nome.insert(e, 1, '&');
    return base::traduttore("File corrente:") + " " + nome;
}

}  // namespace korven::commands
