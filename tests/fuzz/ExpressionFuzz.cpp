// Works out any bytes as an expression. Called by a fuzzer, and by the test that replays what
// fuzzers found.
#include <cstdint>
#include <stdexcept>
#include <string>

#include "tools/Expression.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace tessarin;
    const std::string text(data, data + size);
    ExpressionEngine engine;
    const ExpressionResult first = engine.LaskeLauseke(text);
    const ExpressionResult again = ExpressionEngine().LaskeLauseke(text);
    if (first.text != again.text || first.fault != again.fault) {
        throw std::runtime_error("another result for the same expression");
    }
    if (first.fault != ExpressionFault::None && !first.text.empty()) {
        throw std::runtime_error("a fault with a result");
    }
    return 0;
}
