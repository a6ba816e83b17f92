#pragma once

#include <cstdlib>

/// What script/mutate weaves into a source file. There all mutants are compiled in, each with a number, and the number
/// in the environment says which of them acts.
namespace mutant {

/// The number of the mutant that acts; 0 for none.
inline int chosen()
{
    static const int number = [] {
        const char *text = std::getenv("MUTANT");
        return text ? std::atoi(text) : 0;
    }();
    return number;
}

/// Whether this mutant acts. It is no constant: what must be one doesn't compile with a mutant in it.
constexpr bool on(int number)
{
    return number > 0 ? number == chosen() : false;
}

/// Stands between two operators: "a < operation{17} > b" is "a < b", or with mutant 17 what comes in its place. The
/// second operator has the rank of the first, so that the operands remain what they are.
struct operation
{
    int number;
};

#define MUTANT_OPERATOR(NAME, OLD, NEW, SECOND)                                                                        \
    template <class Left> struct NAME                                                                                  \
    {                                                                                                                  \
        const Left &left;                                                                                              \
        int number;                                                                                                    \
    };                                                                                                                 \
    template <class Left> constexpr NAME<Left> operator OLD(const Left &left, operation o)                             \
    {                                                                                                                  \
        return {left, o.number};                                                                                       \
    }                                                                                                                  \
    template <class Left, class Right> constexpr auto operator SECOND(const NAME<Left> &l, const Right &right)         \
    {                                                                                                                  \
        static_assert(                                                                                                 \
            requires { l.left NEW right; }, "no such operator");                                                       \
        return on(l.number) ? l.left NEW right : l.left OLD right;                                                     \
    }

MUTANT_OPERATOR(less, <, <=, >)
MUTANT_OPERATOR(less_equal, <=, <, >)
MUTANT_OPERATOR(greater, >, >=, >)
MUTANT_OPERATOR(greater_equal, >=, >, >)
MUTANT_OPERATOR(equal, ==, !=, ==)
MUTANT_OPERATOR(unequal, !=, ==, ==)
MUTANT_OPERATOR(plus, +, -, +)
MUTANT_OPERATOR(minus, -, +, +)
#undef MUTANT_OPERATOR

/// The right side of "a += b" and "a -= b", as in "a += negation{17} = b".
struct negation
{
    int number;
    template <class Right> constexpr auto operator=(const Right &right) const
    {
        static_assert(
            requires { -right; }, "no such operator");
        return on(number) ? -right : +right;
    }
};

} // namespace mutant
