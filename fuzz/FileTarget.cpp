#include "foundation/CSMException.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/OpenedIsd.h"
#include "tools/Commands.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

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

/// A command of the program over the file of the path, with the options that let it say most.
class Told
{
public:
    Told(const OrmoNitf::Command& aCommand, std::vector<std::string> aOptions, const std::string& aPath)
    {
        m_action = aCommand.declare(m_app);
        aOptions.push_back(aPath);
        std::reverse(aOptions.begin(), aOptions.end());
        m_app.parse(aOptions);
    }

    /// What it writes to standard output.
    std::string Text() const
    {
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* const results = open_memstream(&text, &size);
        std::ostringstream problems;
        std::FILE* const out = std::exchange(stdout, results);
        std::streambuf* const err = std::cerr.rdbuf(problems.rdbuf());
        m_action();
        std::cerr.rdbuf(err);
        stdout = out;
        std::fclose(results);
        std::string told(text, size);
        std::free(text);
        RequireNoControls(problems.str());
        return told;
    }

private:
    CLI::App m_app;
    OrmoNitf::Action m_action;
};

void CheckProgram(const std::string& aPath)
{
    static const Told json(OrmoNitf::JSON, {"--salvage"}, aPath);
    static const Told typed(OrmoNitf::JSON, {"--salvage", "--typed"}, aPath);
    static const Told info(OrmoNitf::INFO, {"--salvage", "--all"}, aPath);
    RequireJson(json.Text());
    RequireJson(typed.Text());
    RequireNoControls(info.Text());
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
