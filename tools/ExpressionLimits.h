// What keeps an expression from asking for more memory or time than a result can be worth.
#pragma once

#include <cstddef>

#include "tools/ExpressionFault.h"

namespace tessarin::expression {

/// The longest text that a value may be, and all text that one expression may make on its way, in
/// bytes. Operators and functions take time in the order of their operands, and those that give a
/// text say here what they went through for it, so the second bounds the time.
inline constexpr std::size_t kMaxText = 1048576;
inline constexpr std::size_t kMaxTextMade = 16 * kMaxText;

class Limits {
  public:
    /// Called before a text is made that is `length` long, `added` of it new.
    void Claim(std::size_t length, std::size_t added) {
        made_ += added;
        if (length > kMaxText || made_ > kMaxTextMade) {
            Fail(ExpressionFault::TooLarge);
        }
    }
    void Claim(std::size_t length) { Claim(length, length); }

  private:
    std::size_t made_ = 0;
};

}  // namespace tessarin::expression
