#include "segments/des/SupportedDESDATAs.h"

#include "foundation/detail/Ascii.h"
#include "segments/des/DesDESDATACSATTA.h"
#include "segments/des/DesDESDATACSSHPA.h"
#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesMakers.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using Makers = Detail::DesMakers<DesDESDATA, 6>;

constexpr Makers MAKERS{{{{SupportedDESDATAs::DES_CSATTA, Makers::Make<DesDESDATACSATTA>, DesDESDATACSATTA::MOST_BYTES},
                          {SupportedDESDATAs::DES_CSSHPA, Makers::Make<DesDESDATACSSHPA>},
                          {SupportedDESDATAs::CSATTB, Makers::Make<DesDESDATACSATTB>},
                          {SupportedDESDATAs::CSCSDB, Makers::Make<DesDESDATACSCSDB>},
                          {SupportedDESDATAs::CSEPHB, Makers::Make<DesDESDATACSEPHB>},
                          {SupportedDESDATAs::CSSFAB, Makers::Make<DesDESDATACSSFAB>}}}};

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

std::size_t SupportedDESDATAs::GetMostBytes(const char* aType) noexcept
{
    const Makers::Maker* const maker = MAKERS.Find(aType);
    return maker == nullptr ? 0 : maker->most;
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
    // XML is text, and so are attitudes, positions and errors; the rest is files and numbers in binary.
    if (!AbleToCreateDESDATA(aType) && !SupportedDESSHFs::AbleToCreateDESSHF(aType)) {
        return -1;
    }
    constexpr std::string_view TEXTS[] = {SupportedDESSHFs::XML_DATA_CONTENT, CSATTB, CSCSDB, CSEPHB};
    return std::count(std::begin(TEXTS), std::end(TEXTS), Detail::Trimmed(aType)) == 0 ? 1 : 0;
}

}  // namespace ORMO::SensorModel::CSM
