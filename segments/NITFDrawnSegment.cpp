#include "segments/NITFDrawnSegment.h"

#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/detail/SegmentLayout.h"

#include <stdexcept>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::string_view ERROR_PREFIX = "ERROR: ";

}  // namespace

NITFDrawnSegment::NITFDrawnSegment(const Layout& aLayout, Input& aInput) : NITFDataSegment(aLayout, aInput) {}
NITFDrawnSegment::NITFDrawnSegment(const NITFDrawnSegment& aOther) = default;
NITFDrawnSegment::~NITFDrawnSegment() = default;

bool NITFDrawnSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFDrawnSegment*>(&aOther);
    if (other == nullptr || !NITFDataSegment::CloneObj(aOther)) {
        return false;
    }
    m_metafile = other->m_metafile;
    return true;
}

void NITFDrawnSegment::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFDrawnSegment*>(&aOther);
    if (other != nullptr) {
        NITFDataSegment::Swap(aOther);
        m_metafile.swap(other->m_metafile);
    }
}

std::string NITFDrawnSegment::DataFaultText() const
{
    if (HasDataSource()) {
        return {};
    }
    std::string word = Inside().layout->words->kindWord;
    word[0] = static_cast<char>(word[0] - 'a' + 'A');
    return ERROR_PREFIX.data() + word + " segment subheader data stream has not been properly initialized.";
}

void NITFDrawnSegment::ReadMetafile(std::string_view aBytes, Input& aInput, std::uint64_t aOffset)
{
    long row = 0;
    long column = 0;
    static_cast<void>(GetLocation(row, column));
    const auto attachment = static_cast<long>(GetDataSegmentAttachmentLevel());
    const auto display = static_cast<long>(GetDataSegmentDisplayLevel());
    try {
        m_metafile = std::make_shared<NITFCGMMetaFile>(aBytes.data(), attachment, display, row, column, aBytes.size());
    } catch (const std::invalid_argument&) {
        Finding finding = Detail::MakeFinding("WARN: The metafile is not read: it cannot have this place.", "RD-06");
        finding.detail = "The display level is " + std::to_string(display) + ", the attachment level " +
                         std::to_string(attachment) + ", the location row " + std::to_string(row) + " and column " +
                         std::to_string(column);
        finding.offset = Inside().fileOffset;
        aInput.Findings().Add(std::move(finding));
        return;
    }
    if (const CGMFault* const fault = m_metafile->GetFault(); fault != nullptr) {
        Finding finding = Detail::MakeFinding("WARN: The metafile cannot be read to its end.", "RD-06");
        finding.detail = fault->text.substr(ERROR_PREFIX.size());
        finding.offset = aOffset == Finding::NO_OFFSET ? aOffset : aOffset + fault->offset;
        finding.value = aBytes.substr(static_cast<std::size_t>(fault->offset), 16);
        aInput.Findings().Add(std::move(finding));
    } else if (!m_metafile->HasEndOfMetafile() && !aBytes.empty()) {
        Finding finding = Detail::MakeFinding("WARN: The metafile ends without the element END METAFILE.", "CGM-01");
        finding.offset = aOffset;
        aInput.Findings().Add(std::move(finding));
    }
}

void NITFDrawnSegment::ReadMetafile(Input& aInput)
{
    std::string bytes;
    if (ReadData(bytes)) {  // who read the segment tables has told of data that are not all there
        ReadMetafile(bytes, aInput, GetSegmentDataStart());
    }
}

void NITFDrawnSegment::SetAttachedTo(long aColumn, long aRow) noexcept
{
    NITFDataSegment::SetAttachedTo(aColumn, aRow);
    if (m_metafile != nullptr) {
        m_metafile->SetCCSOffsetValues(aColumn, aRow);
    }
}

bool NITFDrawnSegment::AppendSvg(std::string& aSvg) const
{
    if (m_metafile == nullptr || m_metafile->GetAllGraphicalPrimitiveElements().empty()) {
        return false;
    }
    CGMDrawing::AppendSvg(*m_metafile, static_cast<double>(GetCCSColumnValue()), static_cast<double>(GetCCSRowValue()),
                          aSvg);
    return true;
}

bool NITFDrawnSegment::GetDrawnBounds(CGMDrawing::Bounds& aBounds) const
{
    if (m_metafile == nullptr || !CGMDrawing::GetBounds(*m_metafile, aBounds)) {
        return false;
    }
    const auto column = static_cast<double>(GetCCSColumnValue());
    const auto row = static_cast<double>(GetCCSRowValue());
    aBounds = {aBounds.left + column, aBounds.top + row, aBounds.right + column, aBounds.bottom + row};
    return true;
}

std::string NITFDrawnSegment::MetafileElement(std::string_view aIndent) const
{
    std::string element;
    if (m_metafile != nullptr) {
        m_metafile->AppendXml(element, aIndent);
    }
    return element;
}

std::string NITFDrawnSegment::DrawnElements(std::string_view aIndent) const
{
    return MetafileElement(aIndent);
}

void NITFDrawnSegment::AppendElementsAfterTREs(std::string& aXml) const
{
    aXml += DrawnElements(Inside().layout->words->indent);
}

}  // namespace ORMO::SensorModel::CSM
