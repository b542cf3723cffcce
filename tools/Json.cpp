#include "foundation/CSMUtilString.h"
#include "isd/ImageSupportDataFactory.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;
using Object = nlohmann::ordered_json;

namespace {

std::string Base64(std::string_view aBytes)
{
    std::string text;
    Util::CSMUtilString::AppendBase64(aBytes, text);
    return text;
}

std::string Utf8OfLatin1(std::string_view aBytes)
{
    std::string text;
    Util::CSMUtilString::AppendLatin1AsUtf8(aBytes, text);
    return text;
}

/// File names and messages may hold any bytes: kept when they are UTF-8, else read as Latin-1.
Object Text(const std::string& aText)
{
    Object text = aText;
    try {
        static_cast<void>(text.dump());
        return text;
    } catch (const Object::type_error&) {
        return Utf8OfLatin1(aText);
    }
}

Object FieldValue(std::string_view aBytes)
{
    const bool control = std::any_of(aBytes.begin(), aBytes.end(), [](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        return byte < 0x20 || byte == 0x7F;
    });
    return control ? Object{{"base64", Base64(aBytes)}} : Object(Utf8OfLatin1(aBytes));
}

template<typename Owner>
Object Fields(const Owner& aOwner)
{
    Object fields = Object::array();
    std::string name;
    for (std::size_t i = 0; i != aOwner.GetNumOfFields(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        if (aOwner.GetFieldAt(i, name, value, length)) {
            fields.push_back(Object::array({Utf8OfLatin1(name), FieldValue({value, length})}));
        }
    }
    return fields;
}

Object Tre(const TRE& aTre)
{
    std::size_t length = 0;
    const char* const data = aTre.GetRawTREDataString(length);
    return Object{{"tag", Utf8OfLatin1(aTre.GetTag())},
                  {"type", TRE::GetTRETypeString(aTre.GetTREType())},
                  {"typed", !aTre.IsGenericTRE()},
                  {"area", aTre.GetExtensionArea()},
                  {"length", length},
                  {"fields", Fields(aTre)},
                  {"raw", Base64({data, length})}};
}

void AppendTREs(Object& aTres, const TREStore& aStore)
{
    for (const TRE* const tre : aStore.InOrder()) {
        aTres.push_back(Tre(*tre));
    }
}

Object Segment(const ImageSupportDataNITF& aIsd, NITFCnst::DataSegmentType aKind, std::size_t aIndex,
               const NITFStdDataSegmentInfo* aInfo)
{
    const NITFFieldSegment* const segment = aIsd.GetSegment(aKind, aIndex);
    const bool header = aInfo == nullptr;
    const std::uint64_t headerSize =
        header ? aIsd.GetNITFFileHeader()->GetFileHeaderLength() : aInfo->GetSegmentHeaderSize();
    Object object{{"kind", NITFStdDataSegment::GetDataSegmentName(aKind)},
                  {"index", aIndex},
                  {"header_offset", header ? 0 : aInfo->GetSegmentHeaderStart()},
                  {"header_size", headerSize},
                  {"data_offset", header ? headerSize : aInfo->GetSegmentDataStart()},
                  {"data_size", header ? 0 : aInfo->GetSegmentDataSize()}};
    Object tres = Object::array();
    if (segment != nullptr) {
        AppendTREs(tres, segment->GetTREStore());
        AppendTREs(tres, segment->GetOverflowTREStore());
    }
    const NITFDESSubheader* const des =
        aKind == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION ? aIsd.GetDataExtensionSegment(aIndex) : nullptr;
    if (des != nullptr && des->IsTREOverflow() && !aIsd.IsOverflowPlaced(aIndex)) {
        AppendTREs(tres, des->GetOverflowTREs());
    }
    object["fields"] = segment == nullptr ? Object::array() : Fields(*segment);
    object["tres"] = std::move(tres);
    return object;
}

Object File(const std::string& aPath, const ImageSupportDataNITF& aIsd)
{
    Object warnings = Object::array();
    for (const std::string& warning : aIsd.GetWarnings()) {
        warnings.push_back(Text(warning));
    }
    Object segments = Object::array();
    segments.push_back(Segment(aIsd, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, nullptr));
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        segments.push_back(
            Segment(aIsd, info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()), info));
    }
    return Object{{"file", Text(aPath)},
                  {"version", aIsd.GetFileTypeAndVersion()},
                  {"size", aIsd.GetNITFFileSize()},
                  {"warnings", std::move(warnings)},
                  {"segments", std::move(segments)}};
}

/// A file that cannot be opened is a line too: the first thing that was wrong with it.
Object Refusal(const std::string& aPath)
{
    const std::vector<Finding>& findings = ImageSupportDataFactory::GetFindings();
    const Finding finding = findings.empty() ? Finding{} : findings.front();
    Object error{{"text", Text(finding.sentence)}};
    error["segment"] = finding.segment.empty() ? Object(nullptr) : Object(finding.segment);
    error["index"] = finding.index == Finding::NO_INDEX ? Object(nullptr) : Object(finding.index);
    error["field"] = finding.field.empty() ? Object(nullptr) : Object(finding.field);
    error["offset"] = finding.offset == Finding::NO_OFFSET ? Object(nullptr) : Object(finding.offset);
    error["value"] = finding.value.empty() ? Object(finding.detail) : FieldValue(finding.value);
    return Object{{"file", Text(aPath)}, {"error", std::move(error)}};
}

int Json(const std::vector<std::string>& aFiles)
{
    int exitCode = EXIT_DONE;
    for (const std::string& file : aFiles) {
        const Isd isd = OpenFile(file);
        const std::string line = (isd == nullptr ? Refusal(file) : File(file, *isd)).dump() + '\n';
        if (isd == nullptr) {
            exitCode = EXIT_WRONG_USE;
        }
        // One write for a document: lines of several processes that share an output stay whole.
        const int written = WriteText(line, "", file);
        if (written != EXIT_DONE) {
            return written;
        }
    }
    return exitCode;
}

Action DeclareJson(CLI::App& aApp)
{
    auto files = std::make_shared<std::vector<std::string>>();
    aApp.add_option("FILE", *files, "NITF or NSIF files")->required();
    return [files] { return Json(*files); };
}

}  // namespace

constexpr Command JSON{.name = "json",
                       .summary = "One JSON object per file and line",
                       .examples =
                           "json image.ntf | python3 -m json.tool\n"
                           "json *.ntf > all.ndjson",
                       .exitCodes = EXIT_CODES_OF_FILES,
                       .declare = DeclareJson};

}  // namespace OrmoNitf
