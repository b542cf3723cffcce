#pragma once

#include "fields/ByteSource.h"
#include "fields/FieldRecord.h"
#include "fields/FindingList.h"
#include "fields/Xml.h"
#include "foundation/detail/Lazy.h"
#include "segments/NITFFieldSegment.h"
#include "segments/detail/SegmentKind.h"
#include "segments/detail/SegmentWords.h"
#include "tre/detail/TreArea.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// One version of one kind of header: its rows and what its texts say in a way of their own.
struct ORMO_CSM_LOCAL NITFFieldSegment::Layout
{
    const char* className;  ///< in the texts of assignments
    const char* source;     ///< of the exception that a failed read raises
    const Detail::SegmentKind* kind;
    const Detail::SegmentWords* words;
    Detail::FieldTable table;
    const char* summary;                   ///< closes the texts of a read that failed without saying why
    const char* requiredPrefix = nullptr;  ///< in place of the words' own

    const char* Owner() const noexcept { return GetDataSegmentName(kind->kind); }
};

/// What a header is made from.
struct ORMO_CSM_LOCAL NITFFieldSegment::Input
{
    std::string raw;                                   ///< the header's bytes; taken over
    NITFStdDataSegmentInfo info;                       ///< where they stand
    const char* versionText = "";                      ///< FHDR with the version
    std::shared_ptr<const Detail::ByteSource> source;  ///< of the data; null when there are none to read
    Util::CSMCnst::ByteOrder byteOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;  ///< of binary TRE fields
    bool specificOnly = false;              ///< TREs without a typed form are left out
    Detail::FindingList* shared = nullptr;  ///< collects what is found; null for a list of the header's own
    const char* fileName = "";              ///< for the file header
    /// Lengths of segments that the standard does not allow, but which are numbers, are found wrong and taken all the
    /// same.
    bool salvage = false;
    bool streaming = false;  ///< the file header was put together with the one that closes the file

    Detail::FindingList& Findings() noexcept { return shared == nullptr ? own : *shared; }
    /// The number of the segment among those of its kind; none for the file header.
    int Index() const noexcept
    {
        return info.GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN ? Finding::NO_INDEX
                                                                                : info.GetSegmentIndex();
    }

    Detail::FindingList own;   ///< for a header that is read by itself
    Detail::FindingMark mark;  ///< what this header's reading adds stands behind it
};

/// What the XML of a header is written to.
class ORMO_CSM_LOCAL NITFFieldSegment::Document : public Detail::XmlOut
{
public:
    using XmlOut::XmlOut;
};

/// What was read of one header, and the lists and maps over it that are made when somebody asks for them.
struct ORMO_CSM_LOCAL NITFFieldSegment::Parts
{
    const Layout* layout = nullptr;
    std::string raw;
    Detail::FieldRecord record;
    TREStore tres;
    std::uint64_t fileOffset = 0;
    std::shared_ptr<const Detail::ByteSource> source;  ///< of the data; null when there are none to read
    bool placed = false;  ///< whether it is known where the segment stands to which this one is attached

    Detail::Lazy<std::vector<const char*>> tags;
    Detail::Lazy<std::vector<const char*>> descriptions;
    Detail::Lazy<std::vector<bool>> binary;
    Detail::Lazy<FieldTexts> editability;
    Detail::Lazy<FieldLengths> lengths;
    Detail::Lazy<FieldTypes> types;
    Detail::Lazy<std::unique_ptr<RawNITFMetadataStdDataSegment>> metadata;

    std::uint64_t Number(std::string_view aName) const noexcept;
    /// Where an extension area of this header stands.
    Detail::AreaPlace PlaceOf(const Detail::ExtensionArea& aArea, const Detail::FieldEntry& aEntry) const noexcept;
    /// A finding about a field of this header, with its value and place.
    Finding About(Finding::Level aLevel, std::string_view aSentence, std::string_view aField) const;
    /// The same for a sentence of its own; its level is that of its prefix.
    Finding About(std::string_view aSentence, std::string_view aField) const;
};

namespace Detail {

/// The header of a kind and version; raises as its constructor does. Null for a kind that the version does not have.
std::unique_ptr<NITFFieldSegment> MakeSegment(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion,
                                              NITFFieldSegment::Input& aInput);
/// A copy of a header of any kind, with TREs of its own; raises RequestedOperationFailedException when a special
/// provider refuses to copy a TRE.
std::unique_ptr<NITFFieldSegment> CopySegment(const NITFFieldSegment& aSegment);
/// Whether two headers are of one kind and version, with equal fields, TREs and data.
bool AreEqual(const NITFFieldSegment& aLeft, const NITFFieldSegment& aRight);
/// The layout of a kind in a version; null when the version does not have the kind.
const NITFFieldSegment::Layout* LayoutOf(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept;
/// What the rows say of the values of all TREs of a store.
void CheckTREs(const TREStore& aStore, FindingList& aFindings);
/// Everything that the rows of the header and its TREs and the rules for one header find in a segment.
void CheckSegment(const NITFFieldSegment& aSegment, FindingList& aFindings);

}  // namespace Detail

}  // namespace ORMO::SensorModel::CSM
