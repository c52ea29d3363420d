#pragma once

#include <string>
#include <string_view>

namespace korven::markup {

/// What #TABSTYLE says about the tables that follow.
struct TableStyle {
    int tableStyle = 1;
    std::string columnStyle;
};

/// The style in force after #RESET: style 1, all columns to the right.
[[nodiscard]] TableStyle defaultTableStyle();

/// The argument of #TABSTYLE: an optional "=" (style 1) or "-" (style 2), then a letter a column.
/// Every other first character means style 1 and is a letter already.
[[nodiscard]] TableStyle parseTableStyle(std::string_view argument);

/// Alignment of a column, counted from 1: its character in `columnStyle` is ">" for right, anything
/// else for left. A column without a character is right aligned.
[[nodiscard]] bool rightAligned(std::string_view columnStyle, int column);

}  // namespace korven::markup
