// Where libFuzzer enters one of the targets.

#include "foundation/CSMException.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aBytes, std::size_t aSize)
{
    try {
        OrmoFuzz::ORMO_FUZZ_TARGET({reinterpret_cast<const char*>(aBytes), aSize});
    } catch (const ORMO::SensorModel::CSM::CSMException& exception) {
        OrmoFuzz::Require(false, exception.GetAdditionalMessage());
    }
    return 0;
}
