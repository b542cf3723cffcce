#include "segments/image/NITFImageSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/image/detail/ImageAttributes.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

NITFImageSubheader::NITFImageSubheader(const Layout& aLayout, Input& aInput)
    : NITFDataSegment(aLayout, aInput), m_derived(std::make_unique<Derived>())
{
}

NITFImageSubheader::NITFImageSubheader(const NITFImageSubheader& aOther)
    : NITFDataSegment(aOther), NITFImagePixelReader(aOther), m_derived(std::make_unique<Derived>(*aOther.m_derived))
{
}

NITFImageSubheader::~NITFImageSubheader() = default;

bool NITFImageSubheader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFImageSubheader*>(&aOther);
    if (other == nullptr || !NITFDataSegment::CloneObj(aOther)) {
        return false;
    }
    *m_derived = *other->m_derived;
    return true;
}

void NITFImageSubheader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFImageSubheader*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFDataSegment::Swap(aOther);
    std::swap(m_derived, other->m_derived);
}

void NITFImageSubheader::TREsChanged()
{
    NITFDataSegment::TREsChanged();
    auto derived = std::make_unique<Derived>();
    derived->sensorModel = std::move(m_derived->sensorModel);
    m_derived = std::move(derived);
}

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

unsigned long NITFImageSubheader::GetOverflowUserDefinedImageData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("UDOFL"));
}

unsigned long NITFImageSubheader::GetOverflowImageExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("IXSOFL"));
}

std::vector<const TRE*> NITFImageSubheader::FindTREs(const char* aTag) const
{
    std::vector<const TRE*> found;
    for (const TREStore* const store : {&GetTREStore(), &GetOverflowTREStore()}) {
        store->AppendOfTag(aTag, found);
    }
    return found;
}

const TRE* NITFImageSubheader::FindTRE(const char* aTag) const
{
    const TRE* const own = GetTREStore().First(aTag);
    return own == nullptr ? GetOverflowTREStore().First(aTag) : own;
}

}  // namespace ORMO::SensorModel::CSM
