#include "core/NaturalOrder.h"

#include <algorithm>

namespace tessarin {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int Small(char c) {
    const int byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte;
}

// Takes the digits that a text begins with off it, and zeros in front off them.
std::string_view TakeNumber(std::string_view& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsDigit);
    std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

// Below 0 when the number `a` is less, above 0 when it is more.
int CompareNumbers(std::string_view a, std::string_view b) {
    return a.size() == b.size() ? a.compare(b) : a.size() < b.size() ? -1 : 1;
}

}  // namespace

bool NaturalLess(std::string_view a, std::string_view b) {
    std::string_view restA = a;
    std::string_view restB = b;
    while (!restA.empty() && !restB.empty()) {
        int order = 0;
        if (IsDigit(restA[0]) && IsDigit(restB[0])) {
            order = CompareNumbers(TakeNumber(restA), TakeNumber(restB));
        } else {
            order = Small(restA[0]) - Small(restB[0]);
            restA.remove_prefix(1);
            restB.remove_prefix(1);
        }
        if (order != 0) {
            return order < 0;
        }
    }
    return restA.empty() == restB.empty() ? a < b : restA.empty();
}

}  // namespace tessarin
