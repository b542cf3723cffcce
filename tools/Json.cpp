#include "isd/ImageSupportDataFactory.h"
#include "tools/Commands.h"
#include "tools/Files.h"
#include "tools/Filter.h"
#include "tools/Isd.h"
#include "tools/JsonWriter.h"
#include "tools/Output.h"
#include "tools/TypedValue.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string_view>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    FileOptions files;
    Filter filter;
    bool typed = false;
};

/// The first thing that was wrong.
void WriteError(const Finding& aFinding, JsonWriter& aOut)
{
    aOut.BeginObject().Key("text").Text(aFinding.sentence);
    aOut.Key("segment");
    aFinding.segment.empty() ? aOut.Null() : aOut.Latin1(aFinding.segment);
    aOut.Key("index");
    aFinding.index == Finding::NO_INDEX ? aOut.Null() : aOut.Number(std::int64_t{aFinding.index});
    aOut.Key("field");
    aFinding.field.empty() ? aOut.Null() : aOut.Latin1(aFinding.field);
    aOut.Key("offset");
    aFinding.offset == Finding::NO_OFFSET ? aOut.Null() : aOut.Number(aFinding.offset);
    aOut.Key("value");
    aFinding.value.empty() ? aOut.Text(aFinding.detail) : aOut.Value(aFinding.value);
    aOut.EndObject();
}

/// What `json` prints of one file.
class Document
{
public:
    Document(const ImageSupportDataNITF& aIsd, const Options& aOptions)
        : m_isd(aIsd), m_options(aOptions), m_findings(aIsd.GetFindings()), m_out(Results())
    {
    }

    void Write(const std::string& aPath)
    {
        m_out.BeginObject();
        m_out.Key("file").Text(aPath);
        m_out.Key("version").Text(m_isd.GetFileTypeAndVersion());
        m_out.Key("size").Number(m_isd.GetNITFFileSize());
        m_out.Key("warnings").BeginArray();
        for (const std::string& warning : m_isd.GetWarnings()) {
            m_out.Text(warning);
        }
        m_out.EndArray();
        m_out.Key("segments").BeginArray();
        WriteSegment(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, nullptr);
        for (const NITFStdDataSegmentInfo* const info : m_isd.GetSegmentInfos().InFileOrder()) {
            WriteSegment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()), info);
        }
        m_out.EndArray().EndObject();
        Results() << '\n';
    }

private:
    static bool IsArea(const TRE& /*aOwner*/, const std::string& /*aField*/) { return false; }
    static bool IsArea(const NITFFieldSegment& aOwner, const std::string& aField)
    {
        return aOwner.GetFieldValueDataType(aField.c_str()) == Util::CSMCnst::DATA_TYPE_EXTENSION_DATA;
    }

    template<typename Owner>
    void WriteFields(const Owner* aOwner)
    {
        m_out.Key("fields");
        m_options.typed ? m_out.BeginObject() : m_out.BeginArray();
        std::string name;
        for (std::size_t i = 0; aOwner != nullptr && i != aOwner->GetNumOfFields(); ++i) {
            const char* value = nullptr;
            std::size_t length = 0;
            if (!aOwner->GetFieldAt(i, name, value, length)) {
                continue;
            }
            if (m_options.typed) {
                // An extension area is told TRE by TRE.
                if (IsArea(*aOwner, name)) {
                    continue;
                }
                m_out.Key(name);
                WriteTyped(NITFFieldValue::Of(*aOwner, name), m_out);
            } else {
                m_out.BeginArray().Latin1(name).Value({value, length}).EndArray();
            }
        }
        m_options.typed ? m_out.EndObject() : m_out.EndArray();
    }

    void WriteTREs(const TREStore& aStore)
    {
        for (const TRE* const tre : aStore.InOrder()) {
            if (!m_options.filter.HasTre(tre->GetTag())) {
                continue;
            }
            const std::size_t length = tre->GetLengthOfDataField();
            m_out.BeginObject();
            m_out.Key("tag").Latin1(tre->GetTag());
            m_out.Key("type").Latin1(TRE::GetTRETypeString(tre->GetTREType()));
            m_out.Key("typed").Bool(!tre->IsGenericTRE());
            m_out.Key("area").Latin1(tre->GetExtensionArea());
            m_out.Key("length").Number(std::uint64_t{length});
            WriteFields(tre);
            // What the fields say need not be said twice.
            if (!m_options.typed || tre->IsGenericTRE()) {
                std::size_t size = 0;
                const char* const data = tre->GetRawTREDataString(size);
                m_out.Key("raw").Base64({data, size});
            }
            m_out.EndObject();
        }
    }

    void WriteSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const NITFStdDataSegmentInfo* aInfo)
    {
        if (!m_options.filter.HasSegment(aKind, aIndex)) {
            return;
        }
        const NITFFieldSegment* const segment = m_isd.GetSegment(aKind, aIndex);
        const std::uint64_t size =
            aInfo == nullptr ? m_isd.GetNITFFileHeader()->GetFileHeaderLength() : aInfo->GetSegmentHeaderSize();
        m_out.BeginObject();
        m_out.Key("kind").Text(m_options.typed ? SegmentWord(aKind) : NITFStdDataSegment::GetDataSegmentName(aKind));
        m_out.Key("index").Number(std::uint64_t{aIndex});
        m_out.Key("header_offset").Number(aInfo == nullptr ? 0 : aInfo->GetSegmentHeaderStart());
        m_out.Key("header_size").Number(size);
        m_out.Key("data_offset").Number(aInfo == nullptr ? size : aInfo->GetSegmentDataStart());
        m_out.Key("data_size").Number(aInfo == nullptr ? 0 : aInfo->GetSegmentDataSize());
        if (const Finding* const error = ErrorOf(m_findings, aKind, aIndex); error != nullptr) {
            m_out.Key(segment == nullptr ? "error" : "doubtful");
            WriteError(*error, m_out);
        }
        WriteFields(segment);
        m_out.Key("tres").BeginArray();
        for (const TREStore* const store : segment == nullptr ? std::vector<const TREStore*>() : StoresOf(*segment)) {
            WriteTREs(*store);
        }
        m_out.EndArray().EndObject();
    }

    const ImageSupportDataNITF& m_isd;
    const Options& m_options;
    std::vector<Finding> m_findings;
    JsonWriter m_out;
};

int Json(const std::string& aPath, const Options& aOptions)
{
    const Isd isd = OpenFile(aPath, {.salvage = aOptions.files.salvage});
    if (isd != nullptr) {
        Document(*isd, aOptions).Write(aPath);
        return ExitCodeOf(*isd);
    }
    // A file that cannot be opened is a line too.
    const std::vector<Finding>& findings = ImageSupportDataFactory::GetFindings();
    JsonWriter out(Results());
    out.BeginObject().Key("file").Text(aPath).Key("error");
    WriteError(findings.empty() ? Finding{} : findings.front(), out);
    out.EndObject();
    Results() << '\n';
    return EXIT_WRONG_USE;
}

Action DeclareJson(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    AddFileOptions(aApp, options->files, true);
    aApp.add_flag("--typed", options->typed,
                  "Fields as objects by name: numbers, ISO dates, text without padding (schemas/json)");
    options->filter.AddOptions(aApp);
    return [options] {
        std::string reason;
        if (!options->filter.Prepare(reason)) {
            std::cerr << "ormo-nitf: " << Printable(reason) << '\n';
            return static_cast<int>(EXIT_WRONG_USE);
        }
        return ForEachFile(options->files, [&options](const std::string& aPath) { return Json(aPath, *options); });
    };
}

}  // namespace

constexpr Command JSON{.name = "json",
                       .summary = "One JSON object per file and line",
                       .examples =
                           "json image.ntf | python3 -m json.tool\n"
                           "json --typed --segment image:0 --tre RPC00B -r images > images.ndjson",
                       .exitCodes = EXIT_CODES_OF_FILES,
                       .declare = DeclareJson};

}  // namespace OrmoNitf
