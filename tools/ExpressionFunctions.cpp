#include "tools/ExpressionFunctions.h"

#include <algorithm>
#include <array>

#include "tools/ExpressionCharacters.h"
#include "tools/ExpressionFault.h"

namespace tessarin::expression {
namespace {

const Function* FindIn(std::span<const Function> functions, std::string_view name) {
    const auto found = std::ranges::lower_bound(functions, name, {}, &Function::name);
    return found != functions.end() && found->name == name ? &*found : nullptr;
}

}  // namespace

int32_t Call::Whole(std::size_t i, int32_t low) const {
    const int32_t whole = ToLong(arguments[i]);
    if (whole < low) {
        Fail(ExpressionFault::WrongArgument);
    }
    return whole;
}

int32_t Call::Whole(std::size_t i, int32_t low, int32_t absent) const {
    return i < Count() ? Whole(i, low) : absent;
}

const Function* FindFunction(std::string_view word) {
    std::array<char, 16> lower;
    if (word.size() > lower.size()) {
        return nullptr;
    }
    std::ranges::transform(word, lower.begin(), Lower);
    const std::string_view name(lower.data(), word.size());
    const Function* const found = FindIn(NumberFunctions(), name);
    return found != nullptr ? found : FindIn(TextFunctions(), name);
}

Value CallFunction(const Function& function, Call& call) {
    if (call.Count() < function.fewest || call.Count() > function.most) {
        Fail(ExpressionFault::WrongArgument);
    }
    const bool null = std::ranges::any_of(
        call.arguments, [](const Value& argument) { return argument.type == ValueType::Null; });
    if (null && function.null == NullArgument::Refused) {
        Fail(ExpressionFault::NullValue);
    }
    return null && function.null == NullArgument::Spreads ? MakeNull() : function.work(call);
}

}  // namespace tessarin::expression
