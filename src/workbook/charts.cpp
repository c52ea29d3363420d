#include "workbook/charts.hpp"

#include <cstdint>
#include <iterator>

#include "workbook/sheet_rows.hpp"

namespace korven::workbook {

namespace {

constexpr int perRiga = 4;                              // charts side by side
constexpr lxw_col_t passoColonne = 8;                   // of 64 dots each
constexpr lxw_row_t passoRighe = 30;                    // of 20 dots each
constexpr double scalaLarghezza = 1, scalaAltezza = 2;  // of 480 by 288 dots
constexpr float spessoreLinea = 1.5F;
// Curves are told apart on paper without colours too.
constexpr std::uint8_t tratti[] = {LXW_CHART_LINE_DASH_SOLID, LXW_CHART_LINE_DASH_DASH,
                                   LXW_CHART_LINE_DASH_SQUARE_DOT, LXW_CHART_LINE_DASH_LONG_DASH,
                                   LXW_CHART_LINE_DASH_DASH_DOT};
constexpr double corpoTitolo = 12;
constexpr lxw_color_t grigio = 0xD9D9D9;

void nomina(lxw_chart_axis* asse, const std::string& testa) {
    chart_axis_set_name(asse, testa.c_str());
    lxw_chart_font carattere{};
    carattere.bold = LXW_FALSE;
    chart_axis_set_name_font(asse, &carattere);
    chart_axis_set_num_format(asse, "General");
    chart_axis_major_gridlines_set_visible(asse, LXW_TRUE);
    lxw_chart_line linea{};
    linea.color = grigio;
    chart_axis_major_gridlines_set_line(asse, &linea);
}

void aggiungi(const CartellaFogli& cartella, const Serie& s, std::uint8_t tratto,
              lxw_chart* grafico) {
    const std::string& foglio = cartella.fogli[s.foglio].prospetto.titolo;
    lxw_chart_series* serie = chart_add_series(grafico, nullptr, nullptr);
    const lxw_row_t da = rigaFoglio(s.prima), a = rigaFoglio(s.ultima);
    const auto x = static_cast<lxw_col_t>(s.dato), z = static_cast<lxw_col_t>(s.profondita);
    chart_series_set_categories(serie, foglio.c_str(), da, x, a, x);
    chart_series_set_values(serie, foglio.c_str(), da, z, a, z);
    chart_series_set_name(serie, s.nome.c_str());
    chart_series_set_marker_type(serie, LXW_CHART_MARKER_NONE);
    lxw_chart_line linea{};
    linea.width = spessoreLinea;
    linea.dash_type = tratto;
    chart_series_set_line(serie, &linea);
}

lxw_chart* grafico(const CartellaFogli& cartella, const Grafico& g, lxw_workbook* libro) {
    lxw_chart* fatto = workbook_add_chart(libro, LXW_CHART_SCATTER_STRAIGHT);
    for (std::size_t i = 0; i < g.serie.size(); ++i)
        aggiungi(cartella, g.serie[i], tratti[i % std::size(tratti)], fatto);
    chart_title_set_name(fatto, g.titolo.c_str());
    lxw_chart_font carattere{};
    carattere.bold = LXW_TRUE;
    carattere.size = corpoTitolo;
    chart_title_set_name_font(fatto, &carattere);
    nomina(fatto->x_axis, g.asse);
    nomina(fatto->y_axis, g.profondita);
    chart_axis_set_reverse(fatto->y_axis);
    chart_axis_set_min(fatto->y_axis, 0);
    chart_axis_set_max(fatto->y_axis, g.fondo);
    chart_axis_set_label_position(fatto->y_axis, LXW_CHART_AXIS_LABEL_POSITION_LOW);
    chart_legend_set_position(fatto, LXW_CHART_LEGEND_BOTTOM);
    return fatto;
}

}  // namespace

void inserisciGrafici(const CartellaFogli& cartella, lxw_workbook* libro, lxw_worksheet* foglio) {
    int n = 0;
    for (const Grafico& g : cartella.diagrammi) {
        lxw_chart_options posto{};
        posto.x_scale = scalaLarghezza;
        posto.y_scale = scalaAltezza;
        const auto riga = static_cast<lxw_row_t>(2 + n / perRiga * passoRighe);
        const auto colonna = static_cast<lxw_col_t>(n % perRiga * passoColonne);
        worksheet_insert_chart_opt(foglio, riga, colonna, grafico(cartella, g, libro), &posto);
        ++n;
    }
}

}  // namespace korven::workbook
