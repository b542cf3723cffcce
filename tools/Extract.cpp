#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/SegmentName.h"

#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

int Extract(const std::string& aFile, const SegmentName& aSegment, const std::string& aOut, bool aSalvage)
{
    const Isd isd = OpenFile(aFile, {.salvage = aSalvage});
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const auto infos = isd->GetSegmentInfos().Get(aSegment.kind);
    if (infos == nullptr || aSegment.index >= infos->size()) {
        PrintProblem(aFile, "ERROR: There are " + std::to_string(infos == nullptr ? 0 : infos->size()) +
                                " segments of kind " + SegmentWord(aSegment.kind) + ", none has the index " +
                                std::to_string(aSegment.index) + ".");
        return EXIT_FILE_HAS_ERRORS;
    }
    Output output;
    std::string reason;
    if (!output.Open(aOut, aFile, reason)) {
        PrintProblem(aOut, reason);
        return EXIT_WRONG_USE;
    }
    if (!isd->WriteSegmentData(aSegment.kind, aSegment.index, output.Stream())) {
        PrintProblem(aFile, isd->GetErrorMessage());
        return EXIT_FILE_HAS_ERRORS;
    }
    if (!output.Commit(reason)) {
        PrintProblem(aOut, reason);
        return EXIT_WRONG_USE;
    }
    return EXIT_DONE;
}

struct Options
{
    std::string file;
    std::string segment;
    int index = -1;
    std::string out;
    bool salvage = false;
};

int Run(const Options& aOptions)
{
    SegmentName segment;
    std::string reason;
    const std::string number = aOptions.index < 0 ? "" : ':' + std::to_string(aOptions.index);
    if (!ParseSegment(aOptions.segment + number, segment, reason) || segment.IsHeader() || !segment.isIndexed) {
        reason = !reason.empty()      ? reason
                 : segment.IsHeader() ? "ERROR: The file header has no data."
                                      : "ERROR: Which one? An index from 0 is missing, such as image:0.";
        std::cerr << "ormo-nitf: " << Printable(reason) << '\n';
        return EXIT_WRONG_USE;
    }
    return Extract(aOptions.file, segment, aOptions.out, aOptions.salvage);
}

Action DeclareExtract(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    aApp.add_option("KIND", options->segment, "image, graphic, symbol, label, text, des or res; image:0 with its index")
        ->required();
    aApp.add_option("INDEX", options->index, "Index among the segments of its kind, from 0");
    aApp.add_option("-o", options->out, "File to write; - for standard output")->required();
    aApp.add_flag("--salvage", options->salvage, "Take the data of a damaged file where its header says they are");
    return [options] { return Run(*options); };
}

}  // namespace

constexpr Command EXTRACT{.name = "extract",
                          .summary = "Writes the data of one segment to a file",
                          .examples =
                              "extract product.ntf des 0 -o product.xml\n"
                              "extract product.ntf text:1 -o -",
                          .exitCodes = "0 done, 1 no such segment, 2 wrong use or a file that cannot be opened",
                          .declare = DeclareExtract};

}  // namespace OrmoNitf
