#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"

#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    std::string file;
    bool imagesOnly = false;
    std::string out;
};

int Xml(const std::string& aFile, bool aImagesOnly, const std::string& aOut)
{
    const Isd isd = OpenFile(aFile, {.imagesOnly = aImagesOnly});
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    return WriteWith(aOut, aFile, [&](std::FILE* aStream) {
        const bool written = isd->WriteXml(aStream);
        if (!written && std::ferror(aStream) == 0) {
            PrintProblem(aFile, isd->GetErrorMessage());
        }
        return written;
    });
}

Action DeclareXml(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_flag("--images-only", options->imagesOnly, "Leave out the segments behind the images");
    aApp.add_option("-o", options->out, "File to write; standard output without it");
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    return [options] { return Xml(options->file, options->imagesOnly, options->out); };
}

}  // namespace

constexpr Command XML{.name = "xml",
                      .summary = "The whole file as an XML document",
                      .examples =
                          "xml -o image.xml image.ntf\n"
                          "xml --images-only image.ntf",
                      .exitCodes = EXIT_CODES_OF_FILES,
                      .declare = DeclareXml};

}  // namespace OrmoNitf
