#pragma once

#include "../foundation/Export.h"

#include <string>

namespace ORMO::SensorModel::CSM {

/// Carries a CSM API ISD to ImageSupportDataFactory, which tells by the class of the wrapper what it can do with it:
/// WrapperCSMIsdNITF20 and WrapperCSMIsdNITF21.
class ORMO_CSM_API WrapperCSMISD
{
public:
    virtual ~WrapperCSMISD();

    /// The format text of the wrapped ISD, such as SupportedTSMISD::ISD_NITF21_FORMAT_STR; empty while unset.
    const char* GetISDFormat() const noexcept { return m_format.c_str(); }
    /// The file that the ISD was made from; empty when it is not known, which hinders nothing.
    const char* GetImageFileName() const noexcept { return m_imageFileName.c_str(); }
    /// False, with nothing changed, for null and for a blank name; white space around it does not count.
    bool SetImageFileName(const char* aName);

    WrapperCSMISD& operator=(const WrapperCSMISD&) = delete;

protected:
    WrapperCSMISD() = default;

    /// False, with nothing changed, for null and for a blank text.
    bool SetFormat(const char* aFormat);

private:
    WrapperCSMISD(const WrapperCSMISD&) = delete;

    std::string m_format;
    std::string m_imageFileName;
};

}  // namespace ORMO::SensorModel::CSM
