// How the TREs of overflow DESs find their owners.

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "isd/ImageSupportDataNITF.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

/// An extension area and the field in its header that names the DES with the rest of it.
struct AreaField
{
    std::string_view area;
    std::string_view field;
    std::string_view fieldIn20;
};

constexpr std::array<AreaField, 7> AREA_FIELDS{{{"UDHD", "UDHOFL", "UDHOFL"},
                                                {"XHD", "XHDLOFL", "XHDOFL"},
                                                {"UDID", "UDOFL", "UDOFL"},
                                                {"IXSHD", "IXSOFL", "IXSOFL"},
                                                {"SXSHD", "SXSOFL", "SXSOFL"},
                                                {"LXSHD", "LXSOFL", "LXSOFL"},
                                                {"TXSHD", "TXSOFL", "TXSOFL"}}};

std::string Target(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::string_view aArea)
{
    std::string text = NITFStdDataSegment::GetDataSegmentName(aKind);
    if (aKind != NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        text += ' ' + std::to_string(aIndex);
    }
    return text + " area " + std::string(aArea);
}

}  // namespace

void ImageSupportDataNITF::SetDataSegmentsOverflowTREs()
{
    std::vector<std::string> targets;  // by DES, to tell two DESs for one target
    for (std::size_t des = 0; des != m_des.size(); ++des) {
        PlaceOverflowTREs(des, targets);
    }
    CheckOverflowNumbers();
}

void ImageSupportDataNITF::PlaceOverflowTREs(std::size_t aDes, std::vector<std::string>& aTargets)
{
    const NITFDESSubheader& des = *m_des[aDes];
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    long index = 0;
    std::string area;
    if (!des.IsTREOverflow() || !des.GetOverflowTarget(kind, index, area)) {
        return;
    }
    const auto place = static_cast<std::size_t>(index);
    const std::string target = Target(kind, place, area);
    const std::string name = "DES " + std::to_string(aDes + 1);
    const NITFStdDataSegmentInfos::Infos* const infos = m_infos.Get(kind);
    const bool exists =
        kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? place == 0 : infos != nullptr && place < infos->size();
    if (!exists) {
        AddWarning("WARN: Overflow " + name + " names " + target +
                   ", which is not in the file; its TREs stay on the DES.");
        return;
    }
    NITFFieldSegment* const owner = Segment(kind, place);
    if (owner == nullptr) {
        return;  // a kind whose subheaders are not read: the TREs stay on the DES
    }
    if (std::find(aTargets.begin(), aTargets.end(), target) != aTargets.end()) {
        AddWarning("WARN: Overflow " + name + " is a further one for " + target + "; both are placed in file order.");
    }
    aTargets.push_back(target);
    m_placed.resize(m_des.size());
    m_placed[aDes] = true;
    for (const TRE* const tre : des.GetOverflowTREs().InOrder()) {
        if (!owner->AddOverflowTRE(tre)) {
            AddWarning("WARN: TRE " + Detail::Quoted(tre->GetTag()) + " of overflow " + name +
                       " could not be placed at " + target + ".");
        }
    }
    const auto* const field = std::find_if(AREA_FIELDS.begin(), AREA_FIELDS.end(),
                                           [&](const AreaField& aField) { return aField.area == area; });
    if (field == AREA_FIELDS.end()) {
        return;
    }
    const std::string_view tag = m_version == NITFCnst::NITF_VERSION_NUMBER_20 ? field->fieldIn20 : field->field;
    const std::string_view text = owner->FieldText(tag);
    std::uint64_t number = 0;
    if (!Detail::ToCount(text, number) || number != aDes + 1) {
        AddWarning("WARN: Overflow " + name + " names " + target + ", whose " + std::string(tag) +
                   (text.data() == nullptr ? " does not stand" : " is " + Detail::Shown(text)) + "; the DES decides.");
    }
}

void ImageSupportDataNITF::CheckOverflowNumbers()
{
    const auto check = [this](NITFCnst::DataSegmentType aKind, std::size_t aIndex) {
        const NITFFieldSegment* const segment = Segment(aKind, aIndex);
        if (segment == nullptr) {
            return;
        }
        for (const AreaField& field : AREA_FIELDS) {
            const std::string_view tag = m_version == NITFCnst::NITF_VERSION_NUMBER_20 ? field.fieldIn20 : field.field;
            const std::string_view text = segment->FieldText(tag);
            std::uint64_t number = 0;
            if (text.data() == nullptr || (Detail::ToCount(text, number) && number == 0)) {
                continue;
            }
            const std::string where =
                Target(aKind, aIndex, field.area) + ": " + std::string(tag) + " " + Detail::Shown(text);
            NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
            long index = 0;
            std::string area;
            if (number == 0 || number > m_des.size()) {
                AddWarning("WARN: " + where + " names no DES of the file, which has " + std::to_string(m_des.size()) +
                           ".");
            } else if (!m_des[static_cast<std::size_t>(number) - 1]->IsTREOverflow()) {
                AddWarning("WARN: " + where + " names a DES that is no overflow DES.");
            } else if (m_des[static_cast<std::size_t>(number) - 1]->GetOverflowTarget(kind, index, area) &&
                       (kind != aKind || static_cast<std::size_t>(index) != aIndex || area != field.area)) {
                AddWarning("WARN: " + where + " names an overflow DES that belongs to " +
                           Target(kind, static_cast<std::size_t>(index), area) + "; the DES decides.");
            }
        }
    };
    check(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0);
    for (const NITFStdDataSegmentInfo* const info : m_infos.InFileOrder()) {
        check(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
    }
}

}  // namespace ORMO::SensorModel::CSM
