#include "segments/des/detail/XmlProduct.h"

#ifdef ORMO_XML_PRODUCTS

#include "foundation/detail/Ascii.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>
#include <string>

#include <expat.h>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t MOST_DEPTH = 64;
constexpr std::size_t MOST_TEXT = 256;  // of one value
constexpr char SEPARATOR = '\n';        // between namespace and name; no namespace can hold it

/// An element that is wanted: its path below the root, and where its text goes.
struct Wanted
{
    std::string_view path;
    std::string DesXmlProduct::*member;
};

constexpr Wanted WANTED[] = {
    {"/CollectionInfo/CollectorName", &DesXmlProduct::collector},
    {"/CollectionInfo/RadarMode/ModeType", &DesXmlProduct::mode},
    {"/GeoData/SCP/LLH/Lat", &DesXmlProduct::centre},
    {"/GeoData/SCP/LLH/Lon", &DesXmlProduct::centre},
    {"/GeoData/SCP/LLH/HAE", &DesXmlProduct::centre},
    {"/Measurement/PlaneProjection/ReferencePoint/ECEF/X", &DesXmlProduct::reference},
    {"/Measurement/PlaneProjection/ReferencePoint/ECEF/Y", &DesXmlProduct::reference},
    {"/Measurement/PlaneProjection/ReferencePoint/ECEF/Z", &DesXmlProduct::reference},
    {"/ExploitationFeatures/Collection/Information/SensorName", &DesXmlProduct::collector},
    {"/ExploitationFeatures/Collection/Information/RadarMode/ModeType", &DesXmlProduct::mode},
};

/// The state of one reading.
struct Reading
{
    XML_Parser parser;
    DesXmlProduct& product;
    std::string path;  // below the root
    std::string text;
    std::size_t depth = 0;
    bool recognised = false;
    bool outOfMemory = false;
};

void Stop(Reading& aReading)
{
    XML_StopParser(aReading.parser, XML_FALSE);
}

/// "urn:SICD:1.2.1" is SICD in version 1.2.1.
bool IsProductNamespace(std::string_view aNamespace, std::string_view aRoot, DesXmlProduct& aProduct)
{
    for (const std::string_view standard : {"SICD", "SIDD"}) {
        const std::string prefix = "urn:" + std::string(standard) + ':';
        if (aRoot == standard && aNamespace.starts_with(prefix)) {
            aProduct.standard = standard;
            aProduct.version = aNamespace.substr(prefix.size(), MOST_TEXT);
            return true;
        }
    }
    return false;
}

void Begin(Reading& aReading, std::string_view aName)
{
    const auto mark = aName.find(SEPARATOR);
    const std::string_view local = mark == std::string_view::npos ? aName : aName.substr(mark + 1);
    if (++aReading.depth > MOST_DEPTH) {
        Stop(aReading);
        return;
    }
    aReading.text.clear();
    if (aReading.depth != 1) {
        aReading.path.append("/").append(local);
        return;
    }
    aReading.recognised =
        mark != std::string_view::npos && IsProductNamespace(aName.substr(0, mark), local, aReading.product);
    if (!aReading.recognised) {
        Stop(aReading);
    }
}

void End(Reading& aReading)
{
    const auto* const wanted = std::find_if(std::begin(WANTED), std::end(WANTED), [&aReading](const Wanted& aWanted) {
        return aWanted.path == aReading.path;
    });
    const std::string_view text = Trimmed(aReading.text);
    if (wanted != std::end(WANTED) && !text.empty()) {
        // The parts of a point follow one another; any other value is the first that the document states.
        std::string& value = aReading.product.*wanted->member;
        if (wanted->member == &DesXmlProduct::centre || wanted->member == &DesXmlProduct::reference) {
            value.append(value.empty() ? "" : ", ").append(text);
        } else if (value.empty()) {
            value = text;
        }
    }
    aReading.text.clear();
    aReading.path.resize(std::min(aReading.path.size(), aReading.path.rfind('/')));
    --aReading.depth;
}

// The parser is a C library: nothing may be thrown through it.
template<typename Action>
void Guarded(void* aReading, Action aAction) noexcept
{
    auto& reading = *static_cast<Reading*>(aReading);
    try {
        aAction(reading);
    } catch (const std::bad_alloc&) {
        reading.outOfMemory = true;
        Stop(reading);
    }
}

void XMLCALL OnStart(void* aReading, const XML_Char* aName, const XML_Char**)
{
    Guarded(aReading, [aName](Reading& aState) { Begin(aState, aName); });
}

void XMLCALL OnEnd(void* aReading, const XML_Char*)
{
    Guarded(aReading, [](Reading& aState) { End(aState); });
}

void XMLCALL OnText(void* aReading, const XML_Char* aText, int aLength)
{
    Guarded(aReading, [aText, aLength](Reading& aState) {
        const std::size_t room = MOST_TEXT - std::min(MOST_TEXT, aState.text.size());
        aState.text.append(aText, std::min(room, static_cast<std::size_t>(aLength)));
    });
}

void XMLCALL OnDocumentType(void* aReading, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    Stop(*static_cast<Reading*>(aReading));
}

struct ParserDeleter
{
    void operator()(XML_Parser aParser) const noexcept { XML_ParserFree(aParser); }
};

}  // namespace

bool RecogniseXmlProduct(std::string_view aDocument, DesXmlProduct& aProduct)
{
    const std::unique_ptr<XML_ParserStruct, ParserDeleter> parser(XML_ParserCreateNS(nullptr, SEPARATOR));
    if (parser == nullptr) {
        throw std::bad_alloc();
    }
    Reading reading{parser.get(), aProduct, {}, {}};
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), OnStart, OnEnd);
    XML_SetCharacterDataHandler(parser.get(), OnText);
    XML_SetStartDoctypeDeclHandler(parser.get(), OnDocumentType);
    const std::string_view front = aDocument.substr(0, MOST_XML_READ);
    // How it ends does not matter: what was found before stands.
    XML_Parse(parser.get(), front.data(), static_cast<int>(front.size()), XML_TRUE);
    if (reading.outOfMemory) {
        throw std::bad_alloc();
    }
    return reading.recognised;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#else

namespace ORMO::SensorModel::CSM::Detail {

bool RecogniseXmlProduct(std::string_view, DesXmlProduct&)
{
    return false;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#endif
