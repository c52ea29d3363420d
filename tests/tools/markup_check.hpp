#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace korven::test {

/// What is wrong with a piece of HTML in the tags of the help: a tag not known, not closed
/// or closed in the wrong order, an attribute without quotes, an entity not known. Empty
/// if nothing is.
class MarkupCheck {
 public:
    explicit MarkupCheck(std::string_view html) : rest_(html) {}

    std::string fault() {
        while (fault_.empty() && !rest_.empty()) {
            const char c = rest_.front();
            if (c == '<')
                tag();
            else if (c == '&')
                entity();
            else if (c == '>')
                fault_ = "a lone >";
            else
                rest_.remove_prefix(1);
        }
        if (fault_.empty() && !open_.empty()) fault_ = "not closed: " + open_.back();
        return fault_;
    }

 private:
    static constexpr std::string_view known[] = {"p",     "h2", "h3",  "ul",  "li",
                                                 "a",     "b",  "sub", "sup", "br",
                                                 "table", "tr", "td",  "th",  "code"};

    void tag() {
        const auto end = rest_.find('>');
        if (end == std::string_view::npos) {
            fault_ = "a lone <";
            return;
        }
        auto inside = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        const bool closing = inside.starts_with('/');
        if (closing) inside.remove_prefix(1);
        const bool empty = inside.ends_with('/');
        if (empty) inside.remove_suffix(1);
        const std::string name(inside.substr(0, inside.find(' ')));
        if (std::find(std::begin(known), std::end(known), name) == std::end(known))
            fault_ = "unknown tag " + name;
        else if (closing)
            close(name);
        else if (!empty)
            open_.push_back(name);
        attributes(inside.substr(name.size()));
    }

    void close(const std::string& name) {
        if (open_.empty() || open_.back() != name)
            fault_ = "closes " + name + " out of order";
        else
            open_.pop_back();
    }

    void attributes(std::string_view text) {
        while (!text.empty()) {
            const auto start = text.find("=\"");
            const auto end = start == text.npos ? text.npos : text.find('"', start + 2);
            if (!text.starts_with(' ') || end == text.npos) {
                fault_ = "attribute: " + std::string(text);
                return;
            }
            text.remove_prefix(end + 1);
        }
    }

    void entity() {
        const auto end = rest_.find(';');
        const auto name = rest_.substr(1, end == rest_.npos ? 0 : end - 1);
        const bool number = name.size() > 1 && name.front() == '#' &&
                            name.find_first_not_of("0123456789", 1) == name.npos;
        if (!number && name != "lt" && name != "gt" && name != "amp")
            fault_ = "entity: " + std::string(rest_.substr(0, 8));
        rest_.remove_prefix(std::min(end, rest_.size()));
    }

    std::string_view rest_;
    std::vector<std::string> open_;
    std::string fault_;
};

}  // namespace korven::test
