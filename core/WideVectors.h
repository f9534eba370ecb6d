// Hot loops in two forms, of which the processor's own is taken when the program starts.
#pragma once

/// In front of a function: it is compiled a second time with vectors of four doubles, for
/// processors that have them. Both forms give the same bits, as neither joins a product with a sum
/// and each element is worked out for itself. Sanitizers cannot follow the choice and get one form.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define TESSARIN_WIDE __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define TESSARIN_WIDE
#endif
