#include "populations/DefinitionArithmetic.h"

#include <string>
#include <utility>

namespace tessarin {
namespace {

constexpr std::string_view kOperators = "+-*";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsUnknown(char c) {
    return c >= 'a' && c <= 'z';
}
int Precedence(char op) {
    return op == '*' ? 2 : 1;
}

}  // namespace

// Reads from left to right without recursion, so that no text can exhaust the stack. Operators and
// open parentheses wait until what they work on is complete.
class Laskulauseke::Reader {
  public:
    std::optional<Laskulauseke> Read(std::string_view text) {
        for (const char c : text) {
            if (!(operandNext_ ? ReadOperand(c) : ReadOperator(c))) {
                return std::nullopt;
            }
        }
        FinishDownTo(1);
        if (operandNext_ || !waiting_.empty()) {
            return std::nullopt;
        }
        return std::move(result_);
    }

  private:
    bool ReadOperand(char c) {
        if (c == '(') {
            waiting_ += c;
            return ++depth_ <= kMaxDepth;
        }
        if (IsDigit(c)) {
            result_.steps_.push_back({'n', c - '0'});
        } else if (IsUnknown(c)) {
            result_.steps_.push_back({'u', result_.unknowns_++});
        } else {
            return false;
        }
        operandNext_ = false;
        return ++operands_ <= kMaxOperands;
    }

    bool ReadOperator(char c) {
        if (c == ')') {
            FinishDownTo(1);
            if (waiting_.empty()) {
                return false;
            }
            waiting_.pop_back();
            --depth_;
            return true;
        }
        if (kOperators.find(c) == std::string_view::npos) {
            return false;
        }
        FinishDownTo(Precedence(c));
        waiting_ += c;
        operandNext_ = true;
        return true;
    }

    // The operators behind the last open parenthesis that bind at least as strongly.
    void FinishDownTo(int precedence) {
        while (!waiting_.empty() && waiting_.back() != '(' &&
               Precedence(waiting_.back()) >= precedence) {
            result_.steps_.push_back({waiting_.back(), 0});
            waiting_.pop_back();
        }
    }

    Laskulauseke result_;
    std::string waiting_;
    std::size_t depth_ = 0;
    std::size_t operands_ = 0;
    bool operandNext_ = true;
};

std::optional<Laskulauseke> Laskulauseke::Lue(std::string_view text) {
    return Reader().Read(text);
}

double Laskulauseke::Arvo(uint32_t bits) const {
    std::array<double, kMaxOperands> stack{};
    std::size_t height = 0;
    for (const Step& step : steps_) {
        if (step.kind == 'u') {
            stack[height++] = (bits >> static_cast<unsigned>(step.argument) & 1U) != 0 ? 1 : 0;
            continue;
        }
        if (step.kind == 'n') {
            stack[height++] = step.argument;
            continue;
        }
        const double right = stack[--height];
        double& left = stack[height - 1];
        if (step.kind == '*') {
            left *= right;
        } else {
            left += step.kind == '+' ? right : -right;
        }
    }
    return stack[0];
}

}  // namespace tessarin
