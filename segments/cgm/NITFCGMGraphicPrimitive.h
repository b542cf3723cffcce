#pragma once

#include "../../foundation/Export.h"
#include "CGMCnst.h"

#include <cstddef>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// One thing that a CGM draws: its geometry in virtual device coordinates (signed 16-bit integers; in NITF graphics
/// pixels, x to the right and y down) and the attributes that held when it was read, so that it can be drawn or written
/// again without the rest of the metafile. ISO 8632-1, MIL-STD-2301.
class ORMO_CSM_API NITFCGMGraphicPrimitive
{
public:
    /// What all primitives have alike, known inside the library only.
    class Parts;

    virtual ~NITFCGMGraphicPrimitive();

    /// The id of its element: CGMCnst::BinaryC4GraphicalPrimitive.
    int GetGraphicalPrimitiveElementCode() const noexcept { return m_code; }
    /// Frees what Encoding hands out and sets the pointer to null; a null pointer is ignored.
    static void DeleteCString(char*& aText) noexcept;

    /// The element alone, without its attributes, as a new NUL-terminated array that the caller frees with
    /// DeleteCString. Answers its length, since the binary form holds NUL bytes; 0, with a null output, for an unknown
    /// encoding and for what does not fit an element (65,535 bytes of parameters).
    virtual std::size_t Encoding(char** aOut, CGMCnst::EncodingType aType) const;
    /// Same element, same geometry and same attributes.
    virtual bool operator==(const NITFCGMGraphicPrimitive& aOther) const;
    virtual bool operator!=(const NITFCGMGraphicPrimitive& aOther) const;

protected:
    /// `aNumbers`: the attributes, then the geometry.
    NITFCGMGraphicPrimitive(int aCode, std::vector<int> aNumbers);
    NITFCGMGraphicPrimitive(const NITFCGMGraphicPrimitive& aOther);

    virtual NITFCGMGraphicPrimitive& operator=(const NITFCGMGraphicPrimitive& aOther);
    /// Takes over all of another primitive of the same element; raises RequestedOperationFailedException for one of
    /// another.
    virtual void Assign(const NITFCGMGraphicPrimitive& aOther);
    /// False, with nothing changed, for a primitive of another element.
    virtual bool CloneObj(const NITFCGMGraphicPrimitive& aOther);

    int Attribute(std::size_t aIndex) const noexcept { return m_numbers[aIndex]; }
    void Colour(std::size_t aIndex, int& aRed, int& aGreen, int& aBlue) const noexcept;
    /// The numbers of the geometry, in the order of the element's parameters.
    const int* Geometry() const noexcept;
    std::size_t GeometrySize() const noexcept;

private:
    int m_code;
    std::vector<int> m_numbers;
};

}  // namespace ORMO::SensorModel::CSM
