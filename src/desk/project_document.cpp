#include "desk/project_document.hpp"

#include <filesystem>

#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "dossier/identity.hpp"

namespace korven::desk {

namespace {

std::string nomeDelFile(const ProgettoDetto& progetto) {
    return std::filesystem::path(progetto.file).filename().string();
}

std::string conImpronta(const ProgettoDetto& progetto) {
    return nomeDelFile(progetto) + " (SHA-256 " +
           std::string(dossier::inBreve(dossier::impronta(progetto.dati))) + ")";
}

}  // namespace

document::Documento documentoDi(const ProgettoDetto& progetto, const std::string& titolo) {
    document::Documento d;
    d.titolo = titolo;
    d.autore = std::string(base::nomeEVersione);
    d.data = progetto.data;
    d.lingua = base::siglaIso(base::linguaCorrente());
    d.testata = {titolo, nomeDelFile(progetto)};
    d.piede = d.autore + ", " + progetto.data;
    d.blocchi.emplace_back(document::Titolo{1, titolo});
    d.blocchi.emplace_back(document::Paragrafo{conImpronta(progetto)});
    return d;
}

workbook::CartellaFogli cartellaDi(const ProgettoDetto& progetto, const std::string& titolo) {
    workbook::CartellaFogli cartella;
    cartella.titolo = titolo;
    cartella.piede = conImpronta(progetto) + " - " + std::string(base::nomeEVersione);
    cartella.data = progetto.data;
    return cartella;
}

}  // namespace korven::desk
