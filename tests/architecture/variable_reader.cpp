#include "architecture/variable_reader.hpp"

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>

namespace korven::architecture {

namespace {

using Tokens = std::vector<std::string>;

bool isWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }
bool isName(const std::string& token) {
    return isWord(token[0]) && std::isdigit(static_cast<unsigned char>(token[0])) == 0;
}
bool has(const Tokens& tokens, const std::string& one) {
    return std::find(tokens.begin(), tokens.end(), one) != tokens.end();
}

// Cuts a source into tokens, one call a token.
class Cutter {
 public:
    explicit Cutter(std::string_view source) : rest_(source) {}

    // Empty at the end.
    std::string next() {
        while (skipOne()) {
        }
        if (rest_.empty()) return {};
        if (rest_.starts_with("R\"")) return raw();
        if (rest_[0] == '"' || rest_[0] == '\'') return quoted(rest_[0]);
        if (isWord(rest_[0])) return word();
        return take(1);
    }

 private:
    std::string take(std::size_t count) {
        std::string taken(rest_.substr(0, count));
        lineStart_ = false;
        rest_.remove_prefix(std::min(count, rest_.size()));
        return taken;
    }
    // Goes on after the next `end`.
    void skipTo(std::string_view end) {
        const auto at = rest_.find(end);
        rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + end.size());
    }
    bool skipOne() {
        if (rest_.empty()) return false;
        if (rest_.starts_with("/*")) {
            skipTo("*/");
        } else if (rest_.starts_with("//")) {
            skipLine();
        } else if (lineStart_ && rest_[0] == '#') {
            skipLine();
        } else if (std::isspace(static_cast<unsigned char>(rest_[0])) != 0) {
            lineStart_ = lineStart_ || rest_[0] == '\n';
            rest_.remove_prefix(1);
        } else {
            return false;
        }
        return true;
    }
    // A backslash at its end joins the next line.
    void skipLine() {
        for (bool joined = true; joined;) {
            const auto end = std::min(rest_.find('\n'), rest_.size());
            joined = end > 0 && end < rest_.size() && rest_[end - 1] == '\\';
            rest_.remove_prefix(std::min(end + 1, rest_.size()));
        }
        lineStart_ = true;
    }
    std::string raw() {
        const std::string_view mark = rest_.substr(2, rest_.find('(') - 2);
        skipTo(")" + std::string(mark) + "\"");
        return "\"\"";
    }
    std::string quoted(char mark) {
        std::size_t i = 1;
        while (i < rest_.size() && rest_[i] != mark) i += rest_[i] == '\\' ? 2 : 1;
        take(i + 1);
        return "\"\"";
    }
    // A name, or a number with its digit separators.
    std::string word() {
        std::size_t i = 0;
        while (i < rest_.size() && (isWord(rest_[i]) || (rest_[i] == '\'' && i + 1 < rest_.size() &&
                                                         isWord(rest_[i + 1]))))
            ++i;
        return take(i);
    }

    std::string_view rest_;
    bool lineStart_ = true;
};

// Position after the bracket that closes the one at `open`; `open` itself if none does.
std::size_t afterBracket(const Tokens& t, std::size_t open, const char* opens, const char* closes) {
    int depth = 0;
    for (std::size_t i = open; i < t.size(); ++i) {
        if (t[i] == opens) ++depth;
        const bool arrow = t[i] == ">" && t[i - 1] == "-";
        if (t[i] == closes && !arrow && --depth == 0) return i + 1;
    }
    return open;
}

// Position of the sign that gives a variable its value, outside all parentheses; the end if none.
std::size_t assignment(const Tokens& t) {
    int depth = 0;
    for (std::size_t i = 0; i < t.size() && t[i] != "operator"; ++i) {
        depth += t[i] == "(" ? 1 : t[i] == ")" ? -1 : 0;
        if (t[i] == "=" && depth == 0) return i;
    }
    return t.size();
}
bool assigns(const Tokens& t) { return assignment(t) < t.size(); }

// The statement without attributes and template arguments, in which const says something else.
Tokens plain(const Tokens& statement) {
    Tokens left;
    for (std::size_t i = 0; i < statement.size();) {
        std::size_t after = i;
        if (statement[i] == "[" && i + 1 < statement.size() && statement[i + 1] == "[")
            after = afterBracket(statement, i, "[", "]");
        if (statement[i] == "<" && i > 0 && isName(statement[i - 1]))
            after = afterBracket(statement, i, "<", ">");
        if (after == i)
            left.push_back(statement[i++]);
        else
            i = after;
    }
    return left;
}

// Whether this is a parameter: a type and a name, or a type that can be nothing else, perhaps with
// a value that is taken by default.
bool isParameter(Tokens one) {
    static const std::set<std::string> certain = {"void",   "bool", "char", "int",
                                                  "double", "&",    "*"};
    one.resize(assignment(one));
    if (one.empty() || one[0] == "std") return true;
    const auto open = std::find(one.begin(), one.end(), "(");
    if (one.end() - open > 1 && *(open + 1) == "*") return true;  // a pointer to a function
    if (!isName(one[0])) return false;
    const bool pair = one.size() > 1 && isName(one.back()) && one[one.size() - 2] != ":" &&
                      one[one.size() - 2] != ".";
    return pair || certain.contains(one.back());
}

// Whether what is between these parentheses declares parameters.
bool areParameters(const Tokens& t, std::size_t open, std::size_t after) {
    Tokens one;
    int depth = 0;
    for (std::size_t i = open + 1; i + 1 < after; ++i) {
        depth += t[i] == "(" ? 1 : t[i] == ")" ? -1 : 0;
        if (t[i] != "," || depth > 0) {
            one.push_back(t[i]);
            continue;
        }
        if (!isParameter(std::exchange(one, {}))) return false;
    }
    return isParameter(one);
}

bool declaresNoVariable(const Tokens& t) {
    static const std::set<std::string> beginnings = {
        "using", "typedef", "static_assert", "friend", "extern", "namespace", "concept"};
    static const std::set<std::string> types = {"struct", "class", "union", "enum"};
    if (t.empty() || beginnings.contains(t[0]) || has(t, "operator")) return true;
    // A type declared ahead, or defined without a variable.
    return types.contains(t[0]) && t.size() <= 3 && !assigns(t);
}

// The variable that a statement without its initialiser in braces declares; no name if none.
ProcessVariable variableOf(const Tokens& statement) {
    Tokens t = plain(statement);
    if (!t.empty() && t[0] == "template") t.erase(t.begin());
    if (declaresNoVariable(t)) return {};
    Tokens head(t.begin(), t.begin() + static_cast<std::ptrdiff_t>(assignment(t)));
    const auto open = std::find(head.begin(), head.end(), "(");
    if (open != head.end()) {
        const auto at = static_cast<std::size_t>(open - head.begin());
        const std::size_t after = afterBracket(head, at, "(", ")");
        const bool pointer = at + 1 < head.size() && head[at + 1] == "*";
        if (!pointer && areParameters(head, at, after)) return {};
        head.resize(pointer ? after - 1 : at);
    }
    const auto bracket = std::find(head.begin(), head.end(), "[");
    if (bracket != head.end()) head.erase(bracket, head.end());
    while (!head.empty() && (!isName(head.back()) || head.back() == "const")) head.pop_back();
    if (head.size() < 2) return {};
    const auto star = std::find_if(head.rbegin(), head.rend(), [](const std::string& token) {
                          return token == "*" || token == "&";
                      }).base();
    const bool constant = has(head, "constexpr") || has(Tokens(star, head.end()), "const") ||
                          (star != head.begin() && *(star - 1) == "&" && has(head, "const"));
    return {head.back(), !constant};
}

enum class Scope { space, type, body, braces };

// Follows the scopes and hands out whole statements with the scope that they are in.
class Walk {
 public:
    std::vector<ProcessVariable> variables(const Tokens& tokens) {
        for (const auto& token : tokens) {
            if (token == "{")
                open();
            else if (token == "}")
                close();
            else if (token == ";" && parentheses_ == 0)
                finish();
            else
                add(token);
        }
        return found_;
    }

 private:
    struct Level {
        Scope scope;
        Tokens before;  // the statement that goes on after the brace
        int parentheses;
    };

    void add(const std::string& token) {
        parentheses_ += token == "(" ? 1 : token == ")" ? -1 : 0;
        const bool label =
            token == ":" && statement_.size() == 1 &&
            std::set<std::string>{"public", "protected", "private"}.contains(statement_[0]);
        if (label)
            statement_.clear();
        else
            statement_.push_back(token);
    }
    void open() {
        levels_.push_back({scopeOpened(), statement_, parentheses_});
        statement_.clear();
        parentheses_ = 0;
    }
    [[nodiscard]] Scope scopeOpened() const {
        const Tokens t = plain(statement_);
        const bool inside = parentheses_ > 0 || assigns(t);
        if (!inside && (has(t, "namespace") || t == Tokens{"extern", "\"\""})) return Scope::space;
        if (!inside && !has(t, "(") && definesType(t)) return Scope::type;
        const bool lambda = !t.empty() && (t.back() == "]" || t.back() == ")");
        if (inside) return lambda ? Scope::body : Scope::braces;
        if (t.empty() || has(t, ")") || t.back() == "do" || t.back() == "else" || t.back() == "try")
            return Scope::body;
        return Scope::braces;
    }
    // `struct Name`, `enum class Name : int`, `struct Name : Base`, but not `struct Name variable`.
    static bool definesType(const Tokens& t) {
        static const std::set<std::string> words = {"struct", "class", "union", "enum"};
        const auto at = std::find_first_of(t.begin(), t.end(), words.begin(), words.end());
        if (at == t.end()) return false;
        const auto colon = std::find(at, t.end(), ":");
        std::size_t names = 0;
        for (auto i = at; i != colon; ++i)
            names += isName(*i) && !words.contains(*i) && *i != "final";
        return names <= 1 || colon != t.end();
    }
    void close() {
        if (levels_.empty()) return;
        const Level level = levels_.back();
        levels_.pop_back();
        const bool goesOn =
            level.scope == Scope::braces || level.parentheses > 0 || assigns(level.before);
        statement_ = goesOn ? level.before : Tokens{};
        if (level.scope == Scope::type) statement_ = {"}"};  // a variable of the type may follow
        parentheses_ = level.parentheses;
    }
    void finish() {
        const Tokens statement = std::exchange(statement_, {});
        const bool kept = has(statement, "static") || has(statement, "thread_local");
        const Scope scope = levels_.empty() ? Scope::space : levels_.back().scope;
        if (scope == Scope::braces || (scope != Scope::space && !kept)) return;
        if (auto variable = variableOf(statement); !variable.name.empty())
            found_.push_back(std::move(variable));
    }

    std::vector<Level> levels_;
    Tokens statement_;
    int parentheses_ = 0;
    std::vector<ProcessVariable> found_;
};

}  // namespace

std::vector<std::string> tokensOf(std::string_view source) {
    Cutter cutter(source);
    Tokens tokens;
    for (std::string token = cutter.next(); !token.empty(); token = cutter.next())
        tokens.push_back(std::move(token));
    return tokens;
}

std::vector<ProcessVariable> processVariables(std::string_view source) {
    return Walk().variables(tokensOf(source));
}

std::set<std::string> functionsNaming(const Tokens& tokens, const std::set<std::string>& names) {
    std::set<std::string> found;
    Tokens head;           // what has been read since the last statement outside all bodies
    std::string function;  // whose body this is
    int depth = 0;         // of braces in the body
    for (const auto& token : tokens) {
        if (depth > 0) {
            depth += token == "{" ? 1 : token == "}" ? -1 : 0;
            if (names.contains(token)) found.insert(function);
        } else if (token == "{" && has(head, "namespace")) {
            head.clear();
        } else if (token == "{") {
            const auto open = std::find(head.begin(), head.end(), "(");
            function = open == head.begin() || open == head.end() ? "" : *(open - 1);
            depth = 1;
            head.clear();
        } else if (token == ";" || token == "}") {
            head.clear();
        } else {
            head.push_back(token);
        }
    }
    found.erase("");
    return found;
}

}  // namespace korven::architecture
