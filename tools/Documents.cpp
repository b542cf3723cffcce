// The commands that write a document or a segment as it is: xml, validate, extract, describe.

#include "foundation/CSMUtilString.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tre/TRECatalogue.h"

#include <array>
#include <iostream>
#include <string_view>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

int Xml(const std::string& aFile, bool aImagesOnly, const std::string& aOut)
{
    const Isd isd = OpenFile(aFile, aImagesOnly);
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const char* const document = isd->Serialize();
    if (document == nullptr) {
        PrintProblem(aFile, "ERROR: The document cannot be written.");
        return EXIT_FILE_HAS_ERRORS;
    }
    return WriteText(document, aOut, aFile);
}

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

namespace {

struct KindWord
{
    std::string_view word;
    NITFCnst::DataSegmentType kind;
};

constexpr std::array<KindWord, 7> KIND_WORDS{{{"image", NITFCnst::DATA_SEGMENT_TYPE_IMAGE},
                                              {"graphic", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC},
                                              {"symbol", NITFCnst::DATA_SEGMENT_TYPE_SYMBOL},
                                              {"label", NITFCnst::DATA_SEGMENT_TYPE_LABEL},
                                              {"text", NITFCnst::DATA_SEGMENT_TYPE_TEXT},
                                              {"des", NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION},
                                              {"res", NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION}}};

/// A short word, or the name that json prints.
NITFCnst::DataSegmentType KindOf(const std::string& aWord)
{
    const std::string word = Util::CSMUtilString::ToLower(aWord);
    for (const KindWord& known : KIND_WORDS) {
        if (word == known.word) {
            return known.kind;
        }
    }
    return NITFStdDataSegment::GetDataSegmentCode(aWord.c_str());
}

}  // namespace

int Extract(const std::string& aFile, const std::string& aKind, unsigned aIndex, const std::string& aOut)
{
    const NITFCnst::DataSegmentType kind = KindOf(aKind);
    if (kind == NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN || kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        std::cerr << "ormo-nitf: ERROR: " << aKind << " is no kind of segment.\n";
        return EXIT_WRONG_USE;
    }
    const Isd isd = OpenFile(aFile);
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const auto infos = isd->GetSegmentInfos().Get(kind);
    if (infos == nullptr || aIndex >= infos->size()) {
        PrintProblem(aFile, "ERROR: There are " + std::to_string(infos == nullptr ? 0 : infos->size()) +
                                " segments of kind " + NITFStdDataSegment::GetDataSegmentName(kind) +
                                ", none has the index " + std::to_string(aIndex) + ".");
        return EXIT_FILE_HAS_ERRORS;
    }
    Output output;
    std::string reason;
    if (!output.Open(aOut, aFile, reason)) {
        PrintProblem(aOut, reason);
        return EXIT_WRONG_USE;
    }
    if (!isd->WriteSegmentData(kind, aIndex, output.Stream())) {
        PrintProblem(aFile, isd->GetErrorMessage());
        return EXIT_FILE_HAS_ERRORS;
    }
    if (!output.Commit(reason)) {
        PrintProblem(aOut, reason);
        return EXIT_WRONG_USE;
    }
    return EXIT_DONE;
}

}  // namespace OrmoNitf
