#include "tests/gdal/internal/GdalTre.h"

#include <cstdlib>
#include <memory>

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_minixml.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

constexpr const char* FILE_NAME = "/vsimem/tre.ntf";

void CPL_STDCALL Collect(CPLErr aClass, CPLErrorNum, const char* aText)
{
    if (aClass != CE_Debug) {
        *static_cast<std::string*>(CPLGetErrorHandlerUserData()) += std::string(aText) + '\n';
    }
}

/// The value of a creation option, as the NITF driver takes bytes: NUL, quote and backslash behind a backslash.
std::string Escaped(std::string_view aData)
{
    std::string text;
    for (const char byte : aData) {
        if (byte == '\0') {
            text += "\\0";
        } else {
            if (byte == '"' || byte == '\\') {
                text += '\\';
            }
            text += byte;
        }
    }
    return text;
}

void Flatten(const CPLXMLNode* aParent, const std::string& aTurns, NamedValues& aOut)
{
    for (const CPLXMLNode* node = aParent->psChild; node != nullptr; node = node->psNext) {
        if (node->eType != CXT_Element) {
            continue;
        }
        const std::string kind(node->pszValue);
        if (kind == "field") {
            aOut.emplace_back(CPLGetXMLValue(node, "name", "") + aTurns, CPLGetXMLValue(node, "value", ""));
        } else if (kind == "repeated") {
            Flatten(node, aTurns, aOut);
        } else if (kind == "group") {
            const int turn = std::atoi(CPLGetXMLValue(node, "index", "-2")) + 1;
            Flatten(node, aTurns + "_" + std::to_string(turn), aOut);
        } else {
            aOut.emplace_back("<" + kind + ">", "");
        }
    }
}

bool Write(const std::string& aOption)
{
    GDALDriverManager& drivers = *GetGDALDriverManager();
    const std::unique_ptr<GDALDataset> pixel(drivers.GetDriverByName("MEM")->Create("", 1, 1, 1, GDT_Byte, nullptr));
    CPLStringList options;
    options.AddString(aOption.c_str());
    const std::unique_ptr<GDALDataset> written(
        drivers.GetDriverByName("NITF")->CreateCopy(FILE_NAME, pixel.get(), FALSE, options.List(), nullptr, nullptr));
    return written != nullptr;
}

}  // namespace

std::vector<std::string> TagsThatGdalDescribes()
{
    GDALAllRegister();
    std::vector<std::string> tags;
    const char* const path = CPLFindFile("gdal", "nitf_spec.xml");
    CPLXMLNode* const root = path == nullptr ? nullptr : CPLParseXMLFile(path);
    const CPLXMLNode* const list = root == nullptr ? nullptr : CPLGetXMLNode(root, "=root.tres");
    for (const CPLXMLNode* node = list == nullptr ? nullptr : list->psChild; node != nullptr; node = node->psNext) {
        if (node->eType == CXT_Element && std::string_view(node->pszValue) == "tre") {
            tags.emplace_back(CPLGetXMLValue(node, "name", ""));
        }
    }
    CPLDestroyXMLNode(root);
    return tags;
}

GdalReading ReadThroughGdal(std::string_view aTag, std::string_view aData)
{
    GdalReading reading;
    CPLPushErrorHandlerEx(Collect, &reading.errors);
    if (Write("TRE=" + std::string(aTag) + "=" + Escaped(aData))) {
        const std::unique_ptr<GDALDataset> image(GDALDataset::Open(FILE_NAME, GDAL_OF_RASTER));
        char** const texts = image == nullptr ? nullptr : image->GetMetadata("xml:TRE");
        CPLXMLNode* const root = texts == nullptr ? nullptr : CPLParseXMLString(texts[0]);
        const CPLXMLNode* const tres = root == nullptr ? nullptr : CPLGetXMLNode(root, "=tres");
        for (const CPLXMLNode* node = tres == nullptr ? nullptr : tres->psChild; node != nullptr; node = node->psNext) {
            if (node->eType == CXT_Element && CPLGetXMLValue(node, "name", "") == aTag) {
                reading.found = true;
                Flatten(node, "", reading.fields);
            }
        }
        CPLDestroyXMLNode(root);
    }
    CPLPopErrorHandler();
    VSIUnlink(FILE_NAME);
    return reading;
}

}  // namespace ORMO::SensorModel::CSM::Tests
