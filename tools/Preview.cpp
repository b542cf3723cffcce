#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/Picture.h"

namespace OrmoNitf {

namespace {

constexpr std::size_t WIDTH = 1024;

}  // namespace

int Preview(const std::string& aFile, unsigned aImage, const std::string& aOut)
{
    const Isd isd = OpenFile(aFile, true);
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const auto* const image = isd->GetImageSubheader(aImage);
    if (image == nullptr) {
        PrintProblem(aFile, "ERROR: There are " + std::to_string(isd->GetNumOfImageSegments()) +
                                " image segments, none has the index " + std::to_string(aImage) + ".");
        return EXIT_FILE_HAS_ERRORS;
    }
    Picture picture;
    std::string reason;
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

}  // namespace OrmoNitf
