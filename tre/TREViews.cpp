// The maps, lists and help texts of a TRE. Each is made when it is first asked for.

#include "fields/FieldValue.h"
#include "nitf/NITFCnst.h"
#include "tre/RawNITFMetadataTRE.h"
#include "tre/detail/TreHelp.h"
#include "tre/detail/TreParts.h"

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldStore;
using Detail::TextList;

namespace {

/// What `aFill` makes of the fields one after the other; what it starts from when there are none.
template<typename View, typename Fill>
View Filled(const TRE::Parts& aParts, Fill aFill)
{
    View view;
    if (aParts.fields != nullptr) {
        const FieldStore& store = aParts.fields->Store();
        for (const FieldEntry& entry : store.Entries()) {
            aFill(view, store, entry);
        }
    }
    return view;
}

/// A list of one text for each field.
template<typename TextOf>
TextList Listed(const TRE::Parts& aParts, TextOf aTextOf)
{
    auto list = Filled<TextList>(aParts, [&](TextList& aList, const FieldStore& aStore, const FieldEntry& aEntry) {
        aList.texts.push_back(aTextOf(aStore, aEntry));
    });
    for (const std::string& text : list.texts) {
        list.pointers.push_back(text.c_str());
    }
    return list;
}

}  // namespace

const std::vector<const char*>* TRE::GetAllTreFields() const
{
    const auto make = [this] {
        return Listed(*m_parts, [](const FieldStore& aStore, const FieldEntry& aEntry) { return aStore.Name(aEntry); });
    };
    return &m_parts->Views().names.Get(make).pointers;
}

const std::vector<const char*>* TRE::GetAllTREFieldDescriptions() const
{
    const auto make = [this] {
        return Listed(*m_parts, [](const FieldStore& aStore, const FieldEntry& aEntry) {
            return Detail::FieldHelp(aStore.Row(aEntry), aStore.Name(aEntry), aEntry.length);
        });
    };
    return &m_parts->Views().helps.Get(make).pointers;
}

const std::vector<bool>* TRE::GetBinaryFieldList() const
{
    if (m_parts->fields == nullptr) {
        return nullptr;
    }
    return &m_parts->Views().binary.Get([this] {
        return Filled<std::vector<bool>>(*m_parts,
                                         [](auto& aFlags, const FieldStore& aStore, const FieldEntry& aEntry) {
                                             aFlags.push_back(aStore.Row(aEntry).IsBinary());
                                         });
    });
}

bool TRE::GetTreFieldsMetadata(std::vector<TreDetailedInfo>& aFields) const
{
    aFields = Filled<std::vector<TreDetailedInfo>>(
        *m_parts, [](auto& aInfos, const FieldStore& aStore, const FieldEntry& aEntry) {
            aInfos.push_back(Detail::FieldInfo(aStore.Row(aEntry), aStore.Name(aEntry), aEntry.length));
        });
    return m_parts->fields != nullptr;
}

const TRE::FieldInfos* TRE::GetAllTreFieldInfos() const
{
    return &m_parts->Views().infos.Get([this] {
        std::vector<TreDetailedInfo> fields;
        GetTreFieldsMetadata(fields);
        FieldInfos infos;
        for (TreDetailedInfo& field : fields) {
            std::string name = field.fieldName;
            infos.emplace(std::move(name), std::move(field));
        }
        return infos;
    });
}

const TRE::FieldTexts* TRE::GetFieldEditabilityMap() const
{
    return &m_parts->Views().editability.Get([this] {
        return Filled<FieldTexts>(*m_parts, [](auto& aMap, const FieldStore& aStore, const FieldEntry& aEntry) {
            const bool editable = aStore.Table().IsEditable(aEntry.row);
            aMap.emplace(aStore.Name(aEntry),
                         editable ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE);
        });
    });
}

const TRE::FieldTexts* TRE::GetTREKeyValuePairsMap() const
{
    if (m_parts->fields == nullptr) {
        return nullptr;
    }
    return &m_parts->Views().values.Get([this] {
        return Filled<FieldTexts>(*m_parts, [](auto& aMap, const FieldStore& aStore, const FieldEntry& aEntry) {
            aMap.emplace(aStore.Name(aEntry), aStore.Value(aEntry));
        });
    });
}

const TRE::FieldWidths* TRE::GetTREFieldWidthsMap() const
{
    if (m_parts->fields == nullptr) {
        return nullptr;
    }
    return &m_parts->Views().widths.Get([this] {
        return Filled<FieldWidths>(*m_parts, [](auto& aMap, const FieldStore& aStore, const FieldEntry& aEntry) {
            aMap.emplace(aStore.Name(aEntry), static_cast<int>(aEntry.length));
        });
    });
}

const TRE::FieldDataTypes* TRE::GetNITFTreFieldValueDataTypesMap() const
{
    return &m_parts->Views().dataTypes.Get([this] {
        return Filled<FieldDataTypes>(*m_parts, [](auto& aMap, const FieldStore& aStore, const FieldEntry& aEntry) {
            aMap.emplace(aStore.Name(aEntry), Detail::DataTypeOf(aStore.Row(aEntry)));
        });
    });
}

const RawNITFMetadata* TRE::GetAllTreMetadata() const
{
    if (m_parts->fields == nullptr) {
        return nullptr;
    }
    return m_parts->Views()
        .metadata
        .Get([this]() -> std::unique_ptr<const RawNITFMetadata> { return std::make_unique<RawNITFMetadataTRE>(*this); })
        .get();
}

void TRE::FreeRawMetaDataObject()
{
    m_parts->views.Reset();
}

const char* TRE::GetTREDescription() const
{
    if (m_parts->layout == nullptr) {
        return "Unknown TRE.";
    }
    return m_parts->Views()
        .description
        .Get([this] {
            return Detail::TagHelp(*m_parts->layout, m_parts->tag, m_parts->type == TRE_TYPE_REGISTERED_EXTENSION,
                                   GetTRERegisterGroup());
        })
        .c_str();
}

}  // namespace ORMO::SensorModel::CSM
