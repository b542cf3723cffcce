#include "tools/Commands.h"
#include "tools/Output.h"

#include <memory>
#include <string>

#include <CLI/CLI.hpp>
#include <Schemas.h>

namespace OrmoNitf {

namespace {

struct Options
{
    std::string document = "isd";
    std::string out;
};

Action DeclareSchema(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("DOCUMENT", options->document, "isd: what xml writes; validation: what validate --xml writes")
        ->check(CLI::IsMember({"isd", "validation"}));
    aApp.add_option("-o", options->out, "File to write; standard output without it");
    return
        [options] { return WriteText(options->document == "isd" ? ISD_SCHEMA : VALIDATION_SCHEMA, options->out, ""); };
}

}  // namespace

constexpr Command SCHEMA{.name = "schema",
                         .summary = "The XML schema of a document, with an explanation of its elements",
                         .examples =
                             "schema isd -o ImageSupportDataNITF.xsd\n"
                             "schema validation",
                         .exitCodes = "0 done, 2 wrong use or a file that cannot be written",
                         .declare = DeclareSchema};

}  // namespace OrmoNitf
