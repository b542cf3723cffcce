#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/rules/Codestream.h"

#include <algorithm>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// The widths that a compression code allows, both ends included, and no other between unless `list` is empty.
struct CodeWidths
{
    std::string_view codes;  ///< IC
    std::uint64_t least;
    std::uint64_t most;
    std::string_view list;     ///< NBPP as it is written
    std::string_view allowed;  ///< for a person
};

// clang-format off
constexpr CodeWidths WIDTHS[] = {
    {"C1|M1",    1,  1, "01",       "01"},
    {"C3|M3|I1", 8, 12, "08|12",    "08 | 12"},
    {"C5|M5",    8, 16, "08|12|16", "08 | 12 | 16"},
    {"C8|M8",    1, 38, "",         "01..38"},
};
// clang-format on

std::string CodeIs(const HeaderView& aHeader)
{
    return "IC is " + Shown(aHeader.Image().compression);
}

void Width(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    for (const CodeWidths& row : WIDTHS) {
        if (!IsListed(image.compression, row.codes)) {
            continue;
        }
        const bool listed = row.list.empty() || IsListed(aHeader.Text("NBPP"), row.list);
        if (image.bits < row.least || image.bits > row.most || !listed) {
            aReport(aHeader, {.field = "NBPP", .allowed = std::string(row.allowed), .detail = CodeIs(aHeader)});
        }
        return;
    }
}

/// Whether a text has the form: 9 stands for a digit, every other character for itself.
bool HasForm(std::string_view aText, std::string_view aForm) noexcept
{
    return std::equal(aText.begin(), aText.end(), aForm.begin(), aForm.end(), [](char aCharacter, char aWanted) {
        return aWanted == '9' ? IsDigit(aCharacter) : aCharacter == aWanted;
    });
}

void Rate(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    const std::string_view rate = aHeader.Text("COMRAT");
    if (rate.empty()) {
        return;  // the field's own rule
    }
    if (image.Is('1') && !IsListed(rate, "1D|2DS|2DH")) {
        aReport(aHeader, {.field = "COMRAT", .allowed = "1D | 2DS | 2DH", .detail = CodeIs(aHeader)});
    } else if (image.Is('2') && !IsListed(rate, "0.75|1.40|2.30|4.50")) {
        aReport(aHeader, {.field = "COMRAT", .allowed = "0.75 | 1.40 | 2.30 | 4.50", .detail = CodeIs(aHeader)});
    } else if (image.Is('4') && !HasForm(rate, "9.99") && !HasForm(rate, "99.9")) {
        aReport(aHeader,
                {.field = "COMRAT", .allowed = "bits per pixel as n.nn", .detail = CodeIs(aHeader), .isMild = true});
    }
}

void JpegRate(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    const std::string_view rate = aHeader.Text("COMRAT");
    if (!image.IsJpeg() || rate.empty()) {
        return;
    }
    const char mostType = aHeader.Is20() ? '0' : '4';
    const char mostQuality = image.Is('5') ? '0' : '5';
    if (!HasForm(rate, "99.9") || rate[0] != '0' || rate[1] > mostType || rate[3] > mostQuality) {
        aReport(aHeader,
                {.field = "COMRAT",
                 .allowed = std::string("0X.Y with X from 0 to ") + mostType + " and Y from 0 to " + mostQuality,
                 .detail = CodeIs(aHeader)});
    }
}

void Jpeg2000Rate(const HeaderView& aHeader, const Report& aReport)
{
    const std::string_view rate = aHeader.Text("COMRAT");
    if (aHeader.Image().IsJpeg2000() && !rate.empty() && !HasForm(rate, "N999") && !HasForm(rate, "V999") &&
        !HasForm(rate, "9999")) {
        aReport(aHeader, {.field = "COMRAT", .allowed = "Nnnn | Vnnn | four digits"});
    }
}

void OneStream(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (!IsListed(image.compression, "C1|C2")) {
        return;
    }
    if (image.bands != 1) {
        aReport(aHeader, {.field = "NBANDS", .allowed = "1", .detail = CodeIs(aHeader)});
    } else if (image.Blocks() != 1) {
        aReport(aHeader,
                {.field = image.blocksPerRow != 1 ? "NBPR" : "NBPC", .allowed = "0001", .detail = CodeIs(aHeader)});
    }
}

void BiLevel(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::uint64_t MOST_COLUMNS = 2560;
    constexpr std::uint64_t MOST_ROWS = 8192;
    const ImageFacts& image = aHeader.Image();
    if (!image.Is('1')) {
        return;
    }
    if (image.bands != 1) {
        aReport(aHeader, {.field = "NBANDS", .allowed = "1", .detail = CodeIs(aHeader)});
    } else if (image.Blocks() != 1) {
        aReport(aHeader,
                {.field = image.blocksPerRow != 1 ? "NBPR" : "NBPC", .allowed = "0001", .detail = CodeIs(aHeader)});
    } else if (image.columns > MOST_COLUMNS) {
        aReport(aHeader, {.field = "NCOLS", .allowed = "at most 2560", .detail = CodeIs(aHeader)});
    } else if (image.rows > MOST_ROWS) {
        aReport(aHeader, {.field = "NROWS", .allowed = "at most 8192", .detail = CodeIs(aHeader)});
    }
}

void Jpeg2000Mode(const HeaderView& aHeader, const Report& aReport)
{
    if (aHeader.Image().IsJpeg2000() && aHeader.Image().mode != "B") {
        aReport(aHeader, {.field = "IMODE", .allowed = "B", .detail = CodeIs(aHeader)});
    }
}

void Downsampled(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::uint64_t MOST = 2048;
    const ImageFacts& image = aHeader.Image();
    if (!image.IsDownsampled()) {
        return;
    }
    if (image.Blocks() != 1) {
        aReport(aHeader,
                {.field = image.blocksPerRow != 1 ? "NBPR" : "NBPC", .allowed = "0001", .detail = CodeIs(aHeader)});
    } else if (image.bands != 1) {
        aReport(aHeader, {.field = "NBANDS", .allowed = "1", .detail = CodeIs(aHeader)});
    } else if (image.columns > MOST || image.rows > MOST) {
        aReport(
            aHeader,
            {.field = image.columns > MOST ? "NCOLS" : "NROWS", .allowed = "at most 2048", .detail = CodeIs(aHeader)});
    }
}

void VectorQuantised(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (!image.Is('4')) {
        return;
    }
    if (image.bands != 1) {
        aReport(aHeader, {.field = "NBANDS", .allowed = "1", .detail = CodeIs(aHeader)});
    } else if (image.bits != 8) {
        aReport(aHeader, {.field = "NBPP", .allowed = "08", .detail = CodeIs(aHeader)});
    }
}

void JpegBands(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (!image.Is('3') || image.bands == 1) {
        return;
    }
    const bool isColour = IsListed(image.representation, "RGB|YCbCr601");
    if (isColour && image.bits != 8) {
        aReport(aHeader, {.field = "NBPP", .allowed = "08", .detail = CodeIs(aHeader)});
    } else if (isColour && image.mode != "P") {
        aReport(aHeader, {.field = "IMODE", .allowed = "P for colours in JPEG"});
    } else if (!isColour && image.mode == "P") {
        aReport(aHeader, {.field = "IMODE", .allowed = "B | S for bands that are compressed apart"});
    }
}

void JpegTables(const HeaderView& aHeader, const Report& aReport)
{
    if (!aHeader.Image().IsJpeg()) {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        if (aBand.tables != 0) {
            aReport(aHeader, {.field = NumberedName("NLUTS", aBand.number), .allowed = "0", .detail = CodeIs(aHeader)});
        }
        return aBand.tables == 0;
    });
}

void JpegMarks(const HeaderView& aHeader, const Report& aReport)
{
    JpegFacts jpeg;
    std::string end;
    if (!aHeader.Image().IsJpeg() || !aHeader.HasData() || !ReadJpeg(aHeader, jpeg)) {
        return;
    }
    if (!jpeg.begins) {
        std::uint64_t start = 0;
        std::string bytes;
        static_cast<void>(PixelStart(aHeader, start) && aHeader.ReadData(start, 4, bytes));
        aReport(aHeader, {.allowed = "FFD8 at the start", .value = bytes, .offset = aHeader.DataStart() + start});
    } else if (aHeader.DataSize() >= 2 && aHeader.ReadData(aHeader.DataSize() - 2, 2, end) && end != "\xFF\xD9") {
        aReport(aHeader,
                {.allowed = "FFD9 at the end", .value = end, .offset = aHeader.DataStart() + aHeader.DataSize() - 2});
    }
}

/// The frame of a JPEG stream that begins as one should.
bool Frame(const HeaderView& aHeader, JpegFacts& aJpeg)
{
    return aHeader.Image().IsJpeg() && aHeader.HasData() && ReadJpeg(aHeader, aJpeg) && aJpeg.begins;
}

void JpegFrame(const HeaderView& aHeader, const Report& aReport)
{
    JpegFacts jpeg;
    if (!Frame(aHeader, jpeg) || !jpeg.hasFrame || aHeader.Image().IsDownsampled()) {
        return;
    }
    const ImageFacts& image = aHeader.Image();
    const std::uint64_t components = image.mode == "P" ? image.bands : 1;
    if (jpeg.columns != image.WidthOfBlock() || jpeg.rows != image.HeightOfBlock()) {
        aReport(aHeader, {.field = jpeg.columns != image.WidthOfBlock() ? "NPPBH" : "NPPBV",
                          .detail = "The frame has " + std::to_string(jpeg.columns) + " columns and " +
                                    std::to_string(jpeg.rows) + " rows."});
    } else if (jpeg.precision != image.bits) {
        aReport(aHeader, {.field = "NBPP", .allowed = std::to_string(jpeg.precision) + ", the precision of the frame"});
    } else if (jpeg.components != components) {
        aReport(aHeader, {.field = "IMODE",
                          .detail = "The frame has " + std::to_string(jpeg.components) + " component(s), the image " +
                                    std::to_string(image.bands) + " band(s)."});
    }
}

void JpegSegment(const HeaderView& aHeader, const Report& aReport)
{
    JpegFacts jpeg;
    if (!Frame(aHeader, jpeg) || !jpeg.hasNitfSegment) {
        return;
    }
    const ImageFacts& image = aHeader.Image();
    if (image.mode != std::string_view(&jpeg.mode, 1)) {
        aReport(aHeader, {.field = "IMODE", .allowed = Shown({&jpeg.mode, 1}) + " as APP6 says"});
    } else if (jpeg.blocksPerRow != image.blocksPerRow) {
        aReport(aHeader, {.field = "NBPR", .allowed = std::to_string(jpeg.blocksPerRow) + " as APP6 says"});
    } else if (jpeg.blocksPerColumn != image.blocksPerColumn) {
        aReport(aHeader, {.field = "NBPC", .allowed = std::to_string(jpeg.blocksPerColumn) + " as APP6 says"});
    }
}

bool Stream(const HeaderView& aHeader, Jpeg2000Facts& aStream)
{
    return aHeader.Image().IsJpeg2000() && aHeader.HasData() && ReadJpeg2000(aHeader, aStream);
}

void Jpeg2000Marks(const HeaderView& aHeader, const Report& aReport)
{
    Jpeg2000Facts stream;
    if (Stream(aHeader, stream) && !stream.begins) {
        std::uint64_t start = 0;
        std::string bytes;
        static_cast<void>(PixelStart(aHeader, start) && aHeader.ReadData(start, 4, bytes));
        aReport(aHeader, {.allowed = "a code stream, FF4FFF51, or a JP2 file",
                          .value = bytes,
                          .offset = aHeader.DataStart() + start});
    }
}

void Jpeg2000Size(const HeaderView& aHeader, const Report& aReport)
{
    Jpeg2000Facts stream;
    if (!Stream(aHeader, stream) || !stream.hasSize) {
        return;
    }
    const ImageFacts& image = aHeader.Image();
    if (stream.columns != image.columns) {
        aReport(aHeader, {.field = "NCOLS", .allowed = std::to_string(stream.columns) + " as the code stream says"});
    } else if (stream.rows != image.rows) {
        aReport(aHeader, {.field = "NROWS", .allowed = std::to_string(stream.rows) + " as the code stream says"});
    } else if (stream.components != image.bands) {
        aReport(aHeader, {.field = aHeader.Has("XBANDS") ? "XBANDS" : "NBANDS",
                          .allowed = std::to_string(stream.components) + " as the code stream says"});
    }
}

void Jpeg2000Precision(const HeaderView& aHeader, const Report& aReport)
{
    Jpeg2000Facts stream;
    if (!Stream(aHeader, stream) || !stream.hasSize) {
        return;
    }
    const ImageFacts& image = aHeader.Image();
    if (stream.precision != image.bits) {
        aReport(aHeader, {.field = "NBPP", .allowed = std::to_string(stream.precision) + " as the code stream says"});
    } else if (stream.precision != image.actualBits) {
        aReport(aHeader, {.field = "ABPP", .allowed = std::to_string(stream.precision) + " as the code stream says"});
    } else if (stream.isSigned != (image.pixelType == "SI")) {
        aReport(aHeader, {.field = "PVTYPE", .allowed = stream.isSigned ? "SI for signed components" : "INT | B"});
    }
}

void Jpeg2000Tiles(const HeaderView& aHeader, const Report& aReport)
{
    Jpeg2000Facts stream;
    if (!Stream(aHeader, stream) || !stream.hasSize) {
        return;
    }
    const ImageFacts& image = aHeader.Image();
    const auto agrees = [](std::uint64_t aTile, std::uint64_t aBlock, std::uint64_t aImage) {
        return std::min(aTile, aImage) == std::min(aBlock, aImage);
    };
    if (!agrees(stream.tileColumns, image.WidthOfBlock(), image.columns)) {
        aReport(aHeader,
                {.field = "NPPBH", .allowed = std::to_string(stream.tileColumns) + ", the width of the tiles"});
    } else if (!agrees(stream.tileRows, image.HeightOfBlock(), image.rows)) {
        aReport(aHeader, {.field = "NPPBV", .allowed = std::to_string(stream.tileRows) + ", the height of the tiles"});
    }
}

// clang-format off
constexpr Rule RULES[] = {
    {"IC-01", ERROR, ALL, Subject::Image, "IC, NBPP",
     "The compression does not know this width of pixels.",
     "NBPP is 1 for C1 and M1, 8 or 12 for C3, M3 and I1, 8, 12 or 16 for C5 and M5, 1 to 38 for C8 and M8.",
     "MIL-STD-2500C table A-3, IC and NBPP", &Width},
    {"IC-02", ERROR, ALL, Subject::Image, "IC, COMRAT",
     "The compression rate is not one that the compression has.",
     "COMRAT is 1D, 2DS or 2DH for C1 and M1, and 0.75, 1.40, 2.30 or 4.50 for C2 in NITF 2.0: it selects the tables of the decoder. For C4 and M4 it is the bits per pixel as n.nn, which is warned of only.",
     "MIL-STD-2500C and MIL-STD-2500A table A-3, COMRAT", &Rate},
    {"IC-03", WARN, ALL, Subject::Image, "IC, COMRAT (C3, M3, I1, C5, M5)",
     "The quality of a JPEG image is not written as it should be.",
     "COMRAT has the form XX.Y: XX is the kind of image (00 general, 01 visible, 02 infrared, 03 radar, 04 downsampled; 00 in NITF 2.0), Y the quality level from 0 to 5, 0 for the tables in the stream and for C5 and M5.",
     "MIL-STD-2500C table A-3, COMRAT", &JpegRate},
    {"IC-04", WARN, V21, Subject::Image, "IC, COMRAT (C8, M8)",
     "The rate of a JPEG 2000 image is not written as it should be.",
     "COMRAT is Nxyz (numerically lossless), Vxyz (visually lossless) or wxyz (bits per pixel and band, one decimal implied). A conformance sample writes a decimal point.",
     "BPJ2K01.20", &Jpeg2000Rate},
    {"IC-05", ERROR, V20, Subject::Image, "IC C1 or C2, NBANDS, NBPR, NBPC",
     "One code stream stands for several bands or blocks.",
     "C1 and C2 stand only with one band and one block.",
     "MIL-STD-2500A, IC", &OneStream},
    {"IC-06", WARN, V21, Subject::Image, "IC C1 or M1, bands, blocks, size",
     "A bi-level image is larger than its compression is meant for.",
     "Bi-level images have one band and, within the complexity levels, one block of at most 2560 columns and 8192 rows.",
     "MIL-STD-2500C table A-3, IMODE; table A-10", &BiLevel},
    {"IC-07", ERROR, V21, Subject::Image, "IC C8 or M8, IMODE",
     "The mode of a JPEG 2000 image is not B.",
     "The order of bands is inside the code stream, so IMODE is B.",
     "MIL-STD-2500C table A-3, IMODE", &Jpeg2000Mode},
    {"IC-08", WARN, V21, Subject::Image, "IC I1, NBPR, NBPC, NROWS, NCOLS",
     "A downsampled JPEG image is larger than it may be.",
     "An image with IC I1 is one block of at most 2048 by 2048 with one band.",
     "MIL-STD-2500C table A-3, IC", &Downsampled},
    {"IC-09", WARN, ALL, Subject::Image, "IC C4 or M4, NBANDS, NBPP",
     "A vector-quantised image has several bands or other than 8 bits.",
     "Vector quantisation is defined for one band of 8 bits.",
     "MIL-STD-188-199", &VectorQuantised},
    {"IC-10", WARN, ALL, Subject::Image, "IC C3 or M3, IREP, IMODE",
     "The bands of a JPEG image are not ordered as it asks for.",
     "Colours in JPEG (RGB, YCbCr601) are three bands of 8 bits with IMODE P; bands that are compressed apart have B or S.",
     "MIL-STD-188-198A", &JpegBands},
    {"IC-11", WARN, ALL, Subject::Image, "IC C3, M3, C5, M5, I1 and NLUTS",
     "A JPEG image has look-up tables.",
     "Its colours are inside the stream.",
     "MIL-STD-188-198A", &JpegTables},
    {"IC-12", ERROR, ALL, Subject::Image, "IC C3, M3, C5, M5, I1 and data",
     "The data are not a JPEG stream.",
     "Behind the image data mask they begin with FFD8, fill bytes FF before it left out, and end with FFD9.",
     "ISO/IEC 10918-1", &JpegMarks},
    {"IC-13", WARN, ALL, Subject::Image, "IC C3, M3, C5, M5 and the first frame",
     "The frame of the JPEG stream differs from the subheader.",
     "The frame of a block has NPPBH columns and NPPBV rows, the precision NBPP, and as many components as bands with IMODE P, else one. Some writers store smaller blocks.",
     "JBP-2021.2-063 and -064", &JpegFrame},
    {"IC-14", WARN, ALL, Subject::Image, "IC C3, M3, I1 and APP6",
     "The NITF segment of the JPEG stream differs from the subheader.",
     "The first APP6 segment with the mark NITF repeats IMODE and the blocks per row and column.",
     "MIL-STD-188-198A; layout as conformance samples have it", &JpegSegment},
    {"IC-15", ERROR, V21, Subject::Image, "IC C8, M8 and data",
     "The data are not a JPEG 2000 code stream.",
     "Behind the image data mask they begin with FF4FFF51 or are a JP2 file.",
     "ISO/IEC 15444-1", &Jpeg2000Marks},
    {"IC-16", WARN, V21, Subject::Image, "IC C8, M8, NROWS, NCOLS, bands and SIZ",
     "The size in the code stream differs from the subheader.",
     "Rows and columns of the first component and the number of components agree with NROWS, NCOLS and the bands; where they differ the code stream counts.",
     "BPJ2K01.10 section 8.1", &Jpeg2000Size},
    {"IC-17", WARN, V21, Subject::Image, "IC C8, M8, NBPP, ABPP, PVTYPE and SIZ",
     "The precision in the code stream differs from the subheader.",
     "NBPP and ABPP are the precision of the components, which are signed with PVTYPE SI.",
     "MIL-STD-2500C table A-3, NBPP; BPJ2K01.10 section 8.1", &Jpeg2000Precision},
    {"IC-18", WARN, V21, Subject::Image, "IC C8, M8, NPPBH, NPPBV and SIZ",
     "The tiles of the code stream are not the blocks of the subheader.",
     "NPPBH and NPPBV are the size of the tiles; what lies outside the image does not count.",
     "BPJ2K01.10", &Jpeg2000Tiles},
};
// clang-format on

}  // namespace

RuleList CompressionRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
