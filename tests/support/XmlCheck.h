#pragma once

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// Why a run of elements is not well-formed XML without comments and processing instructions; empty when it is.
inline std::string XmlFault(std::string_view aXml)
{
    std::vector<std::string> open;
    const auto references = [](std::string_view aText) {
        for (std::size_t i = aText.find('&'); i != std::string_view::npos; i = aText.find('&', i + 1)) {
            const std::string_view name = aText.substr(i + 1, aText.find(';', i) - i - 1);
            const bool number = name.size() > 1 && name[0] == '#';
            if (!number && name != "amp" && name != "lt" && name != "gt" && name != "quot" && name != "apos") {
                return false;
            }
        }
        return aText.find('<') == std::string_view::npos;
    };
    for (const char character : aXml) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 && character != '\n' && character != '\t' && character != '\r') {
            return "control byte " + std::to_string(byte);
        }
    }
    while (!aXml.empty()) {
        const auto start = aXml.find('<');
        if (!references(aXml.substr(0, start))) {
            return "text " + std::string(aXml.substr(0, start));
        }
        if (start == std::string_view::npos) {
            break;
        }
        const auto end = aXml.find('>', start);
        if (end == std::string_view::npos) {
            return "no end of a tag";
        }
        std::string_view tag = aXml.substr(start + 1, end - start - 1);
        aXml.remove_prefix(end + 1);
        if (tag.starts_with('/')) {
            if (open.empty() || open.back() != tag.substr(1)) {
                return "end tag " + std::string(tag);
            }
            open.pop_back();
            continue;
        }
        const bool empty = tag.ends_with('/');
        tag.remove_suffix(empty ? 1 : 0);
        open.emplace_back(tag.substr(0, tag.find(' ')));
        tag.remove_prefix(open.back().size());
        while (!tag.empty()) {  // ' name="value"'
            const auto value = tag.find("=\"");
            const auto close = value == std::string_view::npos ? value : tag.find('"', value + 2);
            if (tag[0] != ' ' || close == std::string_view::npos ||
                !references(tag.substr(value + 2, close - value - 2))) {
                return "attributes of " + open.back() + ": " + std::string(tag);
            }
            tag.remove_prefix(close + 1);
        }
        if (empty) {
            open.pop_back();
        }
    }
    return open.empty() ? "" : "no end of " + open.back();
}

}  // namespace ORMO::SensorModel::CSM::Tests
