#include "segments/des/SupportedDESSHFs.h"

#include "segments/des/DesDESSHFCSATTA.h"
#include "segments/des/DesDESSHFCSSHPA.h"
#include "segments/des/DesDESSHFXmlDataContent.h"
#include "segments/des/DesTypes.h"
#include "segments/des/detail/DesMakers.h"

#include <cstring>

namespace ORMO::SensorModel::CSM {

namespace {

using Makers = Detail::DesMakers<DesDESSHF, 10>;

constexpr Makers MAKERS{{{{SupportedDESSHFs::CSATTA, Makers::Make<DesDESSHFCSATTA>},
                          {SupportedDESSHFs::CSSHPA, Makers::Make<DesDESSHFCSSHPA>},
                          {SupportedDESSHFs::XML_DATA_CONTENT, Makers::Make<DesDESSHFXmlDataContent>},
                          {SupportedDESSHFs::CSATTB, Makers::Make<DesDESSHFCSATTB>},
                          {SupportedDESSHFs::CSCSDB, Makers::Make<DesDESSHFCSCSDB>},
                          {SupportedDESSHFs::CSEPHB, Makers::Make<DesDESSHFCSEPHB>},
                          {SupportedDESSHFs::CSSFAB, Makers::Make<DesDESSHFCSSFAB>},
                          {SupportedDESSHFs::CSSHPB, Makers::Make<DesDESSHFCSSHPB>},
                          {SupportedDESSHFs::EXT_DEF_CONTENT, Makers::Make<DesDESSHFExtDefContent>},
                          {SupportedDESSHFs::LIDARA, Makers::Make<DesDESSHFLIDARA>}}}};

}  // namespace

const std::vector<const char*>& SupportedDESSHFs::GetAllSupportedDESSHFs()
{
    static const std::vector<const char*> types = MAKERS.Types();
    return types;
}

bool SupportedDESSHFs::AbleToCreateDESSHF(const char* aType) noexcept
{
    return MAKERS.Find(aType) != nullptr;
}

bool SupportedDESSHFs::ValidateInputs(const char* aType, const char* aData, std::size_t aLength,
                                      const DesDESSHF* const* aDESSHF, std::string& aMessage)
{
    aMessage = Detail::MissingDesInput("DESSHF", aType, aData, aLength, aDESSHF != nullptr);
    return aMessage.empty();
}

bool SupportedDESSHFs::CreateDESSHF(const char* aType, const char* aData, std::size_t aLength, DesDESSHF** aDESSHF,
                                    char** aMessage)
{
    std::string message;
    std::unique_ptr<DesDESSHF> made;
    if (ValidateInputs(aType, aData, aLength, aDESSHF, message)) {
        made = MAKERS.Create("DESSHF", aType, aData, aLength, message);
    }
    if (aDESSHF != nullptr) {
        *aDESSHF = made.release();
    }
    Detail::HandOutMessage(message, aMessage);
    return message.empty();
}

bool SupportedDESSHFs::CreateDESSHF(const char* aType, const char* aData, DesDESSHF** aDESSHF, char** aMessage)
{
    return CreateDESSHF(aType, aData, aData == nullptr ? 0 : std::strlen(aData), aDESSHF, aMessage);
}

void SupportedDESSHFs::DestroyDESSHF(DesDESSHF** aDESSHF) noexcept
{
    if (aDESSHF != nullptr) {
        delete *aDESSHF;
        *aDESSHF = nullptr;
    }
}

}  // namespace ORMO::SensorModel::CSM
