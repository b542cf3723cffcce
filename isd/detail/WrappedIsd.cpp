#include "isd/detail/WrappedIsd.h"

#include "fields/ByteSource.h"
#include "fields/FindingList.h"
#include "isd/detail/CsmRecords.h"
#include "isd/detail/IsdParts.h"
#include "tre/detail/TreArea.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Info = NITFStdDataSegmentInfo;

/// The pieces of the file that a wrapped ISD holds, by their offset.
class Pieces
{
public:
    Pieces(const NITFStdDataSegmentInfos& aInfos, FindingList& aFindings) : m_infos(aInfos), m_findings(aFindings) {}

    /// Places the records of one kind; `aHeader` and `aData` answer the bytes of one.
    template<typename Header, typename Data>
    void Place(NITFCnst::DataSegmentType aKind, std::size_t aCount, Header aHeader, Data aData)
    {
        const NITFStdDataSegmentInfos::Infos* const infos = m_infos.Get(aKind);
        const std::size_t told = infos == nullptr ? 0 : infos->size();
        if (told != aCount) {
            m_findings.Add(MakeFinding("ERROR: The file header tells of " + std::to_string(told) + ' ' +
                                       NITFStdDataSegment::GetDataSegmentName(aKind) + "(s), the ISD holds " +
                                       std::to_string(aCount) + '.'));
            return;
        }
        for (std::size_t i = 0; i != told; ++i) {
            const Info& info = *(*infos)[i];
            Place(info, "subheader", info.GetSegmentHeaderStart(), info.GetSegmentHeaderSize(), aHeader(i));
            // Data that the file did not hold are none in the ISD.
            const std::string_view data = aData(i);
            Place(info, "data", info.GetSegmentDataStart(), data.empty() ? 0 : info.GetSegmentDataSize(), data);
        }
    }

    void Place(std::uint64_t aOffset, std::string_view aBytes)
    {
        if (!aBytes.empty()) {
            m_pieces.emplace(aOffset, aBytes);
        }
    }

    std::map<std::uint64_t, std::string> Take() noexcept { return std::move(m_pieces); }

private:
    void Place(const Info& aInfo, const char* aPart, std::uint64_t aOffset, std::uint64_t aSize,
               std::string_view aBytes)
    {
        if (aBytes.size() != aSize) {
            m_findings.Add(MakeFinding(
                "ERROR: The file header gives the " + std::string(aPart) + " of " +
                SegmentName(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex())) + ' ' +
                std::to_string(aSize) + " byte(s), the ISD holds " + std::to_string(aBytes.size()) + '.'));
            return;
        }
        Place(aOffset, aBytes);
    }

    const NITFStdDataSegmentInfos& m_infos;
    FindingList& m_findings;
    std::map<std::uint64_t, std::string> m_pieces;
};

constexpr std::size_t TAG_WIDTH = 6;
constexpr std::size_t LENGTH_WIDTH = 5;

using TreBytes = std::pair<std::string, std::string>;

std::string_view Trimmed(std::string_view aTag) noexcept
{
    return aTag.substr(0, aTag.find_last_not_of(' ') + 1);
}

/// Tag and data of every TRE of a segment.
std::vector<TreBytes> TresOf(const NITFFieldSegment& aSegment)
{
    std::vector<TreBytes> tres;
    for (const TREStore* const store : {&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            std::size_t length = 0;
            const char* const data = tre->GetRawTREDataString(length);
            tres.emplace_back(Trimmed(tre->GetTag()), std::string(data, length));
        }
    }
    return tres;
}

/// What an extension area with all records would be, without those that the segment knows already.
std::string UnknownTres(const ::tre* aRecords, std::size_t aCount, const NITFFieldSegment& aSegment)
{
    std::vector<TreBytes> known = TresOf(aSegment);
    std::string area;
    for (std::size_t i = 0; i != aCount; ++i) {
        const TreBytes record(Trimmed(TagOf(aRecords[i])), BytesOf(aRecords[i].record, aRecords[i].length));
        const auto found = std::find(known.begin(), known.end(), record);
        if (found != known.end()) {
            known.erase(found);
            continue;
        }
        std::string tag = record.first;
        tag.resize(TAG_WIDTH, ' ');
        const std::string length = std::to_string(record.second.size());
        area += tag + std::string(LENGTH_WIDTH - std::min(LENGTH_WIDTH, length.size()), '0') + length + record.second;
    }
    return area;
}

void AddTres(const ::tre* aRecords, std::size_t aCount, ImageSupportDataNITF::Parts& aParts, NITFFieldSegment& aSegment,
             FindingList& aFindings)
{
    const std::string area = UnknownTres(aRecords, aCount, aSegment);
    if (area.empty()) {
        return;
    }
    TREStore store;
    const auto byteOrder =
        aParts.header->IsRPFFile() ? aParts.header->GetRPFFileByteOrder() : Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
    ExtractTREs(area, store, {false, false}, byteOrder, {nullptr, 0, TRE::TRE_TYPE_CONTROLLED_EXTENSION}, aFindings);
    for (const TRE* const tre : store.InOrder()) {
        aSegment.AddOverflowTRE(tre);
    }
}

}  // namespace

std::shared_ptr<const ByteSource> SourceOfWrapped(const WrapperCSMIsdNITF& aIsd, const NITFStdDataSegmentInfos& aInfos,
                                                  FindingList& aFindings)
{
    const FindingMark before = aFindings.Now();
    Pieces pieces(aInfos, aFindings);
    // What stands behind the header's own length is no part of it.
    const auto& infos = aInfos.InFileOrder();
    const std::uint64_t headerEnd = infos.empty() ? aInfos.GetEnd() : infos.front()->GetSegmentHeaderStart();
    pieces.Place(0, aIsd.GetFileHeader().substr(0, static_cast<std::size_t>(headerEnd)));
    pieces.Place(
        NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIsd.GetNumOfImages(),
        [&](std::size_t aIndex) { return aIsd.GetImage(aIndex).GetImageSubheader(); },
        [](std::size_t) { return std::string_view(); });
    pieces.Place(
        NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aIsd.GetNumOfDESs(),
        [&](std::size_t aIndex) { return aIsd.GetDESSubheader(aIndex); },
        [&](std::size_t aIndex) { return aIsd.GetDESData(aIndex); });
    if (aFindings.Errors(before) != 0) {
        return nullptr;
    }
    return ByteSource::OfPieces(pieces.Take(), aInfos.GetEnd(), aIsd.GetImageFileName());
}

void AddTresOfRecords(const WrapperCSMIsdNITF& aIsd, ImageSupportDataNITF::Parts& aParts, FindingList& aFindings)
{
    std::size_t count = 0;
    const ::tre* tres = aIsd.GetFileTREs(count);
    AddTres(tres, count, aParts, *aParts.header, aFindings);
    for (std::size_t i = 0; i != aIsd.GetNumOfImages(); ++i) {
        if (NITFFieldSegment* const image = aParts.Segment(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, i)) {
            tres = aIsd.GetImage(i).GetTREs(count);
            AddTres(tres, count, aParts, *image, aFindings);
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
