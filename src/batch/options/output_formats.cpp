#include "batch/options/output_formats.hpp"

namespace korven::batch {

std::vector<std::string> FormatiDisegno::file() const {
    std::vector<std::string> tutti;
    for (const std::string* nome : {&dxf, &pdf, &svg, &png})
        if (!nome->empty()) tutti.push_back(*nome);
    return tutti;
}

std::vector<std::string> FormatiAllegato::file() const {
    std::vector<std::string> tutti;
    for (const std::string* nome : {&pdf, &documento, &testo})
        if (!nome->empty()) tutti.push_back(*nome);
    return tutti;
}

}  // namespace korven::batch
