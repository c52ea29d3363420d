#include "outdoc/paragraph.hpp"

#include <algorithm>
#include <cmath>

namespace korven::outdoc {

using markup::Alignment;
using markup::ReportFont;

namespace {

constexpr double twentiethsPerPoint = 20;
constexpr double longest = 31680;  // 22 inches, the largest page of word processors
constexpr double smallestSize = 1;
constexpr double largestSize = 1638;

// No spelling marks: most of a report is numbers, units and names.
std::string fontProperties(const ReportFont& font) {
    const double size =
        font.size > 0 ? std::clamp(font.size, smallestSize, largestSize) : markup::defaultFontSize;
    const std::string name = xmlText(font.name.empty() ? markup::defaultFontName : font.name);
    const std::string halves = std::to_string(std::lround(2 * size));
    return "<w:rPr><w:rFonts w:ascii=\"" + name + "\" w:hAnsi=\"" + name + "\" w:cs=\"" + name +
           "\"/>" + (font.bold ? "<w:b/>" : "") + (font.italic ? "<w:i/>" : "") +
           "<w:noProof/><w:sz w:val=\"" + halves + "\"/><w:szCs w:val=\"" + halves + "\"/></w:rPr>";
}

std::string tabStops(const std::vector<TabStop>& stops) {
    if (stops.empty()) return {};
    std::string words = "<w:tabs>";
    for (const TabStop& stop : stops)
        words += std::string("<w:tab w:val=\"") + (stop.centred ? "center" : "right") + "\"" +
                 (stop.dotted ? " w:leader=\"dot\"" : "") + " w:pos=\"" +
                 twentieths(stop.position) + "\"/>";
    return words + "</w:tabs>";
}

std::string_view alignmentWord(Alignment alignment) {
    constexpr std::string_view words[] = {"left", "center", "right"};
    return words[static_cast<int>(alignment)];
}

}  // namespace

std::string xmlText(std::string_view utf8) {
    std::string xml;
    for (const char c : utf8) {
        if (c == '&')
            xml += "&amp;";
        else if (c == '<')
            xml += "&lt;";
        else if (c == '>')
            xml += "&gt;";
        else if (c == '"')
            xml += "&quot;";
        else if (static_cast<unsigned char>(c) >= 0x20)
            xml += c;
    }
    return xml;
}

std::string twentieths(double points) {
    return std::to_string(std::lround(std::clamp(points * twentiethsPerPoint, -longest, longest)));
}

std::string run(const ReportFont& font, std::string_view text) {
    std::string words = "<w:r>" + fontProperties(font);
    for (bool first = true;; first = false) {
        const auto tab = text.find('\t');
        if (!first) words += "<w:tab/>";
        words += "<w:t xml:space=\"preserve\">" + xmlText(text.substr(0, tab)) + "</w:t>";
        if (tab == std::string_view::npos) return words + "</w:r>";
        text.remove_prefix(tab + 1);
    }
}

std::string pageField(const ReportFont& font, std::string_view instruction) {
    return "<w:fldSimple w:instr=\" " + std::string(instruction) + " \">" + run(font, "1") +
           "</w:fldSimple>";
}

// The order of the properties is that of the format.
std::string paragraph(const Paragraph& content) {
    std::string words = "<w:p><w:pPr>";
    if (!content.style.empty())
        words.append("<w:pStyle w:val=\"").append(content.style).append("\"/>");
    if (content.keepWithNext) words += "<w:keepNext/>";
    if (content.pageBreakBefore) words += "<w:pageBreakBefore/>";
    words += tabStops(content.tabs);
    if (content.indent != 0) words += "<w:ind w:left=\"" + twentieths(content.indent) + "\"/>";
    words.append("<w:jc w:val=\"").append(alignmentWord(content.alignment)).append("\"/>");
    words += fontProperties(content.font) + "</w:pPr>";
    return words + content.runs + "</w:p>\n";
}

}  // namespace korven::outdoc
