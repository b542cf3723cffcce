#pragma once

#include "fields/FieldWalk.h"
#include "tre/TreRPC00B.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TreTags.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

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

/// One layout of a tag, and the tag with the number of the layout when there is more than one.
struct NumberedLayout
{
    std::string name;
    const char* tag;
    const Detail::TreLayout* layout;
};

inline std::ostream& operator<<(std::ostream& aOut, const NumberedLayout& aNumbered)
{
    return aOut << aNumbered.name;
}

/// Every layout of every tag.
inline std::vector<NumberedLayout> EveryLayout()
{
    std::vector<NumberedLayout> layouts;
    for (const NamedLayout& named : TRE_LAYOUTS) {
        int number = 0;
        for (const Detail::TreLayout* layout = &named.layout(); layout != nullptr; layout = layout->other) {
            const std::string suffix = ++number == 1 ? "" : "_" + std::to_string(number);
            layouts.push_back({named.tag + suffix, named.tag, layout});
        }
    }
    return layouts;
}

/// The first bytes of `aZeros` that make a record; empty when a field or repeat takes all that is left, so that no
/// record is too long.
inline std::string ShortestRecord(const Detail::FieldTable& aTable)
{
    const auto rows = aTable.Rows();
    const bool open = std::any_of(rows.begin(), rows.end(), [](const Detail::FieldRow& aRow) { return aRow.rest; });
    // Binary counts are zero without a bit set, others with digits.
    std::string zeros(LONGEST_TRE, '0');
    for (Detail::FieldStore store(aTable); !open;) {
        const Detail::WalkResult walked = Detail::FieldWalk::Read(zeros, store);
        if (walked.IsGood()) {
            return zeros.substr(0, static_cast<std::size_t>(walked.consumed));
        }
        const Detail::FieldEntry* const culprit = store.Find(walked.row, walked.turns);
        if (culprit == nullptr || !store.Row(*culprit).IsBinary()) {
            break;
        }
        zeros.replace(static_cast<std::size_t>(store.Position(*culprit)), culprit->length, culprit->length, '\0');
    }
    return {};
}

inline const Detail::TreLayout& LayoutOf(std::string_view aTag)
{
    const auto it = std::find_if(std::begin(TRE_LAYOUTS), std::end(TRE_LAYOUTS),
                                 [aTag](const NamedLayout& aNamed) { return aNamed.tag == aTag; });
    return it->layout();
}

}  // namespace ORMO::SensorModel::CSM
