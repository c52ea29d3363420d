#include "tools/text_source.hpp"

#include <algorithm>
#include <cstring>
#include <map>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/text_table.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

constexpr const auto& tags = languageMarks;
constexpr std::string_view fileMark = "@file ";
constexpr std::size_t french = 2;

// French parts these signs from the word before them by a blank, at which no line may end.
std::string withNoBreakSpaces(std::string_view text) {
    std::string joined;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool beforeSign =
            text[i] == ' ' && i + 1 < text.size() && std::strchr(":;?!", text[i + 1]) != nullptr;
        joined += beforeSign ? "\u00a0" : std::string(1, text[i]);
    }
    return joined;
}
constexpr std::string_view addedTexts = "texts32.txt";  // the file of the second table

class SourceReader {
 public:
    explicit SourceReader(SourceLines lines) : lines_(std::move(lines)) {}

    std::vector<TextRecord> all() {
        while (const auto text = lines_.next()) line(*text);
        endRecord();
        return std::move(records_);
    }

 private:
    void line(std::string_view text) {
        if (text.starts_with('#')) return;
        if (text.empty()) return endRecord();
        if (text.starts_with(fileMark)) return newFile(text.substr(fileMark.size()));
        translation(text);
    }

    void newFile(std::string_view name) {
        endRecord();
        file_ = name;
    }

    void translation(std::string_view text) {
        if (file_.empty()) refuse("attesa una riga \"@file NOME\" prima del primo testo");
        if (filled_ == std::size(tags)) refuse("attesa una riga vuota dopo le sei lingue");
        if (!text.starts_with(tags[filled_]))
            refuse("attesa la riga \"" + std::string(tags[filled_]) + "...\"");
        text.remove_prefix(tags[filled_].size());
        if (text.empty()) refuse("atteso un testo");
        if (filled_ == 0) current_ = {file_, {}, lines_.number()};
        current_.text[filled_] = filled_ == french ? withNoBreakSpaces(text) : std::string(text);
        ++filled_;
    }

    void endRecord() {
        if (filled_ == 0) return;
        if (filled_ != std::size(tags))
            refuse("attesa la riga \"" + std::string(tags[filled_]) + "...\"");
        records_.push_back(std::move(current_));
        filled_ = 0;
    }

    [[noreturn]] void refuse(const std::string& expected) const { lines_.refuse(expected); }

    SourceLines lines_;
    std::string file_;
    TextRecord current_;
    std::size_t filled_ = 0;
    std::vector<TextRecord> records_;
};

bool hasAccessKey(const std::string& text) { return text.find('&') != std::string::npos; }

// All "[...]" of a text, joined.
std::string units(std::string_view text) {
    std::string found;
    for (auto open = text.find('['); open != std::string_view::npos; open = text.find('[')) {
        const auto close = text.find(']', open);
        if (close == std::string_view::npos) break;
        found += text.substr(open, close - open + 1);
        text.remove_prefix(close + 1);
    }
    return found;
}

std::string faultOf(const std::string& key, const std::string& text) {
    if (!base::rappresentabile(text)) return "attesi solo caratteri di Windows-1252: " + text;
    if (base::senzaSpaziEsterni(text) != text) return "attesi testi senza spazi esterni: " + text;
    if (hasAccessKey(text) != hasAccessKey(key))
        return "atteso \"&\" in tutte le lingue o in nessuna: " + text;
    if (units(text) != units(key)) return "attese le unità della chiave: " + text;
    return {};
}

void checkCount(const std::string& path, long count, int most) {
    if (count > most)
        throw base::ErroreFile(path, 0, "attesi al più " + std::to_string(most) + " testi");
}

}  // namespace

std::vector<TextRecord> readTextSource(const std::string& path, std::string_view content) {
    return SourceReader(SourceLines(path, content)).all();
}

void checkTextRecords(const std::string& path, const std::vector<TextRecord>& records) {
    std::map<std::string, long> lineOfKey;
    for (const auto& record : records) {
        const auto& key = record.text[0];
        for (const auto& text : record.text)
            if (const std::string fault = faultOf(key, text); !fault.empty())
                throw base::ErroreFile(path, record.line, fault);
        const auto [known, isNew] = lineOfKey.emplace(base::chiaveTesto(key), record.line);
        if (!isNew)
            throw base::ErroreFile(path, record.line,
                                   "attesa una chiave nuova, questa sta già alla riga " +
                                       std::to_string(known->second) + ": " + key);
    }
    const auto added = std::count_if(records.begin(), records.end(),
                                     [](const auto& record) { return record.file == addedTexts; });
    checkCount(path, static_cast<long>(records.size()) - added, base::massimoTesti);
    checkCount(path, added, base::massimoTestiAggiunti);
}

std::string textFileBytes(const std::vector<TextRecord>& records, std::string_view file) {
    std::string bytes;
    for (const auto& record : records) {
        if (record.file != file) continue;
        for (const auto& text : record.text) bytes += base::inCp1252(text) + "\r\n";
        bytes += "\r\n";
    }
    return bytes;
}

std::vector<std::string> textFileNames(const std::vector<TextRecord>& records) {
    std::vector<std::string> names;
    for (const auto& record : records)
        if (std::find(names.begin(), names.end(), record.file) == names.end())
            names.push_back(record.file);
    return names;
}

}  // namespace korven::tools
