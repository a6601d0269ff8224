// What the processor offers beyond the build's baseline, asked once: the
// scanners of requests and responses take thirty-two bytes a step where
// AVX2 is there, sixteen (the x86-64 baseline) where it is not.
#pragma once
#include <atomic>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define TAMREL_HAVE_AVX2_KERNELS 1
#endif

namespace tamrel {

// Set, the baseline kernels run even where AVX2 is there: the tests hold
// both to the same results.
inline std::atomic<bool>& avx2_kernels_off() {
    static std::atomic<bool> off{false};
    return off;
}

inline bool cpu_has_avx2() {
#if defined(TAMREL_HAVE_AVX2_KERNELS)
    static const bool yes = __builtin_cpu_supports("avx2");
    return yes && !avx2_kernels_off().load(std::memory_order_relaxed);
#else
    return false;
#endif
}

}  // namespace tamrel
