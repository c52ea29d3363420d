#include "architecture/variable_reader.hpp"

#include <gtest/gtest.h>

#include <ostream>

namespace korven::architecture {

void PrintTo(const ProcessVariable& variable, std::ostream* out) {
    *out << variable.name << (variable.changes ? "" : " (constant)");
}

namespace {

using Found = std::vector<ProcessVariable>;

TEST(TokensOf, LeavesOutCommentsAndPreprocessorLinesAndWhatLiteralsHold) {
    EXPECT_EQ(tokensOf("#define A \\\n int b;\nint /* c */ d = 1'000; // e\n  # undef A\n"),
              (std::vector<std::string>{"int", "d", "=", "1'000", ";"}));
    EXPECT_EQ(
        tokensOf("f(\"a\\\"{\", '{', '\\'', R\"x({)\" )x\")"),
        (std::vector<std::string>{"f", "(", "\"\"", ",", "\"\"", ",", "\"\"", ",", "\"\"", ")"}));
}

TEST(ProcessVariables, AreThoseOutsideAllFunctionsAndTypes) {
    EXPECT_EQ(processVariables("int a; namespace n { namespace { double b = f(1); } }"
                               "std::map<int, const char*> c; A d{1, {2}}; A n::B::e[3] = {};"
                               "extern int x; int f(int x) { int y = 1; A z{2}; return y; }"
                               "struct S { int x = 3; A y{4}; } g;"),
              (Found{{"a"}, {"b"}, {"c"}, {"d"}, {"e"}, {"g"}}));
}

TEST(ProcessVariables, AreTheStaticOnesInside) {
    EXPECT_EQ(processVariables("class C : public B { public: C(int i = 0) : i_(i), j_{1} {}"
                               "static int f(); static C& g(const C&, std::string); int i_; "
                               "static inline bool a = false; };"
                               "void h(int x = 1) { if (x < 2) { static A b; } use([&] { static int"
                               " c = 0; return c; }); thread_local int d; }"),
              (Found{{"a"}, {"b"}, {"c"}, {"d"}}));
}

TEST(ProcessVariables, AreConstantsWhereNothingCanChangeThem) {
    EXPECT_EQ(processVariables("constexpr int a = 1; const std::string b(\"x\"); "
                               "const char* const c[] = {\"\"}; static const A d{1};"
                               "[[maybe_unused]] const auto e = [](int x) { return x; };"
                               "const A& f = g(); inline constexpr std::array h{1, 2};"),
              (Found{{"a", false},
                     {"b", false},
                     {"c", false},
                     {"d", false},
                     {"e", false},
                     {"f", false},
                     {"h", false}}));
    EXPECT_EQ(processVariables("const char* a = \"\"; std::vector<const A*> b; A& c = d(); A e(4);"
                               "void (*f)(const A&) = nullptr;"),
              (Found{{"a"}, {"b"}, {"c"}, {"e"}, {"f"}}));
}

TEST(ProcessVariables, AreNoneOfTheDeclarationsOfOtherThings) {
    EXPECT_TRUE(
        processVariables("using A = B; typedef int T; struct S; enum class E : int { a, b };"
                         "namespace fs = std::filesystem; int f(); int g(int, const S&, A a = {}, "
                         "bool b = c(1, 2), int (*d)(int));"
                         "static_assert(sizeof(int) == 4); template <class T> T h(T t);"
                         "template <class T> concept C = sizeof(T) == 4;"
                         "template <> struct X<2> { using Y = int; };"
                         "bool operator==(const S& a, const S& b); S& S::operator=(S&&) {}"
                         "extern \"C\" void k(int) {} extern \"C\" { void l(int i); }")
            .empty());
}

TEST(FunctionsNaming, AreThoseInWhoseBodiesANameStands) {
    const auto tokens = tokensOf(
        "namespace n { int state = 0; A table{state};"
        "int read(int x) { if (x > 0) { return state; } return x; } int twice() { return read(2); }"
        "void none() { int states = 1; } }");
    EXPECT_EQ(functionsNaming(tokens, {"state"}), (std::set<std::string>{"read"}));
    EXPECT_EQ(functionsNaming(tokens, {"state", "read"}), (std::set<std::string>{"read", "twice"}));
    EXPECT_TRUE(functionsNaming(tokens, {"other"}).empty());
}

}  // namespace
}  // namespace korven::architecture
