#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/Picture.h"
#include "tools/SegmentName.h"

#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

namespace {

constexpr std::size_t WIDTH = 1024;

struct Options
{
    std::string file;
    std::string image = "0";
    std::string out;
};

int Preview(const std::string& aFile, const std::string& aImage, const std::string& aOut)
{
    std::size_t index = 0;
    std::string reason;
    if (!ParseIndex(aImage, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, index, reason)) {
        PrintProblem(aFile, reason);
        return EXIT_WRONG_USE;
    }
    const Isd isd = OpenFile(aFile, {.imagesOnly = true});
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const auto* const image = isd->GetImageSubheader(index);
    if (image == nullptr) {
        PrintProblem(aFile, "ERROR: There are " + std::to_string(isd->GetNumOfImageSegments()) +
                                " image segments, none has the index " + std::to_string(index) + ".");
        return EXIT_FILE_HAS_ERRORS;
    }
    Picture picture;
    if (!Draw(*image, WIDTH, picture, reason)) {
        PrintProblem(aFile, reason);
        return EXIT_FILE_HAS_ERRORS;
    }
    std::string png;
    if (!EncodePng(picture, png)) {
        PrintProblem(aOut, "ERROR: The picture cannot be encoded.");
        return EXIT_WRONG_USE;
    }
    return WriteText(png, aOut, aFile);
}

Action DeclarePreview(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    aApp.add_option("IMAGE", options->image,
                    "Index among the images, from 0, such as 1 or image:1; the first without it");
    aApp.add_option("-o", options->out, "File to write")->required();
    return [options] { return Preview(options->file, options->image, options->out); };
}

}  // namespace

constexpr Command PREVIEW{.name = "preview",
                          .summary = "Writes an overview of an image as a PNG file",
                          .examples =
                              "preview image.ntf -o image.png\n"
                              "preview image.ntf image:1 -o second.png",
                          .exitCodes = "0 done, 1 no such image, 2 wrong use or a file that cannot be opened",
                          .declare = DeclarePreview};

}  // namespace OrmoNitf
