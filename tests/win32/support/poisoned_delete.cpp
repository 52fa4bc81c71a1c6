// The test programs' operator delete fills a block before freeing it, so that code still using
// a destroyed object (a control released inside its own call-out) reads garbage pointers and
// crashes at once instead of passing by luck.
#include <cstring>
#include <malloc.h>
#include <new>

namespace {

void PoisonAndFree(void* block) noexcept
{
    if (!block)
        return;
    std::memset(block, 0xDD, _msize(block));
    std::free(block);
}

} // namespace

void operator delete(void* block) noexcept
{
    PoisonAndFree(block);
}

void operator delete[](void* block) noexcept
{
    PoisonAndFree(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    PoisonAndFree(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    PoisonAndFree(block);
}
