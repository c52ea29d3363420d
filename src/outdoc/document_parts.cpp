#include "outdoc/document_parts.hpp"

#include "outdoc/earlier_document.hpp"
#include "outdoc/paragraph.hpp"
#include "outdoc/zip_archive.hpp"

namespace korven::outdoc {

namespace {

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
const std::string nameSpaces =
    " xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\""
    " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";
const std::string relations =
    "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">\n";
const std::string relationOf =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
const std::string partType = "application/vnd.openxmlformats-officedocument.wordprocessingml.";

std::string part(const std::string& name, const std::string& type) {
    return "<Override PartName=\"/" + name + "\" ContentType=\"" + type + "\"/>\n";
}

std::string relation(const std::string& id, const std::string& type, const std::string& target) {
    return "<Relationship Id=\"" + id + "\" Type=\"" + type + "\" Target=\"" + target + "\"/>\n";
}

std::string contentTypes() {
    return declaration +
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">\n"
           "<Default Extension=\"rels\" ContentType=\""
           "application/vnd.openxmlformats-package.relationships+xml\"/>\n"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>\n" +
           part("word/document.xml", partType + "document.main+xml") +
           part("word/styles.xml", partType + "styles+xml") +
           part("word/header1.xml", partType + "header+xml") +
           part("word/footer1.xml", partType + "footer+xml") +
           part("docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml") +
           "</Types>\n";
}

std::string packageRelations() {
    return declaration + relations +
           relation("rId1", relationOf + "officeDocument", "word/document.xml") +
           relation("rId2",
                    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/"
                    "core-properties",
                    "docProps/core.xml") +
           "</Relationships>\n";
}

std::string documentRelations() {
    return declaration + relations + relation("rId1", relationOf + "styles", "styles.xml") +
           relation("rId2", relationOf + "header", "header1.xml") +
           relation("rId3", relationOf + "footer", "footer1.xml") + "</Relationships>\n";
}

std::string style(std::string_view id, const std::string& name, const std::string& properties) {
    return "<w:style w:type=\"paragraph\" w:styleId=\"" + std::string(id) + "\"><w:name w:val=\"" +
           name + "\"/><w:basedOn w:val=\"Normal\"/><w:next w:val=\"Normal\"/><w:qFormat/>" +
           properties + "</w:style>\n";
}

// Lines are as close as in print.
std::string styles(int levels) {
    std::string headings;
    for (int level = 0; level < levels; ++level)
        headings += style(
            headingStyles.at(static_cast<std::size_t>(level)),
            "heading " + std::to_string(level + 1),
            "<w:pPr><w:keepNext/><w:outlineLvl w:val=\"" + std::to_string(level) + "\"/></w:pPr>");
    return declaration + "<w:styles" + nameSpaces +
           ">\n<w:docDefaults><w:rPrDefault><w:rPr/></w:rPrDefault><w:pPrDefault><w:pPr>"
           "<w:spacing w:before=\"0\" w:after=\"0\" w:line=\"240\" w:lineRule=\"auto\"/>"
           "</w:pPr></w:pPrDefault></w:docDefaults>\n"
           "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"Normal\">"
           "<w:name w:val=\"Normal\"/><w:qFormat/></w:style>\n" +
           style(titleStyle, "Title", "<w:pPr><w:keepNext/></w:pPr>") + headings + "</w:styles>\n";
}

std::string properties(const std::string& title, const std::string& mark) {
    return declaration +
           "<cp:coreProperties xmlns:cp=\"http://schemas.openxmlformats.org/package/2006/metadata/"
           "core-properties\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><dc:title>" +
           xmlText(title) + "</dc:title><dc:identifier>" + mark +
           "</dc:identifier></cp:coreProperties>\n";
}

std::string margin(const std::string& element, const std::string& content) {
    return declaration + "<w:" + element + nameSpaces + ">" + content + "</w:" + element + ">\n";
}

void addDocument(const DocumentParts& parts, ZipWriter& file) {
    const std::string begin = declaration + "<w:document" + nameSpaces + "><w:body>\n";
    const std::string end =
        "<w:sectPr><w:headerReference w:type=\"default\" r:id=\"rId2\"/>"
        "<w:footerReference w:type=\"default\" r:id=\"rId3\"/>" +
        parts.page.words() + "</w:sectPr></w:body></w:document>\n";
    std::vector<std::string_view> pieces = {begin};
    pieces.insert(pieces.end(), parts.content.begin(), parts.content.end());
    pieces.push_back(end);
    file.add("word/document.xml", pieces, Packing::deflated);
}

}  // namespace

std::string documentBytes(const DocumentParts& parts) {
    ZipWriter file;
    const auto add = [&file](const char* name, const std::string& content) {
        file.add(name, content, Packing::deflated);
    };
    add("[Content_Types].xml", contentTypes());
    add("_rels/.rels", packageRelations());
    addDocument(parts, file);
    add("word/_rels/document.xml.rels", documentRelations());
    add("word/styles.xml", styles(parts.levels));
    add("word/header1.xml", margin("hdr", parts.header));
    add("word/footer1.xml", margin("ftr", parts.footer));
    file.add(markedPart, properties(parts.title, ownMark(file.files())), Packing::stored);
    return file.finish();
}

}  // namespace korven::outdoc
