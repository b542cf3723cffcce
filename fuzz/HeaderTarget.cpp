#include "fields/ByteSource.h"
#include "foundation/CSMException.h"
#include "foundation/CSMExceptions.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "segments/detail/SegmentKind.h"
#include "segments/detail/SegmentLayout.h"
#include "tests/support/EveryQuery.h"

#include <algorithm>
#include <memory>
#include <string>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;

void RunHeader(std::string_view aBytes)
{
    constexpr std::size_t CHOICES = 3;
    if (aBytes.size() < CHOICES) {
        return;
    }
    const auto byte = [&](std::size_t aAt) { return static_cast<unsigned char>(aBytes[aAt]); };
    const Detail::SegmentKind& kind = Detail::SEGMENT_KINDS[byte(0) % std::size(Detail::SEGMENT_KINDS)];
    const std::size_t wanted = byte(1) * std::size_t{256} + byte(2);
    aBytes.remove_prefix(CHOICES);
    const std::size_t data = std::min(wanted, aBytes.size());
    const std::size_t header = aBytes.size() - data;

    std::string xml;
    {
        const AllocationWatch watch(aBytes.size());
        NITFFieldSegment::Input input;
        input.raw = aBytes.substr(0, header);
        input.versionText = NITFCnst::GetNITFVersionString(kind.version);
        input.source = Detail::ByteSource::OfMemory(aBytes, false, "fuzz");
        input.fileName = "fuzz";
        input.info.SetSegmentType(kind.mark, kind.version);
        input.info.SetSegmentHeaderSize(static_cast<std::uint32_t>(header));
        input.info.SetSegmentDataStart(header);
        input.info.SetSegmentDataSize(wanted);  // perhaps more than there are
        std::unique_ptr<NITFFieldSegment> segment;
        try {
            segment = Detail::MakeSegment(kind.kind, kind.version, input);
        } catch (const ImageSupportDataConstructionException&) {
            Require(input.own.Errors() != 0, "a refusal is a finding");
            return;
        }
        Tests::AskEverything(*segment);
        unsigned long errors = 0;
        unsigned long warnings = 0;
        segment->RigorousValidation(errors, warnings);
        const std::unique_ptr<NITFFieldSegment> copy = Detail::CopySegment(*segment);
        Require(Detail::AreEqual(*segment, *copy), "a copy is equal");
        const char* const text = segment->SerializeDataSegment("");
        Require(text != nullptr, "there is XML of a header");
        xml = text;
    }
    RequireXmlElements(xml);
}

}  // namespace OrmoFuzz
