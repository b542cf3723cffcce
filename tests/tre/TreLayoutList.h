#pragma once

#include "tre/TreRPC00B.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TreTags.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// A tag as its class is named, and the table behind that class.
struct NamedLayout
{
    const char* tag;
    const Detail::TreLayout& (*layout)();
};

inline std::ostream& operator<<(std::ostream& aOut, const NamedLayout& aNamed)
{
    return aOut << aNamed.tag;
}

/// The most bytes of data that a record can have (STDI-0002).
inline constexpr std::size_t LONGEST_TRE = 99985;

inline constexpr NamedLayout TRE_LAYOUTS[] = {
#define ORMO_TYPED_TAG(aGroup, aTag, aCode, aType) NamedLayout{#aTag, &Tre##aTag::Layout},
#define ORMO_OWN_CLASS_TAG(aGroup, aTag, aCode, aType) ORMO_TYPED_TAG(aGroup, aTag, aCode, aType)
#include "tre/tags/TreTagList.h"
};

inline const Detail::TreLayout& LayoutOf(std::string_view aTag)
{
    const auto it = std::find_if(std::begin(TRE_LAYOUTS), std::end(TRE_LAYOUTS),
                                 [aTag](const NamedLayout& aNamed) { return aNamed.tag == aTag; });
    return it->layout();
}

}  // namespace ORMO::SensorModel::CSM
