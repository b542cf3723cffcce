#pragma once

#include "../foundation/Export.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What every host property (PropertyKey) means and where a NITF file answers it, without a file at hand; never
/// instantiated. All texts come from the table that the answers come from.
class ORMO_CSM_API PropertyCatalogue
{
public:
    struct Source
    {
        std::string text;         ///< "image TRE USE00A field SUN_EL"
        bool isForHosts = false;  ///< NITFMetadataHelper asks it too
    };
    struct Key
    {
        std::string key;
        std::string explanation;
        std::string unit;             ///< "degrees", "percent", "feet"; empty for a text
        std::vector<Source> sources;  ///< in the order in which they are asked; empty when no file answers
    };

    /// All keys in alphabetical order.
    static std::vector<Key> GetAllKeys();
    /// The same as a page in Markdown.
    static std::string GetPage();

    PropertyCatalogue() = delete;
};

}  // namespace ORMO::SensorModel::CSM
