#include "base/folders/file_names.hpp"

#include <filesystem>

namespace korven::base {

namespace {

bool continuazione(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace

std::string conUltimiTre(std::string_view percorso, std::string_view estensione) {
    for (int i = 0; i < 3 && !percorso.empty(); ++i) {
        while (percorso.size() > 1 && continuazione(percorso.back())) percorso.remove_suffix(1);
        percorso.remove_suffix(1);
    }
    return std::string(percorso).append(estensione);
}

std::string finoAlPrimoPunto(std::string_view percorso, std::string_view estensione) {
    return std::string(percorso.substr(0, percorso.find('.'))).append(".").append(estensione);
}

std::string nomeRisultati(std::string_view progetto) { return conUltimiTre(progetto, "OUT"); }

std::string nomeRelazione(std::string_view progetto) { return finoAlPrimoPunto(progetto, "TAB"); }

std::string nomeDocumento(std::string_view relazione) { return conUltimiTre(relazione, "doc"); }

std::string nomeUscita(std::string_view progetto, std::string_view nome,
                       std::string_view estensione) {
    const std::filesystem::path percorso(progetto);
    std::string radice = (percorso.parent_path() / percorso.stem()).string();
    return radice.append("-").append(nome).append(".").append(estensione);
}

std::string nomePdfRelazione(std::string_view progetto) {
    return nomeUscita(progetto, parolaRelazione.italiano, "pdf");
}

std::string nomeLibero(std::string_view percorso, std::string_view coda, std::string_view fine,
                       const std::function<bool(const std::string&)>& esiste) {
    const std::filesystem::path origine(percorso);
    const std::string radice = (origine.parent_path() / origine.stem()).string().append(coda);
    std::string nome = std::string(radice).append(fine);
    for (int n = 2; esiste(nome); ++n) nome = (radice + "_" + std::to_string(n)).append(fine);
    return nome;
}

}  // namespace korven::base
