#include "python/project_binding.hpp"

#include <pybind11/stl.h>

#include <nlohmann/json.hpp>
#include <string>
#include <variant>
#include <vector>

#include "answers/field_json.hpp"
#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/number_text.hpp"
#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "project/typed_field.hpp"
#include "python/errors.hpp"
#include "python/free_threads.hpp"
#include "python/python_values.hpp"
#include "studies/assignments.hpp"
#include "studies/field_words.hpp"

namespace korven::python {

namespace py = pybind11;
using project::CampoNominato;
using project::DatiProgetto;

namespace {

DatiProgetto leggi(const std::string& percorso) {
    return senzaInterprete([&] { return project::leggiDaFile(percorso); });
}

std::string testo(const DatiProgetto& dati) { return base::inCp1252(project::testoProgetto(dati)); }

void scrivi(const DatiProgetto& dati, const std::string& percorso) {
    const std::string contenuto = testo(dati);
    senzaInterprete([&] {
        base::scriviFile(percorso, contenuto);
        return 0;
    });
}

DatiProgetto daTesto(const std::string& contenuto) {
    base::LettoreRighe righe({}, contenuto);
    DatiProgetto dati;
    project::azzera(dati);
    project::leggiDati(righe, dati);
    return dati;
}

CampoNominato campo(const DatiProgetto& dati, const std::string& nome) {
    const auto trovato = project::campoScritto(dati, nome);
    if (const auto* rifiuto = std::get_if<project::Rifiuto>(&trovato))
        throw ErroreCampo(studies::parole(*rifiuto));
    return std::get<CampoNominato>(trovato);
}

std::variant<double, std::string> valore(const DatiProgetto& dati, const std::string& nome) {
    const CampoNominato nominato = campo(dati, nome);
    const project::ValoreCampo tenuto = project::valoreConservato(dati, nominato);
    if (const auto* parole = std::get_if<std::string>(&tenuto)) return *parole;
    return base::leggiNumero(testoDaScrivere(dati, nominato)).value_or(0);
}

void assegna(DatiProgetto& dati, const std::vector<std::string>& scritte) {
    const DatiProgetto prima = dati;  // outside of the interpreter's lock others may read them
    studies::Assegnato esito = senzaInterprete([&] { return studies::assegna(prima, scritte); });
    std::string difetti;
    for (const std::string& difetto : esito.difetti)
        difetti.append(difetti.empty() ? "" : "\n").append(difetto);
    if (!difetti.empty()) throw ErroreCampo(difetti);
    dati = std::move(esito.dati);
}

}  // namespace

void legaDati(py::module_& modulo) {
    py::class_<DatiProgetto>(modulo, "Dati")
        .def_static("leggi", &leggi)
        .def_static("da_testo", [](const py::bytes& testo) { return daTesto(testo); })
        .def("testo", [](const DatiProgetto& dati) { return py::bytes(testo(dati)); })
        .def("scrivi", &scrivi)
        .def("valore", &valore)
        .def("campi", [](const DatiProgetto& dati) { return inPython(answers::jsonCampi(dati)); })
        .def("assegna", &assegna)
        .def("copia", [](const DatiProgetto& dati) { return dati; })
        .def("__eq__",
             [](const DatiProgetto& uno, const DatiProgetto& altro) { return uno == altro; });
}

}  // namespace korven::python
