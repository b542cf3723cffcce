#include "segments/des/DesFieldSet.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/detail/Ascii.h"
#include "segments/des/detail/DesLayout.h"
#include "segments/des/detail/DesParts.h"

#include <cstdint>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::ViewOf;

DesFieldSet::DesFieldSet() : m_parts(std::make_unique<Parts>()) {}
DesFieldSet::DesFieldSet(const DesFieldSet& aOther) : m_parts(std::make_unique<Parts>(*aOther.m_parts)) {}
DesFieldSet::~DesFieldSet() = default;

DesFieldSet& DesFieldSet::operator=(const DesFieldSet& aOther)
{
    m_parts = std::make_unique<Parts>(*aOther.m_parts);
    return *this;
}

bool DesFieldSet::Equals(const DesFieldSet& aOther) const noexcept
{
    return this == &aOther || (m_parts->type == aOther.m_parts->type && m_parts->data == aOther.m_parts->data &&
                               m_parts->fields == aOther.m_parts->fields);
}

const char* DesFieldSet::GetUniqueDESTypeID() const noexcept
{
    return m_parts->type.c_str();
}

const std::string& DesFieldSet::Data() const noexcept
{
    return m_parts->data;
}

void DesFieldSet::TakeData(const char* aType, const char* aData, std::size_t aLength, const char* aMessage,
                           const char* aSource)
{
    const std::string_view type = Detail::Trimmed(aType);
    if (aData == nullptr || aLength == 0 || type.empty()) {
        throw InitializationException(aMessage, aSource);
    }
    m_parts->type = type;
    m_parts->data.assign(aData, aLength);
}

void DesFieldSet::CutFields(const Layout& aLayout, const char* aArea)
{
    const std::string area(aArea);
    const std::string owner(aLayout.owner);
    const std::string& data = m_parts->data;
    m_parts->fields = Detail::FieldRecord(aLayout.table);
    const Detail::WalkResult result = m_parts->fields.Read(data);
    if (!result.IsGood() || result.consumed != data.size()) {
        std::string text = aLayout.misfit;
        Detail::AppendBlock(text, "ERROR: The input " + area +
                                      " data stream, field tags, and/or field sizes information of " + m_parts->type +
                                      " the " + area + " are invalid.");
        Detail::AppendBlock(text, "ERROR: Failed to extracted all the " + area + " fields from the input " + area +
                                      " data stream [expected = " + aLayout.lengths +
                                      ", found = " + std::to_string(data.size()) + "].");
        const std::string family = aLayout.misfit[0] == '\0' ? "DesD" + area.substr(1) : owner;
        throw InitializationException(text.c_str(), (family + "::PopulateNITFDes" + area + "FieldsMap").c_str());
    }
    std::string blank;
    for (const FieldEntry& entry : m_parts->fields.Store().Entries()) {
        const FieldRow& row = m_parts->fields.Store().Row(entry);
        const bool filled = row.IsBinary() || !Detail::TrimBlanks(m_parts->fields.Store().Value(entry)).empty();
        if (row.IsRequired() && !row.MayBeBlank() && !filled) {
            blank += blank.empty() ? "" : ", ";
            blank += row.tag;
        }
    }
    if (!blank.empty()) {
        std::string text;
        if (Detail::TrimBlanks(FieldText(aLayout.leading)).empty() && aLayout.leading[0] != '\0') {
            text = std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ' + Detail::Quoted(aLayout.leading) + '.';
        }
        Detail::AppendBlock(text, "ERROR: Missing " + blank + " required field(s).");
        throw InitializationException(text.c_str(), (owner + "::Init" + owner).c_str());
    }
}

std::string_view DesFieldSet::FieldText(std::string_view aName) const noexcept
{
    return m_parts->fields.Text(aName);
}

bool DesFieldSet::GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    return m_parts->fields.Text(ViewOf(aName), aValue, aLength);
}

bool DesFieldSet::GetFieldAsBool(const char* aName, bool& aValue) const
{
    return m_parts->fields.AsBool(ViewOf(aName), aValue);
}

bool DesFieldSet::GetFieldAsDouble(const char* aName, double& aValue) const
{
    return m_parts->fields.As(ViewOf(aName), aValue);
}

bool DesFieldSet::GetFieldAsLong(const char* aName, long& aValue) const
{
    std::int32_t value = 0;
    if (!m_parts->fields.As(ViewOf(aName), value)) {
        return false;
    }
    aValue = value;
    return true;
}

bool DesFieldSet::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const
{
    std::uint32_t value = 0;
    if (!m_parts->fields.As(ViewOf(aName), value)) {
        return false;
    }
    aValue = value;
    return true;
}

bool DesFieldSet::IsFieldEditable(const char* aName) const
{
    return m_parts->fields.IsEditable(ViewOf(aName));
}

int DesFieldSet::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    return m_parts->fields.Allows(ViewOf(aName), aValue);
}

int DesFieldSet::ValidateFieldValues(std::string& aErrors) const
{
    Finding place;
    place.owner = m_parts->type;
    Detail::FindingList problems;
    m_parts->fields.Check(place, problems);
    Detail::AppendProblemLines(problems, aErrors);
    return static_cast<int>(problems.Errors());
}

std::size_t DesFieldSet::GetNumOfFields() const noexcept
{
    return m_parts->fields.Store().Entries().size();
}

bool DesFieldSet::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const
{
    return m_parts->fields.At(aIndex, aName, aValue, aLength);
}

void DesFieldSet::AppendXml(std::string& aXml, const char* aIndent, const char* aElement) const
{
    m_parts->fields.AppendXml(Detail::FieldNaming::PositionTagAndLongName, aIndent, aElement, aXml);
}

const std::vector<const char*>* DesFieldSet::FieldNames() const
{
    const auto make = [this] {
        Parts::Names names;
        names.texts.reserve(GetNumOfFields());
        for (const FieldEntry& entry : m_parts->fields.Store().Entries()) {
            names.pointers.push_back(names.texts.emplace_back(m_parts->fields.Store().Name(entry)).c_str());
        }
        return names;
    };
    return &m_parts->names.Get(make).pointers;
}

}  // namespace ORMO::SensorModel::CSM
