// The XML of a header's fields and TREs, and the header as raw metadata.

#include "fields/Xml.h"
#include "segments/NITFFieldSegment.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/RawFields.h"

#include <memory>

namespace ORMO::SensorModel::CSM {

std::size_t NITFFieldSegment::AppendFieldElements(std::string& aXml, std::string_view aLeftOut) const
{
    const Detail::SegmentWords& words = *m_parts->layout->words;
    return m_parts->record.AppendXml(words.naming, words.indent, words.element, aXml, aLeftOut);
}

void NITFFieldSegment::AppendTREElements(Document& aOut) const
{
    std::vector<const TREStore*> stores{&QueriedTREs()};
    if constexpr (NITFCnst::INCLUDE_OVERFLOW_TRES) {
        stores.push_back(&GetOverflowTREStore());
    }
    std::size_t total = 0;
    for (const TREStore* const store : stores) {
        total += store->Size();
    }
    if (total == 0) {
        return;
    }
    std::string& xml = aOut.Text();
    xml += "    <TREs";
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_TOTAL, total, xml);
    xml += ">\n";
    int index = 0;
    for (const TREStore* const store : stores) {
        for (const TRE* const tre : store->InOrder()) {
            tre->AppendXml(xml, GetClassification(), index++);
            aOut.Pass();
        }
    }
    xml += "    </TREs>\n";
}

std::string NITFFieldSegment::ElementText(const char* aIndent, int aIndex) const
{
    Document out;
    AppendElement(out, aIndent == nullptr ? "" : aIndent, aIndex);
    return std::move(out.Text());
}

const RawNITFMetadataStdDataSegment* NITFFieldSegment::GetAllMetadata() const
{
    return m_parts->metadata
        .Get([this] {
            const char* const owner = m_parts->layout->Owner();
            RawNITFMetadataStdDataSegment::Contents contents;
            contents.typeCode = static_cast<NITFCnst::NITFMetadataType>(GetDataSegmentType());
            contents.dataType = owner;
            contents.versionNumber = m_parts->layout->kind->version;
            contents.classification = GetClassification();
            contents.rawData = m_parts->raw;
            contents.rawDataDescription = std::string(owner) + " as it stands in the file";
            contents.fields = Detail::RawFieldsOf(m_parts->record);
            auto metadata = std::make_unique<RawNITFMetadataStdDataSegment>(std::move(contents));
            const auto& overflow = GetOverflowTREStore().InOrder();
            metadata->SetTRERawNITFMetadata(QueriedTREs(), {overflow.begin(), overflow.end()});
            return metadata;
        })
        .get();
}

const char* NITFFieldSegment::GetClassification() const noexcept
{
    const std::string_view text = FieldText(m_parts->layout->kind->classification);
    return text.data() == nullptr ? "" : text.data();
}

}  // namespace ORMO::SensorModel::CSM
