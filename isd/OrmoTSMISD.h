#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"

#include <string>

namespace ORMO::SensorModel::CSM {

/// The library's own CSM API ISD: the name of an image file together with the one image segment that is meant, which
/// none of the classes of the CSM API can say.
class ORMO_CSM_API OrmoTSMISD : public tsm_ISD
{
public:
    /// The format text. It is none of the CSM API's own: plug-ins choose by the text and then cast.
    static constexpr const char* FORMAT = "ORMO_TSM_ISD";
    /// Stands for all image segments of the file.
    static constexpr int ALL_IMAGE_SEGMENTS = -1;

    OrmoTSMISD();
    explicit OrmoTSMISD(const char* aImageFileName, int aImageSegment = ALL_IMAGE_SEGMENTS);
    ~OrmoTSMISD() override;
    OrmoTSMISD(const OrmoTSMISD&) = default;
    OrmoTSMISD& operator=(const OrmoTSMISD&) = default;

    /// Empty for an ISD that was not made from a file.
    const char* GetImageFileName() const noexcept { return m_imageFileName.c_str(); }
    /// Null counts as empty.
    void SetImageFileName(const char* aImageFileName);
    /// Counted from 0; ALL_IMAGE_SEGMENTS when no one is chosen.
    int GetImageSegment() const noexcept { return m_imageSegment; }
    /// A negative number chooses all.
    void SetImageSegment(int aImageSegment) noexcept;

private:
    std::string m_imageFileName;
    int m_imageSegment = ALL_IMAGE_SEGMENTS;
};

}  // namespace ORMO::SensorModel::CSM
