#pragma once

#include "../../foundation/Export.h"

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// A symbol of a NITF 2.0 file that is one of eighteen numbered shapes. Lengths and places are in pixels, places
/// relative to what the symbol is attached to. MIL-STD-2500A.
class ORMO_CSM_API NITF20ObjectSymbol
{
public:
    /// The fields of the subheader that say what is drawn.
    struct Fields
    {
        int type = 0;           ///< SNUM, 1 to 18
        char color = 'K';       ///< SCOLOR
        long height = 0;        ///< NLIPS
        long width = 0;         ///< NPIXPL
        long lineWidth = 0;     ///< NWDTH; the height means that the shape is filled
        long row = 0;           ///< SLOC: begin of a line, apex of an arrow, else the centre
        long column = 0;        ///< as above
        long secondRow = 0;     ///< SLOC2: end of a line, base of an arrow's shaft
        long secondColumn = 0;  ///< as above
        int rotation = 0;       ///< SROT, degrees counterclockwise, 0 to 359
    };

    /// Raises std::invalid_argument for a type or rotation out of range and for a negative length.
    explicit NITF20ObjectSymbol(const Fields& aFields);

    /// "circle" and so on; null for the numbers 7 to 9 and for what is no type.
    static const char* GetObjectSymbolTypeName(int aType) noexcept;
    const char* GetObjectSymbolTypeName() const noexcept { return GetObjectSymbolTypeName(m_fields.type); }
    int GetObjectSymbolType() const noexcept { return m_fields.type; }
    const Fields& GetFields() const noexcept { return m_fields; }
    /// Black for a SCOLOR that names no colour.
    void GetRGBColor(int& aRed, int& aGreen, int& aBlue) const noexcept;
    bool IsFilled() const noexcept;
    /// "solid color" or "empty".
    const char* GetInteriorStyle() const noexcept;

    /// Appends SVG elements in which what the symbol is attached to begins at the given column and row.
    void AppendSvg(double aColumn, double aRow, std::string& aSvg) const;
    /// The element ObjectSymbol, each line behind the given indent.
    std::string Serialize(std::string_view aIndent) const;

    bool operator==(const NITF20ObjectSymbol& aOther) const noexcept;
    bool operator!=(const NITF20ObjectSymbol& aOther) const noexcept { return !(*this == aOther); }

private:
    Fields m_fields;
};

}  // namespace ORMO::SensorModel::CSM
