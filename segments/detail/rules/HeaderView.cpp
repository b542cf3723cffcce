#include "segments/detail/rules/HeaderView.h"

#include "segments/NITFDrawnSegment.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// Says of which field of a TRE a finding is.
void PlaceInTre(Finding& aFinding, const HeaderView& aHeader, const Breach& aBreach)
{
    const TRE::Parts& tre = TRE::Parts::Of(*aBreach.tre);
    aFinding.owner = tre.tag;
    aFinding.field = aBreach.field;
    aFinding.tre = tre.tag;
    aFinding.turn = aHeader.TurnOf(*aBreach.tre);
    aFinding.area = tre.area;
    aFinding.offset = *tre.area == '\0' ? Finding::NO_OFFSET : tre.offset;
    const FieldEntry* const entry = tre.fields == nullptr ? nullptr : tre.fields->Find(aBreach.field);
    if (entry != nullptr) {
        aFinding.value = tre.fields->Store().Value(*entry);
        if (aFinding.offset != Finding::NO_OFFSET) {
            aFinding.offset += TRE::Parts::HEADER_WIDTH + tre.fields->Store().Position(*entry);
        }
    }
}

}  // namespace

HeaderView::HeaderView(const NITFFieldSegment& aSegment) noexcept : m_segment(aSegment)
{
    if (Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE) {
        ReadImage();
    }
}

int HeaderView::Index() const noexcept
{
    const NITFStdDataSegmentInfo* const info = m_segment.GetNITFStdDataSegmentInfo();
    const bool numbered = info != nullptr && info->GetDataSegmentType() != NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    return numbered ? info->GetSegmentIndex() : Finding::NO_INDEX;
}

bool HeaderView::Looks(Subject aSubject) const noexcept
{
    switch (aSubject) {
        case Subject::FileHeader:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
        case Subject::Header:
            return true;
        case Subject::Image:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && m_image.isReadable;
        case Subject::Mask:
            return Looks(Subject::Image) && m_image.IsMasked() && HasData();
        case Subject::Graphic:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC;
        case Subject::Symbol:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_SYMBOL;
        case Subject::Label:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_LABEL;
        case Subject::Cgm:
            // That a metafile cannot have its place has been told when it was read.
            return (Looks(Subject::Graphic) || (Looks(Subject::Symbol) && Text("STYPE") == "C")) && HasData() &&
                   static_cast<const NITFDrawnSegment&>(m_segment).GetCGMMetaFile() != nullptr;
        case Subject::Text:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_TEXT;
        case Subject::Des:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION;
        case Subject::Res:
            return Kind() == NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION;
        case Subject::Tre:
            return HasTREs();
        default:
            return false;
    }
}

void HeaderView::ReadImage() noexcept
{
    ImageFacts& i = m_image;
    i.compression = Text("IC");
    i.mode = Text("IMODE");
    i.pixelType = Text("PVTYPE");
    i.representation = Text("IREP");
    i.category = Text("ICAT");
    i.isReadable = Number("NROWS", i.rows) && Number("NCOLS", i.columns) && Number("NBPR", i.blocksPerRow) &&
                   Number("NBPC", i.blocksPerColumn) && Number("NPPBH", i.blockColumns) &&
                   Number("NPPBV", i.blockRows) && Number("NBPP", i.bits) && Number("ABPP", i.actualBits) &&
                   Number("NBANDS", i.bands) && (i.bands != 0 || Number("XBANDS", i.bands));
}

bool HeaderView::ReadData(std::uint64_t aOffset, std::uint64_t aMost, std::string& aOut) const
{
    aOut.clear();
    return Inside().source != nullptr && aOffset < DataSize() &&
           Inside().source->ReadUpTo(DataStart() + aOffset, std::min(aMost, DataSize() - aOffset), aOut) &&
           !aOut.empty();
}

const TRE* HeaderView::FindTre(std::string_view aTag) const noexcept
{
    for (const TREStore* const store : {&m_segment.GetTREStore(), &m_segment.GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            if (aTag == tre->GetTag()) {
                return tre;
            }
        }
    }
    return nullptr;
}

int HeaderView::TurnOf(const TRE& aTre) const noexcept
{
    for (const TREStore* const store : {&m_segment.GetTREStore(), &m_segment.GetOverflowTREStore()}) {
        int turn = 0;
        for (const TRE* const tre : store->InOrder()) {
            turn += std::string_view(tre->GetTag()) == aTre.GetTag() ? 1 : 0;
            if (tre == &aTre) {
                return turn;
            }
        }
    }
    return 0;
}

void Report::operator()(const HeaderView& aHeader, const Breach& aBreach) const
{
    const auto level = aBreach.isMild ? Finding::Level::Warning : m_rule.level;
    m_findings.AddMade(level, m_rule.id, [&](FindingList&) {
        Finding finding;
        if (aBreach.tre != nullptr) {
            PlaceInTre(finding, aHeader, aBreach);
        } else {
            finding = aHeader.Inside().About(level, "", aBreach.field);
        }
        finding.segment = aHeader.Inside().layout->Owner();
        finding.index = aHeader.Index();
        Add(std::move(finding), aBreach);
    });
}

void Report::operator()(const Breach& aBreach) const
{
    m_findings.AddMade(m_rule.level, m_rule.id, [&](FindingList&) { Add({}, aBreach); });
}

void Report::Add(Finding&& aFinding, const Breach& aBreach) const
{
    aFinding.level = aBreach.isMild ? Finding::Level::Warning : m_rule.level;
    aFinding.rule = m_rule.id;
    aFinding.sentence = aBreach.sentence != nullptr ? std::string(aBreach.sentence)
                                                    : std::string(LevelPrefix(aFinding.level)) + m_rule.sentence;
    aFinding.clause = m_rule.source;
    aFinding.allowed = aBreach.allowed;
    aFinding.detail = aBreach.detail;
    if (!aBreach.value.empty()) {
        aFinding.value = aBreach.value;
    }
    if (aBreach.offset != Finding::NO_OFFSET) {
        aFinding.offset = aBreach.offset;
    }
    m_findings.Add(std::move(aFinding));
}

void CheckHeaderRules(const HeaderView& aHeader, FindingList& aFindings)
{
    std::array<bool, static_cast<std::size_t>(Subject::Field) + 1> looks{};
    for (std::size_t subject = 0; subject != looks.size(); ++subject) {
        looks[subject] = aHeader.Looks(static_cast<Subject>(subject));
    }
    for (const auto family : HEADER_RULES) {
        for (const Rule& rule : family()) {
            if (rule.check != nullptr && looks[static_cast<std::size_t>(rule.subject)] &&
                rule.AppliesTo(aHeader.Version())) {
                rule.check(aHeader, Report(rule, aFindings));
            }
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
