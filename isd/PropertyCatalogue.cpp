#include "isd/PropertyCatalogue.h"

#include "isd/detail/PropertyTable.h"

namespace ORMO::SensorModel::CSM {

namespace {

const char* UnitOf(Detail::PropertyForm aForm) noexcept
{
    switch (aForm) {
        case Detail::PropertyForm::Degrees:
            return "degrees";
        case Detail::PropertyForm::Percent:
            return "percent";
        case Detail::PropertyForm::Feet:
            return "feet";
        default:
            return "";
    }
}

constexpr const char* FRONT =
    "# Host properties\n"
    "\n"
    "`ImageSupportDataNITF::GetOrmoMetadata(key, image)` and `ormo-nitf property FILE [KEY [IMAGE]]` answer\n"
    "these keys (`PropertyKey`), images counted from 0. The sources of a key are asked in the order given\n"
    "here; the first whose value is known answers. Values come without the blanks around them. A text without\n"
    "a letter or digit is no answer, nor is a text where a number should stand, an angle of 999.9 or a cloud\n"
    "cover of 999. \"Image TRE\" is one of the image subheader or of its overflow, \"file TRE\" one of the file\n"
    "header, \"any TRE\" the first and then the second.\n"
    "\n"
    "`NITFMetadataHelper` asks only the sources marked (H), and answers with the field as it is stored; an\n"
    "angle must be a number there too.\n"
    "\n"
    "This page is made from the table in the code: `ormo-nitf property --keys`.\n"
    "\n"
    "| key | answer | sources |\n"
    "|---|---|---|\n";

}  // namespace

std::vector<PropertyCatalogue::Key> PropertyCatalogue::GetAllKeys()
{
    std::vector<Key> keys;
    for (const Detail::PropertyRow& row : Detail::PropertyRows()) {
        Key key{row.key, row.explanation, UnitOf(row.form), {}};
        for (const Detail::PropertySource& source : row.Sources()) {
            key.sources.push_back({source.Text(), source.isForHosts});
        }
        keys.push_back(std::move(key));
    }
    return keys;
}

std::string PropertyCatalogue::GetPage()
{
    std::string page = FRONT;
    for (const Key& key : GetAllKeys()) {
        page += "| `" + key.key + "` | " + key.explanation;
        page += key.unit.empty() ? "" : " In " + key.unit + ".";
        page += " |";
        const char* join = " ";
        for (const Source& source : key.sources) {
            page += join + source.text + (source.isForHosts ? " (H)" : "");
            join = "; ";
        }
        page += " |\n";
    }
    return page;
}

}  // namespace ORMO::SensorModel::CSM
