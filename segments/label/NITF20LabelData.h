#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// The text of a label of a NITF 2.0 file and how it is shown. Sizes and places are in pixels, places relative to what
/// the label is attached to. MIL-STD-2500A.
class ORMO_CSM_API NITF20LabelData
{
public:
    /// `aText` has `aLength` characters; colours are red, green and blue. A cell height or width of 0 means that the
    /// file does not give it. Raises InitializationException for a null pointer and for a size below 0 or above 99.
    NITF20LabelData(const char* aText, std::size_t aLength, const std::uint8_t* aTextColor,
                    const std::uint8_t* aBackgroundColor, int aCellHeight, int aCellWidth, long aUpperLeftRow,
                    long aUpperLeftColumn);

    /// The characters, NUL-terminated; they belong to the label.
    const char* GetLabelText(std::size_t& aLength) const noexcept;
    void GetLabelTextColor(int& aRed, int& aGreen, int& aBlue) const noexcept;
    void GetLabelBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept;
    void GetLabelCellHeightAndWidth(int& aHeight, int& aWidth) const noexcept;
    void GetUpperLeftCorner(long& aRow, long& aColumn) const noexcept;

    /// The bytes of a metafile that draws the text in COURIER_BOLD; its (0, 0) is the upper left corner of the label.
    /// `aNumber` is the number of the label, from 1. Empty when the text is too long for one element.
    std::string ConvertToCGM(int aNumber) const;
    /// Appends a rectangle in the background colour, for the text to stand on, its upper left corner at the given
    /// column and row.
    void AppendBackgroundSvg(double aColumn, double aRow, std::string& aSvg) const;
    /// The element LabelData, each line behind the given indent.
    std::string Serialize(std::string_view aIndent) const;

    bool operator==(const NITF20LabelData& aOther) const noexcept;
    bool operator!=(const NITF20LabelData& aOther) const noexcept { return !(*this == aOther); }

private:
    struct Cell
    {
        int height;    ///< of the label's bounding box
        int capitals;  ///< height of a capital letter
        int width;     ///< of one character
    };

    void InitNITF20LabelData(const char* aText, std::size_t aLength, const std::uint8_t* aTextColor,
                             const std::uint8_t* aBackgroundColor);
    Cell ShownCell() const noexcept;

    std::string m_text;
    int m_textColor[3]{};
    int m_backgroundColor[3]{};
    int m_cellHeight;
    int m_cellWidth;
    long m_row;
    long m_column;
};

}  // namespace ORMO::SensorModel::CSM
