#include "tools/Expression.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "core/Text.h"
#include "tools/ExpressionCharacters.h"
#include "tools/ExpressionFunctions.h"
#include "tools/ExpressionLimits.h"
#include "tools/ExpressionOperators.h"
#include "tools/ExpressionReader.h"
#include "tools/ExpressionValue.h"

namespace tessarin {
namespace expression {
namespace {

// Works out values while it reads. Every operand is wanted, since no operator of the language
// leaves one alone, so there is nothing to build first.
class Evaluation {
  public:
    Evaluation(std::string_view text, RandomSequence& random) : reader_(text), random_(random) {}

    Value Whole() {
        if (reader_.AtEnd()) {
            return {};
        }
        Value value = Operation(kLoosest);
        if (!reader_.AtEnd()) {
            Fail(ExpressionFault::Syntax);
        }
        return value;
    }

  private:
    static constexpr int kLoosest = 1;

    // Operands and the operators between them, as long as those bind at least as tightly as
    // `binding`. All recursion comes through here.
    Value Operation(int binding) {
        ++depth_;
        if (depth_ > ExpressionEngine::kMaxDepth) {
            Fail(ExpressionFault::TooLarge);
        }
        Value value = Operand();
        while (Binding(next_) >= binding) {
            const Operator op = next_;
            Value right = Operation(Binding(op) + 1);
            value = Apply(op, std::move(value), std::move(right), limits_);
        }
        --depth_;
        return value;
    }

    // Leaves the operator behind the operand in `next_`.
    Value Operand() {
        if (reader_.Take('-')) {
            return Negated(Operation(kInsideSign));
        }
        if (reader_.Take('+')) {
            return Operation(kInsideSign);
        }
        Value value;
        if (reader_.AtWord()) {
            const std::string_view word = reader_.TakeWord();
            if (SameWord(word, "not")) {
                return Not(Operation(kInsideNot));
            }
            value = Named(word);
        } else if (reader_.Take('(')) {
            value = Operation(kLoosest);
            Close();
        } else {
            value = reader_.TakeLiteral();
        }
        next_ = reader_.TakeOperator();
        return value;
    }

    Value Named(std::string_view word) {
        if (const Function* const function = FindFunction(word)) {
            return Called(*function);
        }
        if (const auto truth = TruthIn(word)) {
            return MakeBoolean(*truth);
        }
        if (SameWord(word, "empty")) {
            return {};
        }
        if (SameWord(word, "null")) {
            return MakeNull();
        }
        Fail(ExpressionFault::UnknownWord);
    }

    // A function without arguments may stand without brackets.
    Value Called(const Function& function) {
        std::array<Value, kMaxArguments> arguments;
        std::size_t count = 0;
        if (reader_.Take('(') && !reader_.Take(')')) {
            do {
                if (count == kMaxArguments) {
                    Fail(ExpressionFault::WrongArgument);
                }
                arguments[count] = Operation(kLoosest);
                ++count;
            } while (reader_.Take(','));
            Close();
        }
        Call call{std::span(arguments).first(count), random_, limits_};
        return CallFunction(function, call);
    }

    void Close() {
        if (!reader_.Take(')')) {
            Fail(ExpressionFault::Syntax);
        }
    }

    Reader reader_;
    RandomSequence& random_;
    Limits limits_;
    Operator next_ = Operator::None;
    int depth_ = 0;
};

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace
}  // namespace expression

ExpressionResult ExpressionEngine::LaskeLauseke(std::string_view expression) {
    if (expression.size() > kMaxLength) {
        return {{}, ExpressionFault::TooLarge};
    }
    // Bytes that are no UTF-8 would break the rules by which characters are counted.
    std::string decoded;
    if (!expression::IsAscii(expression)) {
        decoded = DecodeText(expression);
        expression = decoded;
    }
    try {
        expression::Value value = expression::Evaluation(expression, random_).Whole();
        return {std::move(expression::ToText(value)), ExpressionFault::None};
    } catch (const expression::Failure& failure) {
        return {{}, failure.fault};
    }
}

}  // namespace tessarin
