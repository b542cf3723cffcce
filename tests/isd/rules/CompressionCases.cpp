// Compressed images, of which only what stands in front of the pixels is there; bands and their tables.

#include "tests/isd/rules/RuleCases.h"

namespace ORMO::SensorModel::CSM::Tests {

namespace {

struct Frame
{
    unsigned columns = 3;
    unsigned rows = 2;
    unsigned precision = 8;
    unsigned components = 1;
    std::string segment{};  ///< APP6
};

std::string Jpeg(const Frame& aFrame)
{
    std::string text = "\xFF\xFF\xD8";
    if (!aFrame.segment.empty()) {
        text += "\xFF\xE6" + Word(static_cast<unsigned>(aFrame.segment.size()) + 2) + aFrame.segment;
    }
    text += "\xFF\xC0" + Word(8 + 3 * aFrame.components) + static_cast<char>(aFrame.precision) + Word(aFrame.rows) +
            Word(aFrame.columns) + static_cast<char>(aFrame.components) + std::string(3 * aFrame.components, '\x11');
    return text + "\xFF\xD9";
}

struct Size
{
    unsigned columns = 3;
    unsigned rows = 2;
    unsigned tileColumns = 3;
    unsigned components = 1;
    unsigned precision = 8;
};

std::string CodeStream(const Size& aSize)
{
    std::string text = "\xFF\x4F\xFF\x51" + Word(38 + 3 * aSize.components) + Word(0) + Long(aSize.columns) +
                       Long(aSize.rows) + Long(0) + Long(0) + Long(aSize.tileColumns) + Long(2) + Long(0) + Long(0) +
                       Word(aSize.components);
    for (unsigned i = 0; i != aSize.components; ++i) {
        text += {static_cast<char>(aSize.precision - 1), '\1', '\1'};
    }
    return text + "\xFF\xD9";
}

/// A JP2 file: the signature, a box, and the code stream in the last one.
std::string Jp2(const Size& aSize)
{
    return Long(12) + "jP  \r\n\x87\n" + Long(20) + "ftypjp2 " + Long(0) + "jp2 " + Long(0) + "jp2c" +
           CodeStream(aSize);
}

template<typename Change>
std::string JpegImage(bool aBroken, Change aChange)
{
    return WithImage(aBroken, [&](NitfBuilder& aFile, HeaderFields& aImage, bool b) {
        aImage.Compression("C3", "00.0");
        aFile.LastData() = Jpeg({});
        aChange(aFile, aImage, b);
    });
}

template<typename Change>
std::string Jpeg2000Image(bool aBroken, Change aChange)
{
    return WithImage(aBroken, [&](NitfBuilder& aFile, HeaderFields& aImage, bool b) {
        aImage.Compression("C8", "N039");
        aFile.LastData() = CodeStream({});
        aChange(aFile, aImage, b);
    });
}

/// A bi-level image.
template<typename Change>
std::string FaxImage(bool aBroken, Change aChange)
{
    return WithImage(aBroken, [&](NitfBuilder& aFile, HeaderFields& aImage, bool b) {
        aImage.Compression("C1", "1D  ").Set("PVTYPE", "B").Set("NBPP", "1").Set("ABPP", "1");
        aChange(aFile, aImage, b);
    });
}

void Colours(HeaderFields& aImage, const char* aIrep, const char* aFirst, const char* aSecond, const char* aThird)
{
    aImage.NoBands().Band(aFirst).Band(aSecond).Band(aThird).Set("IREP", aIrep).Set("IMODE", "P");
}

/// Six pixels of one band with tables of so many entries.
void Tables(HeaderFields& aImage, const char* aMark, std::size_t aTables, std::size_t aEntries = 4)
{
    aImage.NoBands().Band(aMark, std::vector<std::string>(aTables, std::string(aEntries, 'x')));
}

void TwoBands(NitfBuilder& aFile, HeaderFields& aImage, const char* aFirst, const char* aSecond)
{
    aImage.NoBands().Band(aFirst).Band(aSecond).Set("IREP", "MULTI");
    aFile.LastData().assign(12, '\0');
}

void Subcategories(HeaderFields& aImage, std::string_view aFirst, std::string_view aSecond)
{
    aImage.Set("ISUBCAT_1", aFirst).Set("ISUBCAT_2", aSecond);
}

}  // namespace

std::string Word(unsigned aNumber)
{
    return {static_cast<char>(aNumber >> 8U), static_cast<char>(aNumber & 0xFFU)};
}

std::string Long(unsigned aNumber)
{
    return Word(aNumber >> 16U) + Word(aNumber & 0xFFFFU);
}

std::vector<RuleCase> CompressionCases()
{
    return {
        {"MO-04",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Band("").Set("IREP", "MULTI").Set("NBPR", "2").Set("NCOLS", "6").Set("IMODE", b ? "R" : "B");
             });
         }},
        {"IC-01",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto& f, auto& i, bool b) {
                 i.Set("NBPP", b ? "16" : "12").Set("ABPP", "12");
                 f.LastData() = Jpeg({.precision = b ? 16U : 12U});
             });
         }},
        {"IC-02",
         [](bool aBroken) {
             return FaxImage(aBroken, [](auto&, auto& i, bool b) { i.Set("COMRAT", b ? "1.00" : "2DS"); });
         }},
        {"IC-03",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto&, auto& i, bool b) { i.Set("COMRAT", b ? "75.0" : "01.5"); });
         }},
        {"IC-04",
         [](bool aBroken) {
             return Jpeg2000Image(aBroken, [](auto&, auto& i, bool b) { i.Set("COMRAT", b ? "LOSS" : "0050"); });
         }},
        {"IC-05",
         [](bool aBroken) {
             return WithImage(
                 aBroken,
                 [](auto&, auto& i, bool b) {
                     i.Compression("C2", "0.75").Set("NBPR", b ? "2" : "1").Set("NCOLS", b ? "6" : "3");
                 },
                 Format::Nitf20);
         }},
        {"IC-06",
         [](bool aBroken) {
             return FaxImage(aBroken,
                             [](auto&, auto& i, bool b) { i.Set("NBPR", b ? "2" : "1").Set("NCOLS", b ? "6" : "3"); });
         }},
        {"IC-07",
         [](bool aBroken) {
             return Jpeg2000Image(aBroken, [](auto&, auto& i, bool b) { i.Set("IMODE", b ? "P" : "B"); });
         }},
        {"IC-08",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Set("IC", "I1").Set("COMRAT", "04.0").Set("NBPR", b ? "2" : "1").Set("NCOLS", b ? "6" : "3");
             });
         }},
        {"IC-09",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Compression("C4", "0.75").Set("NBPP", b ? "12" : "8").Set("ABPP", "8");
             });
         }},
        {"IC-10",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto& f, auto& i, bool b) {
                 Colours(i, "RGB", "R", "G", "B");
                 i.Set("IMODE", b ? "B" : "P");
                 f.LastData() = Jpeg({.components = b ? 1U : 3U});
             });
         }},
        {"IC-11",
         [](bool aBroken) { return JpegImage(aBroken, [](auto&, auto& i, bool b) { Tables(i, "M", b ? 1 : 0); }); }},
        {"IC-12",
         [](bool aBroken) {
             return JpegImage(aBroken,
                              [](auto& f, auto&, bool b) { f.LastData().replace(0, b ? 3 : 0, b ? 3 : 0, 'x'); });
         }},
        {"IC-13",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto& f, auto&, bool b) { f.LastData() = Jpeg({.columns = b ? 2U : 3U}); });
         }},
        {"IC-14",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto& f, auto&, bool b) {
                 f.LastData() = Jpeg({.segment = std::string("NITF\0\2\0B", 8) + Word(b ? 8 : 1) + Word(1) + "more"});
             });
         }},
        {"IC-15",
         [](bool aBroken) {
             return Jpeg2000Image(aBroken, [](auto& f, auto&, bool b) { f.LastData() = b ? Jpeg({}) : Jp2({}); });
         }},
        {"IC-16",
         [](bool aBroken) {
             return Jpeg2000Image(aBroken, [](auto& f, auto&, bool b) { f.LastData() = Jp2({.rows = b ? 1U : 2U}); });
         }},
        {"IC-17",
         [](bool aBroken) {
             return Jpeg2000Image(aBroken, [](auto& f, auto& i, bool b) {
                 i.Set("NBPP", b ? "16" : "11").Set("ABPP", "11");
                 f.LastData() = CodeStream({.precision = 11});
             });
         }},
        {"IC-18",
         [](bool aBroken) {
             return Jpeg2000Image(
                 aBroken, [](auto& f, auto&, bool b) { f.LastData() = CodeStream({.tileColumns = b ? 2U : 1024U}); });
         }},
    };
}

std::vector<RuleCase> BandCases()
{
    return {
        {"BD-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i, "M", "");
                 i.Set("IREP", b ? "MONO" : "MULTI");
             });
         }},
        {"BD-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("IREP", b ? "MULTI" : "MONO"); });
         }},
        {"BD-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i, "", "");
                 if (b) {
                     i.Damage("NBANDS", "0").InsertAfter("NBANDS", "XBANDS", "00002");
                 }
             });
         }},
        {"BD-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 Colours(i, "RGB", "R", b ? "R" : "G", "B");
                 f.LastData().assign(18, '\0');
             });
         }},
        {"BD-05",
         [](bool aBroken) {
             return JpegImage(aBroken, [](auto& f, auto& i, bool b) {
                 Colours(i, "YCbCr601", b ? "Y" : "Cr", "Cb", "Y");
                 f.LastData() = Jpeg({.components = 3});
             });
         }},
        {"BD-06",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 Tables(i, "LU", b ? 1 : 3);
                 i.Set("IREP", "RGB/LUT");
             });
         }},
        {"BD-07",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 Tables(i, "LU", 3);
                 i.Set("IREP", "RGB/LUT").Set("NBPP", b ? "16" : "8");
                 f.LastData().assign(b ? 12 : 6, '\0');
             });
         }},
        {"BD-08",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("IREPBAND_1", b ? "R" : ""); });
         }},
        {"BD-09",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) { TwoBands(f, i, "R", b ? "R" : "G"); });
         }},
        {"BD-10",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 Tables(i, "M", 1);
                 i.Set("PVTYPE", b ? "SI" : "INT");
             });
         }},
        {"BD-11",
         [](bool aBroken) { return WithImage(aBroken, [](auto&, auto& i, bool b) { Tables(i, "LU", b ? 1 : 3); }); }},
        {"BD-12",
         [](bool aBroken) { return WithImage(aBroken, [](auto&, auto& i, bool b) { Tables(i, b ? "" : "LU", 3); }); }},
        {"BD-13",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { Tables(i, "M", 1, b ? 257 : 256); });
         }},
        {"BD-14",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i, "", "");
                 i.Set("ICAT", "SAR");
                 Subcategories(i, b ? "Q" : "I", b ? "I" : "Q");
             });
         }},
        {"BD-16",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i, "", "");
                 i.Set("ICAT", "MS");
                 Subcategories(i, "450", b ? "RED" : "650.5");
             });
         }},
        {"BD-17",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto&, auto& i, bool b) { i.Set("ICAT", "DTEM").Set("IREP", b ? "MONO" : "NODISPLY"); });
         }},
        {"BD-18",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i, "", "");
                 i.Set("ICAT", "LOCG").Set("IREP", "NODISPLY");
                 Subcategories(i, "CGX", b ? "GGY" : "CGY");
             });
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
