#include "tools/Commands.h"
#include "tools/Isd.h"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

int Validate(const std::vector<std::string>& aFiles, bool aXml)
{
    int exitCode = EXIT_DONE;
    for (const std::string& file : aFiles) {
        const Isd isd = OpenFile(file);
        if (isd == nullptr) {
            exitCode = EXIT_WRONG_USE;
            continue;
        }
        unsigned long errors = 0;
        unsigned long warnings = 0;
        const bool good = isd->RigorousValidation(errors, warnings);
        if (!good && exitCode == EXIT_DONE) {
            exitCode = EXIT_FILE_HAS_ERRORS;
        }
        if (aXml) {
            std::cout << isd->GetValidationSummaryReport();
            continue;
        }
        Finding summary;
        summary.sentence =
            file + ": " + std::to_string(errors) + " error(s), " + std::to_string(warnings) + " warning(s)";
        std::cout << summary.Line() << '\n';
        for (const std::string& line : isd->GetValidationLines()) {
            std::cout << "  " << line << '\n';
        }
    }
    return exitCode;
}

Action DeclareValidate(CLI::App& aApp)
{
    struct Options
    {
        std::vector<std::string> files;
        bool asXml = false;
    };
    auto options = std::make_shared<Options>();
    aApp.add_flag("--xml", options->asXml, "The report as an XML document");
    aApp.add_option("FILE", options->files, "NITF or NSIF files")->required();
    return [options] { return Validate(options->files, options->asXml); };
}

}  // namespace

constexpr Command VALIDATE{.name = "validate",
                           .summary = "What the standards' rules find",
                           .examples =
                               "validate image.ntf\n"
                               "validate --xml image.ntf > report.xml",
                           .exitCodes = "0 no errors, 1 a file has errors, 2 wrong use or a file that cannot be opened",
                           .declare = DeclareValidate};

}  // namespace OrmoNitf
