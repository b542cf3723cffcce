#include "tools/JsonWriter.h"

#include "foundation/CSMUtilString.h"

#include <algorithm>
#include <cmath>

#include <nlohmann/json.hpp>

namespace OrmoNitf {

using ORMO::SensorModel::CSM::Util::CSMUtilString;

namespace {

bool IsControl(char aCharacter) noexcept
{
    const auto byte = static_cast<unsigned char>(aCharacter);
    return byte < 0x20 || byte == 0x7F;
}

}  // namespace

void JsonWriter::Comma()
{
    if (!m_isBehindKey && !m_hasMember.empty()) {
        if (m_hasMember.back()) {
            m_out << ',';
        }
        m_hasMember.back() = true;
    }
    m_isBehindKey = false;
}

JsonWriter& JsonWriter::Begin(char aBracket)
{
    Comma();
    m_out << aBracket;
    m_hasMember.push_back(false);
    return *this;
}

JsonWriter& JsonWriter::End(char aBracket)
{
    m_hasMember.pop_back();
    m_out << aBracket;
    return *this;
}

JsonWriter& JsonWriter::Key(std::string_view aName)
{
    Latin1(aName);
    m_out << ':';
    m_isBehindKey = true;
    return *this;
}

JsonWriter& JsonWriter::Number(std::uint64_t aValue)
{
    Comma();
    m_out << aValue;
    return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t aValue)
{
    Comma();
    m_out << aValue;
    return *this;
}

JsonWriter& JsonWriter::Number(double aValue)
{
    if (!std::isfinite(aValue)) {
        return Null();
    }
    Comma();
    m_out << nlohmann::json(aValue).dump();  // the shortest text that gives the same number
    return *this;
}

JsonWriter& JsonWriter::Bool(bool aValue)
{
    Comma();
    m_out << (aValue ? "true" : "false");
    return *this;
}

JsonWriter& JsonWriter::Null()
{
    Comma();
    m_out << "null";
    return *this;
}

void JsonWriter::Escape(std::string_view aUtf8)
{
    constexpr std::string_view HEX = "0123456789abcdef";
    m_out << '"';
    std::size_t done = 0;
    for (std::size_t i = 0; i != aUtf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(aUtf8[i]);
        if (byte >= 0x20 && byte != '"' && byte != '\\' && byte != 0x7F) {
            continue;
        }
        m_out << aUtf8.substr(done, i - done) << '\\';
        if (byte == '"' || byte == '\\') {
            m_out << aUtf8[i];
        } else {
            m_out << "u00" << HEX[byte >> 4U] << HEX[byte & 0xFU];
        }
        done = i + 1;
    }
    m_out << aUtf8.substr(done) << '"';
}

JsonWriter& JsonWriter::Latin1(std::string_view aBytes)
{
    Comma();
    if (std::all_of(aBytes.begin(), aBytes.end(), [](char aByte) { return (aByte & 0x80) == 0; })) {
        Escape(aBytes);
        return *this;
    }
    std::string text;
    CSMUtilString::AppendLatin1AsUtf8(aBytes, text);
    Escape(text);
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view aText)
{
    try {
        static_cast<void>(nlohmann::json(aText).dump());
    } catch (const nlohmann::json::type_error&) {
        return Latin1(aText);
    }
    Comma();
    Escape(aText);
    return *this;
}

JsonWriter& JsonWriter::Value(std::string_view aBytes)
{
    if (std::any_of(aBytes.begin(), aBytes.end(), IsControl)) {
        return BeginObject().Key("base64").Base64(aBytes).EndObject();
    }
    return Latin1(aBytes);
}

JsonWriter& JsonWriter::Base64(std::string_view aBytes)
{
    // In pieces of whole groups, so that large data are not doubled.
    constexpr std::size_t PIECE = std::size_t{3} << 16U;
    Comma();
    m_out << '"';
    std::string text;
    for (std::size_t at = 0; at < aBytes.size(); at += PIECE) {
        text.clear();
        CSMUtilString::AppendBase64(aBytes.substr(at, PIECE), text);
        m_out << text;
    }
    m_out << '"';
    return *this;
}

}  // namespace OrmoNitf
