#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/CSMMsg.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/rules/HeaderView.h"

#include <algorithm>
#include <array>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// The security block of a header; its fields by their names without the header's prefix.
class Block
{
public:
    explicit Block(const HeaderView& aHeader) : m_header(aHeader)
    {
        std::string_view prefix(aHeader.Inside().layout->kind->classification);
        // A DES spells its first field DECLAS and all others with DES in NITF 2.1.
        prefix =
            aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION ? "DES" : prefix.substr(0, prefix.size() - 4);
        m_prefix = static_cast<std::size_t>(std::copy(prefix.begin(), prefix.end(), m_name.begin()) - m_name.begin());
    }

    /// Good until the next name is asked for.
    std::string_view Name(std::string_view aField)
    {
        const auto* const end = std::copy(aField.begin(), aField.end(), m_name.begin() + m_prefix);
        return {m_name.data(), static_cast<std::size_t>(end - m_name.data())};
    }
    std::string_view Text(std::string_view aField) { return m_header.Text(Name(aField)); }
    bool IsFilled(std::string_view aField) { return !Text(aField).empty(); }
    std::string_view Classification() const { return m_header.Text(m_header.Inside().layout->kind->classification); }

private:
    const HeaderView& m_header;
    std::array<char, 16> m_name{};
    std::size_t m_prefix = 0;
};

/// A field that is filled with some types of declassification and blank with all others.
struct TypeRule
{
    std::string_view field;
    std::string_view types;
};

constexpr std::array<TypeRule, 4> BY_TYPE{{{"DCDT", "DD"}, {"DCXM", "X"}, {"DG", "GD|GE"}, {"DGDT", "GD"}}};
constexpr std::string_view KNOWN_TYPES = "DD|DE|GD|GE|O|X";

/// Each of them needs a security system.
constexpr std::array<std::string_view, 14> OF_A_SYSTEM{"CODE", "CTLH", "REL",  "DCTP", "DCDT", "DCXM", "DG",
                                                       "DGDT", "CLTX", "CATP", "CAUT", "CRSN", "SRDT", "CTLN"};

std::string WithType(std::string_view aType)
{
    return "with the type of declassification " + Shown(aType);
}

void Declassification(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    const std::string_view type = block.Text("DCTP");
    if (!type.empty() && !IsListed(type, KNOWN_TYPES)) {
        return;  // that alone is the fault
    }
    for (const TypeRule& rule : BY_TYPE) {
        const bool wanted = !type.empty() && IsListed(type, rule.types);
        const bool filled = block.IsFilled(rule.field);
        if (wanted && !filled) {
            aReport(aHeader, {.field = block.Name(rule.field),
                              .detail = WithType(type),
                              .sentence = CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD});
        } else if (filled && !wanted) {
            aReport(aHeader, {.field = block.Name(rule.field),
                              .allowed = "blank",
                              .detail = WithType(type),
                              .isMild = true,
                              .sentence = CSMMsg::Warn::FIELD_VALUE_OUT_OF_VALID_RANGE});
        }
    }
}

void DeclassificationText(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    const std::string_view type = block.Text("DCTP");
    if ((type == "DE" || type == "GE") && !block.IsFilled("CLTX")) {
        aReport(aHeader, {.field = block.Name("CLTX"),
                          .detail = WithType(type),
                          .sentence = CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD});
    }
}

void System(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    if (block.IsFilled("CLSY")) {
        return;
    }
    const auto* const filled = std::find_if(OF_A_SYSTEM.begin(), OF_A_SYSTEM.end(),
                                            [&](std::string_view aField) { return block.IsFilled(aField); });
    if (filled != OF_A_SYSTEM.end()) {
        std::string which(block.Name(*filled));
        aReport(aHeader, {.field = block.Name("CLSY"),
                          .detail = std::move(which) + " is filled",
                          .sentence = CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD});
    }
}

/// Whether a text is a run of codes of so many capital letters with one blank between them.
bool AreCodes(std::string_view aText, std::size_t aLeast, std::size_t aMost) noexcept
{
    while (!aText.empty()) {
        const std::string_view code = aText.substr(0, aText.find(' '));
        const bool isCode = code.size() >= aLeast && code.size() <= aMost &&
                            std::all_of(code.begin(), code.end(), [](char aOne) { return aOne >= 'A' && aOne <= 'Z'; });
        if (!isCode || code.size() + 1 == aText.size()) {
            return false;
        }
        aText.remove_prefix(std::min(code.size() + 1, aText.size()));
    }
    return true;
}

void CodeWords(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    if (!AreCodes(block.Text("CODE"), 2, 2)) {
        aReport(aHeader,
                {.field = block.Name("CODE"), .allowed = "codes of two capital letters, a blank between them"});
    }
}

void Release(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    if (!AreCodes(block.Text("REL"), 2, 4)) {
        aReport(aHeader,
                {.field = block.Name("REL"), .allowed = "codes of two to four capital letters, a blank between them"});
    }
}

/// Letters and digits of a text in one case: the marking is written with hyphens, blanks and in any case.
bool SaysDeriveMultiple(std::string_view aText)
{
    constexpr std::string_view WANTED = "derivemultiple";
    std::size_t at = 0;
    for (const char character : aText) {
        const char lower = LowerCase(character);
        if (lower < 'a' || lower > 'z') {
            continue;
        }
        at = at != WANTED.size() && lower == WANTED[at] ? at + 1 : at;
    }
    return at == WANTED.size();
}

void Authority(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    const std::string_view type = block.Text("CATP");
    const std::string_view authority = block.Text("CAUT");
    if (!type.empty() && authority.empty()) {
        aReport(aHeader, {.field = block.Name("CAUT"), .allowed = "the authority that CATP speaks of"});
    } else if (type == "M" && !SaysDeriveMultiple(authority)) {
        aReport(aHeader, {.field = block.Name("CAUT"), .allowed = "Derive-Multiple with CATP M"});
    }
}

void Reason(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    if (block.IsFilled("CRSN") && block.Text("CATP") != "O") {
        const std::string type(block.Text("CATP"));
        aReport(aHeader,
                {.field = block.Name("CRSN"), .allowed = "blank unless CATP is O", .detail = "CATP is " + Shown(type)});
    }
}

void Unclassified(const HeaderView& aHeader, const Report& aReport)
{
    Block block(aHeader);
    if (block.Classification() != "U") {
        return;
    }
    for (const std::string_view field : {"DCTP", "DG", "CATP", "CRSN"}) {
        if (block.IsFilled(field)) {
            aReport(aHeader, {.field = block.Name(field), .allowed = "blank in an unclassified block"});
            return;
        }
    }
}

/// The copies that a SECURA holds of the header that it stands in.
void Copies(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const tre = aHeader.FindTre("SECURA");
    if (tre == nullptr || tre->IsGenericTRE()) {
        return;
    }
    const auto copy = [&](const char* aField) {
        const char* value = nullptr;
        std::size_t length = 0;
        return tre->GetFieldAsString(aField, value, length) ? std::string_view(value, length) : std::string_view{};
    };
    if (aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER &&
        aHeader.Inside().record.Text("FDT") != copy("FDATTIM")) {
        aReport(aHeader, {.field = "FDATTIM", .allowed = "FDT, " + Shown(aHeader.Text("FDT")), .tre = tre});
    }
    const FieldStore& fields = aHeader.Inside().record.Store();
    const FieldEntry* const first = fields.Find(aHeader.Inside().layout->kind->classification);
    const std::string_view block = copy("NFSECFLDS");
    if (first == nullptr || block.empty()) {
        return;
    }
    // The block stands in one piece of 167 bytes; a downgrading event of NITF 2.0 makes it 207.
    const std::string_view raw(aHeader.Inside().raw);
    const auto at = static_cast<std::size_t>(fields.Position(*first));
    const std::size_t length = aHeader.Has(std::string(Block(aHeader).Name("DEVT"))) ? 207 : 167;
    if (raw.size() >= at + length && TrimBlanks(raw.substr(at, length)) != TrimBlanks(block)) {
        aReport(aHeader, {.field = "NFSECFLDS", .allowed = "the security fields of the header", .tre = tre});
    }
}

// clang-format off
constexpr Rule RULES[] = {
    {"SEC-01", ERROR, V21, Subject::Header, "DCTP, DCDT, DCXM, DG, DGDT",
     "A field of the declassification does not fit its type.",
     "DCDT is filled with DCTP DD only, DCXM with X only, DG with GD or GE only, DGDT with GD only. A missing instruction is an error, a superfluous one a warning.",
     "MIL-STD-2500C table A-1", &Declassification},
    {"SEC-02", ERROR, V21, Subject::Header, "CLTX, DCTP",
     "The event of the declassification is missing.",
     "CLTX is filled when DCTP is DE or GE. With any other DCTP it may hold more on the classification.",
     "MIL-STD-2500C table A-1", &DeclassificationText},
    {"SEC-04", ERROR, V21, Subject::Header, "CLSY and the rest of the block",
     "A security marking has no security system.",
     "CLSY is filled as soon as any later field of the block is: the other codes mean nothing without their system.",
     "MIL-STD-2500C table A-1", &System},
    {"SEC-05", WARN, V21, Subject::Header, "CODE",
     "Code words are not written as digraphs.",
     "CODE holds digraphs with one blank between them. Later registers of markings differ.",
     "MIL-STD-2500C table A-4", &CodeWords},
    {"SEC-06", WARN, V21, Subject::Header, "REL",
     "The release is not written in codes of countries or groups.",
     "REL holds codes of countries or groups, of two letters and in later editions of three or four, with one blank between them.",
     "MIL-STD-2500C table A-1; FIPS 10-4, later GENC", &Release},
    {"SEC-07", WARN, V21, Subject::Header, "CATP, CAUT",
     "The classification authority is missing or does not fit its type.",
     "A filled CATP comes with a filled CAUT; several sources (CATP M) are written Derive-Multiple.",
     "MIL-STD-2500C table A-1", &Authority},
    {"SEC-08", WARN, V21, Subject::Header, "CRSN, CATP",
     "A reason is given for a classification that is not an original one.",
     "The letters A to G of CRSN are the reasons of an original classification, which CATP O stands for.",
     "MIL-STD-2500C table A-1", &Reason},
    {"SEC-09", WARN, V21, Subject::Header, "CLAS U and DCTP, DG, CATP, CRSN",
     "An unclassified block says how it is to be declassified.",
     "With CLAS U there is nothing to declassify or downgrade, and no authority or reason of a classification.",
     "follows from the definitions in MIL-STD-2500C table A-1", &Unclassified},
    {"SEC-10", ERROR, V20, Subject::Header, "DWNG, DEVT",
     "The downgrading instruction is not valid.",
     "DWNG is blank, YYMMDD, 999999 or 999998, and with 999998 the event stands in the file and is not blank. DWNG by itself is warned of only.",
     "MIL-STD-2500A, security fields"},
    {"SEC-11", WARN, ALL, Subject::Tre, "TRE SECURA",
     "The copies in SECURA differ from the header.",
     "SECURA holds FDT and the security block of the header that it stands in, so that its marking can be held against them.",
     "STDI-0002 Volume 1 Appendix AI", &Copies},
};
// clang-format on

}  // namespace

RuleList SecurityRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
