// Rules of the file around its segments: lengths, dates, classification, streams, and TREs that speak of other headers.

#include "fields/DateText.h"
#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/rules/FileView.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

void SubheaderLength(const FileView& aFile, const Report& aReport)
{
    for (const HeaderView& segment : aFile.Segments()) {
        const FieldStore& fields = segment.Inside().record.Store();
        const std::uint64_t written =
            fields.IsEmpty() ? 0 : fields.Position(fields.Entries().back()) + fields.Entries().back().length;
        const std::string_view raw(segment.Inside().raw);
        if (written >= raw.size()) {
            continue;
        }
        const std::string_view surplus = raw.substr(static_cast<std::size_t>(written));
        aReport(segment, {.allowed = std::to_string(written) + " bytes, which the fields take",
                          .detail = "The file header says " + std::to_string(raw.size()) + " byte(s).",
                          .value = std::string(surplus.substr(0, 64)),
                          .offset = segment.Inside().fileOffset + written,
                          .isMild = TrimBlanks(surplus).empty()});
    }
}

/// Whether both are known far enough to say that the first one comes later.
bool IsAfter(const DateParts& aFirst, const DateParts& aSecond) noexcept
{
    const auto unknown = [](const DateParts& aParts) { return std::ranges::find(aParts, -1) - aParts.begin(); };
    const auto known = std::min(unknown(aFirst), unknown(aSecond));
    return std::lexicographical_compare(aSecond.begin(), aSecond.begin() + known, aFirst.begin(),
                                        aFirst.begin() + known);
}

/// Nothing is known of a text that is no date.
DateParts DateOfText(std::string_view aText) noexcept
{
    DateParts date{};
    static_cast<void>(ReadDate(aText, date));
    return date;
}

const char* DateField(const HeaderView& aHeader) noexcept
{
    return aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? "FDT"
           : aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE     ? "IDATIM"
           : aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_TEXT      ? "TXTDT"
                                                                     : nullptr;
}

/// The date of a header; one that is none has a rule of its own.
DateParts DateOf(const HeaderView& aHeader)
{
    const FieldStore& fields = aHeader.Inside().record.Store();
    const FieldEntry* const entry = fields.Find(DateField(aHeader));
    const bool isDate = entry != nullptr && CheckValue(fields.Row(*entry), fields.Value(*entry)) == Verdict::Good;
    return DateOfText(isDate ? fields.Value(*entry) : std::string_view{});
}

void FutureDate(const HeaderView& aHeader, const DateParts& aNow, const FileView& aFile, const Report& aReport)
{
    if (DateField(aHeader) != nullptr && IsAfter(DateOf(aHeader), aNow)) {
        aReport(aHeader, {.field = DateField(aHeader),
                          .allowed = "up to " + std::string(aFile.Now()) + ", the moment of the validation"});
    }
}

void NoFutureDate(const FileView& aFile, const Report& aReport)
{
    const DateParts now = DateOfText(aFile.Now());
    FutureDate(aFile.Header(), now, aFile, aReport);
    for (const HeaderView& segment : aFile.Segments()) {
        FutureDate(segment, now, aFile, aReport);
    }
}

void NotAfterFile(const FileView& aFile, const Report& aReport)
{
    const DateParts file = DateOf(aFile.Header());
    for (const HeaderView& segment : aFile.Segments()) {
        if (DateField(segment) != nullptr && IsAfter(DateOf(segment), file)) {
            aReport(segment,
                    {.field = DateField(segment), .allowed = "up to FDT, " + Shown(aFile.Header().Text("FDT"))});
        }
    }
}

/// The place of a classification, the lowest first; nothing for another letter.
std::optional<std::size_t> Rank(std::string_view aLetter) noexcept
{
    constexpr std::string_view ORDER = "URCST";
    const auto at = aLetter.size() == 1 ? ORDER.find(aLetter) : std::string_view::npos;
    return at == std::string_view::npos ? std::nullopt : std::optional(at);
}

void NotAboveFile(const FileView& aFile, const Report& aReport)
{
    const auto file = Rank(aFile.Header().Text("FSCLAS"));
    for (const HeaderView& segment : aFile.Segments()) {
        const char* const field = segment.Inside().layout->kind->classification;
        const auto rank = Rank(segment.Text(field));
        if (file && rank && *rank > *file) {
            aReport(segment, {.field = field, .allowed = "at most FSCLAS, " + Shown(aFile.Header().Text("FSCLAS"))});
        }
    }
}

constexpr std::uint64_t STREAM_FRAME = 22;

/// The length that a STREAMING_FILE_HEADER says at its front; false when there is none.
bool StreamLength(const HeaderView& aDes, std::uint64_t& aOut)
{
    std::string bytes;
    const auto& des = static_cast<const NITFDESSubheader&>(aDes.Segment());
    return des.GetDESTypeID() == NITFCnst::DES_DESID_STREAMING_FILE_HEADER && aDes.ReadData(0, 7, bytes) &&
           ToCount(bytes, aOut);
}

void StreamFrame(const FileView& aFile, const Report& aReport)
{
    aFile.ForEach(Subject::Des, [&](const HeaderView& aDes) {
        std::uint64_t length = 0;
        std::string first;
        std::string second;
        if (!StreamLength(aDes, length)) {
            return;
        }
        const bool good = aDes.ReadData(7, 4, first) && first == std::string_view("\x0A\x6E\x1D\x97", 4) &&
                          aDes.ReadData(length + 11, 4, second) && second == std::string_view("\x0E\xCA\x14\xBF", 4) &&
                          aDes.ReadData(0, 7, first) && aDes.ReadData(length + 15, 7, second) && first == second &&
                          aDes.DataSize() == length + STREAM_FRAME;
        if (!good) {
            aReport(aDes, {.detail = "SFH_L1 says " + std::to_string(length) + " byte(s), the data have " +
                                     std::to_string(aDes.DataSize()) + '.',
                           .offset = aDes.DataStart()});
        }
    });
}

void StreamSize(const FileView& aFile, const Report& aReport)
{
    const std::uint64_t header = aFile.Header().Number("HL");
    aFile.ForEach(Subject::Des, [&](const HeaderView& aDes) {
        std::uint64_t length = 0;
        if (StreamLength(aDes, length) && length != header) {
            aReport(aDes, {.allowed = std::to_string(header) + " bytes, as HL says",
                           .detail = "SFH_L1 says " + std::to_string(length) + '.',
                           .offset = aDes.DataStart()});
        }
    });
}

void StreamKnowsLength(const FileView& aFile, const Report& aReport)
{
    if (aFile.Parts().header->HasStreamingFileHeader() && aFile.Header().Text("FL") == NITFCnst::STR_VAL_999999999999) {
        aReport(aFile.Header(), {.field = "FL", .allowed = "the length of the file"});
    }
}

/// Whether any image carries the TRE.
bool AnyImageHas(const FileView& aFile, std::string_view aTag)
{
    return std::ranges::any_of(aFile.Segments(), [&](const HeaderView& aSegment) {
        return aSegment.Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && aSegment.FindTre(aTag) != nullptr;
    });
}

void CloudCover(const FileView& aFile, const Report& aReport)
{
    const HeaderView* des = nullptr;
    aFile.ForEach(Subject::Des, [&](const HeaderView& aDes) {
        const auto& one = static_cast<const NITFDESSubheader&>(aDes.Segment());
        des = one.GetDESTypeID() == "CSSHPA DES" ? &aDes : des;
    });
    const HeaderView* image = nullptr;
    for (const HeaderView& segment : aFile.Segments()) {
        image = segment.FindTre("CSCCGA") != nullptr ? &segment : image;
    }
    if (image != nullptr && des == nullptr) {
        aReport(*image, {.allowed = "a CSSHPA DES in the file", .tre = image->FindTre("CSCCGA")});
    }
}

/// The TREs that the images of a commercial dataset carry.
constexpr std::string_view OF_DATASET[] = {"CSEXRA", "CSPROA", "CSCRNA"};

void Dataset(const FileView& aFile, const Report& aReport)
{
    const TRE* const dataset = aFile.Header().FindTre("CSDIDA");
    for (const std::string_view tag : OF_DATASET) {
        const bool has = AnyImageHas(aFile, tag);
        if (dataset != nullptr && !has && aFile.Parts().Count(NITFCnst::DATA_SEGMENT_TYPE_IMAGE) != 0) {
            aReport(aFile.Header(), {.detail = std::string(tag) + " stands in no image.", .tre = dataset});
            return;
        }
        if (dataset == nullptr && has) {
            aReport(aFile.Header(),
                    {.detail = std::string(tag) + " stands in an image, CSDIDA not in the file header."});
            return;
        }
    }
}

void DatasetTimes(const FileView& aFile, const Report& aReport)
{
    const TRE* const dataset = aFile.Header().FindTre("CSDIDA");
    if (dataset == nullptr || dataset->IsGenericTRE()) {
        return;
    }
    const DateParts processed = DateOfText(ViewOf(dataset->GetTREField("PROCESS_TIME")));
    const DateParts file = DateOf(aFile.Header());
    if (IsAfter(processed, file) || IsAfter(file, processed)) {
        aReport(aFile.Header(),
                {.field = "PROCESS_TIME", .allowed = "FDT, " + Shown(aFile.Header().Text("FDT")), .tre = dataset});
    }
    const DateParts taken = DateOfText(ViewOf(dataset->GetTREField("TIME")));
    for (const HeaderView& segment : aFile.Segments()) {
        if (segment.Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && segment.FindTre("CSEXRA") != nullptr) {
            const DateParts image = DateOf(segment);
            if (IsAfter(taken, image) || IsAfter(image, taken)) {
                aReport(aFile.Header(),
                        {.field = "TIME", .allowed = "IDATIM, " + Shown(segment.Text("IDATIM")), .tre = dataset});
            }
            return;
        }
    }
}

// clang-format off
constexpr Rule RULES[] = {
    Rule{"FH-01", ERROR, V21, Subject::FileHeader, "FHDR, FVER",
     "The mark of the version is not known.",
     "The mark is NITF02.00, NITF02.10 or NSIF01.00; another mark means another layout.",
     "MIL-STD-2500C table A-1, FHDR and FVER"}.NotChecked("a file with another mark is refused when it is opened"),
    {"FH-02", ERROR, ALL, Subject::FileHeader, "HL",
     "The file header is not as long as its fields.",
     "HL is the number of bytes from FHDR to the end of the extended header data; it locates the first segment.",
     "MIL-STD-2500C table A-1, HL"},
    {"FH-03", WARN, ALL, Subject::FileHeader, "FL, HL, length pairs",
     "The length of the file is not the sum of its parts.",
     "FL is HL and all lengths of subheaders and data. The tables of segments are enough to read on.",
     "MIL-STD-2500C table A-1, FL"},
    {"FH-04", WARN, ALL, Subject::File, "FL",
     "The file has another length than its header says.",
     "The file has exactly FL bytes. Surplus bytes are harmless; what a short file cuts is reported again at its segment.",
     "MIL-STD-2500C table A-1, FL"},
    {"FH-07", WARN, ALL, Subject::Field, "FDT, IDATIM, TXTDT",
     "A date is not one of the calendar, or not in the form of its version.",
     "CCYYMMDDhhmmss, an unknown pair being two hyphens; in NITF 2.0 DDHHMMSSZMONYY with the month in capitals. Files with the form of the other version, and raster product frames with NUL bytes, are common.",
     "MIL-STD-2500C and MIL-STD-2500A, date and time fields"},
    Rule{"FH-08", WARN, ALL, Subject::File, "FDT, IDATIM, TXTDT",
     "A date lies in the future.",
     "No date lies after the moment of the validation, which a caller can set so that a run can be repeated.",
     "follows from the definitions"}.ByFile(&NoFutureDate),
    Rule{"FH-09", WARN, ALL, Subject::File, "IDATIM, TXTDT, FDT",
     "A segment is dated after its file.",
     "An image or text is older than the file that holds it. Conformance samples of NITF 2.0 carry such dates.",
     "follows from the definitions"}.ByFile(&NotAfterFile),
    Rule{"FH-10", ERROR, ALL, Subject::File, "LISH, LSSH, LLSH, LTSH, LDSH, LRESH",
     "A subheader is not as long as its fields.",
     "The length in the file header is the number of bytes that the fields take. Surplus blanks, as an early writer left them, are warned of only.",
     "MIL-STD-2500C table A-1"}.ByFile(&SubheaderLength),
    {"SF-01", ERROR, V21, Subject::FileHeader, "FL, DESID",
     "The length of the file is unknown and no header at its end knows it.",
     "FL of all nines requires a STREAMING_FILE_HEADER DES as the last segment of the file.",
     "MIL-STD-2500C 5.8.3.2"},
    Rule{"SF-02", ERROR, V21, Subject::Des, "SFH_L1, SFH_DELIM1, SFH_DELIM2, SFH_L2",
     "The header at the end of the file is not framed as it should be.",
     "Seven digits with its length, 0A6E1D97, the header, 0ECA14BF, and the same digits again as the last bytes of the file.",
     "MIL-STD-2500C table A-8(C)"}.ByFile(&StreamFrame),
    Rule{"SF-03", WARN, V21, Subject::Des, "SFH_L1, HL",
     "The header at the end of the file replaces only a part of the first one.",
     "It is as long as HL says.",
     "MIL-STD-2500C table A-8(C)"}.ByFile(&StreamSize),
    Rule{"SF-04", ERROR, V21, Subject::FileHeader, "FL",
     "The header at the end of the file does not know its length either.",
     "It replaces the nines of the first one.",
     "follows from its purpose, MIL-STD-2500C 5.8.3.2"}.ByFile(&StreamKnowsLength),
    Rule{"SEC-03", ERROR, ALL, Subject::File, "CLAS of file and segments",
     "A segment is classified above its file.",
     "T stands over S, C, R and U in this order. Who handles the file goes by the classification of the file.",
     "MIL-STD-2500C table A-1, FSCLAS"}.ByFile(&NotAboveFile),
    {"DE-02", ERROR, ALL, Subject::Des, "DESOFLW, DESITEM",
     "An overflow DES names no header of the file.",
     "DESITEM is 000 for UDHD and XHD, else the number from 001 of an existing segment of the kind that DESOFLW names. Its TREs stay on the DES.",
     "MIL-STD-2500C table A-8(B)"},
    {"DE-03", WARN, ALL, Subject::Des, "UDHOFL, XHDLOFL, UDOFL, IXSOFL, SXSOFL, LXSOFL, TXSOFL",
     "An overflow DES and the header that it belongs to do not name each other.",
     "The overflow field of the header is the number of the DES. Raster product frames carry 000; the DES decides.",
     "MIL-STD-2500C table A-8(B)"},
    {"DE-04", WARN, ALL, Subject::Des, "DESOFLW, DESITEM",
     "Two overflow DESs carry the TREs of one area.",
     "There is at most one for an area; both are placed in file order.",
     "MIL-STD-2500C 5.8.3.1"},
    Rule{"DE-08", WARN, V21, Subject::File, "DES CSSHPA, TRE CSCCGA",
     "Cloud cover is described without its shapes.",
     "CSCCGA comes with a CSSHPA DES.",
     "STDI-0006 table 3.1-1"}.ByFile(&CloudCover),
    Rule{"TR-16", WARN, ALL, Subject::File, "TRE CSDIDA, CSEXRA, CSPROA, CSCRNA",
     "A commercial dataset is not described whole.",
     "It has CSDIDA in the file header and CSEXRA, CSPROA and CSCRNA in its images.",
     "STDI-0006 tables 3.2-1, 3.3-1, 3.5-1 and 3.6-1"}.ByFile(&Dataset),
    Rule{"TR-17", WARN, ALL, Subject::File, "TRE CSDIDA, FDT, IDATIM",
     "The times of CSDIDA are others than those of file and image.",
     "The collection time is IDATIM and the processing time is FDT.",
     "STDI-0006, CSDIDA"}.ByFile(&DatasetTimes),
};
// clang-format on

}  // namespace

RuleList FileRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
