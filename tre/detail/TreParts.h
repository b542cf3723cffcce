#pragma once

#include "fields/FieldRecord.h"
#include "foundation/detail/Lazy.h"
#include "tre/TRE.h"
#include "tre/detail/TreViews.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// All that a TRE holds. Who makes TREs, or asks of their fields inside the library, works on this.
struct TRE::Parts
{
    static constexpr std::size_t TAG_WIDTH = 6;
    static constexpr std::size_t LENGTH_WIDTH = 5;
    static constexpr std::size_t HEADER_WIDTH = TAG_WIDTH + LENGTH_WIDTH;
    static constexpr std::size_t MOST_DATA = 99999;  ///< what the length field can say

    char tag[TAG_WIDTH + 1] = {};
    Type type = TRE_TYPE_UNKNOWN;
    std::int32_t code = -1;
    SupportedTreFactory::Enum group = SupportedTreFactory::UNKNOWN;
    /// Which special providers made the object and alone can copy and release it; unknown for all others. It belongs to
    /// the object, whatever is assigned to it.
    SupportedTreFactory::Enum maker = SupportedTreFactory::UNKNOWN;
    const char* name = nullptr;                   ///< long name, as the tag has it; null when it has none
    const Layout* layout = nullptr;               ///< of a typed TRE
    std::string text;                             ///< tag, length and data as they stand in a file
    std::unique_ptr<Detail::FieldRecord> fields;  ///< of a typed TRE
    const char* area = "";
    std::uint64_t offset = 0;  ///< of the text in its file
    Detail::Lazy<Detail::TreViews> views;

    std::string_view Data() const noexcept { return std::string_view(text).substr(HEADER_WIDTH); }
    const Detail::TreViews& Views() const
    {
        return views.Get([] { return Detail::TreViews(); });
    }
    /// The same again, but without a maker.
    std::unique_ptr<Parts> Copy() const;

    /// The parts of a generic TRE. `aHeader` is tag and length as they were received; without it they are composed.
    /// Raises std::invalid_argument when the tag is missing or too long, or the data are too long.
    static std::unique_ptr<Parts> New(std::string_view aTag, std::string_view aHeader, std::string_view aData,
                                      Type aType);

    static const Parts& Of(const TRE& aTre) noexcept { return *aTre.m_parts; }
    static Parts& Of(TRE& aTre) noexcept { return *aTre.m_parts; }
    /// The constructors that make and copy a TRE without a class of its own.
    static TRE* NewGeneric(Parts& aParts) { return new TRE(aParts); }
};

}  // namespace ORMO::SensorModel::CSM
