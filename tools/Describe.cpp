#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tre/TRECatalogue.h"

#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

int Describe(const std::string& aTag, const std::string& aField)
{
    if (aTag.empty()) {
        std::string group;
        for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
            if (tag.group != group) {
                std::cout << (group.empty() ? "" : "\n") << tag.group << '\n';
                group = tag.group;
            }
            std::cout << "  " << tag.tag << std::string(8 - tag.tag.size(), ' ')
                      << (tag.typed ? tag.longName : "(layout not known here)") << '\n';
        }
        return EXIT_DONE;
    }
    std::string text;
    if (aField.empty() ? TRECatalogue::DescribeTag(aTag.c_str(), text)
                       : TRECatalogue::DescribeField(aTag.c_str(), aField.c_str(), text)) {
        std::cout << text;
        return EXIT_DONE;
    }
    std::cerr << "ormo-nitf: ERROR: " << (aField.empty() ? "TRE " + aTag : "Field " + aField + " of TRE " + aTag)
              << " is not known.\n";
    return EXIT_FILE_HAS_ERRORS;
}

Action DeclareDescribe(CLI::App& aApp)
{
    struct Options
    {
        std::string tag;
        std::string field;
    };
    auto options = std::make_shared<Options>();
    aApp.add_option("TAG", options->tag, "Tag of a TRE, such as BLOCKA");
    aApp.add_option("FIELD", options->field, "Field of the TRE");
    return [options] { return Describe(options->tag, options->field); };
}

}  // namespace

constexpr Command DESCRIBE{.name = "describe",
                           .summary = "What a TRE and its fields mean; all tags without one",
                           .examples =
                               "describe BLOCKA\n"
                               "describe BLOCKA L_LINES",
                           .exitCodes = "0 done, 1 no such tag or field, 2 wrong use",
                           .declare = DeclareDescribe};

}  // namespace OrmoNitf
