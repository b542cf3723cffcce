// The views, help texts and XML of a TRE. TRE.cpp holds the fields and their values.

#include "fields/FieldStore.h"
#include "fields/FieldValue.h"
#include "fields/Number.h"
#include "fields/Xml.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/OnFirstUse.h"
#include "nitf/NITFCnst.h"
#include "tre/RawNITFMetadataTRE.h"
#include "tre/SupportedTREs.h"
#include "tre/TREStore.h"
#include "tre/detail/TreHelp.h"
#include "tre/detail/TreLayout.h"
#include "tre/detail/TreViews.h"

#include <mutex>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::OnFirstUse;
using Detail::TreViews;

namespace {

constexpr const char* ELEMENT_INDENT = "      ";
constexpr const char* CHILD_INDENT = "        ";

}  // namespace

TreViews& TRE::Views() const
{
    return Detail::ViewsOf(m_views);
}

const std::vector<const char*>* TRE::GetAllTreFields() const
{
    TreViews& views = Views();
    return OnFirstUse(views, views.fields, [&](std::vector<const char*>& aFields) {
        if (m_fields == nullptr) {
            return;
        }
        views.names.reserve(m_fields->Entries().size());
        for (const FieldEntry& entry : m_fields->Entries()) {
            views.names.push_back(m_fields->Name(entry));
        }
        for (const std::string& name : views.names) {
            aFields.push_back(name.c_str());
        }
    });
}

const std::vector<const char*>* TRE::GetAllTREFieldDescriptions() const
{
    TreViews& views = Views();
    return OnFirstUse(views, views.descriptions, [&](std::vector<const char*>& aTexts) {
        if (m_fields == nullptr) {
            return;
        }
        views.descriptionTexts.reserve(m_fields->Entries().size());
        for (const FieldEntry& entry : m_fields->Entries()) {
            views.descriptionTexts.push_back(
                Detail::FieldHelp(m_fields->Row(entry), m_fields->Name(entry), entry.length));
        }
        for (const std::string& text : views.descriptionTexts) {
            aTexts.push_back(text.c_str());
        }
    });
}

const std::vector<bool>* TRE::GetBinaryFieldList() const
{
    if (m_fields == nullptr) {
        return nullptr;
    }
    TreViews& views = Views();
    return OnFirstUse(views, views.binary, [&](std::vector<bool>& aFlags) {
        for (const FieldEntry& entry : m_fields->Entries()) {
            aFlags.push_back(m_fields->Row(entry).IsBinary());
        }
    });
}

bool TRE::GetTreFieldsMetadata(std::vector<TreDetailedInfo>& aFields) const
{
    aFields.clear();
    if (m_fields == nullptr) {
        return false;
    }
    for (const FieldEntry& entry : m_fields->Entries()) {
        aFields.push_back(Detail::FieldInfo(m_fields->Row(entry), m_fields->Name(entry), entry.length));
    }
    return true;
}

const TRE::FieldInfos* TRE::GetAllTreFieldInfos() const
{
    TreViews& views = Views();
    return OnFirstUse(views, views.infos, [&](FieldInfos& aInfos) {
        std::vector<TreDetailedInfo> fields;
        GetTreFieldsMetadata(fields);
        for (TreDetailedInfo& field : fields) {
            std::string name = field.fieldName;
            aInfos.emplace(std::move(name), std::move(field));
        }
    });
}

const TRE::FieldTexts* TRE::GetFieldEditabilityMap() const
{
    TreViews& views = Views();
    return OnFirstUse(views, views.editability, [&](FieldTexts& aMap) {
        for (std::size_t i = 0; i != GetNumOfFields(); ++i) {
            const FieldEntry& entry = m_fields->Entries()[i];
            const bool editable = m_fields->Table().IsEditable(entry.row);
            aMap.emplace(m_fields->Name(entry),
                         editable ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE);
        }
    });
}

const TRE::FieldTexts* TRE::GetTREKeyValuePairsMap() const
{
    if (m_fields == nullptr) {
        return nullptr;
    }
    TreViews& views = Views();
    return OnFirstUse(views, views.values, [&](FieldTexts& aMap) {
        for (const FieldEntry& entry : m_fields->Entries()) {
            aMap[m_fields->Name(entry)] = m_fields->Value(entry);
        }
    });
}

const TRE::FieldWidths* TRE::GetTREFieldWidthsMap() const
{
    if (m_fields == nullptr) {
        return nullptr;
    }
    TreViews& views = Views();
    return OnFirstUse(views, views.widths, [&](FieldWidths& aMap) {
        for (const FieldEntry& entry : m_fields->Entries()) {
            aMap[m_fields->Name(entry)] = static_cast<int>(entry.length);
        }
    });
}

const TRE::FieldDataTypes* TRE::GetNITFTreFieldValueDataTypesMap() const
{
    TreViews& views = Views();
    return OnFirstUse(views, views.dataTypes, [&](FieldDataTypes& aMap) {
        for (std::size_t i = 0; i != GetNumOfFields(); ++i) {
            const FieldEntry& entry = m_fields->Entries()[i];
            aMap[m_fields->Name(entry)] = Detail::DataTypeOf(m_fields->Row(entry));
        }
    });
}

const RawNITFMetadata* TRE::GetAllTreMetadata() const
{
    if (m_fields == nullptr) {
        return nullptr;
    }
    TreViews& views = Views();
    const std::lock_guard lock(views.guard);
    if (views.metadata == nullptr) {
        views.metadata = std::make_unique<RawNITFMetadataTRE>(*this);
    }
    return views.metadata.get();
}

void TRE::FreeRawMetaDataObject()
{
    TreViews& views = Views();
    const std::lock_guard lock(views.guard);
    views.metadata.reset();
}

const char* TRE::GetTREDescription() const
{
    if (m_layout == nullptr) {
        return "Unknown TRE.";
    }
    TreViews& views = Views();
    return OnFirstUse(views, views.description,
                      [&](std::string& aText) {
                          aText = Detail::TagHelp(*m_layout, m_tag, m_type == TRE_TYPE_REGISTERED_EXTENSION,
                                                  GetTRERegisterGroup());
                      })
        ->c_str();
}

std::string TRE::GetRootNode(const char* aClassification, int aIndex) const
{
    const bool marked = aClassification != nullptr && *aClassification != '\0';
    std::string tag(ELEMENT_INDENT);
    tag += "<TRE";
    Detail::AppendXmlAttribute("index", std::to_string(aIndex), tag);
    Detail::AppendXmlAttribute("type", GetTRETypeString(m_type), tag);
    Detail::AppendXmlAttribute("tag", m_tag, tag);
    Detail::AppendXmlAttribute("name", GetTREName(), tag);
    Detail::AppendXmlAttribute("length", std::to_string(GetLengthOfDataField()), tag);
    Detail::AppendXmlAttribute("classification", marked ? aClassification : NITFCnst::TRE_TYPE_UNKNOWN, tag);
    Detail::AppendXmlAttribute("registerGroup", GetTRERegisterGroup(), tag);
    tag += ">\n";
    return tag;
}

void TRE::AppendFieldElements(std::string& aXml, const char* aIndent) const
{
    std::size_t position = 0;
    std::string name;
    for (const FieldEntry& entry : m_fields->Entries()) {
        const FieldRow& row = m_fields->Row(entry);
        const std::string_view value = m_fields->Value(entry);
        name.clear();
        m_fields->AppendName(entry, name);
        aXml += aIndent;
        aXml += "<TREField";
        Detail::AppendXmlAttribute("field", std::to_string(++position), aXml);
        Detail::AppendXmlAttribute("name", name, aXml);
        Detail::AppendXmlAttribute("size", std::to_string(entry.length), aXml);
        Detail::AppendXmlAttribute("type", NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need)),
                                   aXml);
        Detail::AppendXmlAttribute("editable", m_fields->Table().IsEditable(entry.row) ? "T" : "F", aXml);
        Detail::AppendXmlValueAndEnd("TREField", row.IsBinary() ? value : Detail::Trimmed(value), aXml);
    }
}

void TRE::AppendDataElement(std::string& aXml, const char* aIndent) const
{
    std::size_t length = 0;
    const char* const data = GetRawTREDataString(length);
    const std::string_view bytes(data, length);
    const bool text = Detail::IsXmlText(bytes);
    aXml += aIndent;
    aXml += "<DATA";
    Detail::AppendXmlAttribute("base64Encoded", text ? "F" : "T", aXml);
    Detail::AppendXmlAttribute("editable", "F", aXml);
    aXml += '>';
    if (text) {
        Detail::AppendXmlText(bytes, aXml);
    } else {
        Detail::AppendBase64(bytes, aXml);
    }
    aXml += "</DATA>\n";
}

bool TRE::SerializeTRE(std::string& aXml, const char* aClassification, int aIndex) const
{
    aXml += GetRootNode(aClassification, aIndex);
    if (GetNumOfFields() != 0) {
        AppendFieldElements(aXml, CHILD_INDENT);
    } else {
        AppendDataElement(aXml, CHILD_INDENT);
    }
    aXml += ELEMENT_INDENT;
    aXml += "</TRE>\n";
    return true;
}

bool TRE::Serialize(char** aXml, const char* aClassification, int aIndex) const
{
    if (aXml == nullptr) {
        return false;
    }
    std::string xml;
    return SerializeTRE(xml, aClassification, aIndex) && Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

bool TRE::SerializeTREData(char** aXml, bool aFields, const char* aIndent) const
{
    if (aXml == nullptr) {
        return false;
    }
    const char* const indent = aIndent == nullptr ? CHILD_INDENT : aIndent;
    std::string xml;
    if (aFields && GetNumOfFields() != 0) {
        AppendFieldElements(xml, indent);
    } else {
        AppendDataElement(xml, indent);
    }
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

bool TRE::SerializeTREs(char** aXml, const TREStore& aStore, const char* aClassification)
{
    if (aXml == nullptr) {
        return false;
    }
    std::string xml;
    int index = 0;
    for (const TRE* const tre : aStore.InOrder()) {
        tre->SerializeTRE(xml, aClassification, index++);
    }
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

}  // namespace ORMO::SensorModel::CSM
