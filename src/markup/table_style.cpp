#include "markup/table_style.hpp"

#include "base/code_page.hpp"

namespace korven::markup {

static constexpr std::string_view allToTheRight = ">>>>>>>>>>>>>>>>>>>>>>>";

TableStyle defaultTableStyle() { return {1, std::string(allToTheRight)}; }

TableStyle parseTableStyle(std::string_view argument) {
    TableStyle style;
    if (argument.starts_with('=') || argument.starts_with('-')) {
        style.tableStyle = argument.front() == '=' ? 1 : 2;
        argument.remove_prefix(1);
    }
    style.columnStyle = base::senzaSpaziEsterni(argument);
    style.columnStyle += allToTheRight;
    return style;
}

bool rightAligned(std::string_view columnStyle, int column) {
    for (int passed = 1; passed < column && !columnStyle.empty(); ++passed)
        columnStyle.remove_prefix(base::lunghezzaPrimoCarattere(columnStyle));
    return columnStyle.empty() || columnStyle.starts_with('>');
}

}  // namespace korven::markup
