#include "populations/DefinitionLogic.h"

#include <array>
#include <string>
#include <utility>

namespace tessarin {
namespace {

bool IsUnknown(char c) {
    return c >= 'a' && c <= 'z';
}
int Precedence(char op) {
    constexpr int kNot = 3;
    return op == '-' ? kNot : op == '*' ? 2 : 1;
}

}  // namespace

// Reads from left to right without recursion, so that no text can exhaust the stack. Operators and
// open parentheses wait until what they work on is complete.
class Totuuslauseke::Reader {
  public:
    std::optional<Totuuslauseke> Read(std::string_view text) {
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
        if (c == '(' || c == '-') {
            waiting_ += c;
            return waiting_.size() <= kMaxDepth;
        }
        if (!IsUnknown(c)) {
            return false;
        }
        result_.steps_.push_back({'u', result_.unknowns_++});
        operandNext_ = false;
        return result_.unknowns_ <= static_cast<int>(kMaxUnknowns);
    }

    bool ReadOperator(char c) {
        if (c == ')') {
            FinishDownTo(1);
            if (waiting_.empty()) {
                return false;
            }
            waiting_.pop_back();
            return true;
        }
        if (c != '*' && c != '+') {
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

    Totuuslauseke result_;
    std::string waiting_;
    bool operandNext_ = true;
};

std::optional<Totuuslauseke> Totuuslauseke::Lue(std::string_view text) {
    return Reader().Read(text);
}

bool Totuuslauseke::Arvo(uint32_t bits) const {
    std::array<bool, kMaxUnknowns> stack{};
    std::size_t height = 0;
    for (const Step& step : steps_) {
        if (step.kind == 'u') {
            stack[height++] = (bits >> static_cast<unsigned>(step.unknown) & 1U) != 0;
        } else if (step.kind == '-') {
            stack[height - 1] = !stack[height - 1];
        } else {
            const bool right = stack[--height];
            bool& left = stack[height - 1];
            left = step.kind == '*' ? left && right : left || right;
        }
    }
    return stack[0];
}

}  // namespace tessarin
