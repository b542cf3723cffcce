#include "tests/hardening/DamageCases.h"
#include "tests/support/NitfBuilder.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

using Damaging = std::function<void(HeaderFields&)>;

/// A file with one image.
std::string Image(const Damaging& aDamage)
{
    NitfBuilder builder;
    aDamage(builder.AddImage());
    return builder.Bytes();
}

std::string ImageWith(const char* aField, const std::string& aBytes)
{
    return Image([&](HeaderFields& aImage) { aImage.Damage(aField, aBytes); });
}

std::string Des(const char* aId, const std::string& aData, const Damaging& aDamage)
{
    NitfBuilder builder;
    aDamage(builder.AddDes(aId, aData));
    return builder.Bytes();
}

enum class Kind
{
    Image,
    Graphic,
    Text,
    Des,
    Res
};

/// A file with one segment of a kind.
NitfBuilder One(Kind aKind)
{
    NitfBuilder builder;
    switch (aKind) {
        case Kind::Image:
            builder.AddImage();
            break;
        case Kind::Graphic:
            builder.AddGraphic(std::string("\x00\x22\x01x\x00\x40", 6));
            break;
        case Kind::Text:
            builder.AddText();
            break;
        case Kind::Des:
            builder.AddDes("SOME DES", "data of it");
            break;
        case Kind::Res:
            builder.AddRes("SOME RES", "data of it");
            break;
    }
    return builder;
}

std::string WithoutEnd(Kind aKind)
{
    const std::string bytes = One(aKind).Bytes();
    return bytes.substr(0, bytes.size() - 1);
}

/// The segment without the last byte of its subheader and all of its data.
std::string WithinSubheader(Kind aKind)
{
    const NitfBuilder builder = One(aKind);
    return builder.Bytes().substr(0, builder.Header().size() + builder.Segments().front()->header.Bytes().size() - 1);
}

std::string WithoutMark(Kind aKind)
{
    const NitfBuilder builder = One(aKind);
    return builder.Bytes().replace(builder.Header().size(), 2, "??");
}

}  // namespace

std::vector<DamageCase> SegmentDamage()
{
    const auto opens = Answer::Opens;
    const auto refused = Answer::Refused;
    const std::string beyond = "beyond the end of the file";
    return {
        {"DataOfImageBeyondTheEnd", WithoutEnd(Kind::Image), opens, {"FL says", beyond}},
        {"DataOfGraphicBeyondTheEnd", WithoutEnd(Kind::Graphic), opens, {"FL says", beyond}},
        {"DataOfTextBeyondTheEnd", WithoutEnd(Kind::Text), opens, {"FL says", beyond}},
        {"DataOfDesBeyondTheEnd", WithoutEnd(Kind::Des), opens, {"FL says", beyond}},
        {"DataOfResBeyondTheEnd", WithoutEnd(Kind::Res), opens, {"FL says", beyond}},
        {"SubheaderOfImageBeyondTheEnd",
         WithinSubheader(Kind::Image),
         refused,
         {"FL says", "The subheader ends at", "field IXSHDL at"}},
        {"SubheaderOfGraphicBeyondTheEnd",
         WithinSubheader(Kind::Graphic),
         refused,
         {"FL says", "The subheader ends at", "field SXSHDL at"}},
        {"SubheaderOfTextBeyondTheEnd",
         WithinSubheader(Kind::Text),
         refused,
         {"FL says", "The subheader ends at", "field TXSHDL at"}},
        {"SubheaderOfDesBeyondTheEnd",
         WithinSubheader(Kind::Des),
         refused,
         {"FL says", "The subheader ends at", "field DESSHL at"}},
        {"SubheaderOfResBeyondTheEnd",
         WithinSubheader(Kind::Res),
         refused,
         {"FL says", "The subheader ends at", "field RESSHL at"}},
        {"ImageWithoutItsMark", WithoutMark(Kind::Image), refused, {"IM"}},
        {"GraphicWithoutItsMark", WithoutMark(Kind::Graphic), refused, {"SY"}},
        {"TextWithoutItsMark", WithoutMark(Kind::Text), refused, {"TE"}},
        {"DesWithoutItsMark", WithoutMark(Kind::Des), refused, {"DE"}},
        {"ResWithoutItsMark", WithoutMark(Kind::Res), refused, {"RE"}},
        {"TableLargerThanTheSubheader",
         Image([](HeaderFields& aImage) { aImage.NoBands().Band("LU", {"ab"}).Damage("NELUT_1", "99999"); }),
         refused,
         {"promises 99999 byte(s)"}},
        {"ManyTablesInASmallSubheader",
         Image([](HeaderFields& aImage) { aImage.NoBands().Band("LU", {"ab"}).Damage("NLUTS_1", "9"); }),
         refused,
         {"field ILOC at"}},
        {"BandsWithoutBytes",
         Image([](HeaderFields& aImage) {
             aImage.NoBands().InsertAfter("NBANDS", "XBANDS", "99999").Comment("long enough");
         }),
         refused,
         {"promises 1299987 byte(s), 50 left"}},
        {"NoBandsAtAll",
         Image([](HeaderFields& aImage) {
             aImage.NoBands().InsertAfter("NBANDS", "XBANDS", "00000").Comment("long enough");
         }),
         refused,
         {"field NBANDS at byte offset 859"}},
        {"CommentsThatAreNotThere", ImageWith("NICOM", "9"), refused, {"ICOM"}},
        {"ImageThatTheDataCannotHold",
         Image([](HeaderFields& aImage) {
             aImage.Damage("NROWS", "99999999")
                 .Damage("NCOLS", "99999999")
                 .Damage("NPPBH", "8192")
                 .Damage("NPPBV", "8192");
         }),
         opens,
         {},
         {"NROWS"}},
        {"BlockGridOfNines",
         Image([](HeaderFields& aImage) { aImage.Damage("NBPR", "9999").Damage("NBPC", "9999"); }),
         opens,
         {},
         {"NBPR"}},
        {"RowsNegative", ImageWith("NROWS", "-0000002"), opens, {}, {"NROWS"}},
        {"ImageAreaLengthOne", ImageWith("UDIDL", "00001"), refused, {"UDIDL"}},
        {"ImageAreaLengthTwo",
         ImageWith("IXSHDL", "00002"),
         refused,
         {"field IXSOFL at byte offset 843: 3 byte(s) needed, 0 left"}},
        {"ImageAreaBeyondTheSubheader",
         ImageWith("UDIDL", "00500"),
         refused,
         {"field UDID at byte offset 841: 497 byte(s) needed, 2 left"}},
        {"SecondImageAreaBeyondTheSubheader",
         ImageWith("IXSHDL", "99999"),
         refused,
         {"field IXSOFL at byte offset 843: 3 byte(s) needed, 0 left"}},
        {"ImageAreaLengthNegative", ImageWith("IXSHDL", "-0001"), refused, {"IXSHDL"}},
        {"NulInAnImageField",
         ImageWith("TGTID", std::string("T\0T\x01\x1B", 5) + std::string(12, ' ')),
         opens,
         {},
         {"TGTID"}},
        {"UserFieldsBeyondTheSubheader",
         Des("SOME DES", "data", [](HeaderFields& aDes) { aDes.Damage("DESSHL", "9999"); }),
         refused,
         {"field DESSHF at byte offset 601: 9999 byte(s) needed, 0 left"}},
        {"UserFieldsNegative",
         Des("SOME DES", "data", [](HeaderFields& aDes) { aDes.Damage("DESSHL", "-001"); }),
         refused,
         {"DESSHL"}},
        {"UserFieldsThatAreNotThoseOfTheirType",
         Des("CSATTA DES", "data", [](HeaderFields& aDes) { aDes.UserFields("too short"); }),
         opens,
         {"52"},
         {},
         [](const ImageSupportDataNITF& aIsd) {
             EXPECT_EQ(nullptr, aIsd.GetDataExtensionSegment(0)->GetDESSHF());
             EXPECT_EQ("too short", aIsd.GetDataExtensionSegment(0)->FieldText("DESSHF"));
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
