#pragma once

#include <atomic>
#include <cstddef>

#include <malloc.h>

extern "C" {
void *__libc_malloc(size_t);
void *__libc_calloc(size_t, size_t);
void *__libc_realloc(void *, size_t);
void __libc_free(void *);
}

/**
 * How much of the heap the whole program takes, Qt included: this header replaces malloc() and its
 * like, so exactly one source file of a program may include it. Memory that is reserved and never
 * touched counts as well. The address sanitizer, which replaces those functions itself, is asked
 * instead: it tells of each block.
 */
class HeapMeter
{
public:
    /** Starts again: the peak is counted from what is taken now. */
    static void start()
    {
        s_begin = s_taken.load();
        s_peak = s_taken.load();
    }
    /** The most bytes that were taken since then beyond those at the start. */
    static long peak() { return s_peak - s_begin; }

    static void *taken(void *memory, std::size_t size)
    {
        const long now = s_taken += long(size);
        if (now > s_peak) {
            s_peak = now;
        }
        return memory;
    }
    static void given(std::size_t size) { s_taken -= long(size); }

private:
    static inline std::atomic<long> s_taken{0};
    static inline std::atomic<long> s_begin{0};
    static inline std::atomic<long> s_peak{0};
};

#ifdef MRV_SANITIZE

/** How many copies of a block that grows may exist: the sanitizer never grows one in place. */
static constexpr int CopiesWhileGrowing = 2;

// Of the sanitizer's run-time library; GCC installs no header that declares them.
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void *, std::size_t),
                                              void (*given)(const volatile void *));
std::size_t __sanitizer_get_allocated_size(const volatile void *memory);
}

static const int heapHooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void *, std::size_t size) { HeapMeter::taken(nullptr, size); },
    [](const volatile void *memory) { HeapMeter::given(__sanitizer_get_allocated_size(memory)); });

#else

static constexpr int CopiesWhileGrowing = 1;

extern "C" {

void *malloc(size_t size) noexcept
{
    void *memory = __libc_malloc(size);
    return HeapMeter::taken(memory, malloc_usable_size(memory));
}

void *calloc(size_t count, size_t size) noexcept
{
    void *memory = __libc_calloc(count, size);
    return HeapMeter::taken(memory, malloc_usable_size(memory));
}

void *realloc(void *old, size_t size) noexcept
{
    const size_t before = malloc_usable_size(old);
    void *memory = __libc_realloc(old, size);
    if (memory || size == 0) {
        HeapMeter::given(before);
    }
    return HeapMeter::taken(memory, malloc_usable_size(memory));
}

void free(void *memory) noexcept
{
    HeapMeter::given(malloc_usable_size(memory));
    __libc_free(memory);
}

} // extern "C"

#endif
