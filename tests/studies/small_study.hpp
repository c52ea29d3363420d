#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "studies/runner.hpp"
#include "support/wall_files.hpp"

#ifndef KORVEN_EXAMPLES
#define KORVEN_EXAMPLES "data/examples"  // the build names the folder; a header alone has none
#endif

namespace korven::test {

/// A delivered example by its name.
inline project::DatiProgetto esempioStudio(const std::string& nome) {
    return project::leggiDaFile(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
}

/// A field by its code name, which there is.
inline project::CampoNominato campoDi(std::string_view nome) {
    return project::campoNominato(nome).value();
}

/// Variants out of a formula: value j of variant i is `da[j]` + `passo[j]` times i.
class VariantiLineari : public studies::Varianti {
 public:
    struct Colonna {
        const char* nome;
        double da, passo;
    };
    VariantiLineari(std::vector<Colonna> colonne, std::uint64_t numero)
        : colonne_(std::move(colonne)), numero_(numero) {
        for (const Colonna& c : colonne_) campi_.push_back(campoDi(c.nome));
    }
    [[nodiscard]] std::span<const project::CampoNominato> campi() const override { return campi_; }
    [[nodiscard]] std::uint64_t numero() const override { return numero_; }
    std::vector<studies::Estremita> valori(std::uint64_t i,
                                           std::span<double> valori) const override {
        for (std::size_t j = 0; j < colonne_.size(); ++j)
            valori[j] = colonne_[j].da + colonne_[j].passo * static_cast<double>(i);
        if (i % 10 != 9) return {};
        return {{.campo = 0, .massimo = true}};
    }

 private:
    std::vector<Colonna> colonne_;
    std::vector<project::CampoNominato> campi_;
    std::uint64_t numero_;
};

/// One variant of a project.
class UnaVariante {
 public:
    UnaVariante(const project::DatiProgetto& dati, const std::vector<std::string>& nomi,
                studies::Domanda domanda = {.nSeg = 50})
        : calcolo_(dati, campi(nomi), domanda) {}

    const studies::RisultatoVariante& operator()(const std::vector<double>& valori) {
        analysis::OsservatoreCorsa nessuno;
        return calcolo_.calcola(valori, nessuno);
    }
    [[nodiscard]] const studies::CalcoloVariante& calcolo() const { return calcolo_; }

 private:
    static std::vector<project::CampoNominato> campi(const std::vector<std::string>& nomi) {
        std::vector<project::CampoNominato> tutti;
        for (const auto& nome : nomi) tutti.push_back(campoDi(nome));
        return tutti;
    }
    studies::CalcoloVariante calcolo_;
};

}  // namespace korven::test
