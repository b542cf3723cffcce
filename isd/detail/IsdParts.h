#pragma once

#include "fields/ByteSource.h"
#include "fields/FindingList.h"
#include "foundation/detail/Lazy.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/detail/TsmViews.h"
#include "segments/detail/SegmentKind.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM {

class WrapperCSMIsdNITF;
namespace Detail {
struct PropertyRow;
}

/// A file, or a block of memory, that is to become an ISD.
struct ORMO_CSM_LOCAL ImageSupportDataNITF::Request
{
    std::string path;                                  ///< trimmed
    std::shared_ptr<const Detail::ByteSource> source;  ///< null when the path leads to nothing that can be read
    std::string first;                                 ///< the first bytes of the source
    std::string reason;                                ///< why there is no source
    NITFCnst::Version version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    bool imageSegmentsOnly = false;
    bool specificOnly = false;
    int imageSegment = -1;  ///< becomes the current image segment when it is not negative
    /// What can be read of a damaged file is kept, and what cannot is found wrong in place of refusing the file.
    bool salvage = false;
    const WrapperCSMIsdNITF* wrapped = nullptr;  ///< the CSM API ISD that stands for the file; null when there is none
    Detail::FindingList findings;                ///< what was found wrong; the ISD takes them over when it succeeds

    /// Why the source is no NITF file: the sentence, with the system's reason or the bytes that stand in place of FHDR.
    Finding NotIdentified(std::string_view aSentence) const;

    /// Opens the file once and reads its first bytes; the version is that which they tell.
    static Request Open(const char* aPath);
    static Request OfSource(std::shared_ptr<const Detail::ByteSource> aSource, std::string aPath);
    static Request OfMemory(const void* aBytes, std::size_t aLength, bool aCopy, const char* aName);
    /// The wrapper must live until the ISD is made.
    static Request OfWrapped(const WrapperCSMIsdNITF& aIsd);
};

namespace Detail {

/// A stdio stream of the file.
struct IsdStream
{
    IsdStream(std::FILE* aFile, const std::atomic<bool>& aIsClosed) noexcept : file(aFile), isClosed(aIsClosed) {}
    IsdStream(const IsdStream&) = delete;
    IsdStream& operator=(const IsdStream&) = delete;
    ~IsdStream()
    {
        if (isClosed) {
            std::fclose(file);
        }
    }

    std::FILE* const file;
    const std::atomic<bool>& isClosed;  ///< with this object; else whoever has the stream closes it
};

}  // namespace Detail

/// What was read of a file: its header and one vector of segments in file order.
struct ORMO_CSM_LOCAL ImageSupportDataNITF::Parts
{
    static constexpr std::size_t KIND_COUNT = 9;

    std::shared_ptr<const Detail::ByteSource> source;
    std::string versionText;
    std::unique_ptr<NITFFileHeader> header;
    NITFStdDataSegmentInfos infos;
    /// By the place in the file; null for a segment that was left out or could not be read.
    std::vector<std::unique_ptr<NITFFieldSegment>> segments;
    Detail::FindingList findings;
    Detail::FindingList validation;
    std::atomic<bool> areStreamsClosed{true};
    Detail::Lazy<Detail::IsdStream> stream;
    Detail::Lazy<Detail::IsdStream> pixelStream;
    bool isOfWrapped = false;  ///< made from a CSM API ISD
    bool specificOnly = false;
    bool salvage = false;
    std::string summary;      ///< the last that was handed out
    std::mutex propertyLock;  ///< guards what follows
    /// Answers to property keys by image; empty when there is none.
    std::map<std::pair<const Detail::PropertyRow*, std::size_t>, std::string> properties;
    Detail::TsmViews tsm;  ///< the file as ISDs of the CSM API, and the sensor models that take it
    Detail::Lazy<std::vector<std::string>> imageIdentifiers;
    /// The raw metadata of the segments of each kind, by the number of the kind.
    std::array<Detail::Lazy<MetadataList>, KIND_COUNT> metadata;

    Parts() = default;
    Parts& operator=(const Parts&) = delete;
    /// All that was read, once more; the file itself is shared, and what is made when asked for is left out.
    std::unique_ptr<Parts> Copy() const;
    /// Whether all segments are equal, in their fields, TREs and data.
    bool operator==(const Parts& aOther) const;

    NITFCnst::Version Version() const noexcept { return header->GetVersion(); }
    /// The segment of a kind; null when there is none or it was not read.
    NITFFieldSegment* Segment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept;
    NITFDESSubheader* Des(std::size_t aIndex) const noexcept;
    NITFImageSubheader* Image(std::size_t aIndex) const noexcept;
    /// One for each image; made of the name of the file when first asked for.
    const std::vector<std::string>& ImageIdentifiers(const std::string& aFile) const;
    std::size_t Count(NITFCnst::DataSegmentType aKind) const noexcept;

private:
    Parts(const Parts& aOther);
};

namespace Detail {

/// Tells every drawn segment where that stands to which it is attached, and checks what the levels say of one another.
void PlaceDrawnSegments(ImageSupportDataNITF::Parts& aParts, FindingList& aFindings);

/// Hands the TREs of every overflow DES to the segment that it names, and checks what both sides say of the other.
void PlaceOverflow(ImageSupportDataNITF::Parts& aParts, FindingList& aFindings);

/// "ImageSegment 2"; without the number for the file header.
std::string SegmentName(NITFCnst::DataSegmentType aKind, std::size_t aIndex);

}  // namespace Detail

}  // namespace ORMO::SensorModel::CSM
