#pragma once

#include "tests/support/NitfBuilder.h"

#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// How to make a file that breaks one rule, and the same file without the fault.
struct RuleCase
{
    const char* rule;
    std::string (*make)(bool aBroken);
    /// Rules that the same change breaks too, or that a good file of the kind already breaks; blanks between them.
    std::string_view also = {};
    std::string_view always = {};
};

std::vector<RuleCase> FileCases();
std::vector<RuleCase> SecurityCases();
std::vector<RuleCase> ImageCases();
std::vector<RuleCase> CompressionCases();
std::vector<RuleCase> BandCases();
std::vector<RuleCase> MaskCases();
std::vector<RuleCase> DrawingCases();
std::vector<RuleCase> TreCases();

/// A NITF 2.1 file with one image of two rows and three columns, changed by a function of the broken case.
template<typename Change>
std::string WithImage(bool aBroken, Change aChange, Format aFormat = Format::Nitf21)
{
    NitfBuilder file(aFormat);
    HeaderFields& image = file.AddImage();
    aChange(file, image, aBroken);
    return file.Bytes();
}

/// An element of a metafile in the binary encoding.
std::string CgmElement(unsigned aClass, unsigned aId, std::string_view aParameters = {});
/// A whole metafile of the profile around the body.
std::string Cgm(std::string_view aBody = {}, std::string_view aDescription = "NITF/CGM-APP-2.0");
std::string Word(unsigned aNumber);
std::string Long(unsigned aNumber);

}  // namespace ORMO::SensorModel::CSM::Tests
