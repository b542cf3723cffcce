#include "foundation/CSMException.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/ProgramRun.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;

namespace {

using Isd = std::unique_ptr<ImageSupportData, Tests::IsdReleaser>;

/// Null when it is refused.
template<typename Make>
Isd MadeOrRefused(Make aMake)
{
    ImageSupportData* made = nullptr;
    try {
        aMake(&made);
        Require(made != nullptr, "what is not refused is there");
    } catch (const CSMException& exception) {
        Require(exception.GetAdditionalMessage() != nullptr, "a refusal has a text");
    } catch (const std::invalid_argument&) {
        // What is no such file at all.
    }
    Require(made != nullptr || !ImageSupportDataFactory::GetFindings().empty(), "a refusal is a finding");
    return Isd(made);
}

/// What a command writes to standard output.
std::string Told(const Tests::ProgramRun& aProgram)
{
    Tests::ProgramRun::Outcome outcome = aProgram.Run();
    RequireNoControls(outcome.problems);
    return std::move(outcome.text);
}

void CheckProgram(const std::string& aPath)
{
    // With the options that let them say most; the path is the same for every input.
    static const Tests::ProgramRun json(OrmoNitf::JSON, {"--salvage", aPath});
    static const Tests::ProgramRun typed(OrmoNitf::JSON, {"--salvage", "--typed", aPath});
    static const Tests::ProgramRun info(OrmoNitf::INFO, {"--salvage", "--all", aPath});
    RequireJson(Told(json));
    RequireJson(Told(typed));
    RequireNoControls(Told(info));
}

void CheckCopy(const ImageSupportData& aIsd)
{
    ImageSupportData* copy = nullptr;
    Require(ImageSupportDataFactory::Clone(&aIsd, &copy), "there is a copy");
    const Isd owner(copy);
    Require(ImageSupportDataFactory::AreEqual(aIsd, *copy), "a copy is equal");
}

}  // namespace

void RunFile(std::string_view aBytes)
{
    // What takes longest is done for some of the inputs; their sizes are as good as chance.
    const std::size_t turn = aBytes.size() % 4;
    std::string xml;
    {
        const AllocationWatch watch(aBytes.size());
        Isd isd = MadeOrRefused([&](ImageSupportData** aOut) {
            ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), false, "fuzz", aOut, true, false);
        });
        if (isd == nullptr && turn == 0) {
            isd = MadeOrRefused(
                [&](ImageSupportData** aOut) { ImageSupportDataFactory::Salvage(PathOf(aBytes).c_str(), aOut); });
        }
        if (isd == nullptr) {
            return;
        }
        unsigned long errors = 0;
        unsigned long warnings = 0;
        Tests::AskEverything(dynamic_cast<ImageSupportDataNITF&>(*isd));
        isd->RigorousValidation(errors, warnings);
        RequireNoControls(isd->GetValidationSummaryReport());
        if (turn == 1) {
            CheckCopy(*isd);
        }
        xml = isd->Serialize();
    }
    RequireXml(xml);
    if (turn == 2) {
        CheckProgram(PathOf(aBytes));
    }
}

}  // namespace OrmoFuzz
