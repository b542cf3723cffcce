#pragma once

#include "fields/FieldStore.h"
#include "fields/FieldValue.h"
#include "fields/FieldWalk.h"
#include "fields/FieldXml.h"
#include "fields/FindingList.h"
#include "fields/ValueRule.h"
#include "nitf/NITFCnst.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace ORMO::SensorModel::CSM::Detail {

/// Fields that were read, and every question that can be asked of them: what headers, TREs and DES types share. Names
/// may have white space around them.
class FieldRecord
{
public:
    FieldRecord() = default;
    explicit FieldRecord(const FieldTable& aTable, FieldStore::ByteOrder aOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN)
        : m_store(aTable, aOrder)
    {
    }

    /// Cuts the bytes into fields; on a fault those before it are kept.
    [[nodiscard]] WalkResult Read(std::string_view aBytes) { return FieldWalk::Read(aBytes, m_store); }

    const FieldStore& Store() const noexcept { return m_store; }
    FieldStore& Store() noexcept { return m_store; }
    const FieldTable& Table() const noexcept { return m_store.Table(); }

    const FieldEntry* Find(std::string_view aName) const noexcept { return m_store.Find(Trimmed(aName)); }
    /// The value as stored, a NUL behind it; an empty view with a null pointer when there is no such field.
    std::string_view Text(std::string_view aName) const noexcept;
    bool Text(std::string_view aName, const char*& aValue, std::size_t& aLength) const noexcept;
    /// One field by its place.
    bool At(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const;

    /// False when the value is no such number or does not fit.
    template<typename Number>
    [[nodiscard]] bool As(const FieldEntry& aEntry, Number& aOut) const
    {
        if constexpr (std::is_floating_point_v<Number>) {
            return ValueAsDouble(m_store.Row(aEntry), m_store.Value(aEntry), m_store.Order(), aOut);
        } else if constexpr (std::is_signed_v<Number>) {
            std::int64_t wide = 0;
            return ValueAsInt64(m_store.Row(aEntry), m_store.Value(aEntry), m_store.Order(), wide) && Fits(wide, aOut);
        } else {
            std::uint64_t wide = 0;
            return ValueAsUInt64(m_store.Row(aEntry), m_store.Value(aEntry), m_store.Order(), wide) && Fits(wide, aOut);
        }
    }
    template<typename Number>
    [[nodiscard]] bool As(std::string_view aName, Number& aOut) const
    {
        const FieldEntry* const entry = Find(aName);
        return entry != nullptr && As(*entry, aOut);
    }
    /// "true" or "false" in any case.
    [[nodiscard]] bool AsBool(std::string_view aName, bool& aOut) const;

    bool IsBinary(std::string_view aName) const noexcept;
    bool IsEditable(std::string_view aName) const noexcept;
    /// 1 when the rule of the field's row allows the value, 0 when not, -1 when the field is unknown. Fields of the
    /// table that were not read are known too.
    int Allows(std::string_view aName, const char* aValue) const;

    /// Holds every field against the rule of its row. Findings start from `aPlace`, which says owner and place; its
    /// offset is that of the first byte of the record. An optional field gives a warning.
    void Check(const Finding& aPlace, FindingList& aFindings) const;
    /// Adds to a finding where and why a walk stopped: field, value, detail and place. The finding's offset is that of
    /// the first byte of the record. The only place that words a walk that stopped.
    void Describe(const WalkResult& aResult, Finding& aFinding) const;

    /// One XML element per field, or per editable field, each on a line of its own; the field of tag `aLeftOut` is left
    /// out. Answers the number of fields.
    std::size_t AppendXml(FieldNaming aNaming, const char* aIndent, const char* aElement, std::string& aXml,
                          std::string_view aLeftOut = {},
                          bool aEditableOnly = NITFCnst::OUTPUT_EDIABLE_NITF_ATTR) const;

    bool operator==(const FieldRecord& aOther) const noexcept { return m_store == aOther.m_store; }

private:
    static std::string_view Trimmed(std::string_view aName) noexcept;

    template<typename Wide, typename Number>
    static bool Fits(Wide aWide, Number& aOut) noexcept
    {
        if (aWide < std::numeric_limits<Number>::min() || aWide > std::numeric_limits<Number>::max()) {
            return false;
        }
        aOut = static_cast<Number>(aWide);
        return true;
    }

    FieldStore m_store;
};

/// The sentence about a value that the rule of its row does not allow, as the lists of problems print it; it has no
/// blank at its end.
[[nodiscard]] const char* FaultSentence(const FieldRow& aRow, Verdict aVerdict) noexcept;

/// Adds one line for each finding, as CSMUtilGeneric::ConstructMessage joins them: sentence, owner and field.
void AppendProblemLines(const FindingList& aFindings, std::string& aText);

/// What the rule of a row allows, as a person reads it: "01..99, blank"; empty when everything is.
[[nodiscard]] std::string AllowedText(const FieldRow& aRow);

}  // namespace ORMO::SensorModel::CSM::Detail
