#include "fields/ByteSource.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "segments/cgm/CGMDrawing.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/detail/SegmentLayout.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/NitfBuilder.h"

#include <memory>
#include <string>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;

namespace {

const std::string& GraphicSubheader()
{
    static const std::string header = [] {
        Tests::NitfBuilder builder;
        return builder.AddGraphic().Bytes();
    }();
    return header;
}

/// The metafile as the data of a graphic: what is found on reading and what the rules say.
void CheckGraphic(std::string_view aBytes)
{
    constexpr auto VERSION = NITFCnst::NITF_VERSION_NUMBER_21;
    NITFFieldSegment::Input input;
    input.raw = GraphicSubheader();
    input.versionText = NITFCnst::GetNITFVersionString(VERSION);
    input.source = Detail::ByteSource::OfMemory(aBytes, false, "fuzz");
    input.info.SetSegmentType("SY", VERSION);
    input.info.SetSegmentDataSize(aBytes.size());
    const std::unique_ptr<NITFFieldSegment> graphic =
        Detail::MakeSegment(NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, VERSION, input);
    Tests::AskEverything(*graphic);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    graphic->RigorousValidation(errors, warnings);
}

}  // namespace

void RunCgm(std::string_view aBytes)
{
    std::string xml;
    std::string svg;
    {
        const AllocationWatch watch(aBytes.size());
        const NITFCGMMetaFile metafile(aBytes.data(), 0, 1, 0, 0, aBytes.size());
        for (std::size_t i = 0; i != metafile.GetNumOfClearTextLines(); ++i) {
            Require(!metafile.GetClearTextLine(i).empty(), "a line says something");
        }
        if (const CGMFault* const fault = metafile.GetFault(); fault != nullptr) {
            Require(!fault->text.empty() && fault->offset <= aBytes.size(), "a fault is told");
        }
        std::size_t size = 0;
        const char* const raw = metafile.GetRawCGMDataStream(size);
        Require(std::string_view(raw, size) == aBytes, "the bytes are kept");
        Require(NITFCGMMetaFile(metafile) == metafile, "a copy is equal");
        CGMDrawing::Bounds bounds;
        CGMDrawing::GetBounds(metafile, bounds);
        metafile.AppendXml(xml, "");
        CheckGraphic(aBytes);
    }
    const NITFCGMMetaFile metafile(aBytes.data(), 0, 1, 0, 0, aBytes.size());
    CGMDrawing::AppendSvg(metafile, 0, 0, svg);
    RequireXmlElements(xml);
    RequireXmlElements(svg);
}

}  // namespace OrmoFuzz
