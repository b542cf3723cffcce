#include "isd/WrapperCSMIsdNITF.h"

#include "isd/SupportedTSMISD.h"
#include "isd/detail/CsmRecords.h"

namespace ORMO::SensorModel::CSM {

namespace {

const ::tre* Tres(const ::tre* aTres, int aTotal, std::size_t& aCount) noexcept
{
    aCount = Detail::CountOf(aTres, aTotal);
    return aCount == 0 ? nullptr : aTres;
}

}  // namespace

const ::tre* WrapperCSMIsdImage::GetTREs(std::size_t& aCount) const noexcept
{
    return Tres(m_image->imageTREs, m_image->numTREs, aCount);
}

WrapperCSMIsdNITF::~WrapperCSMIsdNITF() = default;

const ::tre* WrapperCSMIsdNITF::GetFileTREs(std::size_t& aCount) const noexcept
{
    return Tres(m_parts.tres, m_parts.treCount, aCount);
}

std::size_t WrapperCSMIsdNITF::GetNumOfDESs() const noexcept
{
    return Detail::CountOf(m_parts.dess, m_parts.desCount);
}

std::string_view WrapperCSMIsdNITF::GetDESSubheader(std::size_t aIndex) const noexcept
{
    if (aIndex >= GetNumOfDESs()) {
        return {};
    }
    const ::des& des = m_parts.dess[aIndex];
    return Detail::BytesOf(des.desSh, des.desShLength);
}

std::string_view WrapperCSMIsdNITF::GetDESData(std::size_t aIndex) const noexcept
{
    if (aIndex >= GetNumOfDESs()) {
        return {};
    }
    const ::des& des = m_parts.dess[aIndex];
    return Detail::BytesOf(des.desData, des.desDataLength);
}

std::size_t WrapperCSMIsdNITF::GetNumOfImages() const noexcept
{
    return Detail::CountOf(m_parts.images, m_parts.imageCount);
}

WrapperCSMIsdImage WrapperCSMIsdNITF::GetImage(std::size_t aIndex) const noexcept
{
    return WrapperCSMIsdImage(m_parts.images[aIndex]);
}

WrapperCSMIsdNITF20::WrapperCSMIsdNITF20(const NITF_2_0_ISD& aIsd, const char* aImageFileName)
    : WrapperCSMIsdNITF(PartsOf(aIsd))
{
    SetFormat(SupportedTSMISD::ISD_NITF20_FORMAT_STR);
    SetImageFileName(aImageFileName);
}

WrapperCSMIsdNITF20::~WrapperCSMIsdNITF20() = default;

WrapperCSMIsdNITF21::WrapperCSMIsdNITF21(const NITF_2_1_ISD& aIsd, const char* aImageFileName)
    : WrapperCSMIsdNITF(PartsOf(aIsd))
{
    SetFormat(SupportedTSMISD::ISD_NITF21_FORMAT_STR);
    SetImageFileName(aImageFileName);
}

WrapperCSMIsdNITF21::~WrapperCSMIsdNITF21() = default;

}  // namespace ORMO::SensorModel::CSM
