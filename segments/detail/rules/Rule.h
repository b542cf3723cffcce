#pragma once

#include "foundation/Finding.h"
#include "nitf/NITFCnst.h"

#include <cstdint>
#include <span>

// The rules across fields as data: a rule is one row, and everything that a validation says of it comes from there.
namespace ORMO::SensorModel::CSM::Detail {

class FileView;
class HeaderView;
class Report;

/// What a rule looks at.
enum class Subject : std::uint8_t
{
    File,        ///< several headers, or the file around them
    FileHeader,  ///< the file header by itself
    Header,      ///< every header, that of the file included
    Image,
    Mask,  ///< the image data mask in front of the pixels
    Graphic,
    Symbol,
    Label,
    Cgm,  ///< the metafile of a graphic or symbol
    Text,
    Des,
    Res,
    Tre,   ///< the TREs of a header, overflow included
    Field  ///< one field of a header, TRE or DES by itself
};

/// The subject as a person reads it.
constexpr const char* WordOf(Subject aSubject) noexcept
{
    constexpr const char* WORDS[] = {"file",    "file header", "every header", "image", "image data mask",
                                     "graphic", "symbol",      "label",        "CGM",   "text",
                                     "DES",     "RES",         "TREs",         "field"};
    return WORDS[static_cast<std::size_t>(aSubject)];
}

enum class RuleVersions : std::uint8_t
{
    Nitf20 = 1,
    Nitf21 = 2,  ///< NSIF 1.0 too
    All = 3
};

/// One rule. Its findings say the sentence behind the level, unless the rule of a field has fixed words of its own.
struct Rule
{
    const char* id;
    Finding::Level level;  ///< of its findings; a check may call a mild case a warning
    RuleVersions versions;
    Subject subject;
    const char* fields;
    const char* sentence;     ///< what is wrong, without the level
    const char* explanation;  ///< what the rule asks for, and why
    const char* source;       ///< the standard's clause or table, or where else it comes from
    /// Looks at one header of the subject and reports what breaks the rule. Null for a rule of a whole file, and for
    /// what reading finds: that is raised to the level of the rule by a validation.
    void (*check)(const HeaderView&, const Report&) = nullptr;
    void (*checkFile)(const FileView&, const Report&) = nullptr;
    const char* notChecked = nullptr;  ///< why nothing looks; null when something does

    constexpr bool HasCheck() const noexcept { return check != nullptr || checkFile != nullptr; }
    constexpr bool AppliesTo(NITFCnst::Version aVersion) const noexcept
    {
        const auto bit = aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? RuleVersions::Nitf20 : RuleVersions::Nitf21;
        return (static_cast<unsigned>(versions) & static_cast<unsigned>(bit)) != 0;
    }
    /// The same row for a rule that nothing looks at.
    constexpr Rule NotChecked(const char* aReason) const noexcept
    {
        Rule rule = *this;
        rule.notChecked = aReason;
        return rule;
    }
    /// The same row, checked when the whole file is at hand.
    constexpr Rule ByFile(void (*aCheck)(const FileView&, const Report&)) const noexcept
    {
        Rule rule = *this;
        rule.checkFile = aCheck;
        return rule;
    }
};

// The words of the tables.
namespace RuleWords {
inline constexpr auto ERROR = Finding::Level::Error;
inline constexpr auto WARN = Finding::Level::Warning;
inline constexpr auto ALL = RuleVersions::All;
inline constexpr auto V20 = RuleVersions::Nitf20;
inline constexpr auto V21 = RuleVersions::Nitf21;
}  // namespace RuleWords

using RuleList = std::span<const Rule>;

// The families that need no more than one header, in the order in which they are listed.
RuleList FieldRules() noexcept;
RuleList SecurityRules() noexcept;
RuleList ImageRules() noexcept;
RuleList CompressionRules() noexcept;
RuleList BandRules() noexcept;
RuleList GeoRules() noexcept;
RuleList MaskRules() noexcept;
RuleList DrawingRules() noexcept;
RuleList CgmRules() noexcept;
RuleList TextRules() noexcept;
RuleList DesRules() noexcept;
RuleList TreRules() noexcept;

inline constexpr RuleList (*HEADER_RULES[])() noexcept = {&FieldRules, &SecurityRules, &ImageRules, &CompressionRules,
                                                          &BandRules,  &GeoRules,      &MaskRules,  &DrawingRules,
                                                          &CgmRules,   &TextRules,     &DesRules,   &TreRules};

}  // namespace ORMO::SensorModel::CSM::Detail
