#include "foundation/CSMUtilString.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "segments/detail/SegmentLayout.h"
#include "tests/support/EveryQuery.h"
#include "tre/TREFactory.h"
#include "tre/detail/TreArea.h"
#include "tre/detail/TreMaker.h"

#include <string>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;

namespace {

constexpr std::size_t HEAD = 11;  // tag and length

/// Each TRE gives back the bytes that stood in the area, whether it is typed or not.
void RequireBytesBack(const TRE& aTre, std::string_view aArea)
{
    const auto at = static_cast<std::size_t>(aTre.GetFileOffset());
    std::size_t length = 0;
    const char* const data = aTre.GetRawTREDataString(length);
    Require(at + HEAD + length <= aArea.size() && aArea.substr(at + HEAD, length) == std::string_view(data, length),
            "a TRE has the bytes of the area");
    char* text = nullptr;
    Require(aTre.Write(&text), "a TRE can be written");
    const std::string written = text;
    Util::CSMUtilString::DeleteCString(text);
    const std::string_view received = aArea.substr(at, HEAD + length);
    Require(received.substr(0, written.size()) == written, "a TRE is written as it was received");
}

}  // namespace

void RunTre(std::string_view aBytes)
{
    std::string xml;
    {
        const AllocationWatch watch(aBytes.size());
        TREStore store;
        Detail::FindingList findings;
        const int count =
            Detail::ExtractTREs(aBytes, store, {}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, {"IXSHD", 0}, findings);
        Require(count >= 0 && static_cast<std::size_t>(count) == store.Size(), "all TREs are counted");
        Detail::CheckArea(aBytes, {"IXSHD", 0}, findings);
        Detail::CheckTREs(store, findings);
        const TREStore copy(store);
        Require(copy == store, "a copy is equal");
        for (const TRE* const tre : store.InOrder()) {
            Tests::AskEverything(*tre);
            RequireBytesBack(*tre, aBytes);
            tre->AppendXml(xml, "U", 0);
        }
        TREStore little;
        Detail::ExtractTREs(aBytes, little, {true, true}, Util::CSMCnst::BYTE_ORDER_LITTLE_ENDIAN, {"IXSHD", 0},
                            findings);
        for (const TRE* const tre : little.InOrder()) {
            Require(!tre->IsGenericTRE(), "only typed TREs were asked for");
            Tests::AskEverything(*tre);
        }
    }
    RequireXmlElements(xml);
}

}  // namespace OrmoFuzz
