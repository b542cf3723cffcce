#include "segments/cgm/NITFCGMMetaFile.h"

#include "fields/Xml.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"
#include "nitf/NITFCnst.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "segments/cgm/CGMDrawing.h"
#include "segments/cgm/detail/CgmDecoder.h"
#include "segments/cgm/detail/CgmPrimitiveParts.h"

#include <cmath>
#include <stdexcept>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* INVALID_ARGUMENT = "ERROR: Invalid input argument(s).";

std::string Copied(const char* aData, std::size_t aSize)
{
    if (aData == nullptr) {
        throw std::invalid_argument(INVALID_ARGUMENT);
    }
    return {aData, aSize};
}

/// Compares with what the file holds before it allocates.
std::string ReadFrom(std::FILE* aFile, const NITFStdDataSegmentInfo* aInfo)
{
    if (aFile == nullptr || aInfo == nullptr) {
        throw std::invalid_argument(INVALID_ARGUMENT);
    }
    const std::uint64_t start = aInfo->GetSegmentDataStart();
    const std::uint64_t size = aInfo->GetSegmentDataSize();
    const off_t end = fseeko(aFile, 0, SEEK_END) == 0 ? ftello(aFile) : -1;
    std::string bytes;
    bool good = end >= 0 && start <= static_cast<std::uint64_t>(end) && size <= static_cast<std::uint64_t>(end) - start;
    if (good) {
        bytes.resize(static_cast<std::size_t>(size));
        good = fseeko(aFile, static_cast<off_t>(start), SEEK_SET) == 0 &&
               std::fread(bytes.data(), 1, bytes.size(), aFile) == bytes.size();
    }
    if (!good) {
        const std::string text = "ERROR: The " + std::to_string(size) + " byte(s) of graphic data at byte offset " +
                                 std::to_string(start) + " cannot be read.";
        throw FileAccessException(text.c_str(), "NITFCGMMetaFile::NITFCGMMetaFile");
    }
    return bytes;
}

}  // namespace

struct ORMO_CSM_LOCAL NITFCGMMetaFile::Contents : Detail::CgmContents
{
};

std::unique_ptr<const NITFCGMMetaFile::Contents> NITFCGMMetaFile::Decoded(std::string_view aStream)
{
    auto contents = std::make_unique<Contents>();
    Detail::CgmDecoder(aStream, *contents).Run();
    return contents;
}

NITFCGMMetaFile::NITFCGMMetaFile(const char* aData, long aAttachmentLevel, long aDisplayLevel, long aRow, long aColumn,
                                 std::size_t aSize)
    : m_raw(Copied(aData, aSize)),
      m_attachmentLevel(aAttachmentLevel),
      m_displayLevel(aDisplayLevel),
      m_row(aRow),
      m_column(aColumn),
      m_placed(aAttachmentLevel == 0)
{
    CheckPlace();
    m_contents = Decoded(m_raw);
}

NITFCGMMetaFile::NITFCGMMetaFile(const NITFStdDataSegmentInfo* aInfo, long aAttachmentLevel, long aDisplayLevel,
                                 long aRow, long aColumn, std::FILE* aFile)
    : m_raw(ReadFrom(aFile, aInfo)),
      m_attachmentLevel(aAttachmentLevel),
      m_displayLevel(aDisplayLevel),
      m_row(aRow),
      m_column(aColumn),
      m_placed(aAttachmentLevel == 0)
{
    CheckPlace();
    m_contents = Decoded(m_raw);
}

NITFCGMMetaFile::NITFCGMMetaFile(const NITFCGMMetaFile& aOther)
    : m_raw(aOther.m_raw),
      m_attachmentLevel(aOther.m_attachmentLevel),
      m_displayLevel(aOther.m_displayLevel),
      m_row(aOther.m_row),
      m_column(aOther.m_column),
      m_offsetRow(aOther.m_offsetRow),
      m_offsetColumn(aOther.m_offsetColumn),
      m_placed(aOther.m_placed),
      m_contents(std::make_unique<Contents>(*aOther.m_contents))
{
}

NITFCGMMetaFile& NITFCGMMetaFile::operator=(const NITFCGMMetaFile& aOther)
{
    if (this != &aOther) {
        NITFCGMMetaFile copy(aOther);
        m_raw.swap(copy.m_raw);
        m_attachmentLevel = copy.m_attachmentLevel;
        m_displayLevel = copy.m_displayLevel;
        m_row = copy.m_row;
        m_column = copy.m_column;
        m_offsetRow = copy.m_offsetRow;
        m_offsetColumn = copy.m_offsetColumn;
        m_placed = copy.m_placed;
        m_contents.swap(copy.m_contents);
    }
    return *this;
}

NITFCGMMetaFile::~NITFCGMMetaFile() = default;

void NITFCGMMetaFile::CheckPlace() const
{
    if (m_attachmentLevel < 0 || m_displayLevel < 0 || m_displayLevel == m_attachmentLevel ||
        (m_attachmentLevel == 0 && (m_row < 0 || m_column < 0))) {
        throw std::invalid_argument(INVALID_ARGUMENT);
    }
}

bool NITFCGMMetaFile::operator==(const NITFCGMMetaFile& aOther) const
{
    return m_raw == aOther.m_raw && m_attachmentLevel == aOther.m_attachmentLevel &&
           m_displayLevel == aOther.m_displayLevel && m_row == aOther.m_row && m_column == aOther.m_column &&
           m_placed == aOther.m_placed && m_offsetRow == aOther.m_offsetRow && m_offsetColumn == aOther.m_offsetColumn;
}

const std::vector<const NITFCGMGraphicPrimitive*>& NITFCGMMetaFile::GetAllGraphicalPrimitiveElements() const noexcept
{
    return m_contents->primitives;
}

std::size_t NITFCGMMetaFile::GetNumNonNITFCGMCompliantInputs() const noexcept
{
    return m_contents->nonCompliant;
}

std::size_t NITFCGMMetaFile::GetNumSkippedGraphicalPrimitives() const noexcept
{
    return m_contents->notDrawn;
}

void NITFCGMMetaFile::GetVDCExtent(int& aLowerLeftX, int& aLowerLeftY, int& aUpperRightX,
                                   int& aUpperRightY) const noexcept
{
    aLowerLeftX = m_contents->extent[0];
    aLowerLeftY = m_contents->extent[1];
    aUpperRightX = m_contents->extent[2];
    aUpperRightY = m_contents->extent[3];
}

const CGMFault* NITFCGMMetaFile::GetFault() const noexcept
{
    return m_contents->fault.get();
}

bool NITFCGMMetaFile::HasEndOfMetafile() const noexcept
{
    return m_contents->ended;
}

const char* NITFCGMMetaFile::GetRawCGMDataStream(std::size_t& aSize) const noexcept
{
    aSize = m_raw.size();
    return m_raw.c_str();
}

bool NITFCGMMetaFile::GetAbsCCS(long& aRow, long& aColumn) const noexcept
{
    aRow = m_row + m_offsetRow;
    aColumn = m_column + m_offsetColumn;
    return m_placed;
}

bool NITFCGMMetaFile::GetRelCCS(long& aRow, long& aColumn) const noexcept
{
    aRow = m_row;
    aColumn = m_column;
    return true;
}

bool NITFCGMMetaFile::GetCommonCoordinateSys(long& aUpperRow, long& aLeftColumn, long& aLowerRow, long& aRightColumn,
                                             long& aRow, long& aColumn) const
{
    const bool placed = GetAbsCCS(aRow, aColumn);
    CGMDrawing::Bounds bounds{};
    static_cast<void>(CGMDrawing::GetBounds(*this, bounds));
    aUpperRow = aRow + std::lround(std::floor(bounds.top));
    aLeftColumn = aColumn + std::lround(std::floor(bounds.left));
    aLowerRow = aRow + std::lround(std::ceil(bounds.bottom));
    aRightColumn = aColumn + std::lround(std::ceil(bounds.right));
    return placed;
}

void NITFCGMMetaFile::SetCCSOffsetValues(long aColumn, long aRow) noexcept
{
    if (m_attachmentLevel != 0) {
        m_offsetColumn = aColumn;
        m_offsetRow = aRow;
        m_placed = true;
    }
}

std::size_t NITFCGMMetaFile::GetNumOfClearTextLines() const noexcept
{
    return m_contents->lineEnds.size();
}

std::string_view NITFCGMMetaFile::GetClearTextLine(std::size_t aIndex) const noexcept
{
    const auto& ends = m_contents->lineEnds;
    if (aIndex >= ends.size()) {
        return {};
    }
    const std::size_t start = aIndex == 0 ? 0 : ends[aIndex - 1];
    return std::string_view(m_contents->clearText).substr(start, ends[aIndex] - start);
}

bool NITFCGMMetaFile::Serialize(char** aOut, const char* aIndent) const
{
    if (aOut == nullptr) {
        return false;
    }
    std::string xml;
    AppendXml(xml, aIndent == nullptr ? "" : aIndent);
    return Detail::HandOut(xml, aOut);
}

void NITFCGMMetaFile::AppendXml(std::string& aXml, std::string_view aIndent) const
{
    const std::string_view name = NITFCnst::XML_ELEMENT_CGM_METAFILE;
    aXml.append(aIndent).append("<").append(name);
    if (Detail::IsXmlText(m_contents->clearText)) {
        aXml += ">\n";
        for (std::size_t i = 0; i != GetNumOfClearTextLines(); ++i) {
            aXml.append(aIndent).append("  ");
            Detail::AppendXmlText(GetClearTextLine(i), aXml);
            aXml += '\n';
        }
        aXml += aIndent;
    } else {
        std::string lines;
        for (std::size_t i = 0; i != GetNumOfClearTextLines(); ++i) {
            lines.append(GetClearTextLine(i)).append("\n");
        }
        Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_BASE64_ENCODED, "T", aXml);
        aXml += '>';
        Util::CSMUtilString::AppendBase64(lines, aXml);
    }
    aXml.append("</").append(name).append(">\n");
}

void NITFCGMMetaFile::DeleteCString(char*& aText) noexcept
{
    Util::CSMUtilString::DeleteCString(aText);
}

bool NITFCGMMetaFile::CloneCGMGraphicalPrimitiveElement(const NITFCGMGraphicPrimitive* aPrimitive,
                                                        NITFCGMGraphicPrimitive** aCopy)
{
    if (aPrimitive == nullptr || aCopy == nullptr) {
        return false;
    }
    *aCopy = Detail::CgmPrimitiveParts::Copy(*aPrimitive);
    return true;
}

bool NITFCGMMetaFile::Equal(const NITFCGMGraphicPrimitive& aFirst, const NITFCGMGraphicPrimitive& aSecond)
{
    return aFirst == aSecond;
}

}  // namespace ORMO::SensorModel::CSM
