#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "outdoc/document_page.hpp"

namespace korven::outdoc {

// Styles of the document by which a word processor builds its outline.
inline constexpr std::string_view titleStyle = "Title";
inline constexpr std::array<std::string_view, 3> headingStyles{"Heading1", "Heading2", "Heading3"};

/// What a document is made of, the parts in the file's XML.
struct DocumentParts {
    DocumentPage page;
    std::string title;   ///< plain text; shown by the word processor
    int levels = 1;      ///< of headings, up to 3
    std::string header;  ///< paragraphs
    std::string footer;  ///< paragraphs
    /// Paragraphs and tables, in pieces: a long document is many megabytes, and not copied.
    std::vector<std::string_view> content;
};

/// The bytes of the word-processor file: an Office Open XML document (ECMA-376), which word
/// processors know by its content, whatever the extension. Equal parts make equal bytes.
[[nodiscard]] std::string documentBytes(const DocumentParts& parts);

}  // namespace korven::outdoc
