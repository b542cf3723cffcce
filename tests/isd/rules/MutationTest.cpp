// Good files with one field changed: the field is found wrong, and nothing else that does not follow from it.

#include "foundation/CSMExceptions.h"
#include "tests/isd/rules/RuleCases.h"
#include "tests/support/Validated.h"

#include <algorithm>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;

/// A file with a segment of most kinds, and its headers by name.
struct Sample
{
    NitfBuilder file;
    std::vector<std::pair<std::string, HeaderFields*>> headers;
};

Sample Make(Format aFormat)
{
    Sample sample{NitfBuilder(aFormat), {}};
    NitfBuilder& file = sample.file;
    HeaderFields& image = file.AddImage();
    image.Location("G", "020000N0100000E020000N0110000E010000N0110000E010000N0100000E").Comment("a comment");
    image.Area("IXSHD", Tre("ANYANY", "x"));
    HeaderFields& drawn = file.AddGraphic(Cgm());
    if (aFormat != Format::Nitf20) {
        drawn.Set("SBND2", "0001000010");
    }
    HeaderFields& text = file.AddText();
    HeaderFields& des = file.AddDes("XML_DATA_CONTENT", "<x/>");
    sample.headers = {{"NITFFileHeader", &file.File()},
                      {"ImageSegment", &image},
                      {aFormat == Format::Nitf20 ? "SymbolSegment" : "GraphicSegment", &drawn},
                      {"TextSegment", &text}};
    if (aFormat == Format::Nitf20) {
        des.Set("DESTAG", "Controlled Extensions").InsertAfter("DESDWNG", "DESOFLW", "IXSHD ");
        des.InsertAfter("DESOFLW", "DESITEM", "001");
        file.LastData() = Tre("ANYANY", "y");
        image.Set("IXSOFL", "001");
    }
    sample.headers.emplace_back("DataExtensionSegment", &des);
    return sample;
}

/// What a change of a field breaks besides the field's own rule, because other fields are compared with it.
const char* FollowsFrom(const std::string& aField)
{
    struct Consequence
    {
        const char* field;
        const char* rules;
    };
    static constexpr Consequence TABLE[] = {{"NROWS", "BK-01 BK-02 FH-05"},
                                            {"NCOLS", "BK-01 BK-02 FH-05"},
                                            {"NBPR", "BK-02 SZ-01 BK-01"},
                                            {"NBPC", "BK-02 SZ-01 BK-01"},
                                            {"NPPBH", "SZ-01 BK-01 BK-04 FH-05"},
                                            {"NPPBV", "SZ-01 BK-01 BK-04 FH-05"},
                                            {"NBPP", "SZ-01 PV-01 PV-02 PV-03"},
                                            {"ABPP", "PV-02"},
                                            {"PVTYPE", "PV-03"},
                                            {"IREP", "BD-02 BD-17"},
                                            {"ICAT", "BD-17"},
                                            {"IREPBAND_1", "BD-08 BD-11 BD-12"},
                                            {"IMODE", "MO-01 MO-03"},
                                            {"IC", "SZ-01"},
                                            {"IDLVL", "DL-01 DL-02 DL-03 RD-06"},
                                            {"SDLVL", "DL-01 DL-02 DL-03 RD-06"},
                                            {"IALVL", "DL-02 DL-03 DL-04"},
                                            {"SALVL", "DL-02 DL-03 RD-06"},
                                            {"SLOC", "RD-06 DL-04"},
                                            {"ILOC", "DL-04"},
                                            {"SBND1", "GR-01"},
                                            {"SBND2", "GR-01"},
                                            {"FDT", "FH-08 FH-09"},
                                            {"IDATIM", "FH-08 FH-09"},
                                            {"TXTDT", "FH-08 FH-09"},
                                            {"ICORDS", "GE-02"},
                                            {"TXTALVL", "DL-05"},
                                            {"IXSOFL", "DE-03"},
                                            {"DESITEM", "DE-02 DE-03"},
                                            {"DESOFLW", "DE-02 DE-03 DE-06"},
                                            {"DESID", "DE-09"},
                                            {"DESTAG", "DE-09 DE-03 DE-06"},
                                            {"DESVER", "DE-01"},
                                            {"FL", "FH-03 FH-04"},
                                            {"STYPE", "SY-01 SY-02 SY-03 RD-07 SY-05"},
                                            {"SCOLOR", "SY-01 SY-04"},
                                            {"IMAG", "DL-06"},
                                            {"IGEOLO", "GE-02"},
                                            {"TXTFMT", "TX-01"},
                                            {"FSCLAS", "SEC-03"},
                                            {"NELUT", "SY-01"},
                                            {"NLIPS", "SY-01"},
                                            {"NPIXPL", "SY-01"},
                                            {"NWDTH", "SY-01"},
                                            {"SNUM", "SY-01"},
                                            {"SROT", "SY-01"}};
    for (const Consequence& one : TABLE) {
        if (aField == one.field) {
            return one.rules;
        }
    }
    return "";
}

bool IsIn(const std::string& aWord, const std::string& aWords)
{
    std::istringstream words(aWords);
    for (std::string word; words >> word;) {
        if (word == aWord) {
            return true;
        }
    }
    return false;
}

/// Security fields other than the classification need a system, and some of them more.
bool IsSecurity(const Finding& aFinding)
{
    return aFinding.rule.starts_with("SEC-");
}

struct Count
{
    std::size_t found = 0;
    std::size_t refused = 0;
    std::size_t harmless = 0;
};

/// Changes a field and looks at what is found.
void Try(Format aFormat, std::size_t aHeader, const std::string& aField, const std::string& aValue, bool aMustBeFound,
         Count& aCount)
{
    Sample sample = Make(aFormat);
    const std::string& segment = sample.headers[aHeader].first;
    sample.headers[aHeader].second->Damage(aField, aValue);
    std::set<std::string> rules;
    bool named = false;
    try {
        const Validated validated(sample.file.Bytes());
        for (const Finding& finding : validated.Findings()) {
            const bool isOwn = finding.segment == segment && finding.field == aField;
            named = named || isOwn;
            EXPECT_TRUE(isOwn || IsSecurity(finding) || IsIn(finding.rule, FollowsFrom(aField)))
                << segment << ' ' << aField << " = " << aValue << ": " << finding.Line();
            EXPECT_FALSE(finding.rule.empty()) << finding.Line();
        }
        ++(named ? aCount.found : aCount.harmless);
        EXPECT_TRUE(named || !aMustBeFound) << segment << ' ' << aField << " = " << aValue << '\n' << validated.Lines();
    } catch (const CSMException&) {
        ++aCount.refused;  // the field decides how the rest is read; that refusal has tests of its own
    }
}

class MutationTest : public testing::TestWithParam<Format>
{
};

TEST_P(MutationTest, ChangesAreFoundWhereTheyAreAndNowhereElse)
{
    ASSERT_EQ(std::set<std::string>{}, Validated(Make(GetParam()).file.Bytes()).Rules())
        << Validated(Make(GetParam()).file.Bytes()).Lines();
    Count count;
    const Sample sample = Make(GetParam());
    for (std::size_t i = 0; i != sample.headers.size(); ++i) {
        const HeaderFields& header = *sample.headers[i].second;
        for (const std::string& name : header.Names()) {
            const std::string good = header.Get(name);
            const bool isBinary = name == "FBKGC" || name == "IXSHD";
            if (isBinary || name == "ONAME") {
                continue;  // every byte may stand there
            }
            // A control byte stands in no field; a blank and a stroke in some.
            Try(GetParam(), i, name, '\x01' + good.substr(1), true, count);
            Try(GetParam(), i, name, std::string(good.size(), '!'), false, count);
            Try(GetParam(), i, name, std::string(good.size(), ' '), false, count);
        }
    }
    EXPECT_GE(count.found, 200U) << count.refused << " refused, " << count.harmless << " allowed";
}

INSTANTIATE_TEST_SUITE_P(Versions, MutationTest, testing::Values(Format::Nitf20, Format::Nitf21),
                         [](const auto& aInfo) { return aInfo.param == Format::Nitf20 ? "Nitf20" : "Nitf21"; });

}  // namespace
}  // namespace ORMO::SensorModel::CSM
