#pragma once

#include "segments/cgm/CGMGraphicPrimitives.h"

#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// All primitives alike: numbers in the order of the element's row, and the text of a text.
class ORMO_CSM_LOCAL NITFCGMGraphicPrimitive::Parts
{
public:
    /// What the primitive took on from the attribute state: the slots of its row.
    static std::span<const int> Attributes(const NITFCGMGraphicPrimitive& aPrimitive) noexcept;
    /// The numbers of its parameters.
    static std::span<const int> Geometry(const NITFCGMGraphicPrimitive& aPrimitive) noexcept;
    /// Empty for all but texts.
    static std::span<const std::string> Text(const NITFCGMGraphicPrimitive& aPrimitive) noexcept;
    static std::string_view Font(const NITFCGMGraphicPrimitive& aPrimitive) noexcept;
    /// The caller owns the copy.
    static NITFCGMGraphicPrimitive* Copy(const NITFCGMGraphicPrimitive& aPrimitive);

    template<typename Primitive>
    static NITFCGMGraphicPrimitive* Make(std::vector<int> aNumbers, const std::string& aFont, const std::string& aText)
    {
        if constexpr (std::is_same_v<Primitive, CGMGraphicPrimitiveText>) {
            return new Primitive(std::move(aNumbers), aFont, aText);
        } else {
            return new Primitive(std::move(aNumbers));
        }
    }
};

namespace Detail {
using CgmPrimitiveParts = NITFCGMGraphicPrimitive::Parts;
}

}  // namespace ORMO::SensorModel::CSM
