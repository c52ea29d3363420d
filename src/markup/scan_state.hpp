#pragma once

#include <string>

#include "base/table.hpp"

namespace korven::markup {

inline constexpr int maximumRows = 2000;

enum class Mode { text = 0, table = 2, list = 3 };
enum class Alignment { left = 0, centre = 1, right = 2 };

/// What a renderer remembers of a report from line to line. Each has its own.
struct ScanState {
    bool documentOpen = false;              ///< set by #RESET, cleared by #ENDDOCUMENT
    Mode mode = Mode::text;                 ///< what becomes of a content line
    Alignment alignment = Alignment::left;  ///< of text lines and whole tables
    long lineCounter = 0;                   ///< body lines produced; 0: the header is still due

    /// Rows of the table or list that is open, or was last open: only a #START directive clears the
    /// count, so that a further end directive lays the same rows out again.
    int rowCount = 0;
    base::Tabella<std::string, maximumRows> rows;

    std::string header;
    std::string footer;
    std::string columnStyle;  ///< one character a column, from #TABSTYLE; print only
    int tableStyle = 0;       ///< 1 or 2, from #TABSTYLE; kept for completeness, nothing reads it
};

}  // namespace korven::markup
