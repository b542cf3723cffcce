#include "isd/WrapperCSMISD.h"

#include "foundation/CSMUtilString.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

bool Set(std::string& aField, const char* aText)
{
    std::string text = Util::CSMUtilString::Trim(aText == nullptr ? "" : aText);
    if (text.empty()) {
        return false;
    }
    aField = std::move(text);
    return true;
}

}  // namespace

WrapperCSMISD::~WrapperCSMISD() = default;

bool WrapperCSMISD::SetImageFileName(const char* aName)
{
    return Set(m_imageFileName, aName);
}

bool WrapperCSMISD::SetFormat(const char* aFormat)
{
    return Set(m_format, aFormat);
}

}  // namespace ORMO::SensorModel::CSM
