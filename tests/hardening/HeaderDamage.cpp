#include "tests/hardening/DamageCases.h"
#include "tests/support/NitfBuilder.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

NitfBuilder Plain()
{
    NitfBuilder builder;
    builder.AddImage();
    builder.AddText();
    return builder;
}

/// The plain file with other bytes in a field of its header.
std::string With(const char* aField, const std::string& aBytes)
{
    NitfBuilder builder = Plain();
    builder.File().Damage(aField, aBytes);
    return builder.Bytes();
}

/// The same for a length of a segment, which the builder makes itself.
std::string WithLength(const char* aField, const std::string& aBytes)
{
    const NitfBuilder builder = Plain();
    return builder.Bytes().replace(builder.OffsetOf(aField), aBytes.size(), aBytes);
}

std::string HeaderLength(int aMore)
{
    return Padded(static_cast<std::uint64_t>(static_cast<int>(Plain().Header().size()) + aMore), 6);
}

std::string StreamedWith(const std::string& aFound, const std::string& aBytes)
{
    std::string bytes = Plain().StreamedBytes();
    return bytes.replace(bytes.rfind(aFound), aFound.size(), aBytes);
}

std::string Version(const std::string& aText)
{
    return Plain().Bytes().replace(0, 9, aText);
}

}  // namespace

std::vector<DamageCase> HeaderDamage()
{
    const std::string good = Plain().Bytes();
    const std::string nines(12, '9');
    return {
        {"FileLengthTooLarge", With("FL", "000000009999"), Answer::Opens, {"FL says 9999 byte(s)"}},
        {"FileLengthTooSmall", With("FL", Padded(good.size() - 1, 12)), Answer::Opens, {"FL says"}},
        {"BytesBehindTheLastSegment", good + "surplus", Answer::Opens, {"FL says"}},
        {"FileLengthBelowHeaderLength", With("FL", "000000000400"), Answer::Refused, {"FL"}},
        {"FileLengthZero", With("FL", "000000000000"), Answer::Refused, {"FL"}},
        {"FileLengthBlank", With("FL", std::string(12, ' ')), Answer::Refused, {"FL"}},
        {"StreamedFile", Plain().StreamedBytes(), Answer::Opens, {"STREAMING_FILE_HEADER"}},
        {"StreamedFileWithoutDelimiter",
         StreamedWith("\x0E\xCA\x14\xBF", "\x0E\xCA\x14\xBE"),
         Answer::Refused,
         {"no STREAMING_FILE_HEADER stands at the end", "LISH001"}},
        {"StreamedFileWithoutItsDes", With("FL", nines), Answer::Opens, {"no STREAMING_FILE_HEADER stands at the end"}},
        {"HeaderLengthZero",
         With("HL", "000000"),
         Answer::Refused,
         {"is no possible header length", "The NITF file header fields end after 413 byte(s)"}},
        {"HeaderLengthNines",
         With("HL", "999999"),
         Answer::Refused,
         {"beyond the end of the file", "The NITF file header fields end after 413 byte(s)"}},
        {"HeaderLengthOneMore",
         With("HL", HeaderLength(1)),
         Answer::Refused,
         {"HL says 414", "FL says 1146", "The data end at byte 1147", "in place of its mark"}},
        {"HeaderLengthOneLess", With("HL", HeaderLength(-1)), Answer::Refused, {"field XHDL at byte offset 408"}},
        {"HeaderLengthLetters",
         With("HL", "0004x4"),
         Answer::Refused,
         {"is no possible header length", "The NITF file header fields end after 413 byte(s)"}},
        {"CountCutByTheEndOfTheFile",
         WithLength("NUMI", "999").substr(0, Plain().OffsetOf("NUMI") + 40),
         Answer::Refused,
         {"HL at byte offset 354", "LISH003"}},
        {"CountNegative", WithLength("NUMI", "-01"), Answer::Refused, {"NUMI"}},
        {"CountOfLetters", WithLength("NUMI", "abc"), Answer::Refused, {"NUMI"}},
        {"CountBlank", WithLength("NUMI", "   "), Answer::Refused, {"NUMI"}},
        {"LengthNegative", WithLength("LISH001", "-00441"), Answer::Refused, {"LISH001"}},
        {"LengthSigned", WithLength("LISH001", "+00441"), Answer::Refused, {"LISH001"}},
        {"LengthWithABlankInside", WithLength("LI001", "00000 0006"), Answer::Refused, {"LI001"}},
        {"LengthBlank", WithLength("LT001", "     "), Answer::Refused, {"LT001"}},
        {"VersionOfTheFuture", Version("NITF09.99"), Answer::Refused, {"version"}},
        {"VersionOnePointOne", Version("NITF01.10"), Answer::Refused, {"NITF Version 1.1 is not supported."}},
        {"EmptyFile", "", Answer::Refused, {"version"}},
        {"NameOfTheFormatOnly", "NITF02.10", Answer::Refused, {"9 byte(s) are no header"}},
        {"CutBeforeTheFileLength", good.substr(0, 342), Answer::Refused, {"FL"}},
        {"CutWithinACount",
         good.substr(0, 361),
         Answer::Refused,
         {"HL at byte offset 354", "field NUMI at byte offset 360: 3 byte(s) needed, 1 left"}},
        {"OpenEndedArea",
         WithLength("UDHDL", "99999"),
         Answer::Refused,
         {"field UDHD at byte offset 411: 99996 byte(s) needed, 2 left"}},
        {"AreaLengthOne", WithLength("UDHDL", "00001"), Answer::Refused, {"UDHDL"}},
        {"AreaLengthTwo", WithLength("XHDL", "00002"), Answer::Refused, {"XHDL"}},
        {"NulInATitle",
         With("FTITLE", std::string("A\0B", 3) + std::string(77, ' ')),
         Answer::Opens,
         {},
         {"FTITLE"},
         [](const ImageSupportDataNITF& aIsd) {
             const char* value = nullptr;
             std::size_t length = 0;
             aIsd.GetNITFFileHeader()->GetFieldAsString("FTITLE", value, length);
             EXPECT_EQ(std::string("A\0B ", 4), std::string(value, length).substr(0, 4));
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
