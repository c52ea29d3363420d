#pragma once

#include <string_view>

#include "device/report_fonts.hpp"
#include "document/page.hpp"

namespace korven::device {

/// The fonts of a document's pages, and their widths. A QGuiApplication must exist.
class CaratteriPagine : public document::MisuraCaratteri {
 public:
    [[nodiscard]] double larghezza(std::string_view testo,
                                   const document::Carattere& carattere) const override;
    /// The typeface that texts of the page are painted in.
    [[nodiscard]] CarattereRelazione& carattere(const document::Carattere& carattere) const;

 private:
    mutable CaratteriRelazione fatti_;  // each typeface is made when it is first asked for
};

}  // namespace korven::device
