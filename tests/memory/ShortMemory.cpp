#include "tests/memory/ShortMemory.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#include <malloc.h>

namespace {

constexpr std::size_t NEVER = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> theLeft{NEVER};  // allocations before the one that fails
std::atomic<bool> theFailure{false};
std::atomic<std::size_t> theLive{0};
std::atomic<std::size_t> theBytes{0};
std::atomic<std::size_t> thePeak{0};
std::atomic<std::size_t> theLargest{0};

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
    theLargest = std::max(theLargest.load(), aSize);
    void* const memory = std::malloc(aSize == 0 ? 1 : aSize);
    if (memory != nullptr) {
        ++theLive;
        theBytes += ::malloc_usable_size(memory);
        thePeak = std::max(thePeak.load(), theBytes.load());
    }
    return memory;
}

void Free(void* aMemory) noexcept
{
    if (aMemory != nullptr) {
        --theLive;
        theBytes -= ::malloc_usable_size(aMemory);
    }
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

PeakMemory::PeakMemory() noexcept : m_start(theBytes)
{
    thePeak = m_start;
    theLargest = 0;
}

std::size_t PeakMemory::Bytes() const noexcept
{
    return thePeak - m_start;
}

std::size_t PeakMemory::Largest() const noexcept
{
    return theLargest;
}

}  // namespace ORMO::SensorModel::CSM::Tests
