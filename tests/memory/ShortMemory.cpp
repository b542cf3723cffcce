#include "tests/memory/ShortMemory.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t NEVER = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> theLeft{NEVER};  // allocations before the one that fails
std::atomic<bool> theFailure{false};
std::atomic<std::size_t> theLive{0};

void* Allocate(std::size_t aSize) noexcept
{
    if (theLeft != NEVER) {
        if (theLeft == 0) {
            theLeft = NEVER;
            theFailure = true;
            return nullptr;
        }
        --theLeft;
    }
    void* const memory = std::malloc(aSize == 0 ? 1 : aSize);
    theLive += memory == nullptr ? 0 : 1;
    return memory;
}

void Free(void* aMemory) noexcept
{
    theLive -= aMemory == nullptr ? 0 : 1;
    std::free(aMemory);
}

}  // namespace

void* operator new(std::size_t aSize)
{
    if (void* const memory = Allocate(aSize)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t aSize)
{
    return operator new(aSize);
}
void* operator new(std::size_t aSize, const std::nothrow_t&) noexcept
{
    return Allocate(aSize);
}
void* operator new[](std::size_t aSize, const std::nothrow_t&) noexcept
{
    return Allocate(aSize);
}
void operator delete(void* aMemory) noexcept
{
    Free(aMemory);
}
void operator delete[](void* aMemory) noexcept
{
    Free(aMemory);
}
void operator delete(void* aMemory, std::size_t) noexcept
{
    Free(aMemory);
}
void operator delete[](void* aMemory, std::size_t) noexcept
{
    Free(aMemory);
}
void operator delete(void* aMemory, const std::nothrow_t&) noexcept
{
    Free(aMemory);
}
void operator delete[](void* aMemory, const std::nothrow_t&) noexcept
{
    Free(aMemory);
}

namespace ORMO::SensorModel::CSM::Tests {

ShortMemory::ShortMemory(std::size_t aFails) noexcept
{
    theFailure = false;
    theLeft = aFails;
}

ShortMemory::~ShortMemory()
{
    theLeft = NEVER;
}

bool ShortMemory::HasFailed() noexcept
{
    return theFailure;
}

std::size_t LiveBlocks() noexcept
{
    return theLive;
}

}  // namespace ORMO::SensorModel::CSM::Tests
