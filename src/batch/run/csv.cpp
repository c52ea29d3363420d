#include "batch/run/csv.hpp"

#include "base/number_text.hpp"

namespace korven::batch {

RigheCsv::RigheCsv(std::span<const std::string_view> nomi) {
    for (const std::string_view nome : nomi) campo(nome);
    fineRiga();
}

RigheCsv& RigheCsv::campo(std::string_view testo) {
    if (!inizio_) testo_ += ',';
    inizio_ = false;
    if (testo.find_first_of(",\"\r\n") == std::string_view::npos) {
        testo_ += testo;
        return *this;
    }
    testo_ += '"';
    for (const char c : testo) testo_.append(c == '"' ? 2 : 1, c);
    testo_ += '"';
    return *this;
}

RigheCsv& RigheCsv::campo(int numero) { return campo(std::to_string(numero)); }

RigheCsv& RigheCsv::campo(double numero) { return campo(base::tutteLeCifre(numero)); }

RigheCsv& RigheCsv::campo(std::optional<double> numero) {
    return numero ? campo(*numero) : campo(std::string_view());
}

void RigheCsv::fineRiga() {
    testo_ += "\r\n";
    inizio_ = true;
}

}  // namespace korven::batch
