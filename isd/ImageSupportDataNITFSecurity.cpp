// The security classification of a file: of its segments, and of the TREs that carry one of their own.

#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"

#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace {

/// A TRE with a marking of the data that it stands with; others tell that of their sources.
struct MarkedTre
{
    const char* tag;
    const char* field;
};

constexpr MarkedTre MARKED_TRES[] = {{"RPFHDR", "CLASS"}};

void Append(std::string_view aMarking, std::vector<std::string>& aMarkings)
{
    if (!Detail::Trimmed(aMarking).empty()) {
        aMarkings.emplace_back(Detail::Trimmed(aMarking));
    }
}

/// The marking of a header, then those of its TREs.
void AppendMarkings(const NITFFieldSegment& aSegment, std::vector<std::string>& aMarkings)
{
    Append(aSegment.GetClassification(), aMarkings);
    for (const TREStore* const store : {&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            for (const MarkedTre& marked : MARKED_TRES) {
                const char* const marking =
                    std::string_view(tre->GetTag()) == marked.tag ? tre->GetTREField(marked.field) : nullptr;
                Append(Detail::ViewOf(marking), aMarkings);
            }
        }
    }
}

ImageSupportDataNITF::Markings Ranked(const std::vector<std::string>& aMarkings)
{
    ImageSupportDataNITF::Markings ranked;
    for (const std::string& marking : aMarkings) {
        ranked.try_emplace(marking, NITFCnst::GetSecurityClassificationRank(marking.c_str()));
    }
    return ranked;
}

}  // namespace

void ImageSupportDataNITF::CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const
{
    AppendMarkings(*m_parts->header, aMarkings);
    for (const std::unique_ptr<NITFFieldSegment>& segment : m_parts->segments) {
        if (segment != nullptr) {
            AppendMarkings(*segment, aMarkings);
        }
    }
}

bool ImageSupportDataNITF::RetrieveAllSecurityClassificationMarkings(Markings& aMarkings) const
{
    ClearMessages();
    std::vector<std::string> markings;
    CollectSecurityClassificationMarkings(markings);
    aMarkings = Ranked(markings);
    return !aMarkings.empty();
}

bool ImageSupportDataNITF::GetVersionSpecificStdDataSegmentsSecurityClassificationMarkings(Markings& aMarkings) const
{
    ClearMessages();
    std::vector<std::string> markings;
    for (const NITFDrawnSegment* const segment : GetDrawnSegments()) {
        AppendMarkings(*segment, markings);
    }
    aMarkings = Ranked(markings);
    return !aMarkings.empty();
}

void ImageSupportDataNITF::SetHighestSecurityClassificationMarking()
{
    std::vector<std::string> markings;
    CollectSecurityClassificationMarkings(markings);
    int highest = NITFCnst::RANK_SC_UNKNOWN;
    m_highestMarking.clear();
    for (const std::string& marking : markings) {
        const int rank = NITFCnst::GetSecurityClassificationRank(marking.c_str());
        if (rank > highest) {
            highest = rank;
            m_highestMarking = marking;
        }
    }
    // Whatever is classified calls for a SECRET system, TOP SECRET for the one above it.
    m_classificationLevel = highest >= NITFCnst::RANK_SC_TOP_SECRET    ? Util::CSMCnst::CLASS_TYPE_SCI
                            : highest > NITFCnst::RANK_SC_UNCLASSIFIED ? Util::CSMCnst::CLASS_TYPE_SECRET
                                                                       : Util::CSMCnst::CLASS_TYPE_UNCLASSIFIED;
}

}  // namespace ORMO::SensorModel::CSM
