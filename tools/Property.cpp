#include "isd/PropertyCatalogue.h"
#include "segments/NITFWords.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Nearest.h"
#include "tools/SegmentName.h"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    std::string file;
    std::string key;
    std::string imageText = "0";
    std::size_t image = 0;
    bool keys = false;
};

/// All keys that have an answer, each with its value in one line and where it came from.
int PrintAll(const Options& aOptions, const ImageSupportDataNITF& aIsd)
{
    constexpr std::size_t MOST_WIDTH = 60;
    for (const PropertyCatalogue::Key& key : PropertyCatalogue::GetAllKeys()) {
        std::string value;
        std::string source;
        if (!aIsd.FindOrmoMetadata(key.key.c_str(), aOptions.image, value, source)) {
            continue;
        }
        const auto line = value.find('\n');
        const bool isLong = line != std::string::npos;
        std::cout << key.key << ": " << NITFWords::Shown(value.substr(0, line), MOST_WIDTH)
                  << (isLong ? " (" + NITFWords::Size(value.size()) + " in all)" : "") << "  [" << source << "]\n";
    }
    return EXIT_DONE;
}

/// Why there is no answer, and where it could have stood.
int Refuse(const Options& aOptions)
{
    std::vector<std::string> known;
    for (const PropertyCatalogue::Key& key : PropertyCatalogue::GetAllKeys()) {
        known.push_back(key.key);
        if (key.key != aOptions.key) {
            continue;
        }
        std::string reason = "ERROR: The file does not answer " + key.key + ": " + key.explanation;
        for (const PropertyCatalogue::Source& source : key.sources) {
            reason += (&source == &key.sources.front() ? " It was looked for in " : "; ") + source.text;
        }
        PrintProblem(aOptions.file, reason + (key.sources.empty() ? "" : "."));
        return EXIT_FILE_HAS_ERRORS;
    }
    PrintProblem(aOptions.file, "ERROR: " + aOptions.key + " is no property key." + DidYouMean(aOptions.key, known) +
                                    " ormo-nitf property --keys lists them all.");
    return EXIT_FILE_HAS_ERRORS;
}

int Property(Options& aOptions)
{
    if (aOptions.keys) {
        std::cout << PropertyCatalogue::GetPage();
        return EXIT_DONE;
    }
    if (aOptions.file.empty()) {
        std::cerr << "ormo-nitf: ERROR: A file is missing: ormo-nitf property FILE [KEY [IMAGE]].\n";
        return EXIT_WRONG_USE;
    }
    std::string reason;
    if (!ParseIndex(aOptions.imageText, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aOptions.image, reason)) {
        PrintProblem(aOptions.file, reason);
        return EXIT_WRONG_USE;
    }
    const Isd isd = OpenFile(aOptions.file);
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const auto images = static_cast<std::size_t>(isd->GetNumOfImageSegments());
    if (aOptions.image != 0 && aOptions.image >= images) {
        PrintProblem(aOptions.file, "ERROR: There is no image " + std::to_string(aOptions.image) + ": the file has " +
                                        NITFWords::Count(images, "image") + ", counted from 0.");
        return EXIT_FILE_HAS_ERRORS;
    }
    if (aOptions.key.empty()) {
        return PrintAll(aOptions, *isd);
    }
    std::string value;
    std::string source;
    if (!isd->FindOrmoMetadata(aOptions.key.c_str(), aOptions.image, value, source)) {
        return Refuse(aOptions);
    }
    std::cout << value << (value.back() == '\n' ? "" : "\n");
    return EXIT_DONE;
}

Action DeclareProperty(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_flag("--keys", options->keys, "All keys, what they mean and what answers them, as a Markdown page");
    aApp.add_option("FILE", options->file, "NITF or NSIF file");
    aApp.add_option("KEY", options->key, "Key such as acquisition.date; all that are answered without it");
    aApp.add_option("IMAGE", options->imageText,
                    "Index among the images, from 0, such as 1 or image:1; the first without it");
    return [options] { return Property(*options); };
}

}  // namespace

constexpr Command PROPERTY{
    .name = "property",
    .summary = "What a file answers to a host's property keys",
    .examples =
        "property image.ntf acquisition.date\n"
        "property image.ntf",
    .exitCodes = "0 done, 1 no such key, image or answer, 2 wrong use or a file that cannot be opened",
    .declare = DeclareProperty};

}  // namespace OrmoNitf
