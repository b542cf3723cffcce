#pragma once

#include "../NITFDrawnSegment.h"
#include "NITF20BitmappedSymbol.h"
#include "NITF20ObjectSymbol.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// The subheader of one symbol segment of NITF 2.0 (MIL-STD-2500A, table VII), and what it draws: by STYPE a metafile,
/// a bitmapped symbol or an object symbol.
class ORMO_CSM_API NITF20SymbolSubheader : public NITFDrawnSegment
{
public:
    /// Made by the reader of files only.
    explicit NITF20SymbolSubheader(Input& aInput);
    NITF20SymbolSubheader(const NITF20SymbolSubheader& aOther) = default;
    using NITFDrawnSegment::operator=;
    using NITFDrawnSegment::operator==;
    using NITFDrawnSegment::operator!=;
    NITF20SymbolSubheader& operator=(const NITF20SymbolSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20SymbolSubheader& aOther) const { return NITFDrawnSegment::operator==(aOther); }
    bool operator!=(const NITF20SymbolSubheader& aOther) const { return !(*this == aOther); }

    /// Null when the symbol is of another kind, or its fields or data cannot be those of such a symbol. Owned by the
    /// segment and its copies.
    const NITF20BitmappedSymbol* GetBitmappedSymbol() const noexcept { return m_bitmap.get(); }
    /// As above.
    const NITF20ObjectSymbol* GetObjectSymbol() const noexcept { return m_object.get(); }
    /// SXSOFL: the number, from 1, of the DES that carries what did not fit into SXSHD; 0 for none.
    unsigned long GetOverflowSymbolExtendedSubheaderData() const noexcept;
    bool GetAllSymbolSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }

    bool AppendSvg(std::string& aSvg) const override;
    bool GetDrawnBounds(CGMDrawing::Bounds& aBounds) const override;

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;

protected:
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    std::string DrawnElements(std::string_view aIndent) const override;

private:
    void InitNITF20SymbolSubheader(Input& aInput);
    void MakeBitmap();
    void MakeObject();

    std::shared_ptr<const NITF20BitmappedSymbol> m_bitmap;
    std::shared_ptr<const NITF20ObjectSymbol> m_object;
};

}  // namespace ORMO::SensorModel::CSM
