#pragma once

// NITF 2.0, NITF 2.1 and NSIF 1.0 files for programs of C++17 and later: a thin layer over the classes of this library.
//
//     for (const ormo::nitf::Image& image : ormo::nitf::File("image.ntf").images()) {
//         std::cout << image.text("IID1") << ' ' << image.rows() << " x " << image.columns() << '\n';
//     }
//
// A File is open as long as it, a copy of it, or a Segment, Image or Tre of it lives. Fields and texts (string_view)
// are views of its memory and live as long. What is const may be asked by several threads at once.

#include "../foundation/CSMException.h"
#include "../isd/ImageSupportDataFactory.h"
#include "../isd/ImageSupportDataNITF.h"
#include "../segments/NITFFieldValue.h"
#include "../segments/NITFSegmentTREs.h"
#include "../segments/NITFWords.h"
#include "../segments/image/NITFImgOutline.h"
#include "../tre/TREStore.h"
#include "../tre/TreRPC00.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ormo::nitf {

namespace csm = ORMO::SensorModel::CSM;

/// Something wrong with a file: what, where, the value found and what is allowed. Line() tells it in one line.
using Finding = csm::Finding;
/// What the table of a header or TRE says of a field.
using FieldInfo = csm::TreDetailedInfo;
/// A moment in UTC.
using Time = std::chrono::time_point<std::chrono::system_clock, std::chrono::seconds>;

/// A file that cannot be opened, is no NITF file or is damaged, and data that cannot be read: what() is the reason in a
/// line, the first error of the findings.
class Error : public std::runtime_error
{
public:
    explicit Error(const std::string& aReason, std::vector<Finding> aFindings = {})
        : std::runtime_error(aReason), m_findings(std::make_shared<const std::vector<Finding>>(std::move(aFindings)))
    {
    }
    /// All that was found wrong with the file; empty for data that cannot be read.
    const std::vector<Finding>& findings() const noexcept { return *m_findings; }

private:
    std::shared_ptr<const std::vector<Finding>> m_findings;  // shared, so that copies of an exception cannot fail
};

/// A date, and a time of day in UTC, as far as a field tells them: -1 from the first part on that is unknown.
struct Date : csm::NITFDate
{
    /// The moment at which it begins: midnight when no time of day is known. Nothing without a day.
    std::optional<Time> time() const
    {
        if (day < 0) {
            return std::nullopt;
        }
        // Years begin in March, so that the day that comes and goes is the last one.
        const int since = (month + 9) % 12;
        const int march = year - (month < 3 ? 1 : 0);
        const int days = march * 365 + march / 4 - march / 100 + march / 400 + (since * 153 + 2) / 5 + day - 1;
        constexpr int DAYS_TO_1970 = 719468;
        return Time(std::chrono::hours(24) * (days - DAYS_TO_1970) + std::chrono::hours(std::max(hour, 0)) +
                    std::chrono::minutes(std::max(minute, 0)) + std::chrono::seconds(std::max(second, 0)));
    }
};

/// Bytes of a field that are neither number nor text.
struct Bytes
{
    std::string_view bytes;

    friend bool operator==(const Bytes& aLeft, const Bytes& aRight) noexcept { return aLeft.bytes == aRight.bytes; }
    friend bool operator!=(const Bytes& aLeft, const Bytes& aRight) noexcept { return !(aLeft == aRight); }
};

/// The value of a field by the type that its table gives it: nothing for blanks; text, without the blanks around it,
/// also for what stands where a number or date is wanted and is none.
using Value = std::variant<std::monostate, std::int64_t, double, Date, std::string_view, Bytes>;

/// One field of a header or TRE. A view: it lives as long as what it was taken from.
class Field
{
public:
    /// Of a field that was found in one of the two; the other is null.
    Field(const csm::NITFFieldSegment* aHeader, const csm::TRE* aTre, std::string aName, std::string_view aText)
        : m_header(aHeader), m_tre(aTre), m_name(std::move(aName)), m_text(aText)
    {
    }

    /// With the number of its turn inside a repeat: "LON_4_1".
    const std::string& name() const noexcept { return m_name; }
    /// The bytes as they stand in the file, padding included.
    std::string_view text() const noexcept { return m_text; }
    Value value() const
    {
        const csm::NITFFieldValue value =
            m_tre != nullptr ? csm::NITFFieldValue::Of(*m_tre, m_name) : csm::NITFFieldValue::Of(*m_header, m_name);
        switch (value.kind) {
            case csm::NITFFieldValue::Kind::Integer:
                return value.integer;
            case csm::NITFFieldValue::Kind::Real:
                return value.real;
            case csm::NITFFieldValue::Kind::Date:
                return Date{value.date};
            case csm::NITFFieldValue::Kind::Text:
                return value.text;
            case csm::NITFFieldValue::Kind::Bytes:
                return Bytes{value.text};
            case csm::NITFFieldValue::Kind::None:
                break;
        }
        return {};
    }
    // Nothing when the value is none of the kind.
    std::optional<std::int64_t> integer() const { return as<std::int64_t>(); }
    /// Whole numbers too.
    std::optional<double> number() const
    {
        const std::optional<std::int64_t> whole = integer();
        return whole ? static_cast<double>(*whole) : as<double>();
    }
    std::optional<Date> date() const { return as<Date>(); }
    std::optional<Time> time() const
    {
        const std::optional<Date> found = date();
        return found ? found->time() : std::nullopt;
    }
    /// The value with what the table says that it means: "JPEG 2000 (C8)"; the text alone when it says nothing.
    std::string meaning() const
    {
        return m_tre != nullptr ? csm::NITFWords::Meaning(*m_tre, m_name) : csm::NITFWords::Meaning(*m_header, m_name);
    }
    /// Long name, unit, allowed values, width.
    FieldInfo info() const
    {
        FieldInfo info;
        m_tre != nullptr ? csm::NITFFieldValue::GetInfo(*m_tre, m_name, info)
                         : csm::NITFFieldValue::GetInfo(*m_header, m_name, info);
        return info;
    }

private:
    template<typename Wanted>
    std::optional<Wanted> as() const
    {
        const Value found = value();
        const Wanted* const wanted = std::get_if<Wanted>(&found);
        return wanted == nullptr ? std::nullopt : std::optional<Wanted>(*wanted);
    }

    const csm::NITFFieldSegment* m_header;
    const csm::TRE* m_tre;
    std::string m_name;
    std::string_view m_text;
};

/// What headers and TREs share: a list of fields, which are found by name.
class Record
{
public:
    /// In the order of the bytes.
    std::vector<Field> fields() const
    {
        return m_tre != nullptr ? fields_of(*m_tre) : m_header != nullptr ? fields_of(*m_header) : std::vector<Field>();
    }
    std::optional<Field> field(std::string_view aName) const
    {
        std::string name(aName);
        std::string_view text;
        if (m_tre != nullptr) {
            const char* value = nullptr;
            std::size_t length = 0;
            text = m_tre->GetFieldAsString(name.c_str(), value, length) ? std::string_view(value, length) : text;
        } else if (m_header != nullptr) {
            text = m_header->FieldText(name);
        }
        return text.data() == nullptr ? std::nullopt : std::optional(Field(m_header, m_tre, std::move(name), text));
    }
    // The same of a field by name; nothing, or an empty text, when there is no such field either.
    std::string_view text(std::string_view aName) const
    {
        const std::optional<Field> found = field(aName);
        return found ? found->text() : std::string_view();
    }
    std::optional<std::int64_t> integer(std::string_view aName) const { return ask(aName, &Field::integer); }
    std::optional<double> number(std::string_view aName) const { return ask(aName, &Field::number); }
    std::optional<Date> date(std::string_view aName) const { return ask(aName, &Field::date); }
    std::optional<Time> time(std::string_view aName) const { return ask(aName, &Field::time); }

protected:
    using Isd = std::shared_ptr<const csm::ImageSupportDataNITF>;

    Record(Isd aIsd, const csm::NITFFieldSegment* aHeader, const csm::TRE* aTre)
        : m_isd(std::move(aIsd)), m_header(aHeader), m_tre(aTre)
    {
    }

    const Isd& isd() const noexcept { return m_isd; }
    const csm::NITFFieldSegment* header() const noexcept { return m_header; }
    const csm::TRE* record() const noexcept { return m_tre; }

private:
    template<typename Owner>
    std::vector<Field> fields_of(const Owner& aOwner) const
    {
        std::vector<Field> fields;
        fields.reserve(aOwner.GetNumOfFields());
        std::string name;
        const char* value = nullptr;
        std::size_t length = 0;
        for (std::size_t i = 0; aOwner.GetFieldAt(i, name, value, length); ++i) {
            fields.emplace_back(m_tre != nullptr ? nullptr : m_header, m_tre, name, std::string_view(value, length));
        }
        return fields;
    }
    template<typename Answer>
    Answer ask(std::string_view aName, Answer (Field::*aQuestion)() const) const
    {
        const std::optional<Field> found = field(aName);
        return found ? ((*found).*aQuestion)() : std::nullopt;
    }

    Isd m_isd;
    const csm::NITFFieldSegment* m_header;
    const csm::TRE* m_tre;
};

/// A tagged record extension. One whose layout is not known, or whose data do not fit it, has no fields but its data.
class Tre : public Record
{
public:
    std::string_view tag() const noexcept { return record()->GetTag(); }
    /// "Image Block Information"; "UNKNOWN" when the layout is not known.
    std::string_view long_name() const { return record()->GetTREName(); }
    bool is_decoded() const noexcept { return !record()->IsGenericTRE(); }
    /// The area that it stands in: "IXSHD".
    std::string_view area() const noexcept { return record()->GetExtensionArea(); }
    /// Of its first byte in the file.
    std::uint64_t offset() const noexcept { return record()->GetFileOffset(); }
    std::string_view data() const
    {
        std::size_t length = 0;
        const char* const data = record()->GetRawTREDataString(length);
        return {data, length};
    }

private:
    friend class Segment;

    Tre(Isd aIsd, const csm::TRE& aTre) : Record(std::move(aIsd), nullptr, &aTre) {}
};

enum class Kind
{
    Header = csm::NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER,
    Image = csm::NITFCnst::DATA_SEGMENT_TYPE_IMAGE,
    Graphic = csm::NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC,
    Symbol = csm::NITFCnst::DATA_SEGMENT_TYPE_SYMBOL,
    Label = csm::NITFCnst::DATA_SEGMENT_TYPE_LABEL,
    Text = csm::NITFCnst::DATA_SEGMENT_TYPE_TEXT,
    Des = csm::NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION,
    Res = csm::NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION
};

/// The file header, or a segment: the fields of its header, its TREs and its data.
class Segment : public Record
{
public:
    Kind kind() const noexcept { return m_kind; }
    /// "image", "des", "header".
    std::string_view word() const noexcept { return csm::NITFStdDataSegment::GetDataSegmentWord(code()); }
    /// Among the segments of its kind, from 0.
    std::size_t index() const noexcept { return m_index; }
    /// "image:0", "header".
    std::string name() const
    {
        return std::string(word()) + (m_kind == Kind::Header ? "" : ':' + std::to_string(m_index));
    }
    /// False for a segment of a salvaged file whose header cannot be read; it has no fields, TREs or data.
    bool is_readable() const noexcept { return header() != nullptr; }

    // Where its header and its data stand in the file, in bytes.
    std::uint64_t header_offset() const noexcept { return m_info == nullptr ? 0 : m_info->GetSegmentHeaderStart(); }
    std::uint64_t header_size() const noexcept
    {
        return m_info == nullptr ? isd()->GetNITFFileHeader()->GetFileHeaderLength() : m_info->GetSegmentHeaderSize();
    }
    std::uint64_t data_offset() const noexcept { return m_info == nullptr ? 0 : m_info->GetSegmentDataStart(); }
    std::uint64_t data_size() const noexcept { return m_info == nullptr ? 0 : m_info->GetSegmentDataSize(); }

    /// Its own TREs and then those that overflow DESs carry for it, in order of appearance.
    std::vector<Tre> tres() const
    {
        std::vector<Tre> tres;
        if (is_readable()) {
            for (const csm::TRE* const tre : csm::NITFSegmentTREs::GetAll(*header())) {
                tres.push_back(Tre(isd(), *tre));
            }
        }
        return tres;
    }
    /// The first one of a tag.
    std::optional<Tre> tre(std::string_view aTag) const
    {
        const csm::TRE* const found = is_readable() ? csm::NITFSegmentTREs::GetFirst(*header(), aTag) : nullptr;
        return found == nullptr ? std::nullopt : std::optional(Tre(isd(), *found));
    }
    /// All data of a segment that is no image, read when first asked for. Nothing when they are not all in the file.
    std::optional<std::string_view> data() const
    {
        const char* data = nullptr;
        std::size_t length = 0;
        bool found = false;
        if (const auto* const drawn = dynamic_cast<const csm::NITFDrawnSegment*>(header())) {
            found = drawn->GetSegmentData(data, length);
        } else if (const auto* const text = dynamic_cast<const csm::NITFTextSubheader*>(header())) {
            found = text->GetTextData(data, length);
        } else if (const auto* const des = dynamic_cast<const csm::NITFDESSubheader*>(header())) {
            found = des->GetDESDATA(data, length);
        } else if (const auto* const res = dynamic_cast<const csm::NITFRESSubheader*>(header())) {
            found = res->GetRESDATA(data, length);
        }
        return found ? std::optional(std::string_view(data, length)) : std::nullopt;
    }

protected:
    friend class File;
    using Code = csm::NITFCnst::DataSegmentType;

    /// Without a place it is the file header.
    Segment(const Isd& aIsd, const csm::NITFStdDataSegmentInfo* aInfo)
        : Segment(aIsd, aInfo == nullptr ? Kind::Header : static_cast<Kind>(aInfo->GetDataSegmentType()),
                  aInfo == nullptr ? 0 : static_cast<std::size_t>(aInfo->GetSegmentIndex()), aInfo)
    {
    }

private:
    Segment(const Isd& aIsd, Kind aKind, std::size_t aIndex, const csm::NITFStdDataSegmentInfo* aInfo)
        : Record(aIsd, aIsd->GetSegment(static_cast<Code>(aKind), aIndex), nullptr),
          m_kind(aKind),
          m_index(aIndex),
          m_info(aInfo)
    {
    }
    Code code() const noexcept { return static_cast<Code>(m_kind); }

    Kind m_kind;
    std::size_t m_index;
    const csm::NITFStdDataSegmentInfo* m_info;
};

/// Degrees of WGS 84, north and east positive.
struct Position
{
    double latitude = 0.0;
    double longitude = 0.0;
};

/// Where an image lies on the ground.
struct Footprint
{
    /// The corner pixels: first row first column, first row last column, last row last column, last row first column.
    std::array<Position, 4> corners{};
    /// "BLOCKA", "GEOLOB", "CSCRNA [measured]", "IGEOLO", "IGEOLO [UTM]" ...
    std::string_view source;
    /// Whether it lies on both sides of the 180th meridian; west of the box is then above east.
    bool crosses_180 = false;
    double south = 0.0;
    double west = 0.0;
    double north = 0.0;
    double east = 0.0;

    /// The areas of a map that it covers, as closed rings that run counterclockwise: one, or several when the 180th
    /// meridian cuts it. Empty when the corners make no area.
    std::vector<std::vector<Position>> areas() const
    {
        csm::NITFImgExtent::Footprint footprint;
        for (std::size_t i = 0; i != corners.size(); ++i) {
            footprint.latitudes[i] = corners[i].latitude;
            footprint.longitudes[i] = corners[i].longitude;
        }
        std::vector<std::vector<Position>> areas;
        for (const csm::NITFImgOutline::Ring& ring : csm::NITFImgOutline::GetAreas(footprint)) {
            std::vector<Position>& area = areas.emplace_back();
            for (const csm::NITFImgOutline::Point& point : ring) {
                area.push_back({point.latitude, point.longitude});
            }
        }
        return areas;
    }
};

/// Rational polynomial coefficients, in the order of RPC00B whichever TRE they come from (csm::TreRPC00).
struct Rpc
{
    using Coefficients = std::array<double, csm::TreRPC00::NUM_OF_COEFFICIENTS>;
    using Normals = csm::TreRPC00::CoordinateValues;

    std::string_view tag;  ///< "RPC00B" or "RPC00A"
    Coefficients line_numerator{};
    Coefficients line_denominator{};
    Coefficients sample_numerator{};
    Coefficients sample_denominator{};
    Normals offsets{};
    Normals scales{};
    double bias = 0.0;    ///< estimated errors, in metres
    double random = 0.0;  ///< as above
};

/// A part of an image; no rows or columns stand for all that there are behind the first.
struct Window
{
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
};

/// What a sample is; complex ones are two floats.
enum class Sample
{
    Unknown,
    Unsigned,
    Signed,
    Real,
    Complex
};

/// An image segment.
class Image : public Segment
{
public:
    std::size_t rows() const { return static_cast<std::size_t>(integer("NROWS").value_or(0)); }
    std::size_t columns() const { return static_cast<std::size_t>(integer("NCOLS").value_or(0)); }
    std::size_t bands() const noexcept { return image() == nullptr ? 0 : image()->GetNumOfImageBands(); }

    /// The best footprint there is.
    std::optional<Footprint> footprint() const
    {
        csm::NITFImgExtent::Footprint found;
        if (image() == nullptr || !image()->GetFootprint(found)) {
            return std::nullopt;
        }
        Footprint footprint{{}, found.source, found.crosses180, found.south, found.west, found.north, found.east};
        for (std::size_t i = 0; i != footprint.corners.size(); ++i) {
            footprint.corners[i] = {found.latitudes[i], found.longitudes[i]};
        }
        return footprint;
    }
    std::optional<Rpc> rpc() const
    {
        for (const std::string_view tag : {"RPC00B", "RPC00A"}) {
            const csm::TRE* const found = image() == nullptr ? nullptr : csm::NITFSegmentTREs::GetFirst(*image(), tag);
            const auto* const tre = dynamic_cast<const csm::TreRPC00*>(found);
            Rpc rpc;
            rpc.tag = tag;
            if (tre != nullptr &&
                tre->GetRPCCoefficients(rpc.line_numerator.data(), rpc.line_denominator.data(),
                                        rpc.sample_numerator.data(), rpc.sample_denominator.data()) &&
                tre->GetRPCOffsets(rpc.offsets) && tre->GetRPCScales(rpc.scales)) {
                tre->GetRPCErrors(rpc.bias, rpc.random);
                return rpc;
            }
        }
        return std::nullopt;
    }
    /// What the file answers to a property key such as "acquisition.date", from headers and TREs.
    std::optional<std::string> property(const std::string& aKey) const
    {
        std::string value;
        std::string source;
        const bool found = isd()->FindOrmoMetadata(aKey.c_str(), index(), value, source);
        return found ? std::optional(std::move(value)) : std::nullopt;
    }

    Sample sample() const
    {
        switch (image() == nullptr ? csm::NITFCnst::PIXEL_TYPE_UNKNOWN : image()->GetImagePixelValueType()) {
            case csm::NITFCnst::PIXEL_TYPE_B:
            case csm::NITFCnst::PIXEL_TYPE_INT:
                return Sample::Unsigned;
            case csm::NITFCnst::PIXEL_TYPE_SI:
                return Sample::Signed;
            case csm::NITFCnst::PIXEL_TYPE_R:
                return Sample::Real;
            case csm::NITFCnst::PIXEL_TYPE_C:
                return Sample::Complex;
            default:
                return Sample::Unknown;
        }
    }
    /// 0 when pixels of this kind cannot be read.
    std::size_t bytes_per_sample() const { return image() == nullptr ? 0 : image()->GetBytesPerSample(); }

    /// The samples of a window of one band, row after row, in the byte order of the machine. Raises Error.
    std::vector<std::byte> pixels(int aBand = 0, Window aWindow = {}) const
    {
        const auto rest = [](int aFirst, int aCount, std::size_t aAll) {
            const std::int64_t left = static_cast<std::int64_t>(aAll) - aFirst;
            const std::int64_t count = aCount == 0 ? left : aCount;
            if (aFirst < 0 || count < 1 || count > left) {
                throw Error("ERROR: The window is empty or leaves the image.");
            }
            return static_cast<int>(count);
        };
        aWindow.rows = rest(aWindow.row, aWindow.rows, rows());
        aWindow.columns = rest(aWindow.column, aWindow.columns, columns());
        check_end(aBand, aWindow.row + aWindow.rows - 1, aWindow.column + aWindow.columns - 1);
        const std::size_t stride = bytes_per_sample() * static_cast<std::size_t>(aWindow.columns);
        std::vector<std::byte> pixels(stride * static_cast<std::size_t>(aWindow.rows));
        // As many rows at once as the reader takes.
        const int most = static_cast<int>(std::max<std::size_t>(INT_MAX / std::max<std::size_t>(stride, 1), 1));
        for (int done = 0; done < aWindow.rows;) {
            const int count = std::min(most, aWindow.rows - done);
            std::byte* const to = pixels.data() + stride * static_cast<std::size_t>(done);
            check(reader().RetrieveImagePixels(aWindow.row + done, aWindow.column, count, aWindow.columns, aBand,
                                               static_cast<int>(stride) * count, to, nullptr));
            done += count;
        }
        return pixels;
    }
    /// Every aStep-th sample of every aStep-th row of one band. Raises Error.
    std::vector<std::byte> overview(int aStep, int aBand = 0) const
    {
        check_end(aBand, static_cast<int>(rows()) - 1, static_cast<int>(columns()) - 1);
        const auto step = static_cast<std::size_t>(std::max(aStep, 1));
        std::vector<std::byte> pixels((rows() + step - 1) / step * ((columns() + step - 1) / step) *
                                      bytes_per_sample());
        check(reader().RetrieveImageOverview(aBand, aStep, pixels.size(), pixels.data()));
        return pixels;
    }

private:
    friend class File;

    using Segment::Segment;

    const csm::NITFImageSubheader* image() const noexcept
    {
        return static_cast<const csm::NITFImageSubheader*>(header());
    }
    const csm::NITFImagePixelReader& reader() const
    {
        if (image() == nullptr) {
            throw Error("ERROR: The image segment cannot be read.");
        }
        return *image();
    }
    /// Refuses pixels that are not in the file before there is memory for them. What is compressed tells it by itself.
    void check_end(int aBand, int aRow, int aColumn) const
    {
        if (text("IC") == "NC") {
            std::array<std::byte, 16> last{};
            check(reader().RetrieveImagePixels(aRow, aColumn, 1, 1, aBand, static_cast<int>(last.size()), last.data(),
                                               nullptr));
        }
    }
    static void check(csm::NITFImagePixelReader::Status aStatus)
    {
        if (aStatus != csm::NITFImagePixelReader::STATUS_OK) {
            throw Error(csm::NITFImagePixelReader::GetLastPixelError());
        }
    }
};

/// Whether a file begins as one that can be read.
inline bool is_nitf(const std::string& aPath) noexcept
{
    const char* format = nullptr;
    return csm::ImageSupportDataFactory::IsSupportedISDFile(aPath.c_str(), format);
}

/// How a file is opened.
struct OpenOptions
{
    bool images_only = false;  ///< leave out the segments behind the images
    bool salvage = false;      ///< take what can be read of a damaged file; only of one with a path
};

/// What the rules of the standards find, errors first. There may be more of them than findings, which are capped.
struct Validation
{
    std::vector<Finding> findings;
    unsigned long errors = 0;
    unsigned long warnings = 0;

    bool is_good() const noexcept { return errors == 0; }
};

/// An open file. Copies are one and the same.
class File
{
public:
    /// Raises Error, and std::bad_alloc when memory is short.
    explicit File(const std::string& aPath, OpenOptions aOptions = {})
        : m_isd(opened([&](csm::ImageSupportData*& aIsd) {
              if (aOptions.salvage) {
                  csm::ImageSupportDataFactory::Salvage(aPath.c_str(), &aIsd);
              } else {
                  csm::ImageSupportDataFactory::Create(aPath.c_str(), &aIsd, !aOptions.images_only, false);
              }
          }))
    {
    }
    /// A file, or its first part, that stands in memory; the bytes are copied. The name stands for the path.
    static File from_memory(std::string_view aBytes, const std::string& aName = "memory", OpenOptions aOptions = {})
    {
        return File(opened([&](csm::ImageSupportData*& aIsd) {
            csm::ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), true, aName.c_str(), &aIsd,
                                                           !aOptions.images_only, false);
        }));
    }

    std::string_view path() const noexcept { return m_isd->GetFileName(); }
    /// "NITF02.10", "NITF02.00" or "NSIF01.00".
    std::string_view version() const { return m_isd->GetFileTypeAndVersion(); }
    /// In bytes, whatever the header says.
    std::uint64_t size() const noexcept { return m_isd->GetNITFFileSize(); }

    Segment header() const { return {m_isd, nullptr}; }
    /// All segments in the order of the file; the header does not count.
    std::vector<Segment> segments() const
    {
        std::vector<Segment> segments;
        for (const csm::NITFStdDataSegmentInfo* const info : m_isd->GetSegmentInfos().InFileOrder()) {
            segments.push_back(Segment(m_isd, info));
        }
        return segments;
    }
    std::vector<Image> images() const
    {
        std::vector<Image> images;
        for (const csm::NITFStdDataSegmentInfo* const info : m_isd->GetSegmentInfos().InFileOrder()) {
            if (info->GetDataSegmentType() == csm::NITFCnst::DATA_SEGMENT_TYPE_IMAGE) {
                images.push_back(Image(m_isd, info));
            }
        }
        return images;
    }

    /// A field by owner and name, as the program's `table` names it: "image.IDATIM" of the first image,
    /// "image:1.IDATIM", "USE00A.SUN_EL" of the first such TRE, those of the header before those of segments.
    std::optional<Field> find(std::string_view aName) const
    {
        const auto point = aName.find('.');
        const std::string_view owner = aName.substr(0, point);
        const std::string_view name = point == std::string_view::npos ? "" : aName.substr(point + 1);
        std::vector<Segment> all = segments();
        all.insert(all.begin(), header());
        for (const Segment& segment : all) {
            if (owner == segment.name() || (segment.index() == 0 && owner == segment.word())) {
                return segment.field(name);
            }
        }
        for (const Segment& segment : all) {
            if (const std::optional<Tre> found = segment.tre(owner)) {
                return found->field(name);
            }
        }
        return std::nullopt;
    }

    /// What was found on reading: warnings, and errors of what was salvaged.
    std::vector<Finding> findings() const { return m_isd->GetFindings(); }
    /// Holds the file against every rule. Not while another thread asks.
    Validation validate(const csm::ValidationOptions& aOptions = {})
    {
        Validation validation;
        m_isd->Validate(aOptions, validation.errors, validation.warnings);
        validation.findings = m_isd->GetValidationFindings();
        return validation;
    }
    /// The whole file as an XML document, which the file keeps. Not while another thread asks. Raises Error.
    std::string_view xml()
    {
        const char* const document = m_isd->Serialize();
        if (document == nullptr) {
            throw Error("ERROR: The document cannot be written.");
        }
        return document;
    }

    /// For all else that the library's classes answer.
    const csm::ImageSupportDataNITF& isd() const noexcept { return *m_isd; }

private:
    using Isd = std::shared_ptr<csm::ImageSupportDataNITF>;

    explicit File(Isd aIsd) noexcept : m_isd(std::move(aIsd)) {}

    template<typename Open>
    static Isd opened(Open aOpen)
    {
        std::string reason = "ERROR: The file was not opened as a NITF file.";
        csm::ImageSupportData* isd = nullptr;
        try {
            aOpen(isd);
        } catch (const csm::CSMException& exception) {
            const std::string_view text = exception.GetAdditionalMessage();
            reason = text.empty() ? exception.GetErrorMessage() : text;
        } catch (const std::invalid_argument& exception) {
            reason = exception.what();
        }
        if (auto* const nitf = dynamic_cast<csm::ImageSupportDataNITF*>(isd); nitf != nullptr) {
            return {nitf, [](csm::ImageSupportData* aIsd) { csm::ImageSupportDataFactory::Destroy(&aIsd); }};
        }
        const std::vector<Finding> findings = csm::ImageSupportDataFactory::GetFindings();
        const auto error = std::find_if(findings.begin(), findings.end(), [](const Finding& aFinding) {
            return aFinding.level != Finding::Level::Warning;
        });
        csm::ImageSupportDataFactory::Destroy(&isd);
        throw Error(error == findings.end() ? reason : error->Line(), findings);
    }

    Isd m_isd;
};

}  // namespace ormo::nitf
