#include "isd/ImageSupportDataOSDEFactory.h"

#include "foundation/detail/LastMessages.h"

namespace ORMO::SensorModel::CSM {
namespace {

Detail::LastMessages& Messages() noexcept
{
    thread_local Detail::LastMessages messages;
    return messages;
}

}  // namespace

bool ImageSupportDataOSDEFactory::Create(const char* /*aPath*/, ImageSupportData** aOut, bool /*aFlag2*/,
                                         int /*aVersion*/)
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    Messages().error = "ERROR: OSDE files cannot be read without a companion library.";
    return false;
}

const char* ImageSupportDataOSDEFactory::GetErrorMessage() noexcept
{
    return Detail::TextOrNull(Messages().error);
}

const char* ImageSupportDataOSDEFactory::GetWarningMessage() noexcept
{
    return Detail::TextOrNull(Messages().warning);
}

}  // namespace ORMO::SensorModel::CSM
