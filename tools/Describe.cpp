#include "segments/NITFHeaderCatalogue.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Nearest.h"
#include "tools/Output.h"
#include "tools/SegmentName.h"
#include "tre/TRECatalogue.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

constexpr NITFCnst::Version VERSIONS[] = {NITFCnst::NITF_VERSION_NUMBER_21, NITFCnst::NITF_VERSION_NUMBER_20};

int PrintAllTags()
{
    std::string group;
    for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
        if (tag.group != group) {
            std::cout << (group.empty() ? "" : "\n") << tag.group << '\n';
            group = tag.group;
        }
        std::cout << "  " << tag.tag << std::string(8 - tag.tag.size(), ' ')
                  << (tag.typed ? tag.longName : "(layout not known here)") << '\n';
    }
    return EXIT_DONE;
}

int Refuse(const std::string& aWhat, const std::string& aTyped, const std::vector<std::string>& aKnown)
{
    std::cerr << Printable("ormo-nitf: ERROR: " + aWhat + " is not known." + DidYouMean(aTyped, aKnown)) << '\n';
    return EXIT_FILE_HAS_ERRORS;
}

/// The layout of a kind of header in both versions, or one field of it.
int DescribeHeader(NITFCnst::DataSegmentType aKind, const std::string& aField)
{
    bool found = false;
    std::vector<std::string> known;
    for (const NITFCnst::Version version : VERSIONS) {
        std::string text;
        const bool has = aField.empty() ? NITFHeaderCatalogue::DescribeHeader(aKind, version, text)
                                        : NITFHeaderCatalogue::DescribeField(aKind, version, aField.c_str(), text);
        if (has) {
            std::cout << (found ? "\n" : "") << text;
            found = true;
        }
        const std::vector<std::string> names = NITFHeaderCatalogue::GetFieldNames(aKind, version);
        known.insert(known.end(), names.begin(), names.end());
    }
    return found ? static_cast<int>(EXIT_DONE)
                 : Refuse("Field " + aField + " of the " + SegmentWord(aKind) + " header", aField, known);
}

/// A word alone: a TRE, a kind of header, or a field of any header.
int DescribeWord(const std::string& aWord)
{
    std::string text;
    if (TRECatalogue::DescribeTag(aWord.c_str(), text)) {
        std::cout << text;
        return EXIT_DONE;
    }
    SegmentName segment;
    std::string ignored;
    if (ParseSegment(aWord, segment, ignored)) {
        return DescribeHeader(segment.kind, "");
    }
    std::vector<std::string> known;
    bool found = false;
    for (int kind = NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION; kind <= NITFCnst::DATA_SEGMENT_TYPE_TEXT; ++kind) {
        const auto type = static_cast<NITFCnst::DataSegmentType>(kind);
        for (const NITFCnst::Version version : VERSIONS) {
            if (NITFHeaderCatalogue::DescribeField(type, version, aWord.c_str(), text)) {
                std::cout << (found ? "\n" : "") << text;
                found = true;
            }
            const std::vector<std::string> names = NITFHeaderCatalogue::GetFieldNames(type, version);
            known.insert(known.end(), names.begin(), names.end());
        }
    }
    for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
        known.push_back(tag.tag);
        if (TRECatalogue::DescribeField(tag.tag.c_str(), aWord.c_str(), text)) {
            std::cout << (found ? "\n" : "") << tag.tag << ": " << text;
            found = true;
        }
    }
    return found ? static_cast<int>(EXIT_DONE) : Refuse("TRE, header or header field " + aWord, aWord, known);
}

int DescribeField(const std::string& aOwner, const std::string& aField)
{
    std::string text;
    if (TRECatalogue::DescribeField(aOwner.c_str(), aField.c_str(), text)) {
        std::cout << text;
        return EXIT_DONE;
    }
    SegmentName segment;
    std::string ignored;
    if (ParseSegment(aOwner, segment, ignored)) {
        return DescribeHeader(segment.kind, aField);
    }
    std::vector<std::string> known;
    for (const TreDetailedInfo& field : TRECatalogue::GetFields(aOwner.c_str())) {
        known.push_back(field.fieldName);
    }
    if (TRECatalogue::DescribeTag(aOwner.c_str(), text)) {
        return Refuse("Field " + aField + " of TRE " + aOwner, aField, known);
    }
    for (const TRECatalogue::Tag& tag : TRECatalogue::GetAllTags()) {
        known.push_back(tag.tag);
    }
    return Refuse("TRE or header " + aOwner, aOwner, known);
}

Action DeclareDescribe(CLI::App& aApp)
{
    auto words = std::make_shared<std::pair<std::string, std::string>>();
    aApp.add_option(
        "WORD", words->first,
        "Tag of a TRE (BLOCKA), kind of header (image, header, ImageSegment) or field of any (NROWS, SUN_EL)");
    aApp.add_option("FIELD", words->second, "Field of that TRE or header");
    return [words] {
        return words->first.empty()    ? PrintAllTags()
               : words->second.empty() ? DescribeWord(words->first)
                                       : DescribeField(words->first, words->second);
    };
}

}  // namespace

constexpr Command DESCRIBE{.name = "describe",
                           .summary = "What TREs, headers and their fields mean; all TREs without a word",
                           .examples =
                               "describe BLOCKA L_LINES\n"
                               "describe NROWS",
                           .exitCodes = "0 done, 1 nothing of that name, 2 wrong use",
                           .declare = DeclareDescribe};

}  // namespace OrmoNitf
