#pragma once

#include "../foundation/Export.h"
#include "TreDetailedInfo.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What every known tag and its fields mean, without a file at hand; never instantiated. All texts come from the tables
/// that the TREs are read by.
class ORMO_CSM_API TRECatalogue
{
public:
    struct Tag
    {
        std::string tag;
        std::string longName;  ///< empty for a tag without a typed class
        std::string group;     ///< description of its group
        bool typed = false;
    };

    /// All tags, group by group in the order in which groups are asked.
    static std::vector<Tag> GetAllTags();
    /// The help text of a tag with its layout: one line per field, indented under the repeats and conditions that it
    /// stands in. False for an unknown tag.
    static bool DescribeTag(const char* aTag, std::string& aText);
    /// All that is known of one field, named with or without the numbers of its turns. False when there is none.
    static bool DescribeField(const char* aTag, const char* aField, std::string& aText);
    /// The fields of a tag in the order of the data, repeated ones once with their base name; empty for an unknown tag
    /// and for one without a typed class.
    static std::vector<TreDetailedInfo> GetFields(const char* aTag);

    TRECatalogue() = delete;
};

}  // namespace ORMO::SensorModel::CSM
