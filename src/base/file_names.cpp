#include "base/file_names.hpp"

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

}  // namespace korven::base
