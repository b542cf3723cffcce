// The XML of a header's fields and TREs, and the header as raw metadata.

#include "fields/FieldStore.h"
#include "fields/FieldXml.h"
#include "fields/Xml.h"
#include "foundation/CSMUtilString.h"
#include "segments/NITFFieldSegment.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentWords.h"

#include <memory>

namespace ORMO::SensorModel::CSM {

std::size_t NITFFieldSegment::AppendFieldElements(std::string& aXml, std::string_view aLeftOut) const
{
    const Detail::FieldStore& fields = Contents().fields;
    const Detail::SegmentWords& words = Words();
    std::size_t position = 0;
    for (const Detail::FieldEntry& entry : fields.Entries()) {
        ++position;
        if (aLeftOut != fields.Row(entry).tag) {
            Detail::AppendFieldElement(fields, entry, words.naming, position, words.indent, words.element, aXml);
        }
    }
    return position;
}

void NITFFieldSegment::AppendTREElements(std::string& aXml) const
{
    const std::size_t total = QueriedTREs().Size() + GetOverflowTREStore().Size();
    if (total == 0) {
        return;
    }
    aXml += "    <TREs total=\"" + std::to_string(total) + "\">\n";
    int index = 0;
    for (const TREStore* const store : {&QueriedTREs(), &GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            tre->AppendXml(aXml, GetClassification(), index++);
        }
    }
    aXml += "    </TREs>\n";
}

std::unique_ptr<RawNITFMetadataStdDataSegment> NITFFieldSegment::MakeRawMetadata() const
{
    const Detail::FieldStore& fields = Contents().fields;
    RawNITFMetadataStdDataSegment::Contents contents;
    contents.typeCode = static_cast<NITFCnst::NITFMetadataType>(GetDataSegmentType());
    contents.dataType = Words().owner;
    contents.versionNumber = std::string_view(GetNITFVersion()) == NITFCnst::STR_NITF_0200
                                 ? NITFCnst::NITF_VERSION_NUMBER_20
                                 : NITFCnst::NITF_VERSION_NUMBER_21;
    contents.classification = GetClassification();
    contents.rawData = Contents().raw;
    contents.rawDataDescription = std::string(Words().owner) + " as it stands in the file";
    for (const Detail::FieldEntry& entry : fields.Entries()) {
        const Detail::FieldRow& row = fields.Row(entry);
        RawNITFMetadataField field;
        field.tag = fields.Name(entry);
        field.longName = row.label;
        field.type = NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need));
        field.declaredSize = static_cast<int>(row.HasFixedWidth() ? row.width : entry.length);
        field.editable = fields.Table().IsEditable(entry.row);
        field.binary = row.IsBinary();
        field.description = row.label;
        contents.fields.AddPresent(field, fields.Value(entry));
    }
    auto metadata = std::make_unique<RawNITFMetadataStdDataSegment>(std::move(contents));
    const auto& overflow = GetOverflowTREStore().InOrder();
    metadata->SetTRERawNITFMetadata(QueriedTREs(), {overflow.begin(), overflow.end()});
    return metadata;
}

const char* NITFFieldSegment::GetClassification() const noexcept
{
    for (const Detail::FieldEntry& entry : Contents().fields.Entries()) {
        if (std::string_view(Contents().fields.Row(entry).tag).ends_with("CLAS")) {
            return Contents().fields.Value(entry).data();
        }
    }
    return "";
}

}  // namespace ORMO::SensorModel::CSM
