#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <nlohmann/json.hpp>
#include <string>

#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/table.hpp"
#include "base/value_error.hpp"
#include "base/version.hpp"
#include "python/calculations.hpp"
#include "python/errors.hpp"
#include "python/free_threads.hpp"
#include "python/interruption.hpp"
#include "python/language.hpp"
#include "python/project_binding.hpp"
#include "python/python_values.hpp"
#include "python/series_binding.hpp"

// The part of the module korven32 that computes. People use the package around it, which has the
// names, the types and the words of what it offers.

namespace {

namespace py = pybind11;
using namespace korven;
using namespace korven::python;
using project::DatiProgetto;

using Nseg = std::optional<int>;
using Metodo = std::optional<std::string>;

void legaErrori(py::module_& modulo) {
    const auto errore = py::exception<std::runtime_error>(modulo, "Errore");
    const auto calcolo = py::register_exception<ErroreCalcolo>(modulo, "ErroreCalcolo", errore);
    py::register_exception<ErroreCampo>(modulo, "ErroreCampo", errore);
    py::register_exception<base::ErroreFile>(modulo, "ErroreFile", errore);
    py::register_exception<base::ErroreValore>(modulo, "ErroreValore", calcolo);
    py::register_exception<base::ErroreIndice>(modulo, "ErroreIndice", calcolo);
}

// The data come as copies: another thread may change those of Python while it computes.
void legaCalcoli(py::module_& modulo) {
    modulo.def("equilibrio", [](DatiProgetto dati, Nseg nSeg, const Metodo& metodo) {
        return inPython(senzaInterprete([&] { return equilibrio(dati, {nSeg, metodo}); }));
    });
    modulo.def("sicurezza", [](DatiProgetto dati, Nseg nSeg, const Metodo& metodo) {
        Interruzione interruzione;
        const auto esito = senzaInterprete([&] {
            return sicurezza(dati, {nSeg, metodo}, [&] { return interruzione.chiesta(); });
        });
        interruzione.solleva();
        return inPython(esito);
    });
    modulo.def(
        "osservazioni", [](DatiProgetto dati, Nseg nSeg, const Metodo& metodo, bool risultati) {
            return inPython(daSolo([&] { return osservazioni(dati, {nSeg, metodo}, risultati); }));
        });
}

void legaProgramma(py::module_& modulo) {
    modulo.attr("versione") = base::versione;
    modulo.def("cartella", &base::cartellaProgramma);
    modulo.def("imposta_cartella", &base::impostaCartellaProgramma);
    modulo.def("lingua", &linguaScelta);
    modulo.def("scegli_lingua", [](const std::string& sigla) {
        daSolo([&] {
            scegliLingua(sigla);
            return 0;
        });
    });
}

}  // namespace

PYBIND11_MODULE(_motore, modulo) {
    legaErrori(modulo);
    legaDati(modulo);
    legaCalcoli(modulo);
    legaSerie(modulo);
    legaProgramma(modulo);
}
