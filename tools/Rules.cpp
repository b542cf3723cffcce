#include "tools/Rules.h"

#include "isd/ValidationRules.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Nearest.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

struct Options
{
    std::string id;
    bool asMarkdown = false;
};

const char* LevelOf(const ValidationRule& aRule) noexcept
{
    return aRule.level == Finding::Level::Warning ? "WARN" : "ERROR";
}

const char* VersionsOf(const ValidationRule& aRule) noexcept
{
    return !aRule.isForNitf21 ? "2.0" : !aRule.isForNitf20 ? "2.1, NSIF 1.0" : "2.0, 2.1, NSIF 1.0";
}

std::string Padded(std::string aText, std::size_t aWidth)
{
    aText.resize(std::max(aText.size(), aWidth), ' ');
    return aText;
}

void List()
{
    for (const ValidationRule& rule : ValidationRules::GetAllRules()) {
        std::cout << Padded(rule.id, 8) << Padded(LevelOf(rule), 7) << rule.sentence
                  << (*rule.notChecked == '\0' ? "" : " (not checked)") << '\n';
    }
}

void Explain(const ValidationRule& aRule)
{
    std::cout << aRule.id << "  " << LevelOf(aRule) << "  " << aRule.sentence << "\n\n"
              << aRule.explanation << "\n\n"
              << "Versions  " << VersionsOf(aRule) << '\n'
              << "Looks at  " << aRule.subject << ": " << aRule.fields << '\n'
              << "Source    " << aRule.source << '\n';
    if (*aRule.notChecked != '\0') {
        std::cout << "Not checked: " << aRule.notChecked << ".\n";
    }
}

/// A cell of a table: the bar would end it.
std::string Cell(std::string_view aText)
{
    std::string cell;
    for (const char character : aText) {
        cell += character == '|' ? "\\|" : std::string(1, character);
    }
    return cell;
}

void Markdown()
{
    std::cout
        << "# Rules of the validation\n\n"
           "`ormo-nitf validate` holds a file against these rules, `ormo-nitf rules ID` explains one of them, and\n"
           "`validate --ignore ID` leaves one out. A host lists them with `ValidationRules::GetAllRules()`. This page "
           "is\n"
           "written by `ormo-nitf rules --markdown`.\n\n"
           "The level is that of the findings; where a rule says so, its mild cases are warnings.\n\n"
           "| Rule | Level | Versions | Looks at | What is wrong | What the rule asks for | Source |\n"
           "|---|---|---|---|---|---|---|\n";
    for (const ValidationRule& rule : ValidationRules::GetAllRules()) {
        std::cout << "| " << rule.id << " | " << LevelOf(rule) << " | " << VersionsOf(rule) << " | " << rule.subject
                  << ": " << Cell(rule.fields) << " | " << Cell(rule.sentence) << " | " << Cell(rule.explanation)
                  << (*rule.notChecked == '\0' ? "" : " Not checked: " + Cell(rule.notChecked) + ".") << " | "
                  << Cell(rule.source) << " |\n";
    }
}

int Rules(const Options& aOptions)
{
    if (aOptions.asMarkdown) {
        Markdown();
        return EXIT_DONE;
    }
    if (aOptions.id.empty()) {
        List();
        return EXIT_DONE;
    }
    const ValidationRule* const rule = ValidationRules::Find(aOptions.id.c_str());
    if (rule == nullptr) {
        PrintNoRule(aOptions.id);
        return EXIT_FILE_HAS_ERRORS;
    }
    Explain(*rule);
    return EXIT_DONE;
}

Action DeclareRules(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_flag("--markdown", options->asMarkdown, "All of them as a page of documentation");
    aApp.add_option("ID", options->id, "A rule, such as PV-02");
    return [options] { return Rules(*options); };
}

}  // namespace

void PrintNoRule(const std::string& aId)
{
    std::vector<std::string> ids;
    for (const ValidationRule& rule : ValidationRules::GetAllRules()) {
        ids.emplace_back(rule.id);
    }
    PrintProblem("ormo-nitf",
                 "ERROR: " + aId + " is no rule." + DidYouMean(aId, ids) + " ormo-nitf rules lists them all.");
}

constexpr Command RULES{.name = "rules",
                        .summary = "The rules of the validation; one of them explained",
                        .examples =
                            "rules\n"
                            "rules PV-02",
                        .exitCodes = "0 done, 1 no such rule, 2 wrong use",
                        .declare = DeclareRules};

}  // namespace OrmoNitf
