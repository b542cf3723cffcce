#include "fields/MessageText.h"
#include "fields/Xml.h"
#include "foundation/CSMUtilString.h"

#include <cctype>
#include <map>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

std::string AllBytes(int aFirst = 0)
{
    std::string bytes;
    for (int byte = aFirst; byte != 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

/// What an XML parser reports for character data, as Latin-1: references resolved, line ends normalised, and in an
/// attribute all other white space turned into blanks.
std::string Parsed(std::string_view aXml, bool aIsAttribute)
{
    static const std::map<std::string, char> NAMED{
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    std::string text;
    for (std::size_t i = 0; i < aXml.size(); ++i) {
        const auto byte = static_cast<unsigned char>(aXml[i]);
        if (aXml[i] == '&') {
            const std::size_t end = aXml.find(';', i);
            const std::string name(aXml.substr(i + 1, end - i - 1));
            text += name[0] == '#' ? static_cast<char>(std::stoi(name.substr(1))) : NAMED.at(name);
            i = end;
        } else if (byte >= 0x80) {
            EXPECT_TRUE(byte == 0xC2 || byte == 0xC3) << "no Latin-1 code point in UTF-8";
            const auto next = static_cast<unsigned char>(aXml.at(++i));
            EXPECT_EQ(0x80U, next & 0xC0U);
            text += static_cast<char>(((byte & 0x03U) << 6U) | (next & 0x3FU));
        } else if (byte == '\r') {
            text += '\n';
        } else {
            EXPECT_NE('<', aXml[i]);
            EXPECT_NE('"', aXml[i]);
            EXPECT_TRUE(byte >= 0x20 || byte == '\n' || byte == '\t') << int{byte};
            text += aIsAttribute && byte < 0x20 ? ' ' : aXml[i];
        }
    }
    return text;
}

std::string Decoded(std::string_view aBase64)
{
    std::string bytes;
    unsigned bits = 0;
    unsigned count = 0;
    for (const char digit : aBase64.substr(0, aBase64.find('='))) {
        const unsigned value = std::isupper(digit)   ? static_cast<unsigned>(digit - 'A')
                               : std::islower(digit) ? static_cast<unsigned>(digit - 'a') + 26U
                               : std::isdigit(digit) ? static_cast<unsigned>(digit - '0') + 52U
                               : digit == '+'        ? 62U
                                                     : 63U;
        bits = (bits << 6U) | value;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>((bits >> count) & 0xFFU);
        }
    }
    EXPECT_EQ(0U, aBase64.size() % 4);
    return bytes;
}

TEST(XmlTest, EveryByteThatXmlCarriesComesBackFromContentAndAttribute)
{
    const std::string bytes = "\t\n\r" + AllBytes(0x20) + "]]>\r\n\r";
    ASSERT_TRUE(IsXmlText(bytes));
    std::string content;
    AppendXmlText(bytes, content);
    EXPECT_EQ(bytes, Parsed(content, false));
    EXPECT_EQ(std::string::npos, content.find("]]>"));
    std::string attribute;
    AppendXmlAttribute("name", bytes, attribute);
    ASSERT_EQ(" name=\"", attribute.substr(0, 7));
    ASSERT_EQ('"', attribute.back());
    EXPECT_EQ(bytes, Parsed(attribute.substr(7, attribute.size() - 8), true));
}

TEST(XmlTest, ValuesOfAnyByteComeBackFromTheirElement)
{
    for (int byte = 0; byte != 256; ++byte) {
        const std::string value = std::string("a") + static_cast<char>(byte) + "b";
        std::string element;
        AppendXmlValueAndEnd("Field", value, element);
        ASSERT_TRUE(element.ends_with("</Field>\n"));
        const std::size_t start = element.find('>') + 1;
        const std::string content = element.substr(start, element.size() - start - 9);
        const std::string attributes = element.substr(0, start);
        EXPECT_EQ(IsXmlText(value) ? ">" : " base64Encoded=\"T\">", attributes) << byte;
        EXPECT_EQ(value, IsXmlText(value) ? Parsed(content, false) : Decoded(content)) << byte;
    }
}

TEST(XmlTest, AttributesShowAQuestionMarkForWhatXmlCannotCarry)
{
    std::string attribute;
    AppendXmlAttribute("a", std::string_view("<\0\x1F\x7F", 4), attribute);
    EXPECT_EQ(" a=\"&lt;??&#127;\"", attribute);
}

TEST(XmlTest, Base64HasTheStandardAlphabetAndPadding)
{
    const auto encoded = [](std::string_view aBytes) {
        std::string text("x");
        Util::CSMUtilString::AppendBase64(aBytes, text);
        return text.substr(1);
    };
    EXPECT_EQ("", encoded(""));
    EXPECT_EQ("Zg==", encoded("f"));
    EXPECT_EQ("Zm8=", encoded("fo"));
    EXPECT_EQ("Zm9vYmFy", encoded("foobar"));
    EXPECT_EQ("++//", encoded("\xFB\xEF\xFF"));
    EXPECT_EQ(AllBytes(), Decoded(encoded(AllBytes())));
}

TEST(MessageTextTest, MessagesAreJoinedCountedAndCapped)
{
    MessageText messages;
    messages.Add("");
    EXPECT_TRUE(messages.IsEmpty());
    messages.Add("one");
    messages.Add("two");
    EXPECT_EQ("one\n\ntwo", messages.Text());
    for (std::size_t i = messages.Count(); i != MessageText::MOST_MESSAGES + 5; ++i) {
        messages.Add("more");
    }
    EXPECT_TRUE(messages.Text().ends_with("more\n\nWARN: 5 further messages are left out."));
    EXPECT_EQ(MessageText::MOST_MESSAGES + 5, messages.Count());
    messages.Clear();
    EXPECT_EQ("", messages.Text());
}

TEST(MessageTextTest, BytesAreShownAsTextOrInHexadecimal)
{
    EXPECT_EQ("\"a b~\"", Shown("a b~"));
    EXPECT_EQ("\"\"", Shown(""));
    EXPECT_EQ("0x61000AFF", Shown(std::string_view("a\0\n\xFF", 4)));
    EXPECT_EQ("\"abc\"... (5 bytes)", Shown("abc\xFF"
                                            "e",
                                            3));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail
