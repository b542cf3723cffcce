#include "isd/OrmoTSMISD.h"

namespace ORMO::SensorModel::CSM {

OrmoTSMISD::OrmoTSMISD()
{
    _format = FORMAT;
}

OrmoTSMISD::OrmoTSMISD(const char* aImageFileName, int aImageSegment) : OrmoTSMISD()
{
    SetImageFileName(aImageFileName);
    SetImageSegment(aImageSegment);
}

OrmoTSMISD::~OrmoTSMISD() = default;

void OrmoTSMISD::SetImageFileName(const char* aImageFileName)
{
    m_imageFileName = aImageFileName == nullptr ? "" : aImageFileName;
}

void OrmoTSMISD::SetImageSegment(int aImageSegment) noexcept
{
    m_imageSegment = aImageSegment < 0 ? ALL_IMAGE_SEGMENTS : aImageSegment;
}

}  // namespace ORMO::SensorModel::CSM
