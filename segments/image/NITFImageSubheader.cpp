#include "segments/image/NITFImageSubheader.h"

#include "foundation/detail/Ascii.h"

namespace ORMO::SensorModel::CSM {

NITFImageSubheader::NITFImageSubheader(const Layout& aLayout, Input& aInput) : NITFDataSegment(aLayout, aInput) {}

NITFImageSubheader::NITFImageSubheader(const NITFImageSubheader& aOther) = default;
NITFImageSubheader::~NITFImageSubheader() = default;

const char* NITFImageSubheader::GetImageSubheader(long& aLength) const noexcept
{
    std::size_t length = 0;
    const char* const raw = GetRawHeader(length);
    aLength = static_cast<long>(length);
    return raw;
}

const char* NITFImageSubheader::GetImageSegmentField(const char* aTag) const noexcept
{
    return FieldText(Detail::Trimmed(aTag)).data();
}

unsigned long NITFImageSubheader::GetNumOfImageBands() const noexcept
{
    const std::uint64_t bands = NumberOf("NBANDS");
    return static_cast<unsigned long>(bands != 0 ? bands : NumberOf("XBANDS"));
}

unsigned long NITFImageSubheader::GetOverflowUserDefinedImageData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("UDOFL"));
}

unsigned long NITFImageSubheader::GetOverflowImageExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("IXSOFL"));
}

}  // namespace ORMO::SensorModel::CSM
