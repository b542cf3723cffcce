#pragma once

#include "../../foundation/Export.h"
#include "CGMCnst.h"
#include "NITFCGMGraphicPrimitive.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

class NITFStdDataSegmentInfo;

/// Why reading a metafile ended before the end of its data.
struct CGMFault
{
    int elementClass = -1;     ///< of the element that cannot be read; -1 when not even its header is there
    int elementId = -1;        ///< as above
    std::uint64_t offset = 0;  ///< of that element's header in the metafile, bytes
    std::string text;          ///< one sentence with all of this and the reason
};

/// The CGM of one graphic segment: a copy of its bytes, the primitives that it draws, and each element as clear text.
///
/// Read is the binary encoding of ISO 8632-3 as far as the NITF profile (MIL-STD-2301) uses it. A value that the
/// profile does not allow is replaced and counted. Elements that are not in the profile's table are skipped. A
/// malformed primitive, or a length beyond the end, ends the reading: the object then holds what stands before it, and
/// GetFault tells where and why.
class ORMO_CSM_API NITFCGMMetaFile
{
public:
    /// `aData` are the bytes of the metafile, `aRow` and `aColumn` the location of the graphic relative to what it is
    /// attached to, in pixels. Raises std::invalid_argument for null data, a negative level, equal levels, and a
    /// negative location of a graphic that is attached to nothing (level 0).
    NITFCGMMetaFile(const char* aData, long aAttachmentLevel, long aDisplayLevel, long aRow, long aColumn,
                    std::size_t aSize);
    /// The same for the data of a segment of an open file. Raises std::invalid_argument also for a null pointer, and
    /// FileAccessException when the file does not hold the data. The position in the file changes.
    NITFCGMMetaFile(const NITFStdDataSegmentInfo* aInfo, long aAttachmentLevel, long aDisplayLevel, long aRow,
                    long aColumn, std::FILE* aFile);
    NITFCGMMetaFile(const NITFCGMMetaFile& aOther);
    NITFCGMMetaFile& operator=(const NITFCGMMetaFile& aOther);
    ~NITFCGMMetaFile();

    /// Same bytes, levels and location.
    bool operator==(const NITFCGMMetaFile& aOther) const;
    bool operator!=(const NITFCGMMetaFile& aOther) const { return !(*this == aOther); }

    /// The primitives in the order in which they are drawn; they belong to the metafile.
    const std::vector<const NITFCGMGraphicPrimitive*>& GetAllGraphicalPrimitiveElements() const noexcept;
    /// How many values were none of the profile's.
    std::size_t GetNumNonNITFCGMCompliantInputs() const noexcept;
    /// How many graphical primitives were skipped because the profile's table does not have them.
    std::size_t GetNumSkippedGraphicalPrimitives() const noexcept;
    /// Two opposite corners of the picture: the lower left one and the upper right one. In the profile y runs down, as
    /// rows do, from (0, 32767) to (32767, 0); there are metafiles in which it runs up.
    void GetVDCExtent(int& aLowerLeftX, int& aLowerLeftY, int& aUpperRightX, int& aUpperRightY) const noexcept;
    /// Null when the data were read to their end.
    const CGMFault* GetFault() const noexcept;
    /// Whether an END METAFILE was read.
    bool HasEndOfMetafile() const noexcept;
    /// The bytes, NUL-terminated; they belong to the metafile.
    const char* GetRawCGMDataStream(std::size_t& aSize) const noexcept;
    long GetGraphicDisplayLevel() const noexcept { return m_displayLevel; }
    long GetGraphicAttachmentLevel() const noexcept { return m_attachmentLevel; }

    /// Where (0, 0) of the metafile stands in the common coordinate system. False, with the relative location, as long
    /// as the graphic is attached to something whose place is not known.
    bool GetAbsCCS(long& aRow, long& aColumn) const noexcept;
    /// The location as given; always true.
    bool GetRelCCS(long& aRow, long& aColumn) const noexcept;
    /// The smallest rectangle around all that is drawn (the extent of texts is an estimate) and the location, in the
    /// common coordinate system; false as for GetAbsCCS. Without primitives both corners are the location.
    bool GetCommonCoordinateSys(long& aUpperRow, long& aLeftColumn, long& aLowerRow, long& aRightColumn, long& aRow,
                                long& aColumn) const;
    /// Tells where the segment stands to which the graphic is attached. Ignored for a graphic attached to nothing.
    void SetCCSOffsetValues(long aColumn, long aRow) noexcept;

    /// One line of clear text per element that was read, indented, in ISO 8632-4; bytes above 127 are Latin-1.
    std::size_t GetNumOfClearTextLines() const noexcept;
    /// Empty for an index that is too large; valid as long as the metafile.
    std::string_view GetClearTextLine(std::size_t aIndex) const noexcept;
    /// The clear text as an XML element, in a new text that the caller frees with DeleteCString. Clear text with bytes
    /// that XML cannot carry is written in base64.
    bool Serialize(char** aOut, const char* aIndent) const;
    /// Appends the same element.
    void AppendXml(std::string& aXml, std::string_view aIndent) const;
    static void DeleteCString(char*& aText) noexcept;

    /// A deep copy that the caller deletes; false for a null argument.
    static bool CloneCGMGraphicalPrimitiveElement(const NITFCGMGraphicPrimitive* aPrimitive,
                                                  NITFCGMGraphicPrimitive** aCopy);
    /// Same element, geometry and attributes.
    static bool Equal(const NITFCGMGraphicPrimitive& aFirst, const NITFCGMGraphicPrimitive& aSecond);

    /// Writes a whole metafile that draws one line of text.
    ///
    /// `aDescriptions` are those of the metafile and of the picture, null for none; `aText` has `aTextLength` Latin-1
    /// characters, or ends with a NUL when that is negative, and the number is put there; its base line begins at
    /// `aRow` and `aColumn`; `aColor` is red, green and blue, null for black; `aFont` null means COURIER_BOLD. The
    /// bytes are a new array of `aSize`, which the caller frees with DeleteCString. False, with a null output, for an
    /// argument that is missing or out of range, and for a text that fits no element.
    static bool BinaryEncodeNITFCGMText(
        char** aOut, const char** aDescriptions, const char* aText, int& aTextLength, short aRow, short aColumn,
        short* aColor, std::size_t& aSize, const char* aFont = nullptr,
        short aCharacterHeight = CGMCnst::BinaryC5Attribute::VAL_NITF_DEFAULT_CODE_CHARACTER_HEIGHT);

private:
    struct Contents;

    static std::unique_ptr<const Contents> Decoded(std::string_view aStream);
    void CheckPlace() const;

    std::string m_raw;
    long m_attachmentLevel;
    long m_displayLevel;
    long m_row;
    long m_column;
    long m_offsetRow = 0;
    long m_offsetColumn = 0;
    bool m_placed;
    std::unique_ptr<const Contents> m_contents;
};

}  // namespace ORMO::SensorModel::CSM
