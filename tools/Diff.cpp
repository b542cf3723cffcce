#include "segments/NITFWords.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/SegmentName.h"

#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

/// The fields of a header or TRE, in their order.
using Fields = std::vector<std::pair<std::string, std::string>>;

template<typename Owner>
Fields FieldsOf(const Owner& aOwner)
{
    Fields fields;
    std::string name;
    for (std::size_t i = 0; i != aOwner.GetNumOfFields(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        aOwner.GetFieldAt(i, name, value, length);
        fields.emplace_back(name, std::string(value, length));
    }
    return fields;
}

/// The TREs of a segment by tag and turn: "BLOCKA", "BLOCKA 2".
std::map<std::string, const TRE*> TREsOf(const NITFFieldSegment& aSegment)
{
    std::map<std::string, const TRE*> tres;
    std::map<std::string, int> turns;
    for (const TREStore* const store : StoresOf(aSegment)) {
        for (const TRE* const tre : store->InOrder()) {
            const std::string tag = NITFWords::Shown(tre->GetTag());
            const int turn = ++turns[tag];
            tres[tag + (turn == 1 ? "" : ' ' + std::to_string(turn))] = tre;
        }
    }
    return tres;
}

/// Tells one file from another, a line for each thing that differs.
class Comparison
{
public:
    Comparison(const ImageSupportDataNITF& aFirst, const ImageSupportDataNITF& aSecond)
        : m_first(aFirst), m_second(aSecond)
    {
    }

    /// True when nothing differs.
    bool Compare()
    {
        CompareSegments("header", m_first.GetNITFFileHeader(), m_second.GetNITFFileHeader());
        for (const NITFStdDataSegmentInfo* const info : m_first.GetSegmentInfos().InFileOrder()) {
            const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
            CompareSegments(ShownSegment(info->GetDataSegmentType(), index),
                            m_first.GetSegment(info->GetDataSegmentType(), index),
                            m_second.GetSegment(info->GetDataSegmentType(), index));
        }
        for (const NITFStdDataSegmentInfo* const info : m_second.GetSegmentInfos().InFileOrder()) {
            const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
            if (m_first.GetSegment(info->GetDataSegmentType(), index) == nullptr) {
                Tell(ShownSegment(info->GetDataSegmentType(), index), "only in the second file");
            }
        }
        return m_isSame;
    }

private:
    void Tell(const std::string& aWhat, const std::string& aHow)
    {
        std::cout << aWhat << ": " << aHow << '\n';
        m_isSame = false;
    }

    static std::string Quoted(const std::string& aValue)
    {
        constexpr std::size_t MOST = 80;
        return '"' + NITFWords::Shown(aValue, MOST) + '"';
    }

    void CompareFields(const std::string& aOwner, const Fields& aFirst, const Fields& aSecond)
    {
        const std::map<std::string, std::string> second(aSecond.begin(), aSecond.end());
        const std::map<std::string, std::string> first(aFirst.begin(), aFirst.end());
        for (const auto& [name, value] : aFirst) {
            const auto other = second.find(name);
            if (other == second.end()) {
                Tell(aOwner + ' ' + name, Quoted(value) + ", only in the first file");
            } else if (other->second != value) {
                Tell(aOwner + ' ' + name, Quoted(value) + " -> " + Quoted(other->second));
            }
        }
        for (const auto& [name, value] : aSecond) {
            if (first.count(name) == 0) {
                Tell(aOwner + ' ' + name, Quoted(value) + ", only in the second file");
            }
        }
    }

    void CompareTREs(const std::string& aOwner, const TRE& aFirst, const TRE& aSecond)
    {
        std::size_t firstLength = 0;
        std::size_t secondLength = 0;
        const char* const first = aFirst.GetRawTREDataString(firstLength);
        const char* const second = aSecond.GetRawTREDataString(secondLength);
        const bool same = std::string_view(first, firstLength) == std::string_view(second, secondLength);
        if (same) {
            return;
        }
        if (aFirst.IsGenericTRE() || aSecond.IsGenericTRE()) {
            Tell(aOwner, NITFWords::Count(firstLength, "byte") + " -> " + NITFWords::Count(secondLength, "byte") +
                             ", other data");
            return;
        }
        CompareFields(aOwner, FieldsOf(aFirst), FieldsOf(aSecond));
    }

    void CompareSegments(const std::string& aName, const NITFFieldSegment* aFirst, const NITFFieldSegment* aSecond)
    {
        if (aFirst == nullptr || aSecond == nullptr) {
            if (aFirst != nullptr) {
                Tell(aName, "only in the first file");
            }
            return;
        }
        // What the areas hold is compared TRE by TRE.
        const auto plain = [](const NITFFieldSegment& aSegment) {
            Fields fields = FieldsOf(aSegment);
            std::erase_if(fields, [&aSegment](const auto& aField) {
                return aSegment.GetFieldValueDataType(aField.first.c_str()) == Util::CSMCnst::DATA_TYPE_EXTENSION_DATA;
            });
            return fields;
        };
        CompareFields(aName, plain(*aFirst), plain(*aSecond));
        const auto first = TREsOf(*aFirst);
        const auto second = TREsOf(*aSecond);
        for (const auto& [tag, tre] : first) {
            const auto other = second.find(tag);
            if (other == second.end()) {
                Tell(aName + " TRE " + tag, "only in the first file");
            } else {
                CompareTREs(aName + " TRE " + tag, *tre, *other->second);
            }
        }
        for (const auto& [tag, tre] : second) {
            if (first.count(tag) == 0) {
                Tell(aName + " TRE " + tag, "only in the second file");
            }
        }
    }

    const ImageSupportDataNITF& m_first;
    const ImageSupportDataNITF& m_second;
    bool m_isSame = true;
};

int Diff(const std::string& aFirst, const std::string& aSecond)
{
    const Isd first = OpenFile(aFirst);
    const Isd second = OpenFile(aSecond);
    if (first == nullptr || second == nullptr) {
        return EXIT_WRONG_USE;
    }
    return Comparison(*first, *second).Compare() ? EXIT_DONE : EXIT_FILE_HAS_ERRORS;
}

Action DeclareDiff(CLI::App& aApp)
{
    auto files = std::make_shared<std::pair<std::string, std::string>>();
    aApp.add_option("A", files->first, "NITF or NSIF file")->required();
    aApp.add_option("B", files->second, "The file to compare it with")->required();
    return [files] { return Diff(files->first, files->second); };
}

}  // namespace

constexpr Command DIFF{.name = "diff",
                       .summary = "Fields and TREs that differ between two files; data are not compared",
                       .examples =
                           "diff before.ntf after.ntf\n"
                           "diff before.ntf after.ntf | grep ' TRE '",
                       .exitCodes = "0 nothing differs, 1 something does, 2 wrong use or a file that cannot be opened",
                       .declare = DeclareDiff};

}  // namespace OrmoNitf
