#include "fields/MessageText.h"
#include "segments/detail/rules/HeaderView.h"
#include "segments/text/NITFTextSubheader.h"
#include "segments/text/detail/TextCharacters.h"

#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// Reports the first byte of a text that a look at it finds.
void FirstFault(const HeaderView& aHeader, const Report& aReport,
                TextFault (*aLook)(std::string_view, std::string_view))
{
    const char* data = nullptr;
    std::size_t length = 0;
    const auto& text = static_cast<const NITFTextSubheader&>(aHeader.Segment());
    if (!aHeader.HasData() || !text.GetTextData(data, length)) {
        return;
    }
    const TextFault fault = aLook({data, length}, aHeader.Text("TXTFMT"));
    if (fault.reason != nullptr) {
        aReport(aHeader, {.detail = "TXTFMT " + std::string(aHeader.Text("TXTFMT")) + ": " + fault.reason + '.',
                          .value = std::string(std::string_view(data, length).substr(fault.offset, 16)),
                          .offset = aHeader.DataStart() + fault.offset});
    }
}

void Characters(const HeaderView& aHeader, const Report& aReport)
{
    FirstFault(aHeader, aReport, &CheckTextBytes);
}

void LineEnds(const HeaderView& aHeader, const Report& aReport)
{
    FirstFault(aHeader, aReport, &CheckLineEnds);
}

void Unicode(const HeaderView& aHeader, const Report& aReport)
{
    FirstFault(aHeader, aReport, &CheckUnicode);
}

// clang-format off
constexpr Rule RULES[] = {
    {"TX-01", WARN, ALL, Subject::Text, "TXTFMT and data",
     "The text holds a byte that its format does not have.",
     "STA and MTF have 0x20 to 0x7E, line feed, form feed and carriage return; UT1 also has 0xA0 to 0xFF; U8S has no other control byte either.",
     "MIL-STD-2500C 5.6.1 and 5.1.7", &Characters},
    {"TX-02", WARN, ALL, Subject::Text, "data",
     "A line does not end with carriage return and line feed.",
     "Both stand together, in this order. Conformance samples have lone line feeds; nothing is lost by that.",
     "MIL-STD-2500C 5.6.1", &LineEnds},
    {"TX-03", WARN, V21, Subject::Text, "TXTFMT U8S and data",
     "The text holds a character outside U8S, or none.",
     "U8S holds UTF-8 of one or two bytes: Basic Latin and U+00A0 to U+00FF. Later profiles allow all of UTF-8.",
     "MIL-STD-2500C table B-2", &Unicode},
};
// clang-format on

}  // namespace

RuleList TextRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
