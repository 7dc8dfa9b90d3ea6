#include "Support/KivWatchedMemory.h"

#include <cstdlib>
#include <new>

// In a file of its own: where the compiler sees through them it takes them for a mismatch.

bool (*KivIsMemoryGiven)() = nullptr;

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return !KivIsMemoryGiven || KivIsMemoryGiven() ? std::malloc(size ? size : 1) : nullptr;
}
void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
