#include "foundation/CSMUtilString.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ValidationRules.h"
#include "segments/NITFWords.h"
#include "tools/Commands.h"
#include "tools/Files.h"
#include "tools/FindingWords.h"
#include "tools/Isd.h"
#include "tools/Lines.h"
#include "tools/Output.h"
#include "tools/Rules.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

enum class Form
{
    Text,
    Quiet,
    Json,
    Xml
};

struct Options
{
    FileOptions files;
    ValidationOptions rules;
    std::string ignored;
    bool asXml = false;
    bool asJson = false;
    bool quiet = false;

    Form TheForm() const noexcept { return asXml ? Form::Xml : asJson ? Form::Json : quiet ? Form::Quiet : Form::Text; }
};

/// What all files together have.
struct Totals
{
    std::atomic<unsigned long> files = 0;
    std::atomic<unsigned long> withErrors = 0;
    std::atomic<unsigned long> refused = 0;
    std::atomic<unsigned long> errors = 0;
    std::atomic<unsigned long> warnings = 0;
};

std::string Coloured(const std::string& aText, const char* aCode)
{
    static const bool uses = IsColoured();
    return uses ? "\033[" + std::string(aCode) + 'm' + aText + "\033[0m" : aText;
}

void PrintFinding(const Finding& aFinding)
{
    constexpr std::size_t LEVEL_WIDTH = 7;
    constexpr std::size_t RULE_WIDTH = 8;
    std::string level = LevelWord(aFinding);
    std::string rule = aFinding.rule;
    level.resize(std::max(level.size(), LEVEL_WIDTH), ' ');
    rule.resize(std::max(rule.size(), RULE_WIDTH), ' ');
    Results() << "    " << Coloured(level, IsError(aFinding) ? "31" : "33") << rule << Printable(Sentence(aFinding))
              << '\n';
    const std::string facts = Facts(aFinding);
    if (!facts.empty()) {
        Results() << std::string(4 + LEVEL_WIDTH + RULE_WIDTH, ' ') << Printable(facts) << '\n';
    }
}

/// The findings by segment, in the order of the file, errors first.
void PrintFindings(const ImageSupportDataNITF& aIsd, const std::vector<Finding>& aFindings)
{
    std::map<std::string, std::vector<const Finding*>> bySegment;
    for (const Finding& finding : aFindings) {
        bySegment[SegmentOf(finding)].push_back(&finding);
    }
    const auto print = [&bySegment](const std::string& aSegment) {
        const auto found = bySegment.find(aSegment);
        if (found == bySegment.end()) {
            return;
        }
        Results() << "  " << Coloured(aSegment.empty() ? "File" : aSegment, "1") << '\n';
        for (const Finding* const finding : found->second) {
            PrintFinding(*finding);
        }
        bySegment.erase(found);
    };
    print("");
    print(NITFStdDataSegment::GetDataSegmentName(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER));
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        print(std::string(NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType())) + ' ' +
              std::to_string(info->GetSegmentIndex()));
    }
    while (!bySegment.empty()) {
        print(std::string(bySegment.begin()->first));
    }
}

/// Bytes of a file as a text of JSON: Latin-1, control bytes as what they are.
std::string Latin1(const std::string& aBytes)
{
    std::string text;
    Util::CSMUtilString::AppendLatin1AsUtf8(aBytes, text);
    return text;
}

void PrintJson(const std::string& aFile, const Finding& aFinding)
{
    using Object = nlohmann::ordered_json;
    const auto text = [](const std::string& aText) { return aText.empty() ? Object(nullptr) : Object(Latin1(aText)); };
    Object line{{"file", aFile},
                {"level", LevelWord(aFinding)},
                {"rule", text(aFinding.rule)},
                {"segment", text(aFinding.segment)},
                {"index", aFinding.index == Finding::NO_INDEX ? Object(nullptr) : Object(aFinding.index)},
                {"tre", text(aFinding.tre)},
                {"turn", aFinding.turn == 0 ? Object(nullptr) : Object(aFinding.turn)},
                {"area", text(aFinding.area)},
                {"field", text(aFinding.field)},
                {"value", text(aFinding.value)},
                {"allowed", text(aFinding.allowed)},
                {"clause", text(aFinding.clause)},
                {"offset", aFinding.offset == Finding::NO_OFFSET ? Object(nullptr) : Object(aFinding.offset)},
                {"sentence", Latin1(aFinding.sentence)},
                {"detail", text(aFinding.detail)}};
    // A path may hold any bytes.
    std::string written = line.dump(-1, ' ', false, Object::error_handler_t::replace);
    for (std::size_t i = written.find('\x7F'); i != std::string::npos; i = written.find('\x7F', i)) {
        written.replace(i, 1, "\\u007f");
    }
    Results() << written << '\n';
}

int ValidateFile(const std::string& aFile, const Options& aOptions, Totals& aTotals)
{
    const Isd isd = OpenFile(aFile, {.salvage = aOptions.files.salvage});
    ++aTotals.files;
    if (isd == nullptr) {
        ++aTotals.refused;
        if (aOptions.TheForm() == Form::Json) {
            for (const Finding& finding : ImageSupportDataFactory::GetFindings()) {
                PrintJson(aFile, finding);
            }
        }
        return EXIT_WRONG_USE;
    }
    unsigned long errors = 0;
    unsigned long warnings = 0;
    const bool good = isd->Validate(aOptions.rules, errors, warnings);
    aTotals.errors += errors;
    aTotals.warnings += warnings;
    aTotals.withErrors += good ? 0 : 1;
    const std::vector<Finding> findings = isd->GetValidationFindings();
    const Form form = aOptions.TheForm();
    if (form == Form::Xml) {
        Results() << isd->GetValidationSummaryReport();
    } else if (form == Form::Json) {
        for (const Finding& finding : findings) {
            PrintJson(aFile, finding);
        }
    } else {
        Results() << Coloured(Printable(aFile + ": " + NITFWords::Count(errors, "error") + ", " +
                                        NITFWords::Count(warnings, "warning")),
                              good ? "32" : "31")
                  << '\n';
        if (form == Form::Text) {
            PrintFindings(*isd, findings);
            const unsigned long left = errors + warnings - static_cast<unsigned long>(findings.size());
            if (left != 0 && left <= errors + warnings) {
                Results() << "  " << left << " further messages are left out.\n";
            }
        }
    }
    return good ? EXIT_DONE : EXIT_FILE_HAS_ERRORS;
}

void PrintTotals(const Totals& aTotals)
{
    std::cout << NITFWords::Count(aTotals.files, "file") << ", " << aTotals.withErrors << " with errors"
              << (aTotals.refused == 0 ? "" : ", " + std::to_string(aTotals.refused) + " cannot be opened") << ": "
              << NITFWords::Count(aTotals.errors, "error") << ", " << NITFWords::Count(aTotals.warnings, "warning")
              << '\n';
}

/// Takes the rules that are left out and the moment; says what is none.
bool AreRulesKnown(const std::string& aIgnored, ValidationOptions& aRules)
{
    std::istringstream ids(aIgnored);
    for (std::string id; std::getline(ids, id, ',');) {
        const ValidationRule* const rule = ValidationRules::Find(id.c_str());
        if (rule == nullptr) {
            PrintNoRule(id);
            return false;
        }
        aRules.ignored.emplace_back(rule->id);
    }
    const std::string& now = aRules.now;
    if (!now.empty() && (now.size() != 14 || now.find_first_not_of("0123456789") != std::string::npos)) {
        std::cerr << "ormo-nitf: ERROR: " << Printable(now) << " is no moment, CCYYMMDDhhmmss.\n";
        return false;
    }
    return true;
}

int Validate(Options& aOptions)
{
    if (!AreRulesKnown(aOptions.ignored, aOptions.rules)) {
        return EXIT_WRONG_USE;
    }
    Totals totals;
    const int exitCode =
        ForEachFile(aOptions.files, [&](const std::string& aFile) { return ValidateFile(aFile, aOptions, totals); });
    const Form form = aOptions.TheForm();
    if (totals.files > 1 && (form == Form::Text || form == Form::Quiet)) {
        PrintTotals(totals);
    }
    return exitCode;
}

Action DeclareValidate(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_flag("--xml", options->asXml, "The report as an XML document");
    aApp.add_flag("--json", options->asJson, "One JSON object per finding and line")->excludes("--xml");
    aApp.add_flag("-q,--quiet", options->quiet, "A line per file and no findings");
    aApp.add_option("--ignore", options->ignored, "Rules that are left out: PV-05,BD-12");
    aApp.add_option("--now", options->rules.now, "The moment after which a date lies in the future, CCYYMMDDhhmmss");
    AddFileOptions(aApp, options->files, true);
    return [options] { return Validate(*options); };
}

}  // namespace

constexpr Command VALIDATE{.name = "validate",
                           .summary = "What the standards' rules find",
                           .examples =
                               "validate image.ntf\n"
                               "validate --json --ignore FH-06,DL-06 -r directory",
                           .exitCodes = "0 no errors, 1 a file has errors, 2 wrong use or a file that cannot be opened",
                           .declare = DeclareValidate};

}  // namespace OrmoNitf
