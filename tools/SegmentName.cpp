#include "tools/SegmentName.h"

#include "foundation/CSMUtilString.h"
#include "segments/NITFStdDataSegment.h"
#include "tools/Nearest.h"

#include <vector>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

constexpr NITFCnst::DataSegmentType KINDS[] = {
    NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER,    NITFCnst::DATA_SEGMENT_TYPE_IMAGE,
    NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC,        NITFCnst::DATA_SEGMENT_TYPE_SYMBOL,
    NITFCnst::DATA_SEGMENT_TYPE_LABEL,          NITFCnst::DATA_SEGMENT_TYPE_TEXT,
    NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION};

}  // namespace

std::string SegmentWord(NITFCnst::DataSegmentType aKind)
{
    const char* const word = NITFStdDataSegment::GetDataSegmentWord(aKind);
    return word == nullptr ? NITFStdDataSegment::GetDataSegmentName(aKind) : word;
}

std::string ShownSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex)
{
    const bool isHeader = aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
    return SegmentWord(aKind) + (isHeader ? "" : ' ' + std::to_string(aIndex));
}

bool ParseSegment(const std::string& aText, SegmentName& aSegment, std::string& aReason)
{
    const auto colon = aText.find(':');
    const std::string word = Util::CSMUtilString::ToLower(aText.substr(0, colon));
    aSegment = {};
    std::vector<std::string> words;
    for (const NITFCnst::DataSegmentType kind : KINDS) {
        words.push_back(SegmentWord(kind));
        const std::string name = NITFStdDataSegment::GetDataSegmentName(kind);
        if (word == words.back() || word == Util::CSMUtilString::ToLower(name)) {
            aSegment.kind = kind;
        }
    }
    if (aSegment.kind == NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN) {
        aReason = "ERROR: " + aText + " is no segment: it is one of " + SEGMENT_WORDS +
                  ", with an index such as image:0." + DidYouMean(word, words);
        return false;
    }
    unsigned long index = 0;
    if (colon != std::string::npos) {
        const std::string number = aText.substr(colon + 1);
        if (number.find_first_not_of("0123456789") != std::string::npos ||
            !Util::CSMUtilString::ToUnsignedLong(number.c_str(), index)) {
            aReason = "ERROR: " + aText + " has no index: a number from 0 stands behind the colon, such as image:0.";
            return false;
        }
        aSegment.index = index;
        aSegment.isIndexed = true;
    }
    return true;
}

bool ParseIndex(const std::string& aText, NITFCnst::DataSegmentType aKind, std::size_t& aIndex, std::string& aReason)
{
    const std::string word = SegmentWord(aKind);
    SegmentName segment;
    const bool isNumber = !aText.empty() && aText.find_first_not_of("0123456789") == std::string::npos;
    if (!ParseSegment(isNumber ? word + ':' + aText : aText, segment, aReason)) {
        return false;
    }
    if (segment.kind != aKind || !segment.isIndexed) {
        aReason = "ERROR: " + aText + " names no " + word + ": it is an index from 0, such as 0 or " + word + ":0.";
        return false;
    }
    aIndex = segment.index;
    return true;
}

}  // namespace OrmoNitf
