#include "python/series_binding.hpp"

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <memory>
#include <utility>
#include <vector>

#include "python/free_threads.hpp"
#include "python/interruption.hpp"
#include "python/series.hpp"

namespace korven::python {

namespace py = pybind11;

namespace {

// The numbers move: they are as many as there is memory for.
py::array_t<double> inTabella(std::vector<double>&& valori, py::ssize_t righe,
                              py::ssize_t colonne) {
    auto tenuti = std::make_unique<std::vector<double>>(std::move(valori));
    const double* primo = tenuti->data();
    const py::capsule padrone(tenuti.release(), [](void* essi) {
        const std::unique_ptr<std::vector<double>> loro(static_cast<std::vector<double>*>(essi));
    });
    return py::array_t<double>(std::vector<py::ssize_t>{righe, colonne}, primo, padrone);
}

}  // namespace

void legaSerie(py::module_& modulo) {
    py::class_<RichiestaSerie>(modulo, "RichiestaSerie")
        .def(py::init([](std::optional<int> nSeg, std::optional<std::string> metodo,
                         bool ricalcolaEJ, bool iterazione, bool sicurezza,
                         std::vector<std::string> colonne, std::vector<std::string> fallisce,
                         int fili) {
            return RichiestaSerie{.modo = {.nSeg = nSeg, .metodo = std::move(metodo)},
                                  .ricalcolaEJ = ricalcolaEJ,
                                  .iterazione = iterazione,
                                  .sicurezza = sicurezza,
                                  .colonne = std::move(colonne),
                                  .fallisce = std::move(fallisce),
                                  .fili = fili};
        }));
    modulo.def("serie", [](project::DatiProgetto dati, const std::string& piano,
                           const RichiestaSerie& richiesta) {
        Interruzione interruzione;
        TabellaSerie tabella = senzaInterprete(
            [&] { return serie(dati, piano, richiesta, [&] { return interruzione.chiesta(); }); });
        interruzione.solleva();
        const auto colonne = static_cast<py::ssize_t>(tabella.nomi.size());
        const py::array_t<signed char> fallite(static_cast<py::ssize_t>(tabella.fallite.size()),
                                               tabella.fallite.data());
        return py::make_tuple(
            std::move(tabella.nomi), std::move(tabella.parole),
            inTabella(std::move(tabella.valori), static_cast<py::ssize_t>(tabella.righe), colonne),
            fallite);
    });
}

}  // namespace korven::python
