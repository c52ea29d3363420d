#include "workbook/cell_styles.hpp"

#include <algorithm>
#include <string_view>

namespace korven::workbook {

namespace {

constexpr lxw_color_t grigio = 0xD9D9D9, rosso = 0xC00000;
constexpr double corpoTitolo = 12;
constexpr const char* parole = "@";  // the key of words, in the place of the pattern of digits

// What stands beside a number, "below" for instance, as a number format has it.
std::string letterale(std::string_view testo) {
    return testo.empty() ? std::string() : '"' + std::string(testo) + '"';
}

}  // namespace

std::string schemaCifre(const tables::Cella& cella) {
    if (!cella.numero) return {};
    constexpr std::string_view cifre = "-0123456789", segni = "-+0123456789";
    const std::string_view testo = cella.testo;
    const auto inizio = std::min(testo.find_first_of(cifre), testo.size());
    auto fine = std::min(testo.find_first_not_of("-0123456789.", inizio), testo.size());
    const auto punto = testo.substr(0, fine).find('.', inizio);
    const bool conPunto = punto != std::string_view::npos;
    std::string schema = conPunto ? "0." + std::string(fine - punto - 1, '0') : "0";
    if (fine + 1 < testo.size() && testo[fine] == 'e' &&
        segni.find(testo[fine + 1]) != std::string_view::npos) {
        if (!conPunto) return {};
        schema += "E+00";
        fine = std::min(testo.find_first_not_of(segni, fine + 1), testo.size());
    }
    return letterale(testo.substr(0, inizio)) + schema + letterale(testo.substr(fine));
}

StiliCelle::StiliCelle(lxw_workbook* libro)
    : libro_(libro),
      titolo_(workbook_add_format(libro)),
      testa_(workbook_add_format(libro)),
      nota_(workbook_add_format(libro)) {
    format_set_bold(titolo_);
    format_set_font_size(titolo_, corpoTitolo);
    format_set_bold(testa_);
    format_set_bg_color(testa_, grigio);
    format_set_bottom(testa_, LXW_BORDER_THIN);
    format_set_text_wrap(testa_);
    format_set_align(testa_, LXW_ALIGN_CENTER);
    format_set_align(testa_, LXW_ALIGN_VERTICAL_TOP);
    format_set_italic(nota_);
}

lxw_format* StiliCelle::di(const tables::Cella& cella, bool aCapo) {
    const bool pericolo = cella.peso && *cella.peso != review::Peso::daVedere;
    const std::string cifre = cella.numero ? schemaCifre(cella) : parole;
    const auto [posto, nuovo] = celle_.try_emplace({cifre, pericolo, aCapo}, nullptr);
    if (!nuovo) return posto->second;
    lxw_format* stile = posto->second = workbook_add_format(libro_);
    format_set_align(stile, LXW_ALIGN_VERTICAL_TOP);
    if (pericolo) format_set_font_color(stile, rosso);
    if (cella.numero) {
        if (!cifre.empty()) format_set_num_format(stile, cifre.c_str());
        return stile;
    }
    format_set_align(stile, LXW_ALIGN_LEFT);
    format_set_indent(stile, 1);
    if (aCapo) format_set_text_wrap(stile);
    return stile;
}

}  // namespace korven::workbook
