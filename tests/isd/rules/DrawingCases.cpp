// Graphics, symbols, labels, their metafiles, texts, data extension segments and image data masks.

#include "tests/isd/rules/RuleCases.h"

namespace ORMO::SensorModel::CSM::Tests {

namespace {

std::string Text(std::string_view aText)
{
    return static_cast<char>(aText.size()) + std::string(aText);
}

/// A graphic whose box holds something.
template<typename Change>
std::string WithGraphic(bool aBroken, Change aChange)
{
    NitfBuilder file;
    HeaderFields& graphic = file.AddGraphic(Cgm());
    graphic.Set("SBND2", "0001000010");
    aChange(file, graphic, aBroken);
    return file.Bytes();
}

template<typename Change>
std::string WithSymbol(bool aBroken, Change aChange)
{
    NitfBuilder file(Format::Nitf20);
    aChange(file, file.AddGraphic(Cgm()), aBroken);
    return file.Bytes();
}

/// A bit-mapped symbol of two lines of four bits.
HeaderFields& Bitmap(NitfBuilder& aFile, HeaderFields& aSymbol)
{
    aFile.LastData() = "x";
    return aSymbol.Set("STYPE", "B").Set("NLIPS", "2").Set("NPIXPL", "4").Set("NBPP", "1").Set("SCOLOR", "K");
}

const std::string END = CgmElement(0, 2);
const std::string BEGIN = CgmElement(0, 1, Text("x"));
const std::string VERSION = CgmElement(1, 1, Word(1));
const std::string LIST = CgmElement(1, 11, Word(1) + Word(0xFFFF) + Word(1));
const std::string NAME = CgmElement(1, 2, Text("NITF/CGM-APP-2.0"));
const std::string PICTURE = CgmElement(0, 3, Text("p"));
const std::string MODE = CgmElement(2, 2, Word(1));
const std::string EXTENT = CgmElement(2, 6, Word(0) + Word(0x7FFF) + Word(0x7FFF) + Word(0));
const std::string BODY = CgmElement(0, 4);
const std::string END_PICTURE = CgmElement(0, 5);

/// A graphic whose metafile is one of two.
std::string Graphic(const std::string& aMetafile)
{
    return WithGraphic(false, [&](auto& f, auto&, bool) { f.LastData() = aMetafile; });
}

std::string Points(unsigned aCount)
{
    std::string points;
    for (unsigned i = 0; i != aCount; ++i) {
        points += Word(i % 100) + Word(i % 70);
    }
    return points;
}

/// An uncompressed image with a mask of one block; its fields as numbers.
struct Mask
{
    unsigned offset = 14;
    unsigned blockLength = 4;
    unsigned padLength = 0;
    unsigned codeBits = 0;
    std::string tables = Long(0);
};

std::string Masked(const Mask& aMask, const char* aCode = "NM", std::string_view aData = "123456")
{
    return WithImage(false, [&](NitfBuilder& aFile, HeaderFields& aImage, bool) {
        if (std::string_view(aCode) == "NM") {
            aImage.Set("IC", "NM");
        } else {
            aImage.Compression(aCode, "00.0");
        }
        aFile.LastData() = Long(aMask.offset) + Word(aMask.blockLength) + Word(aMask.padLength) + Word(aMask.codeBits) +
                           std::string((aMask.codeBits + 7) / 8, '\0') + aMask.tables + std::string(aData);
    });
}

const std::string JPEG = std::string("\xFF\xD8\xFF\xC0", 4) + Word(11) + "\x08" + Word(2) + Word(3) + "\x01" +
                         "\1\x11" + std::string(1, '\0') + "\xFF\xD9";

}  // namespace

std::string CgmElement(unsigned aClass, unsigned aId, std::string_view aParameters)
{
    constexpr unsigned LONG_FORM = 31;
    const auto length = static_cast<unsigned>(aParameters.size());
    std::string text = Word(aClass << 12U | aId << 5U | (length < LONG_FORM ? length : LONG_FORM));
    text += length < LONG_FORM ? "" : Word(length);
    text += aParameters;
    return text.append(length % 2, '\0');
}

std::string Cgm(std::string_view aBody, std::string_view aDescription)
{
    return BEGIN + VERSION + LIST + CgmElement(1, 2, Text(aDescription)) + PICTURE + MODE + EXTENT + BODY +
           std::string(aBody) + END_PICTURE + END;
}

std::vector<RuleCase> MaskCases()
{
    return {
        {"MK-01",
         [](bool aBroken) { return Masked({.offset = aBroken ? 15U : 14U}, "NM", aBroken ? "1234567" : "123456"); }},
        {"MK-02",
         [](bool aBroken) { return aBroken ? Masked({.offset = 10, .blockLength = 0, .tables = ""}) : Masked({}); }},
        {"MK-03",
         [](bool aBroken) {
             return Masked({.offset = aBroken ? 15U : 14U, .codeBits = aBroken ? 8U : 0U}, "M3", JPEG);
         }},
        {"MK-04",
         [](bool aBroken) {
             return Masked({.offset = aBroken ? 18U : 19U,
                            .padLength = 4,
                            .codeBits = aBroken ? 0U : 8U,
                            .tables = Long(0) + Long(0)});
         }},
        {"MK-05", [](bool aBroken) { return Masked({.offset = aBroken ? 17U : 15U, .codeBits = aBroken ? 24U : 8U}); }},
        {"MK-06", [](bool aBroken) { return Masked({.tables = Long(aBroken ? 1 : 0)}, "M3", JPEG); }},
        {"MK-07", [](bool aBroken) { return Masked({.tables = Long(aBroken ? 1 : 0)}); }},
        {"MK-08",
         [](bool aBroken) {
             return Masked(
                 {.offset = 19, .padLength = 4, .codeBits = 8, .tables = Long(0) + Long(aBroken ? 1 : 0xFFFFFFFF)});
         }},
    };
}

std::vector<RuleCase> DrawingCases()
{
    return {
        {"GR-01",
         [](bool aBroken) {
             return WithGraphic(aBroken,
                                [](auto&, auto& g, bool b) { g.Set("SBND1", b ? "0002000000" : "-000100000"); });
         }},
        {"GR-02",
         [](bool aBroken) {
             return WithGraphic(aBroken, [](auto& f, auto& g, bool b) {
                 g.Set("SCOLOR", "M");
                 f.LastData() = Cgm(CgmElement(5, 4, b ? std::string("\xFF\0\0", 3) : "\x40\x40\x40"));
             });
         }},
        {"CGM-01",
         [](bool aBroken) {
             return Graphic(BEGIN + VERSION + LIST + NAME + PICTURE + MODE + EXTENT + BODY + END_PICTURE +
                            (aBroken ? "" : END));
         }},
        {"CGM-02",
         [](bool aBroken) {
             return Graphic(BEGIN + VERSION + LIST + NAME + PICTURE + MODE + (aBroken ? "" : EXTENT) + BODY +
                            END_PICTURE + END);
         }},
        {"CGM-03",
         [](bool aBroken) {
             return Graphic(BEGIN + VERSION + (aBroken ? NAME + LIST : LIST + NAME) + PICTURE + MODE + EXTENT + BODY +
                            END_PICTURE + END);
         }},
        {"CGM-04",
         [](bool aBroken) {
             return Graphic(BEGIN + CgmElement(1, 1, Word(aBroken ? 3 : 1)) + LIST + NAME + PICTURE + MODE + EXTENT +
                            BODY + END_PICTURE + END);
         }},
        {"CGM-05",
         [](bool aBroken) {
             const std::string picture = PICTURE + MODE + EXTENT + BODY + END_PICTURE;
             return Graphic(BEGIN + VERSION + LIST + NAME + picture + (aBroken ? picture : "") + END);
         }},
        {"CGM-06",
         [](bool aBroken) {
             const std::string width = CgmElement(5, 3, Word(2));
             return Graphic(BEGIN + VERSION + LIST + NAME + PICTURE + MODE + EXTENT +
                            (aBroken ? width + BODY : BODY + width) + END_PICTURE + END);
         }},
        {"CGM-07", [](bool aBroken) { return Graphic(Cgm({}, aBroken ? "drawing" : "NITF/CGM;ProfileEd:2301-2")); }},
        {"CGM-08", [](bool aBroken) { return Graphic(Cgm(aBroken ? CgmElement(4, 9, Word(1)) : "")); }},
        {"CGM-09",
         [](bool aBroken) {
             return Graphic(BEGIN + VERSION + LIST + NAME + CgmElement(1, 4, Word(aBroken ? 32 : 16)) + PICTURE + MODE +
                            EXTENT + BODY + END_PICTURE + END);
         }},
        {"CGM-10",
         [](bool aBroken) {
             return Graphic(BEGIN + VERSION + LIST + NAME + PICTURE + CgmElement(2, 2, Word(aBroken ? 0 : 1)) + EXTENT +
                            BODY + END_PICTURE + END);
         }},
        {"CGM-11",
         [](bool aBroken) {
             const unsigned length = aBroken ? 2000 : 1000;
             const std::string name = "\xFF" + Word(length) + std::string(length, 'x');
             return Graphic(CgmElement(0, 1, name) + VERSION + LIST + NAME + PICTURE + MODE + EXTENT + BODY +
                            END_PICTURE + END);
         }},
        {"CGM-12", [](bool aBroken) { return Graphic(Cgm(CgmElement(5, 2, Word(aBroken ? 9 : 5)))); }},
        {"CGM-13", [](bool aBroken) { return Graphic(Cgm(CgmElement(4, 1, Points(aBroken ? 4097 : 4096)))); }},
        {"SY-01",
         [](bool aBroken) {
             return WithSymbol(aBroken, [](auto&, auto& s, bool b) { s.Set("NLIPS", b ? "0100" : "0"); });
         }},
        {"SY-02",
         [](bool aBroken) {
             return WithSymbol(aBroken, [](auto& f, auto& s, bool b) {
                 f.LastData() = b ? "x" : "";
                 s.Set("STYPE", "O").Set("NBPP", "1").Set("SNUM", "000003").Set("SCOLOR", "K");
             });
         }},
        {"SY-03",
         [](bool aBroken) {
             return WithSymbol(aBroken, [](auto& f, auto& s, bool b) { Bitmap(f, s).Set("NLIPS", b ? "3" : "2"); });
         }},
        {"SY-04",
         [](bool aBroken) {
             return WithSymbol(aBroken, [](auto& f, auto& s, bool b) {
                 Bitmap(f, s).Set("NBPP", b ? "2" : "1");
                 f.LastData() = b ? "xx" : "x";
             });
         }},
        {"SY-05",
         [](bool aBroken) {
             return WithSymbol(aBroken, [](auto& f, auto& s, bool b) { Bitmap(f, s).Set("SCOLOR", b ? "C" : "K"); });
         }},
        {"LA-01",
         [](bool aBroken) {
             NitfBuilder file(Format::Nitf20);
             file.AddLabel(aBroken ? "caf\xE9" : "two\r\nlines");
             return file.Bytes();
         }},
        {"RD-06", [](bool aBroken) { return Graphic(Cgm(CgmElement(4, 1, aBroken ? Word(1) : Points(2)))); }},
        {"TX-01",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddText(aBroken ? "a\x1A" : "a\r\n\f");
             return file.Bytes();
         }},
        {"TX-02",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddText(aBroken ? "a\rb" : "a\r\nb");
             return file.Bytes();
         }},
        {"TX-03",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddText(aBroken ? "\xE2\x82\xAC" : "caf\xC3\xA9").Set("TXTFMT", "U8S");
             return file.Bytes();
         }},
        {"DE-10",
         [](bool aBroken) {
             NitfBuilder file;
             if (aBroken) {
                 file.AddRes("ANY", "data");
                 file.File().Set("CLEVEL", "09");
             }
             return file.Bytes();
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
