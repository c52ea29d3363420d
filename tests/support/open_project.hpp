#pragma once

#include "project/project_data.hpp"
#include "support/sample_projects.hpp"

namespace korven::test {

/// A project that is open in the program, for as long as this lives.
class ProgettoAperto {
 public:
    explicit ProgettoAperto(const project::DatiProgetto& dati) {
        project::Progetto = dati;
        project::fileCorrente = "muro.kvd";
    }
    ProgettoAperto(const ProgettoAperto&) = delete;
    ProgettoAperto& operator=(const ProgettoAperto&) = delete;
    ~ProgettoAperto() {
        project::azzeraProgetto();
        project::fileCorrente.clear();
    }
};

}  // namespace korven::test
