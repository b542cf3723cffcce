#include "fields/FieldWalk.h"
#include "fields/Number.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

#include <array>
#include <bit>

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRPFIMG, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2411 reaches every part of a frame through the location table. Its positions are absolute and go wrong when a
// file is rewritten with another header, so the parts are read in the order that is in use, as far as the numbers in
// the data bear that order out.
constexpr std::uint64_t LOCATION_HEAD = 14;
constexpr std::uint64_t LOCATION_RECORD = 10;
constexpr std::uint64_t FILE_NAME = 12;
constexpr std::uint64_t COLOUR_HEAD = 6;
constexpr std::uint64_t COLOUR_RECORD = 17;
constexpr std::uint64_t CONVERTER_HEAD = 8;
constexpr std::uint64_t CONVERTER_RECORD = 18;
constexpr std::uint64_t IMAGE_DESCRIPTION = 28;

bool Skip(ByteCursor& aCursor, std::uint64_t aCount)
{
    std::string_view skipped;
    return aCursor.Take(aCount, skipped);
}

bool Take(ByteCursor& aCursor, std::uint64_t aWidth, std::uint64_t& aOut)
{
    std::string_view bytes;
    return aCursor.Take(aWidth, bytes) && BigEndianUnsigned(bytes, aOut);
}

/// Takes a number that has to be the one expected.
bool TakeThis(ByteCursor& aCursor, std::uint64_t aWidth, std::uint64_t aExpected)
{
    std::uint64_t number = 0;
    return Take(aCursor, aWidth, number) && number == aExpected;
}

bool HasLocationTable(const WalkContext& aContext)
{
    std::uint64_t length = 0;
    std::uint64_t offset = 0;
    std::uint64_t records = 0;
    std::uint64_t size = 0;
    return aContext.Count("LOCLEN", length) && aContext.Count("CLTOFF", offset) && aContext.Count("SECRECS", records) &&
           aContext.Count("RECLEN", size) && offset == LOCATION_HEAD && size == LOCATION_RECORD &&
           length == LOCATION_HEAD + LOCATION_RECORD * records && aContext.BytesLeft() >= LOCATION_RECORD * records;
}

/// Four corners on the globe, then two resolutions and two intervals above zero.
bool HasCoverage(const WalkContext& aContext)
{
    constexpr std::array<double, 2> HIGHEST{90.0, 180.0};
    constexpr std::size_t COORDINATES = 8;
    constexpr std::size_t NUMBERS = 12;
    ByteCursor cursor(aContext.Ahead(NUMBERS * sizeof(double)));
    for (std::size_t i = 0; i != NUMBERS; ++i) {
        std::uint64_t bits = 0;
        if (!Take(cursor, sizeof(double), bits)) {
            return false;
        }
        const auto number = std::bit_cast<double>(bits);
        const double highest = HIGHEST[i % HIGHEST.size()];
        const bool good = i < COORDINATES ? -highest <= number && number <= highest : number > 0.0;
        if (!good) {
            return false;
        }
    }
    return true;
}

/// Passes the colour records, then their tables one after another, then their histograms.
bool PassColours(ByteCursor& aCursor, std::uint64_t aRecords)
{
    const ByteCursor records = aCursor;
    const std::uint64_t first = COLOUR_HEAD + COLOUR_RECORD * aRecords;
    std::uint64_t next = first;
    for (const bool histograms : {false, true}) {
        aCursor = records;
        for (std::uint64_t i = 0; i != aRecords; ++i) {
            std::uint64_t entries = 0;
            std::uint64_t colour = 0;
            std::uint64_t histogram = 0;
            std::uint64_t colourPlace = 0;
            std::uint64_t histogramPlace = 0;
            if (!Skip(aCursor, 2) || !Take(aCursor, 4, entries) || !Take(aCursor, 1, colour) ||
                !Take(aCursor, 2, histogram) || !Take(aCursor, 4, colourPlace) || !Take(aCursor, 4, histogramPlace) ||
                (histograms ? histogramPlace : colourPlace) != next) {
                return false;
            }
            next += entries * (histograms ? histogram : colour);
        }
    }
    return Skip(aCursor, next - first);
}

/// Passes the converter records and their tables.
bool PassConverters(ByteCursor& aCursor, std::uint64_t aRecords)
{
    const std::uint64_t first = CONVERTER_HEAD + CONVERTER_RECORD * aRecords;
    std::uint64_t next = first;
    std::uint64_t size = 0;
    if (!TakeThis(aCursor, 4, CONVERTER_HEAD) || !TakeThis(aCursor, 2, CONVERTER_RECORD) || !Take(aCursor, 2, size)) {
        return false;
    }
    for (std::uint64_t i = 0; i != aRecords; ++i) {
        std::uint64_t entries = 0;
        if (!Skip(aCursor, 2) || !Take(aCursor, 4, entries) || !TakeThis(aCursor, 4, next) || !Skip(aCursor, 8)) {
            return false;
        }
        next += entries * size;
    }
    return Skip(aCursor, next - first);
}

bool HasColours(const WalkContext& aContext)
{
    ByteCursor cursor(aContext.Ahead(static_cast<std::size_t>(aContext.BytesLeft())));
    std::uint64_t colours = 0;
    std::uint64_t converters = 0;
    return Take(cursor, 1, colours) && Take(cursor, 1, converters) && Skip(cursor, FILE_NAME) &&
           TakeThis(cursor, 4, COLOUR_HEAD) && TakeThis(cursor, 2, COLOUR_RECORD) && PassColours(cursor, colours) &&
           (converters == 0 || PassConverters(cursor, converters)) && cursor.Remaining() >= IMAGE_DESCRIPTION;
}

/// The product of two numbers of the record that belongs to the table walked now.
bool TableLength(const WalkContext& aContext, const char* aEntries, const char* aSize, std::uint64_t& aOut)
{
    std::uint64_t entries = 0;
    std::uint64_t size = 0;
    if (!aContext.CountInTurn(aEntries, aContext.Turn(), entries) ||
        !(aContext.Count(aSize, size) || aContext.CountInTurn(aSize, aContext.Turn(), size))) {
        return false;
    }
    aOut = entries * size;
    return true;
}

bool ColourTableLength(const WalkContext& aContext, std::uint64_t& aOut)
{
    return TableLength(aContext, "NCGREC", "CGELEN", aOut);
}

bool HistogramLength(const WalkContext& aContext, std::uint64_t& aOut)
{
    return TableLength(aContext, "NCGREC", "HISTRL", aOut);
}

bool ConverterTableLength(const WalkContext& aContext, std::uint64_t& aOut)
{
    return TableLength(aContext, "NCCREC", "CCRECL", aOut);
}

bool HasBytesLeft(const WalkContext& aContext)
{
    return aContext.BytesLeft() != 0;
}

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need           form      values           unit       label
    Field("LOCLEN",    2, Required,      Unsigned, "",              "bytes",   "Location Section Length",
          "Length of the location section; 14 bytes and 10 for each record."),
    Field("CLTOFF",    4, Required,      Unsigned, "",              "bytes",   "Component Location Table Offset",
          "Distance of the component location table from the start of the location section; always 14."),
    Field("SECRECS",   2, Required,      Unsigned, "1..65535",      "",        "Number of Component Location Records",
          "How many component location records follow."),
    Field("RECLEN",    2, Required,      Unsigned, "",              "bytes",   "Component Location Record Length",
          "Length of one component location record; always 10."),
    Field("AGGLEN",    4, Required,      Unsigned, "",              "bytes",   "Component Aggregate Length",
          "Sum of the lengths of all listed components."),
    WhenBy("the location table follows", HasLocationTable),
        Repeat("SECRECS"),
            Field("LOCID",     2, Required,      Unsigned,
                  "128=header|129=location section|130=coverage section|131=compression section|132=compression lookup|"
                  "133=compression parameter|134=color/grayscale section|135=colormap|136=image description|137=image "
                  "display parameters|138=mask|139=color converter|140=spatial data|141=attribute section|"
                  "142=attribute|143=explicit areal coverage|144..145=related images|146..147=replace/update|any=other "
                  "component",
                  "", "Component ID",
                  "Kind of the component that the record points to."),
            Field("SECLEN",    4, Required,      Unsigned, "",              "bytes",   "Component Length",
                  "Length of the component."),
            Field("PHYSIDX",   4, Required,      Unsigned, "",              "bytes",   "Component Location",
                  "Distance of the component from the start of the file."),
        End(),
        WhenBy("the coverage follows", HasCoverage),
            Field("ULLAT",     8, Required,      Float,    "-90..90",       "deg",     "Upper Left Latitude",
                  "Latitude of the upper left corner of the frame."),
            Field("ULLON",     8, Required,      Float,    "-180..180",     "deg",     "Upper Left Longitude",
                  "Longitude of the upper left corner of the frame."),
            Field("LLLAT",     8, Required,      Float,    "-90..90",       "deg",     "Lower Left Latitude",
                  "Latitude of the lower left corner of the frame."),
            Field("LLLON",     8, Required,      Float,    "-180..180",     "deg",     "Lower Left Longitude",
                  "Longitude of the lower left corner of the frame."),
            Field("URLAT",     8, Required,      Float,    "-90..90",       "deg",     "Upper Right Latitude",
                  "Latitude of the upper right corner of the frame."),
            Field("URLON",     8, Required,      Float,    "-180..180",     "deg",     "Upper Right Longitude",
                  "Longitude of the upper right corner of the frame."),
            Field("LRLAT",     8, Required,      Float,    "-90..90",       "deg",     "Lower Right Latitude",
                  "Latitude of the lower right corner of the frame."),
            Field("LRLON",     8, Required,      Float,    "-180..180",     "deg",     "Lower Right Longitude",
                  "Longitude of the lower right corner of the frame."),
            Field("VRES",      8, Required,      Float,    "",              "m",       "Vertical Resolution",
                  "Size of a pixel on the ground in the north-south direction."),
            Field("HRES",      8, Required,      Float,    "",              "m",       "Horizontal Resolution",
                  "Size of a pixel on the ground in the east-west direction."),
            Field("VINT",      8, Required,      Float,    "",              "deg",     "Vertical Interval",
                  "Distance of neighbouring pixels in latitude."),
            Field("HINT",      8, Required,      Float,    "",              "deg",     "Horizontal Interval",
                  "Distance of neighbouring pixels in longitude."),
            WhenBy("colours and image description follow without gaps", HasColours),
                Field("NCGOR",     1, Required,      Unsigned, "",              "",        "Number of Color/Grayscale Offset Records",
                      "How many colour or grayscale tables there are."),
                Field("NCCOR",     1, Required,      Unsigned, "",              "",        "Number of Color Converter Offset Records",
                      "How many colour converter tables there are."),
                Field("CGFILE",   12, RequiredBlank, Bytes,    "",              "",        "External Color/Grayscale File Name",
                      "Name of an outside colour table file; spaces or zero bytes when there is none."),
                Field("CMTOFF",    4, Required,      Unsigned, "6",             "bytes",   "Color/Grayscale Offset Table Offset",
                      "Distance of the colour table records from the start of the colormap subsection."),
                Field("CGRECL",    2, Required,      Unsigned, "17",            "bytes",   "Color/Grayscale Offset Record Length",
                      "Length of one colour table record."),
                Repeat("NCGOR"),
                    Field("CGTID",     2, Required,      Unsigned,
                          "1=RGB|2=RGBM (red, green, blue, monochrome)|3=CMYK|4=monochrome|any=other kind",
                          "", "Color/Grayscale Table ID",
                          "Kind of the colour table."),
                    Field("NCGREC",    4, Required,      Unsigned, "",              "",        "Number of Color/Grayscale Records",
                          "How many entries the colour table has."),
                    Field("CGELEN",    1, Required,      Unsigned, "1|3|4",         "bytes",   "Color/Grayscale Element Length",
                          "Length of one entry of the colour table."),
                    Field("HISTRL",    2, Required,      Unsigned, "4",             "bytes",   "Histogram Record Length",
                          "Length of one histogram entry."),
                    Field("CGTOFF",    4, Required,      Unsigned, "",              "bytes",   "Color/Grayscale Table Offset",
                          "Distance of the colour table from the start of the colormap subsection."),
                    Field("HISTOFF",   4, Required,      Unsigned, "",              "bytes",   "Histogram Table Offset",
                          "Distance of the histogram from the start of the colormap subsection."),
                End(),
                Repeat("NCGOR"),
                    Computed("CGTABLE", ColourTableLength, Required, Bytes, "", "", "Color/Grayscale Table",
                          "The colours or gray levels themselves."),
                End(),
                Repeat("NCGOR"),
                    Computed("HISTTAB", HistogramLength, Required, Bytes, "", "pixels", "Histogram Table",
                          "How many pixels use each entry of the colour table."),
                End(),
                WhenPositive("NCCOR"),
                    Field("CCTOFF",    4, Conditional,   Unsigned, "8",             "bytes",   "Color Converter Offset Table Offset",
                          "Distance of the converter records from the start of the color converter subsection."),
                    Field("CCORL",     2, Conditional,   Unsigned, "18",            "bytes",   "Color Converter Offset Record Length",
                          "Length of one converter record."),
                    Field("CCRECL",    2, Conditional,   Unsigned, "4",             "bytes",   "Color Converter Record Length",
                          "Length of one entry of a converter table."),
                    Repeat("NCCOR"),
                        Field("CCTID",     2, Conditional,   Unsigned, "",              "",        "Color Converter Table ID",
                              "Kind of the converter table."),
                        Field("NCCREC",    4, Conditional,   Unsigned, "",              "",        "Number of Color Converter Records",
                              "How many entries the converter table has."),
                        Field("CCTABOFF",  4, Conditional,   Unsigned, "",              "bytes",   "Color Converter Table Offset",
                              "Distance of the converter table from the start of the color converter subsection."),
                        Field("SRCOFF",    4, Conditional,   Unsigned, "",              "bytes",   "Source Color/Grayscale Offset Table Offset",
                              "Place of the record of the colour table to convert from."),
                        Field("TGTOFF",    4, Conditional,   Unsigned, "",              "bytes",   "Target Color/Grayscale Offset Table Offset",
                              "Place of the record of the colour table to convert to."),
                    End(),
                    Repeat("NCCOR"),
                        Computed("CCTABLE", ConverterTableLength, Conditional, Bytes, "", "", "Color Converter Table",
                              "For each source entry the index of the target entry."),
                    End(),
                End(),
                Field("NSPGRP",    2, Required,      Unsigned, "1..65535",      "",        "Number of Spectral Groups",
                      "How many spectral groups the image has."),
                Field("NSFTAB",    2, Required,      Unsigned, "1..65535",      "",        "Number of Subframe Tables",
                      "How many subframes the frame has."),
                Field("NSBTAB",    2, Required,      Unsigned, "1..65535",      "",        "Number of Spectral Band Tables",
                      "How many spectral bands the image has."),
                Field("NSBLIN",    2, Required,      Unsigned, "1..65535",      "",        "Number of Spectral Band Lines per Image Row",
                      "How many band lines make one image row."),
                Field("NSFEW",     2, Required,      Unsigned, "1..65535",      "",        "Number of Subframes, East-West",
                      "How many subframes lie side by side."),
                Field("NSFNS",     2, Required,      Unsigned, "1..65535",      "",        "Number of Subframes, North-South",
                      "How many subframes lie one below the other."),
                Field("NOUTC",     4, Required,      Unsigned, "1..4294967295", "columns", "Number of Output Columns per Subframe",
                      "Columns of a subframe."),
                Field("NOUTR",     4, Required,      Unsigned, "1..4294967295", "rows",    "Number of Output Rows per Subframe",
                      "Rows of a subframe."),
                Field("SFMOFF",    4, Required,      Unsigned, "",              "bytes",   "Subframe Mask Table Offset",
                      "Distance of the subframe mask table from the start of the mask subsection; 4294967295 when "
                      "there is none."),
                Field("TRMOFF",    4, Required,      Unsigned, "",              "bytes",   "Transparency Mask Table Offset",
                      "Distance of the transparency mask table from the start of the mask subsection; 4294967295 when "
                      "there is none."),
            End(),
        End(),
    End(),
    WhenBy("bytes are left", HasBytesLeft),
        Rest("OTHERDATA", Conditional, Bytes, "", "", "Other Data",
              "What stands behind the parts above, or in their place when they are not written in this order or not "
              "with the most significant byte first."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRPFIMG::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RPFIMG",
        .name = "Raster Product Format Image",
        .length = 0,
        .lengthRule =
            "14 + SECRECS*10 + 96 + 14 + (6 + NCGOR*17 + sum of NCGREC*(CGELEN+HISTRL)) + (if NCCOR > 0: 8 "
            "+ NCCOR*18 + sum of NCCREC*CCRECL) + 28",
        .placement = "image subheader (user-defined image data)",
        .purpose =
            "Holds the parts of a raster product format frame that precede its pixels: location table, "
            "coverage, colour tables, colour converters and the description of the subframes.",
        .sources =
            "MIL-STD-2411-1; MIL-STD-2411; MIL-STD-2411-2; OSSIM RPF section classes; GDAL CADRG writer "
            "source, 2026; NITRO plug-in table; three CADRG files (RPFIMG of 4213, 4223 and 4243 bytes) and a "
            "CIB frame (1395 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The meanings of the CGTID values are recalled. The positions in the location table are absolute and may "
            "be wrong after a header was rewritten; the order of the parts is trusted first."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
