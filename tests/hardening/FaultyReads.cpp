#include "tests/hardening/FaultyReads.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

using ORMO::SensorModel::CSM::Tests::FaultyReads;

FaultyReads::Choice theChoice;
std::size_t theCount = 0;
std::size_t theBytes = 0;

ssize_t Answer(int aDescriptor, void* aOut, std::size_t aSize, off_t aOffset)
{
    FaultyReads::Act act = FaultyReads::Act::Read;
    if (theChoice) {
        act = theChoice(theCount++);
    }
    switch (act) {
        case FaultyReads::Act::Interrupt:
            errno = EINTR;
            return -1;
        case FaultyReads::Act::Fail:
            errno = EIO;
            return -1;
        case FaultyReads::Act::ReadOneByte:
            aSize = std::min<std::size_t>(aSize, 1);
            break;
        case FaultyReads::Act::Read:
            break;
    }
    const ssize_t count = ::syscall(SYS_pread64, aDescriptor, aOut, aSize, aOffset);
    theBytes += count > 0 ? static_cast<std::size_t>(count) : 0;
    return count;
}

}  // namespace

// In place of those of the C library.
extern "C" {
ssize_t pread(int aDescriptor, void* aOut, std::size_t aSize, off_t aOffset)
{
    return Answer(aDescriptor, aOut, aSize, aOffset);
}
ssize_t pread64(int aDescriptor, void* aOut, std::size_t aSize, off64_t aOffset)
{
    return Answer(aDescriptor, aOut, aSize, aOffset);
}
}

namespace ORMO::SensorModel::CSM::Tests {

FaultyReads::FaultyReads(Choice aChoice)
{
    theCount = 0;
    theBytes = 0;
    theChoice = std::move(aChoice);
}

FaultyReads::~FaultyReads()
{
    theChoice = nullptr;
}

std::size_t FaultyReads::Count() const noexcept
{
    return theCount;
}

std::size_t FaultyReads::Bytes() const noexcept
{
    return theBytes;
}

}  // namespace ORMO::SensorModel::CSM::Tests
