// The functions of the expression language: how one is found and called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "tools/ExpressionLimits.h"
#include "tools/ExpressionValue.h"
#include "tools/RandomSequence.h"

namespace tessarin::expression {

inline constexpr std::size_t kMaxArguments = 6;

/// What one call works on. The arguments are the function's own to change.
struct Call {
    std::span<Value> arguments;
    RandomSequence& random;
    Limits& limits;

    std::size_t Count() const { return arguments.size(); }
    Value& At(std::size_t i) { return arguments[i]; }
    double Number(std::size_t i) const { return ToDouble(arguments[i]); }
    std::string& Text(std::size_t i) { return ToText(arguments[i]); }

    /// Whole numbers; `Whole` gives `absent` for an argument that was left out, and faults for one
    /// below `low`.
    int32_t Whole(std::size_t i, int32_t low) const;
    int32_t Whole(std::size_t i, int32_t low, int32_t absent) const;
};

/// What a function makes of an argument that is Null.
enum class NullArgument : uint8_t {
    Refused,  // a fault
    Spreads,  // the result is Null
    Welcome,  // the function sees it
};

/// `name` is in lower case.
struct Function {
    std::string_view name;
    uint8_t fewest;
    uint8_t most;
    NullArgument null;
    Value (*work)(Call& call);
};

/// Both are sorted by name.
std::span<const Function> NumberFunctions();
std::span<const Function> TextFunctions();

/// Null if there is no such function.
const Function* FindFunction(std::string_view word);

/// Checks the arguments and calls the function.
Value CallFunction(const Function& function, Call& call);

}  // namespace tessarin::expression
