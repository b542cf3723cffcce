#include "tools/CatalogueTables.h"

#include "foundation/CSMUtilString.h"
#include "foundation/PropertyKey.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/PropertyCatalogue.h"
#include "segments/NITFFieldValue.h"
#include "segments/NITFSegmentTREs.h"
#include "segments/NITFWords.h"
#include "tools/CatalogueFootprint.h"
#include "tools/FindingWords.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/Picture.h"
#include "tools/SegmentName.h"
#include "tools/TypedValue.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace OrmoNitf::Catalogue {

using namespace ORMO::SensorModel::CSM;
using Util::CSMUtilString;

namespace {

/// A column and how its value is had from what a row is about.
template<typename Subject>
struct Row
{
    Column column;
    std::function<Json(const Subject&)> value;
};

template<typename Subject>
using Rows = std::vector<Row<Subject>>;

template<typename Subject>
Json ObjectOf(const Rows<Subject>& aRows, const Subject& aSubject)
{
    Json object = Json::object();
    for (const Row<Subject>& row : aRows) {
        object[row.column.name] = row.value(aSubject);
    }
    return object;
}

struct File
{
    const Source& source;
    const char* status;
    std::string error;
    const ImageSupportDataNITF* isd = nullptr;
    unsigned long errors = 0;
    unsigned long warnings = 0;
    std::size_t tres = 0;
};

struct Image
{
    const ImageSupportDataNITF& isd;
    const NITFImageSubheader& header;
    std::size_t index;
    bool hasFootprint;
    NITFImgExtent::Footprint footprint;
    bool previews;
};

struct Segment
{
    const NITFStdDataSegmentInfo& info;
    const NITFFieldSegment* header;
    const Finding* error;
};

struct Extension
{
    NITFCnst::DataSegmentType kind;
    std::size_t index;
    const TRE& tre;
};

Json TextOrNull(std::string aText)
{
    return aText.empty() ? Json(nullptr) : Json(std::move(aText));
}

Json Base64(std::string_view aBytes)
{
    std::string text;
    CSMUtilString::AppendBase64(aBytes, text);
    return {{"base64", std::move(text)}};
}

Json FieldOf(const NITFFieldSegment* aSegment, const char* aField)
{
    return aSegment == nullptr ? Json(nullptr) : TextOrNull(ValueText(aSegment->FieldText(aField)));
}

Json IntegerOf(const NITFFieldSegment* aSegment, const char* aField)
{
    std::int64_t number = 0;
    return aSegment != nullptr && aSegment->GetFieldAsInt64(aField, number) ? Json(number) : Json(nullptr);
}

Json DateOf(std::string_view aText)
{
    std::string date;
    return NITFWords::ToIsoDate(TrimmedBlanks(aText), 'T', date) ? Json(date) : Json(nullptr);
}

/// The first of these fields that is filled.
Json FirstOf(const NITFFieldSegment* aSegment, std::initializer_list<const char*> aFields)
{
    for (const char* const field : aFields) {
        if (aSegment != nullptr && NITFWords::IsFilled(aSegment->FieldText(field))) {
            return FieldOf(aSegment, field);
        }
    }
    return nullptr;
}

std::string IsoTime(std::int64_t aNanoseconds)
{
    const std::time_t seconds = aNanoseconds / 1'000'000'000;
    std::tm parts{};
    char text[32] = "";
    return gmtime_r(&seconds, &parts) == nullptr || std::strftime(text, sizeof(text), "%FT%TZ", &parts) == 0 ? ""
                                                                                                             : text;
}

const NITFFieldSegment* HeaderOf(const File& aFile)
{
    return aFile.isd == nullptr ? nullptr : aFile.isd->GetNITFFileHeader();
}

Row<File> HeaderText(const char* aName, const char* aField, const char* aMeaning)
{
    return {{aName, Type::Text, aMeaning}, [aField](const File& f) { return FieldOf(HeaderOf(f), aField); }};
}

Row<File> Count(const char* aName, NITFCnst::DataSegmentType aKind)
{
    return {{aName, Type::Integer, "Number of " + SegmentWord(aKind) + " segments"}, [aKind](const File& f) {
                const auto* const infos = f.isd == nullptr ? nullptr : f.isd->GetSegmentInfos().Get(aKind);
                return f.isd == nullptr ? Json(nullptr) : Json(infos == nullptr ? 0 : infos->size());
            }};
}

const Rows<File>& FileRows()
{
    static const Rows<File> ROWS{
        {{"path", Type::Text, "Absolute path; when it is no UTF-8, all but ASCII is written as `\\xE9`"},
         [](const File& f) { return Json(PathText(f.source.path)); }},
        {{"path_bytes", Type::Bytes, "The bytes of a path that is written otherwise"},
         [](const File& f) {
             return PathText(f.source.path) == f.source.path ? Json(nullptr) : Base64(f.source.path);
         }},
        {{"status", Type::Text,
          "`read`; `salvaged`, what can be read of a damaged file; `refused`; `crashed` or `timed out`, which the "
          "program did over it"},
         [](const File& f) { return Json(f.status); }},
        {{"error", Type::Text, "Why it was not read, or not as a whole"},
         [](const File& f) { return TextOrNull(f.error); }},
        {{"size", Type::Integer, "Bytes"}, [](const File& f) { return Json(f.source.size); }},
        {{"modified", Type::Text, "When the file was changed last, UTC"},
         [](const File& f) { return TextOrNull(IsoTime(f.source.modified)); }},
        {{"modified_ns", Type::Integer, "The same in nanoseconds since 1970"},
         [](const File& f) { return Json(f.source.modified); }},
        {{"version", Type::Text, "`NITF02.10`, `NITF02.00` or `NSIF01.00`"},
         [](const File& f) { return f.isd == nullptr ? Json(nullptr) : Json(f.isd->GetFileTypeAndVersion()); }},
        {{"complexity_level", Type::Integer, "CLEVEL"}, [](const File& f) { return IntegerOf(HeaderOf(f), "CLEVEL"); }},
        {{"date", Type::Text, "FDT as ISO 8601, up to the first part that is unknown"},
         [](const File& f) { return f.isd == nullptr ? Json(nullptr) : DateOf(HeaderOf(f)->FieldText("FDT")); }},
        HeaderText("title", "FTITLE", "FTITLE"),
        HeaderText("station", "OSTAID", "OSTAID, the station that made the file"),
        HeaderText("originator", "ONAME", "ONAME"),
        HeaderText("classification", "FSCLAS", "FSCLAS"),
        {{"highest_classification", Type::Text, "The highest marking of the file and its segments"},
         [](const File& f) {
             return f.isd == nullptr ? Json(nullptr)
                                     : TextOrNull(ValueText(f.isd->GetHighestSecurityClassificationMarking()));
         }},
        Count("image_count", NITFCnst::DATA_SEGMENT_TYPE_IMAGE),
        Count("graphic_count", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC),
        Count("symbol_count", NITFCnst::DATA_SEGMENT_TYPE_SYMBOL),
        Count("label_count", NITFCnst::DATA_SEGMENT_TYPE_LABEL),
        Count("text_count", NITFCnst::DATA_SEGMENT_TYPE_TEXT),
        Count("des_count", NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION),
        Count("res_count", NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION),
        {{"tre_count", Type::Integer, "Number of TREs"},
         [](const File& f) { return f.isd == nullptr ? Json(nullptr) : Json(f.tres); }},
        {{"error_count", Type::Integer, "Errors that the validation finds, or for which the file was refused"},
         [](const File& f) { return Json(f.errors); }},
        {{"warning_count", Type::Integer, "Warnings"}, [](const File& f) { return Json(f.warnings); }},
    };
    return ROWS;
}

Row<Image> ImageText(const char* aName, const char* aField, const char* aMeaning)
{
    return {{aName, Type::Text, aMeaning}, [aField](const Image& i) { return FieldOf(&i.header, aField); }};
}

Row<Image> ImageInteger(const char* aName, const char* aField, const char* aMeaning)
{
    return {{aName, Type::Integer, aMeaning}, [aField](const Image& i) { return IntegerOf(&i.header, aField); }};
}

const PropertyCatalogue::Key& KeyOf(const char* aKey)
{
    static const std::vector<PropertyCatalogue::Key> KEYS = PropertyCatalogue::GetAllKeys();
    return *std::find_if(KEYS.begin(), KEYS.end(),
                         [aKey](const PropertyCatalogue::Key& aOther) { return aOther.key == aKey; });
}

/// What the file answers to a host's property key, under the key's name.
Row<Image> Property(const char* aKey)
{
    const PropertyCatalogue::Key& key = KeyOf(aKey);
    const bool isNumber = !key.unit.empty();
    std::string name = key.key;
    std::replace(name.begin(), name.end(), '.', '_');
    return {{name, isNumber ? Type::Real : Type::Text,
             key.explanation + (isNumber ? " In " + key.unit + '.' : "") + " Property `" + key.key + '`'},
            [aKey, isNumber](const Image& i) -> Json {
                std::string value;
                std::string source;
                double number = 0.0;
                if (!i.isd.FindOrmoMetadata(aKey, i.index, value, source)) {
                    return nullptr;
                }
                if (!isNumber) {
                    return TextOrNull(ValueText(value));
                }
                return CSMUtilString::ToDouble(value.c_str(), number) ? Json(number) : Json(nullptr);
            }};
}

/// Metres between the middles of pixels on the ground, by the first TRE that says it.
Json GroundSampleDistance(const NITFImageSubheader& aImage)
{
    constexpr double METRES_PER_INCH = 0.0254;
    constexpr std::pair<const char*, const char*> SOURCES[] = {{"USE00A", "MEAN_GSD"},
                                                               {"CSEXRA", "GEO_MEAN_GSD"},
                                                               {"CSEXRB", "GEO_MEAN_GSD"},
                                                               {"EXOPTA", "MEAN_GSD"},
                                                               {"PIAIMC", "MEANGSD"}};
    for (const auto& [tag, field] : SOURCES) {
        const TRE* const tre = NITFSegmentTREs::GetFirst(aImage, tag);
        double distance = 0.0;
        TreDetailedInfo info;
        if (tre != nullptr && tre->GetFieldAsDouble(field, distance) && distance > 0.0 &&
            NITFFieldValue::GetInfo(*tre, field, info)) {
            return info.unit == "in" ? distance * METRES_PER_INCH : distance;
        }
    }
    return nullptr;
}

Json PreviewOf(const NITFImageSubheader& aImage)
{
    constexpr std::size_t WIDTH = 256;
    Picture picture;
    std::string png;
    std::string reason;
    return Draw(aImage, WIDTH, picture, reason) && EncodePng(picture, png) ? Base64(png) : Json(nullptr);
}

const Rows<Image>& ImageRows()
{
    static const Rows<Image> ROWS{
        {{"image", Type::Integer, "Index among the images of the file, from 0"},
         [](const Image& i) { return Json(i.index); }},
        Property(PropertyKey::IMAGE_IDENTIFIER),
        ImageText("title", "IID2", "IID2"),
        {{"date", Type::Text, KeyOf(PropertyKey::ACQUISITION_DATE).explanation + " As ISO 8601, as far as it is known"},
         [](const Image& i) {
             const char* const date = i.isd.GetOrmoMetadata(PropertyKey::ACQUISITION_DATE, i.index);
             return date == nullptr ? Json(nullptr) : DateOf(date);
         }},
        ImageText("classification", "ISCLAS", "ISCLAS"),
        ImageInteger("rows", "NROWS", "NROWS"),
        ImageInteger("columns", "NCOLS", "NCOLS"),
        {{"bands", Type::Integer, "NBANDS or XBANDS"},
         [](const Image& i) { return Json(i.header.GetNumOfImageBands()); }},
        ImageInteger("bits", "NBPP", "NBPP, bits per pixel and band"),
        ImageText("pixel_type", "PVTYPE", "PVTYPE"),
        ImageText("representation", "IREP", "IREP"),
        ImageText("category", "ICAT", "ICAT"),
        ImageText("compression", "IC", "IC"),
        ImageText("rate", "COMRAT", "COMRAT"),
        ImageText("target", "TGTID", "TGTID"),
        {{"footprint", Type::Footprint,
          "On the ground, WGS 84; in two parts where it lies on both sides of the 180th meridian"},
         [](const Image& i) { return i.hasFootprint ? GeometryOf(i.footprint) : Json(nullptr); }},
        {{"footprint_source", Type::Text, "Where it is told: a TRE, or `IGEOLO` and its grid"},
         [](const Image& i) { return i.hasFootprint ? Json(i.footprint.source) : Json(nullptr); }},
        {{"west", Type::Real, "Box around the footprint; above `east` where it crosses the 180th meridian"},
         [](const Image& i) { return i.hasFootprint ? Json(i.footprint.west) : Json(nullptr); }},
        {{"south", Type::Real, "The same"},
         [](const Image& i) { return i.hasFootprint ? Json(i.footprint.south) : Json(nullptr); }},
        {{"east", Type::Real, "The same"},
         [](const Image& i) { return i.hasFootprint ? Json(i.footprint.east) : Json(nullptr); }},
        {{"north", Type::Real, "The same"},
         [](const Image& i) { return i.hasFootprint ? Json(i.footprint.north) : Json(nullptr); }},
        {{"chip", Type::Integer, "1 for a chip of a larger image"},
         [](const Image& i) { return Json(i.header.IsImageChip() ? 1 : 0); }},
        {{"rpc", Type::Text, "`RPC00A` or `RPC00B` when it has rational polynomial coefficients"},
         [](const Image& i) {
             const char rpc = i.header.GetRPC00Availability();
             return rpc == NITFCnst::RPC00_NOT_AVAILABLE ? Json(nullptr) : Json(std::string("RPC00") + rpc);
         }},
        {{"gsd", Type::Real, "Mean ground sample distance in metres, by USE00A, CSEXRA, CSEXRB, EXOPTA or PIAIMC"},
         [](const Image& i) { return GroundSampleDistance(i.header); }},
        Property(PropertyKey::SUN_ELEVATION_ANGLE),
        Property(PropertyKey::SUN_AZIMUTH_ANGLE),
        Property(PropertyKey::ANGLE_TO_NORTH),
        Property(PropertyKey::PERCENT_CLOUD_COVER),
        Property(PropertyKey::PLATFORM_IDENTIFICATION),
        Property(PropertyKey::SENSOR),
        Property(PropertyKey::SENSOR_ID),
        Property(PropertyKey::SENSOR_NAME),
        Property(PropertyKey::SENSOR_TYPE),
        Property(PropertyKey::SENSOR_MODE),
        Property(PropertyKey::PRODUCT_ID),
        Property(PropertyKey::CIRCULAR_ERROR),
        Property(PropertyKey::LINEAR_ERROR),
        {{"preview", Type::Bytes, "A PNG of at most 256 columns, with --previews"},
         [](const Image& i) { return i.previews ? PreviewOf(i.header) : Json(nullptr); }},
    };
    return ROWS;
}

const Rows<Segment>& SegmentRows()
{
    static const Rows<Segment> ROWS{
        {{"kind", Type::Text, "`image`, `graphic`, `symbol`, `label`, `text`, `des` or `res`"},
         [](const Segment& s) { return Json(SegmentWord(s.info.GetDataSegmentType())); }},
        {{"segment", Type::Integer, "Index among those of its kind, from 0"},
         [](const Segment& s) { return Json(s.info.GetSegmentIndex()); }},
        {{"identifier", Type::Text, "IID1 or IID, SID, LID, TEXTID, DESID or DESTAG, RESID or RESTAG"},
         [](const Segment& s) {
             return FirstOf(s.header, {"IID1", "IID", "SID", "LID", "TEXTID", "DESID", "DESTAG", "RESID", "RESTAG"});
         }},
        {{"title", Type::Text, "IID2, SNAME or TXTITL"},
         [](const Segment& s) {
             return FirstOf(s.header, {"IID2", "SNAME", "TXTITL"});
         }},
        {{"classification", Type::Text, "The marking of its subheader"},
         [](const Segment& s) {
             return s.header == nullptr ? Json(nullptr) : TextOrNull(ValueText(s.header->GetClassification()));
         }},
        {{"header_offset", Type::Integer, "Where its subheader begins in the file"},
         [](const Segment& s) { return Json(s.info.GetSegmentHeaderStart()); }},
        {{"header_size", Type::Integer, "Bytes"}, [](const Segment& s) { return Json(s.info.GetSegmentHeaderSize()); }},
        {{"data_offset", Type::Integer, "Where its data begin"},
         [](const Segment& s) { return Json(s.info.GetSegmentDataStart()); }},
        {{"data_size", Type::Integer, "Bytes"}, [](const Segment& s) { return Json(s.info.GetSegmentDataSize()); }},
        {{"error", Type::Text, "Why it could not be read or is doubtful, in a file that was salvaged"},
         [](const Segment& s) { return s.error == nullptr ? Json(nullptr) : Json(Printable(Sentence(*s.error))); }},
    };
    return ROWS;
}

const Rows<Extension>& ExtensionRows()
{
    static const Rows<Extension> ROWS{
        {{"kind", Type::Text, "Whose it is: `header`, or the kind of a segment"},
         [](const Extension& e) { return Json(SegmentWord(e.kind)); }},
        {{"segment", Type::Integer, "Index among those of its kind, from 0"},
         [](const Extension& e) { return Json(e.index); }},
        {{"tag", Type::Text, "Tag"}, [](const Extension& e) { return TextOrNull(ValueText(e.tre.GetTag())); }},
        {{"name", Type::Text, "What the tag means; null for one that is not decoded"},
         [](const Extension& e) { return e.tre.IsGenericTRE() ? Json(nullptr) : Json(ValueText(e.tre.GetTREName())); }},
        {{"area", Type::Text, "The field that holds it, such as `IXSHD`, or `TRE_OVERFLOW`"},
         [](const Extension& e) { return TextOrNull(ValueText(e.tre.GetExtensionArea())); }},
        {{"data_size", Type::Integer, "Bytes of its data"},
         [](const Extension& e) { return Json(e.tre.GetLengthOfDataField()); }},
    };
    return ROWS;
}

const Rows<Finding>& FindingRows()
{
    static const Rows<Finding> ROWS{
        {{"level", Type::Text, "`WARN`, `ERROR` or `FATAL`"}, [](const Finding& f) { return Json(LevelWord(f)); }},
        {{"rule", Type::Text, "The rule that is broken (docs/rules.md); null for a fault of reading"},
         [](const Finding& f) { return TextOrNull(f.rule); }},
        {{"sentence", Type::Text, "What was found"}, [](const Finding& f) { return Json(Printable(Sentence(f))); }},
        {{"place", Type::Text, "Segment; null for the file as a whole"},
         [](const Finding& f) { return TextOrNull(Printable(SegmentOf(f))); }},
        {{"tre", Type::Text, "Tag of the TRE"}, [](const Finding& f) { return TextOrNull(ValueText(f.tre)); }},
        {{"field", Type::Text, "Field"}, [](const Finding& f) { return TextOrNull(ValueText(f.field)); }},
        {{"value", Type::Text, "What stands there"}, [](const Finding& f) { return TextOrNull(ValueText(f.value)); }},
        {{"allowed", Type::Text, "What may stand there"},
         [](const Finding& f) { return TextOrNull(ValueText(f.allowed)); }},
        {{"detail", Type::Text, "More about it"}, [](const Finding& f) { return TextOrNull(ValueText(f.detail)); }},
        {{"byte_offset", Type::Integer, "Byte in the file"},
         [](const Finding& f) { return f.offset == Finding::NO_OFFSET ? Json(nullptr) : Json(f.offset); }},
    };
    return ROWS;
}

/// A name by which a file is opened: white space at the end of a path does not count for the library, so that such a
/// file needs another one.
class Openable
{
public:
    explicit Openable(const std::string& aPath) : m_name(aPath)
    {
        if (aPath.find_last_not_of(" \t\n\v\f\r") + 1 != aPath.size()) {
            m_descriptor = ::open(aPath.c_str(), O_RDONLY | O_CLOEXEC);
            m_name = m_descriptor < 0 ? aPath : "/proc/self/fd/" + std::to_string(m_descriptor);
        }
    }
    ~Openable()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    Openable(const Openable&) = delete;
    Openable& operator=(const Openable&) = delete;

    const std::string& Name() const noexcept { return m_name; }

private:
    int m_descriptor = -1;
    std::string m_name;
};

/// What was read of one file, table by table.
class Reading
{
public:
    Reading(const Source& aSource, const std::string& aOpenable, const Request& aRequest)
        : m_source(aSource), m_openable(aOpenable), m_request(aRequest)
    {
    }

    Json Read()
    {
        std::vector<Finding> refusal;
        File file{m_source, Status::READ, {}};
        Isd isd = OpenFile(m_openable, {}, refusal);
        if (isd == nullptr) {
            file.status = Status::REFUSED;
            file.error = refusal.empty() ? "" : Printable(Sentence(refusal.front()));
            std::vector<Finding> ignored;
            isd = m_request.salvage ? OpenFile(m_openable, {.salvage = true}, ignored) : nullptr;
        }
        if (isd == nullptr) {
            file.errors = static_cast<unsigned long>(std::count_if(refusal.begin(), refusal.end(), IsError));
            file.warnings = refusal.size() - file.errors;
            Json record = ObjectOf(FileRows(), file);
            AppendFindings(refusal, record);
            return record;
        }
        file.status = file.status == Status::REFUSED ? Status::SALVAGED : file.status;
        file.isd = isd.get();
        isd->Validate({}, file.errors, file.warnings);
        m_findings = isd->GetFindings();
        Json images = Json::array();
        Json segments = Json::array();
        Json tres = Json::array();
        AppendTres(isd->GetNITFFileHeader(), NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, tres);
        for (const NITFStdDataSegmentInfo* const info : isd->GetSegmentInfos().InFileOrder()) {
            const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
            const NITFFieldSegment* const segment = isd->GetSegment(info->GetDataSegmentType(), index);
            segments.push_back(
                ObjectOf(SegmentRows(), {*info, segment, ErrorOf(m_findings, info->GetDataSegmentType(), index)}));
            AppendTres(segment, info->GetDataSegmentType(), index, tres);
            if (const auto* const image = dynamic_cast<const NITFImageSubheader*>(segment); image != nullptr) {
                Image facts{*isd, *image, index, false, {}, m_request.previews};
                facts.hasFootprint = image->GetFootprint(facts.footprint);
                images.push_back(ObjectOf(ImageRows(), facts));
            }
        }
        file.tres = tres.size();
        Json record = ObjectOf(FileRows(), file);
        record["images"] = std::move(images);
        record["segments"] = std::move(segments);
        record["tres"] = std::move(tres);
        AppendFindings(isd->GetValidationFindings(), record);
        return record;
    }

private:
    static void AppendTres(const NITFFieldSegment* aSegment, NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                           Json& aTres)
    {
        if (aSegment == nullptr) {
            return;
        }
        for (const TRE* const tre : NITFSegmentTREs::GetAll(*aSegment)) {
            aTres.push_back(ObjectOf(ExtensionRows(), {aKind, aIndex, *tre}));
        }
    }

    static void AppendFindings(const std::vector<Finding>& aFindings, Json& aRecord)
    {
        Json findings = Json::array();
        for (const Finding& finding : aFindings) {
            findings.push_back(ObjectOf(FindingRows(), finding));
        }
        aRecord["findings"] = std::move(findings);
    }

    const Source& m_source;
    const std::string& m_openable;
    const Request& m_request;
    std::vector<Finding> m_findings;
};

template<typename Subject>
Table TableOf(const char* aName, const char* aMeaning, const Rows<Subject>& aRows)
{
    Table table{aName, aMeaning, {}};
    for (const Row<Subject>& row : aRows) {
        table.columns.push_back(row.column);
    }
    return table;
}

}  // namespace

const std::vector<Table>& Tables()
{
    static const std::vector<Table> TABLES{
        TableOf("files", "Every file once", FileRows()),
        TableOf("images", "The image segments, with their footprints", ImageRows()),
        TableOf("segments", "All segments of the files", SegmentRows()),
        TableOf("tres", "The tagged record extensions (TREs)", ExtensionRows()),
        TableOf("findings", "What the validation found, or why a file was refused", FindingRows()),
    };
    return TABLES;
}

std::string TablesPage()
{
    constexpr const char* TYPES[] = {"integer", "real", "text", "bytes", "multipolygon"};
    std::string page =
        "# Tables of a catalogue\n\n"
        "Every table has a key of its own, `id`; all but `files` tell their file by `file_id`. What a file does not "
        "say is\n"
        "null. The same names stand in records (`-f ndjson`) and in CSV. This page is made from the table in the "
        "code:\n"
        "`ormo-nitf catalogue --columns`.\n";
    for (const Table& table : Tables()) {
        page += "\n## " + table.name + "\n\n" + table.meaning + ".\n\n| column | type | meaning |\n|---|---|---|\n";
        for (const Column& column : table.columns) {
            page += "| `" + column.name + "` | " + TYPES[static_cast<std::size_t>(column.type)] + " | " +
                    column.meaning + " |\n";
        }
    }
    return page;
}

bool Source::Look()
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return false;
    }
    size = status.st_size;
    modified = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
    return true;
}

Json RecordOf(const std::string& aPath, const Request& aRequest)
{
    Source source{aPath};
    if (!source.Look()) {
        return RecordOf(source, Status::MISSING, std::strerror(errno));
    }
    const char* format = nullptr;
    if (::access(aPath.c_str(), R_OK) != 0) {
        const bool isGone = errno == ENOENT;
        return RecordOf(source, isGone ? Status::MISSING : Status::REFUSED, std::strerror(errno));
    }
    const Openable openable(aPath);
    if (!ImageSupportDataFactory::IsSupportedISDFile(openable.Name().c_str(), format)) {
        return RecordOf(source, Status::NO_NITF, "The file is neither NITF nor NSIF");
    }
    try {
        return Reading(source, openable.Name(), aRequest).Read();
    } catch (const std::exception& exception) {
        return RecordOf(source, Status::REFUSED, exception.what());
    }
}

Json RecordOf(const Source& aSource, const char* aStatus, const std::string& aError)
{
    return ObjectOf(FileRows(), {aSource, aStatus, aError});
}

std::string BytesOf(const Json& aValue)
{
    char* bytes = nullptr;
    std::size_t length = 0;
    if (!aValue.is_object() ||
        !CSMUtilString::Base64Decode(aValue.at("base64").get_ref<const std::string&>().c_str(), &bytes, length)) {
        return {};
    }
    const std::unique_ptr<char[]> owner(bytes);
    std::string decoded(bytes, length);
    return decoded;
}

std::string PathOf(const Json& aRecord)
{
    const auto bytes = aRecord.find("path_bytes");
    return bytes != aRecord.end() && !bytes->is_null() ? BytesOf(*bytes) : aRecord.at("path").get<std::string>();
}

}  // namespace OrmoNitf::Catalogue
