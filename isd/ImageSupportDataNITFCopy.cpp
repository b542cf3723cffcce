// Copies of a file's image support data, and comparison of two.

#include "foundation/CSMExceptions.h"
#include "isd/detail/IsdParts.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <new>
#include <typeinfo>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Parts = ImageSupportDataNITF::Parts;

namespace {

constexpr const char* NOT_COPIED =
    "ERROR: Failed to initialize all the member variables properly using the input ImageSupportDataNITF object.";
constexpr const char* NOT_ASSIGNED =
    "ERROR: System failed to assign all the member variables of one ImageSupportDataNITF to another.";

using OwnedSegment = std::unique_ptr<NITFFieldSegment>;

bool AreEqual(const NITFFieldSegment* aLeft, const NITFFieldSegment* aRight)
{
    return aLeft == nullptr || aRight == nullptr ? aLeft == aRight : Detail::AreEqual(*aLeft, *aRight);
}

}  // namespace

Parts::Parts(const Parts& aOther)
    : source(aOther.source),
      versionText(aOther.versionText),
      header(static_cast<NITFFileHeader*>(Detail::CopySegment(*aOther.header).release())),
      infos(aOther.infos),
      segments(aOther.segments.size()),
      findings(aOther.findings),
      validation(aOther.validation),
      isOfWrapped(aOther.isOfWrapped),
      specificOnly(aOther.specificOnly),
      salvage(aOther.salvage)
{
    std::ranges::transform(aOther.segments, segments.begin(), [](const OwnedSegment& aSegment) {
        return aSegment == nullptr ? nullptr : Detail::CopySegment(*aSegment);
    });
}

std::unique_ptr<Parts> Parts::Copy() const
{
    return std::unique_ptr<Parts>(new Parts(*this));
}

bool Parts::operator==(const Parts& aOther) const
{
    return AreEqual(header.get(), aOther.header.get()) &&
           std::ranges::equal(segments, aOther.segments, [](const OwnedSegment& aLeft, const OwnedSegment& aRight) {
               return AreEqual(aLeft.get(), aRight.get());
           });
}

ImageSupportDataNITF::ImageSupportDataNITF(const ImageSupportDataNITF& aOther) : ImageSupportData(aOther)
{
    try {
        m_parts = aOther.m_parts->Copy();
    } catch (const std::bad_alloc&) {
        throw RequestedOperationFailedException(NOT_COPIED, "ImageSupportDataNITF::ImageSupportDataNITF");
    }
}

bool ImageSupportDataNITF::operator==(const ImageSupportData& aOther) const
{
    if (this == &aOther) {
        return true;
    }
    const auto* const other = dynamic_cast<const ImageSupportDataNITF*>(&aOther);
    return other != nullptr && ImageSupportData::operator==(aOther) && *m_parts == *other->m_parts;
}

void ImageSupportDataNITF::Assign(const ImageSupportData& aOther)
{
    if (this != &aOther && !CloneObj(aOther)) {
        throw RequestedOperationFailedException(NOT_ASSIGNED, "ImageSupportDataNITF::Assign");
    }
}

bool ImageSupportDataNITF::CloneObj(const ImageSupportData& aOther)
{
    // A file of the other version has other segments: the object would be of one class and say the other.
    if (typeid(*this) != typeid(aOther)) {
        return false;
    }
    const auto& other = static_cast<const ImageSupportDataNITF&>(aOther);
    try {
        std::unique_ptr<Parts> parts = other.m_parts->Copy();
        ImageSupportData::Assign(aOther);
        m_parts = std::move(parts);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    } catch (const RequestedOperationFailedException&) {
        return false;
    }
}

void ImageSupportDataNITF::Swap(ImageSupportData& aFirst, ImageSupportData& aSecond)
{
    auto* const first = dynamic_cast<ImageSupportDataNITF*>(&aFirst);
    auto* const second = dynamic_cast<ImageSupportDataNITF*>(&aSecond);
    if (first != nullptr && second != nullptr && typeid(aFirst) == typeid(aSecond)) {
        ImageSupportData::Swap(aFirst, aSecond);
        std::swap(first->m_parts, second->m_parts);
    }
}

bool ImageSupportDataNITF::CompareDataSegment(NITFCnst::DataSegmentType aKind, const ImageSupportDataNITF& aOther,
                                              std::size_t aIndex) const
{
    const NITFFieldSegment* const own = GetSegment(aKind, aIndex);
    const NITFFieldSegment* const other = aOther.m_parts->Segment(aKind, aIndex);
    return own != nullptr && AreEqual(own, other);
}

bool ImageSupportDataNITF::CompareNITFFileHeader(const ImageSupportDataNITF& aOther) const
{
    return CompareDataSegment(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, aOther, 0);
}

bool ImageSupportDataNITF::CompareNITFImageSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const
{
    return CompareDataSegment(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aOther, aIndex);
}

bool ImageSupportDataNITF::CompareNITFTextSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const
{
    return CompareDataSegment(NITFCnst::DATA_SEGMENT_TYPE_TEXT, aOther, aIndex);
}

bool ImageSupportDataNITF::CompareNITFDESSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const
{
    return CompareDataSegment(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aOther, aIndex);
}

bool ImageSupportDataNITF::CompareNITFRESSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const
{
    return CompareDataSegment(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, aOther, aIndex);
}

}  // namespace ORMO::SensorModel::CSM
