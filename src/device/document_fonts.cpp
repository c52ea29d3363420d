#include "device/document_fonts.hpp"

namespace korven::device {

namespace {

markup::ReportFont voluto(const document::Carattere& carattere) {
    return {carattere.fisso ? "Courier New" : "Arial", carattere.corpo, carattere.grassetto,
            carattere.corsivo};
}

}  // namespace

double CaratteriPagine::larghezza(std::string_view testo,
                                  const document::Carattere& carattere) const {
    return this->carattere(carattere).larghezza(testo, carattere.corpo);
}

CarattereRelazione& CaratteriPagine::carattere(const document::Carattere& carattere) const {
    return fatti_.carattere(voluto(carattere));
}

}  // namespace korven::device
