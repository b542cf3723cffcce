#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// A symbol of a NITF 2.0 file that is a small image: pixels of 1 to 8 bits, row by row without padding between rows,
/// and what their values mean. MIL-STD-2500A.
class ORMO_CSM_API NITF20BitmappedSymbol
{
public:
    /// What a pixel shows.
    struct Color
    {
        bool transparent = true;
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;

        bool operator==(const Color& aOther) const noexcept
        {
            return transparent == aOther.transparent && red == aOther.red && green == aOther.green &&
                   blue == aOther.blue;
        }
        bool operator!=(const Color& aOther) const noexcept { return !(*this == aOther); }
    };

    /// `aColor` is SCOLOR; `aLut` the look-up table as it stands in the file: three bytes per entry for "C", one for
    /// "G". Raises std::invalid_argument for fewer than 1 or more than 8 bits, a negative size, and a null pointer with
    /// a length. Fewer data than pixels are taken as they are: what is missing is transparent.
    NITF20BitmappedSymbol(char aColor, int aBitsPerPixel, long aRows, long aColumns, long aUpperLeftRow,
                          long aUpperLeftColumn, const char* aLut, std::size_t aLutLength, const char* aData,
                          std::size_t aDataLength);

    /// What a SCOLOR means; null for a character that means nothing.
    static const char* GetSCOLORDescription(char aColor) noexcept;
    const char* GetSCOLORDescription() const noexcept { return GetSCOLORDescription(m_color); }
    char GetSCOLOR() const noexcept { return m_color; }
    int GetNumStorageBitsPerPixel() const noexcept { return m_bits; }
    void GetImageRowsAndColumns(long& aRows, long& aColumns) const noexcept;
    /// Where the upper left pixel stands, relative to what the symbol is attached to.
    void GetUpperLeftPixelLocation(long& aRow, long& aColumn) const noexcept;
    /// Entries of the look-up table; 0 without one.
    std::size_t GetLUTSize() const noexcept { return m_red.size() + m_gray.size(); }
    /// The components of the colour table, GetLUTSize bytes each; null without one. They belong to the symbol.
    bool GetColorLUT(const std::uint8_t*& aRed, const std::uint8_t*& aGreen, const std::uint8_t*& aBlue) const noexcept;
    bool GetGrayScaleLUT(const std::uint8_t*& aGray) const noexcept;

    /// The stored value of a pixel; false outside the symbol and where data are missing.
    bool GetPixelValue(long aRow, long aColumn, int& aValue) const noexcept;
    /// What the value of a pixel means; transparent where there is none.
    Color GetPixelColor(long aRow, long aColumn) const noexcept;

    /// Appends SVG elements in which the upper left pixel stands at the given column and row.
    void AppendSvg(double aColumn, double aRow, std::string& aSvg) const;
    /// The element BitmappedSymbol, each line behind the given indent.
    std::string Serialize(std::string_view aIndent) const;

    bool operator==(const NITF20BitmappedSymbol& aOther) const noexcept;
    bool operator!=(const NITF20BitmappedSymbol& aOther) const noexcept { return !(*this == aOther); }

private:
    Color ColorOf(int aValue) const noexcept;

    char m_color;
    int m_bits;
    long m_rows;
    long m_columns;
    long m_row;
    long m_column;
    std::vector<std::uint8_t> m_red;
    std::vector<std::uint8_t> m_green;
    std::vector<std::uint8_t> m_blue;
    std::vector<std::uint8_t> m_gray;
    std::string m_data;
};

}  // namespace ORMO::SensorModel::CSM
