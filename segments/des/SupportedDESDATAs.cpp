#include "segments/des/SupportedDESDATAs.h"

#include "segments/des/DesDESDATACSATTA.h"
#include "segments/des/DesDESDATACSSHPA.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesMakers.h"

#include <cstring>

namespace ORMO::SensorModel::CSM {

namespace {

using Makers = Detail::DesMakers<DesDESDATA, 2>;

constexpr Makers MAKERS{{{{SupportedDESDATAs::DES_CSATTA, Makers::Make<DesDESDATACSATTA>},
                          {SupportedDESDATAs::DES_CSSHPA, Makers::Make<DesDESDATACSSHPA>}}}};

}  // namespace

const std::vector<const char*>& SupportedDESDATAs::GetAllSupportedDESDATAs()
{
    static const std::vector<const char*> types = MAKERS.Types();
    return types;
}

bool SupportedDESDATAs::AbleToCreateDESDATA(const char* aType) noexcept
{
    return MAKERS.Find(aType) != nullptr;
}

bool SupportedDESDATAs::ValidateInputs(const char* aType, const char* aData, std::size_t aLength,
                                       const DesDESDATA* const* aDESDATA, std::string& aMessage)
{
    aMessage = Detail::MissingDesInput("DESDATA", aType, aData, aLength, aDESDATA != nullptr);
    return aMessage.empty();
}

bool SupportedDESDATAs::CreateDESDATA(const char* aType, const char* aData, std::size_t aLength, DesDESDATA** aDESDATA,
                                      char** aMessage)
{
    std::string message;
    std::unique_ptr<DesDESDATA> made;
    if (ValidateInputs(aType, aData, aLength, aDESDATA, message)) {
        made = MAKERS.Create("DESDATA", aType, aData, aLength, message);
    }
    if (aDESDATA != nullptr) {
        *aDESDATA = made.release();
    }
    Detail::HandOutMessage(message, aMessage);
    return message.empty();
}

bool SupportedDESDATAs::CreateDESDATA(const char* aType, const char* aData, DesDESDATA** aDESDATA, char** aMessage)
{
    return CreateDESDATA(aType, aData, aData == nullptr ? 0 : std::strlen(aData), aDESDATA, aMessage);
}

void SupportedDESDATAs::DestroyDESDATA(DesDESDATA** aDESDATA) noexcept
{
    if (aDESDATA != nullptr) {
        delete *aDESDATA;
        *aDESDATA = nullptr;
    }
}

int SupportedDESDATAs::IsBinary(const char* aType) noexcept
{
    // Both known types hold binary data; a type of which only the subheader fields are known holds a text.
    if (AbleToCreateDESDATA(aType)) {
        return 1;
    }
    return SupportedDESSHFs::AbleToCreateDESSHF(aType) ? 0 : -1;
}

}  // namespace ORMO::SensorModel::CSM
