#include "tools/string_literals.hpp"

#include <algorithm>

namespace korven::tools {

namespace {

bool wordPart(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

class Scanner {
 public:
    explicit Scanner(std::string_view source) : rest_(source) {}

    std::vector<std::string> all() {
        while (!rest_.empty()) step();
        return std::move(found_);
    }

 private:
    void step() {
        const char c = rest_.front();
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') return skip(1);
        if (rest_.starts_with("//")) return skip(rest_.find('\n'));
        if (rest_.starts_with("#include")) return skip(rest_.find('\n'));
        if (c == '"') return literal();
        joins_ = false;
        if (c == '\'')
            skip(quotedLength());
        else
            skip(wordPart(c) ? wordLength() : 1);
    }

    // A quote inside a number parts its digits, so a number goes by whole.
    [[nodiscard]] std::size_t wordLength() const {
        const bool number = rest_.front() >= '0' && rest_.front() <= '9';
        std::size_t n = 1;
        while (n < rest_.size() && (wordPart(rest_[n]) || (number && rest_[n] == '\''))) ++n;
        return n;
    }

    // From a quote to its like, both included.
    [[nodiscard]] std::size_t quotedLength() const {
        std::size_t n = 1;
        while (n < rest_.size() && rest_[n] != rest_.front()) n += rest_[n] == '\\' ? 2 : 1;
        return std::min(n + 1, rest_.size());
    }

    void literal() {
        const std::size_t length = quotedLength();
        if (!joins_) found_.emplace_back();
        found_.back() += rest_.substr(1, length - 2);
        joins_ = true;
        skip(length);
    }

    void skip(std::size_t n) { rest_.remove_prefix(std::min(n, rest_.size())); }

    std::string_view rest_;
    std::vector<std::string> found_;
    bool joins_ = false;
};

}  // namespace

std::vector<std::string> stringLiterals(std::string_view source) { return Scanner(source).all(); }

}  // namespace korven::tools
