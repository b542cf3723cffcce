#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace OrmoNitf {

/// Writes JSON as it is told, member by member, so that no document ever stands in memory as a whole. Who calls sees to
/// it that every member of an object has a key and every object and array is ended.
class JsonWriter
{
public:
    explicit JsonWriter(std::ostream& aOut) : m_out(aOut) {}

    JsonWriter& BeginObject() { return Begin('{'); }
    JsonWriter& EndObject() { return End('}'); }
    JsonWriter& BeginArray() { return Begin('['); }
    JsonWriter& EndArray() { return End(']'); }
    JsonWriter& Key(std::string_view aName);

    JsonWriter& Number(std::uint64_t aValue);
    JsonWriter& Number(std::int64_t aValue);
    JsonWriter& Number(double aValue);
    JsonWriter& Bool(bool aValue);
    JsonWriter& Null();
    /// File names and messages may hold any bytes: kept when they are UTF-8, else read as Latin-1.
    JsonWriter& Text(std::string_view aText);
    /// Bytes above 127 become the Latin-1 code points of the same number.
    JsonWriter& Latin1(std::string_view aBytes);
    /// Latin-1, or {"base64": "..."} when there is a control byte in it.
    JsonWriter& Value(std::string_view aBytes);
    JsonWriter& Base64(std::string_view aBytes);

private:
    JsonWriter& Begin(char aBracket);
    JsonWriter& End(char aBracket);
    void Comma();
    void Escape(std::string_view aUtf8);

    std::ostream& m_out;
    std::vector<bool> m_hasMember;
    bool m_isBehindKey = false;
};

}  // namespace OrmoNitf
