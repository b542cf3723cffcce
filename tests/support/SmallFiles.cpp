#include "tests/support/SmallFiles.h"

#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TreRecordMaker.h"
#include "tests/tre/TreLayoutList.h"

#include <initializer_list>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

constexpr std::uint32_t SEED = 20260131;

std::string MadeTres(std::initializer_list<const char*> aTags)
{
    std::string tres;
    for (const char* const tag : aTags) {
        tres += Tre(tag, TreRecordMaker(LayoutOf(tag).table, SEED).Next());
    }
    return tres;
}

std::string Picture()
{
    const std::string colour("\xFF\x00\x80", 3);
    return CgmElementBytes(0, 1, CgmText("picture")) + CgmElementBytes(1, 1, {1}) + CgmElementBytes(1, 11, {1, -1, 1}) +
           CgmElementBytes(1, 2, CgmText("NITF/CGM-APP-2.0.")) + CgmElementBytes(1, 13, CgmText("TIMES_ROMAN")) +
           CgmElementBytes(0, 3, CgmText("")) + CgmElementBytes(2, 2, {1}) +
           CgmElementBytes(2, 6, {0, 32767, 32767, 0}) + CgmElementBytes(0, 4, "") + CgmElementBytes(5, 4, colour) +
           CgmElementBytes(4, 1, {1, 2, 30, 40}) + CgmElementBytes(4, 7, {0, 0, 9, 0, 0, 9}) +
           CgmElementBytes(4, 4, CgmWords({5, 6, 1}) + CgmText("North")) + CgmElementBytes(0, 5, "") +
           CgmElementBytes(0, 2, "");
}

std::string ManySegments(Format aFormat)
{
    NitfBuilder builder(aFormat);
    const bool is20 = aFormat == Format::Nitf20;
    builder.AddImage()
        .Comment("a comment")
        .Location("G", "100000N0200000E100000N0210000E090000N0210000E090000N0200000E");
    builder.AddGraphic(Picture()).Set("SALVL", "1");
    if (is20) {
        builder.File().Event("when it is over");
        builder.AddLabel().Set("LALVL", "2");
    }
    builder.AddText();
    builder.AddDes("SOME DES", std::string("bin\0ary", 7));
    builder.AddRes("SOME RES", "reserved");
    return builder.Bytes();
}

std::string Bands()
{
    NitfBuilder builder;
    HeaderFields& image = builder.AddImage();
    for (int i = 1; i != 11; ++i) {
        image.Band(i == 10 ? "LU" : "M",
                   i == 10 ? std::vector<std::string>{"\x01\x02", "\x03\x04"} : std::vector<std::string>());
    }
    return builder.Bytes();
}

std::string Tres()
{
    NitfBuilder builder;
    builder.File().Area("UDHD", MadeTres({"MSTGTA"})).Area("XHD", Tre("OWNHDR", "header"));
    builder.AddImage(20, 30)
        .Area("UDID", MadeTres({"ICHIPB", "STDIDC"}))
        .Area("IXSHD", MadeTres({"BLOCKA", "RPC00B", "USE00A", "CSCRNA"}));
    return builder.Bytes();
}

std::string Overflow(Format aFormat)
{
    NitfBuilder builder(aFormat);
    builder.AddImage().Area("IXSHD", Tre("OWNTRE", "own"), 1).Area("UDID", "", 2);
    builder.AddText().Area("TXSHD", "", 3);
    builder.AddOverflow("IXSHD", 1, MadeTres({"BLOCKA"}) + Tre("OVERA", "first"));
    builder.AddOverflow("UDID", 1, Tre("OVERB", "second"));
    builder.AddOverflow("TXSHD", 1, Tre("OVERC", "third"));
    return builder.Bytes();
}

std::string DesTypes()
{
    NitfBuilder builder;
    std::string original("ORIGINAL    ");
    builder.AddDes("CSATTA DES", std::string(32 * 2, '\0'))
        .UserFields(original + "000.0200000000" + "20260131" + "235959.123456" + "00002");
    std::string document = "12345XML     2026-01-31T23:59:59Z";
    document.resize(773, ' ');
    builder.AddDes("XML_DATA_CONTENT", "<SICD xmlns=\"urn:SICD:1.2.1\"><CollectionInfo/></SICD>").UserFields(document);
    builder.AddDes("CSEPHB", "1111000.50000000020260131120000.00000000000002" + std::string(72, '0') + "000000000")
        .UserFields(std::string(77, '0'));
    return builder.Bytes();
}

std::string Masked()
{
    NitfBuilder builder;
    builder.AddImage(4, 4).Set("NBPR", "2").Set("NBPC", "2").Set("NPPBH", "2").Set("NPPBV", "2").Set("IC", "NM");
    std::string mask("\0\0\0\x1A\0\x04\0\0\0\0", 10);
    for (const char offset : {'\0', '\x04', '\xFF', '\x08'}) {
        mask += offset == '\xFF' ? std::string(4, offset) : std::string(3, '\0') + offset;
    }
    builder.LastData() = mask + std::string(12, '\x55');
    return builder.Bytes();
}

std::string Streamed()
{
    NitfBuilder builder;
    builder.AddImage();
    builder.AddText();
    return builder.StreamedBytes();
}

}  // namespace

const std::vector<SmallFile>& SmallFiles()
{
    static const std::vector<SmallFile> files{{"Nitf20", ManySegments(Format::Nitf20)},
                                              {"Nitf21", ManySegments(Format::Nitf21)},
                                              {"Nsif10", ManySegments(Format::Nsif10)},
                                              {"Bands", Bands()},
                                              {"Tres", Tres()},
                                              {"Overflow20", Overflow(Format::Nitf20)},
                                              {"Overflow21", Overflow(Format::Nitf21)},
                                              {"DesTypes", DesTypes()},
                                              {"Masked", Masked()},
                                              {"Streamed", Streamed()}};
    return files;
}

}  // namespace ORMO::SensorModel::CSM::Tests
