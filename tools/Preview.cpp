#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Picture.h"

#include <cerrno>
#include <cstring>
#include <fstream>

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
    std::ofstream out;
    if (EncodePng(picture, png)) {
        out.open(aOut, std::ios::binary);
        out << png;
        out.close();
    }
    if (png.empty() || !out) {
        PrintProblem(aOut, std::string("ERROR: The picture cannot be written: ") + std::strerror(errno));
        return EXIT_WRONG_USE;
    }
    return EXIT_DONE;
}

}  // namespace OrmoNitf
