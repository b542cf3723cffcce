// A companion ISD library as its authors write one: against the public headers, linked with the library, with an ISD
// and a TRE class of its own. COMPANION_NAME names it, COMPANION_LACKS_DELISD leaves an export out, COMPANION_THROWS
// makes every export throw a number.
//
// It takes files that begin with "TFRD"; NITF files it identifies and makes nothing of.

#include "isd/ImageSupportData.h"
#include "isd/SpecialOrmoISDsDLL.h"
#include "raster/GDALNITFFileReader.h"
#include "tre/SupportedTRE.h"

#include <cstring>
#include <fstream>
#include <initializer_list>
#include <string>
#include <vector>

using namespace ORMO::SensorModel::CSM;

namespace {

int g_isds = 0;
int g_tres = 0;
int g_texts = 0;

void MayThrow()
{
#if defined(COMPANION_THROWS)
    throw 7;
#endif
}

class CompanionISD : public ImageSupportData
{
public:
    explicit CompanionISD(const char* aPath) : ImageSupportData(aPath, SupportedISD::RasterFormat::TFRD, "1")
    {
        ++g_isds;
    }
    ~CompanionISD() override { --g_isds; }
    const char* GetFileTypeAndVersion() const override { return COMPANION_NAME " TFRD"; }

protected:
    void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const override
    {
        aMarkings.emplace_back(COMPANION_NAME);
    }
};

constexpr const char* SPECIAL_TAG = "XSPCLA";

class SpecialTre : public TRE
{
public:
    SpecialTre(const char* aData, std::size_t aLength) : TRE(SPECIAL_TAG, aData, aLength, TRE_TYPE_CONTROLLED_EXTENSION)
    {
        ++g_tres;
    }
    SpecialTre(const SpecialTre& aOther) : TRE(aOther) { ++g_tres; }
    using TRE::operator=;
    ~SpecialTre() override { --g_tres; }
    const char* GetTREName() const override { return COMPANION_NAME " special"; }
};

/// Makes TREs of one tag: data that begin with "bad" are refused with a text, those with "throw" with a number.
class Provider : public SupportedTRE
{
public:
    bool AbleToCreateTRE(const char* aTag, SupportedTreFactory::Enum*) const override
    {
        return std::strcmp(aTag, SPECIAL_TAG) == 0;
    }
    bool CloneTRE(const TRE& aSource, TRE** aCopy) const override
    {
        *aCopy = new SpecialTre(dynamic_cast<const SpecialTre&>(aSource));
        return true;
    }
    bool CreateTRE(const char*, const char* aData, TRE** aTre, char** aErrors, std::size_t aLength, bool,
                   Util::CSMCnst::ByteOrder, SupportedTreFactory::Enum) const override
    {
        const std::string data(aData, aLength);
        if (data.compare(0, 3, "bad") == 0) {
            ++g_texts;
            *aErrors = new char[20]();
            std::strcpy(*aErrors, "refused by provider");
            return false;
        }
        *aTre = new SpecialTre(aData, aLength);
        if (data.compare(0, 5, "throw") == 0) {
            throw 7;
        }
        return true;
    }
    bool Destroy(TRE** aTre) const override
    {
        delete *aTre;
        *aTre = nullptr;
        return true;
    }
    const std::vector<const char*>& GetAllSupportedTREs() const override { return m_tags; }
    TRE::Type GetTREType(const char*) const override { return TRE::TRE_TYPE_CONTROLLED_EXTENSION; }
    const TypeMap& GetTRETypeMap() const override { return m_types; }
    void GetTRETypes(const char**& aTags, const TRE::Type*& aTypes, std::size_t& aCount) const override
    {
        aTags = nullptr;
        aTypes = nullptr;
        aCount = 0;
    }

private:
    std::vector<const char*> m_tags{SPECIAL_TAG};
    TypeMap m_types{{SPECIAL_TAG, TRE::TRE_TYPE_CONTROLLED_EXTENSION}};
};

char** NewTexts(std::initializer_list<const char*> aTexts)
{
    auto** const texts = new char*[aTexts.size()];
    std::size_t next = 0;
    for (const char* const text : aTexts) {
        texts[next] = new char[std::strlen(text) + 1];
        std::strcpy(texts[next++], text);
    }
    return texts;
}

}  // namespace

#define ORMO_EXPORT extern "C" __attribute__((visibility("default")))

// The compiler holds every export against its signature.
ORMO_EXPORT SpecialOrmoISDsDLL::GetAcceptableImageCategoriesFunction GetAcceptableImageCategories;
ORMO_EXPORT SpecialOrmoISDsDLL::CreateISDFunction CreateISD;
ORMO_EXPORT SpecialOrmoISDsDLL::CreateIsdNITFFunction CreateIsdNITF;
ORMO_EXPORT SpecialOrmoISDsDLL::DelCStringFunction DelCString;
ORMO_EXPORT SpecialOrmoISDsDLL::DeleteCStringArrayFunction DeleteCStringArray;
ORMO_EXPORT SpecialOrmoISDsDLL::DelSupportedSpecialNitfTREsFunction DelSupportedSpecialNitfTREs;
ORMO_EXPORT SpecialOrmoISDsDLL::GetAllSupportedTreCERETagsFunction GetAllSupportedTreCERETags;
ORMO_EXPORT SpecialOrmoISDsDLL::GetDefaultClassificationLevelStringFunction GetDefaultClassificationLevelString;
ORMO_EXPORT SpecialOrmoISDsDLL::GetSupportedSpecialNitfTREsFunction GetSupportedSpecialNitfTREs;
ORMO_EXPORT SpecialOrmoISDsDLL::ISDTypeFunction ISDType;
ORMO_EXPORT SpecialOrmoISDsDLL::IsSupportedISDFileFunction IsSupportedISDFile;
ORMO_EXPORT SpecialOrmoISDsDLL::IsValidSecurityClassificationMarkingFunction IsValidSecurityClassificationMarking;

void GetAcceptableImageCategories(char*** aCategories, std::size_t* aCount)
{
    *aCategories = NewTexts({"VIS", "SAR"});
    *aCount = 2;
}

void CreateISD(bool, bool, const char* aPath, ImageSupportData** aOut, int, SupportedISD::Type aType)
{
    if (aType == SupportedISD::ISD_TYPE_TFRD) {
        *aOut = new CompanionISD(aPath);
    }
    MayThrow();
}

void CreateIsdNITF(const char*, ImageSupportDataNITF**, bool, bool, int, int)
{
    MayThrow();
}

void DelCString(char** aText)
{
    delete[] * aText;
    *aText = nullptr;
    --g_texts;
}

void DeleteCStringArray(char*** aTexts, std::size_t aCount)
{
    for (std::size_t i = 0; i != aCount; ++i) {
        delete[](*aTexts)[i];
    }
    delete[] * aTexts;
    *aTexts = nullptr;
}

#if !defined(COMPANION_LACKS_DELISD)
ORMO_EXPORT SpecialOrmoISDsDLL::DelISDFunction DelISD;
void DelISD(ImageSupportData** aIsd)
{
    if (dynamic_cast<CompanionISD*>(*aIsd) != nullptr) {
        delete *aIsd;
        *aIsd = nullptr;
    }
}
#endif

void DelSupportedSpecialNitfTREs(const SupportedTRE** aProvider)
{
    delete *aProvider;
    *aProvider = nullptr;
}

void GetAllSupportedTreCERETags(char*** aControlled, std::size_t* aControlledCount, char*** aRegistered,
                                std::size_t* aRegisteredCount)
{
    *aControlled = NewTexts({SPECIAL_TAG});
    *aControlledCount = 1;
    *aRegistered = nullptr;
    *aRegisteredCount = 0;
}

const char* GetDefaultClassificationLevelString(Util::CSMCnst::ClassType)
{
    MayThrow();
    return COMPANION_NAME " MARKING";
}

const SupportedTRE* GetSupportedSpecialNitfTREs()
{
    MayThrow();
    static const Provider provider;
    return &provider;
}

void ISDType(const char* aPath, SupportedISD::Type* aType, int* aVersion)
{
    std::ifstream file(aPath);
    std::string mark(4, ' ');
    file.read(mark.data(), 4);
    int version = -1;
    const bool isNitf = mark != "TFRD" && GDALNITFFileReader::IsNITFFile(aPath, version);
    *aType = mark == "TFRD" ? SupportedISD::ISD_TYPE_TFRD
             : isNitf       ? SupportedISD::ISD_TYPE_NITF
                            : SupportedISD::ISD_TYPE_UNKNOWN;
    *aVersion = mark == "TFRD" ? 1 : version;
}

bool IsSupportedISDFile(const char* aPath, const char** aFormatName)
{
    MayThrow();
    SupportedISD::Type type = SupportedISD::ISD_TYPE_UNKNOWN;
    int version = 0;
    ISDType(aPath, &type, &version);
    *aFormatName = type == SupportedISD::ISD_TYPE_TFRD ? SupportedISD::RasterFormat::TFRD : nullptr;
    return *aFormatName != nullptr;
}

bool IsValidSecurityClassificationMarking(const char* aMarking)
{
    return std::strcmp(aMarking, COMPANION_NAME) == 0;
}

/// Objects of the library that nobody has released: ISDs, TREs, texts.
ORMO_EXPORT void CountAlive(int* aIsds, int* aTres, int* aTexts)
{
    *aIsds = g_isds;
    *aTres = g_tres;
    *aTexts = g_texts;
}
