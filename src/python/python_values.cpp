#include "python/python_values.hpp"

#include <nlohmann/json.hpp>
#include <string>

namespace korven::python {

namespace py = pybind11;
using Json = nlohmann::ordered_json;

namespace {

py::object inLista(const Json& valore) {
    py::list lista(valore.size());
    std::size_t i = 0;
    for (const Json& uno : valore) lista[i++] = inPython(uno);
    return lista;
}

py::object inDizionario(const Json& valore) {
    py::dict dizionario;
    for (const auto& [nome, uno] : valore.items()) dizionario[py::str(nome)] = inPython(uno);
    return dizionario;
}

}  // namespace

py::object inPython(const Json& valore) {
    switch (valore.type()) {
        case Json::value_t::boolean:
            return py::bool_(valore.get<bool>());
        case Json::value_t::number_integer:
        case Json::value_t::number_unsigned:
            return py::int_(valore.get<long long>());
        case Json::value_t::number_float:
            return py::float_(valore.get<double>());
        case Json::value_t::string:
            return py::str(valore.get_ref<const std::string&>());
        case Json::value_t::array:
            return inLista(valore);
        case Json::value_t::object:
            return inDizionario(valore);
        case Json::value_t::null:
        case Json::value_t::binary:
        case Json::value_t::discarded:
            break;
    }
    return py::none();
}

}  // namespace korven::python
