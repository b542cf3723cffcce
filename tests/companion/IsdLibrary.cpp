// A companion ISD library reduced to its exports. COMPANION_MARKING is the marking that it answers for every level,
// COMPANION_INCOMPLETE leaves one export out.
//
// It reads no file: the end of a path tells the format, "throw" in a path makes the library fail half way, and
// "nothing" makes it give up. Its ISDs are never looked into, so any address serves as one.

#include <cstring>

#define ORMO_EXPORT extern "C" __attribute__((visibility("default")))

#if !defined(COMPANION_MARKING)
#define COMPANION_MARKING "INCOMPLETE"
#endif

namespace {

char g_isd;
int g_alive = 0;

bool Has(const char* aPath, const char* aPart)
{
    return std::strstr(aPath, aPart) != nullptr;
}

void Make(const char* aPath, void** aOut)
{
    if (Has(aPath, "nothing")) {
        return;
    }
    *aOut = &g_isd;
    ++g_alive;
    if (Has(aPath, "throw")) {
        throw 1;
    }
}

}  // namespace

/// ISDs made and not yet released.
ORMO_EXPORT int Alive()
{
    return g_alive;
}

ORMO_EXPORT void CreateISD(bool aAllSegments, bool aFlag2, const char* aPath, void** aOut, int aVersion, int aType)
{
    // Only a caller that passes on what it was given gets an ISD.
    if (aAllSegments && !aFlag2 && (aType == 0 ? aVersion == 21 : aType == 2 && aVersion == 1)) {
        Make(aPath, aOut);
    }
}

ORMO_EXPORT void CreateIsdNITF(const char* aPath, void** aOut, bool aImageSegmentsOnly, bool aFlag2, int aImageSegment,
                               int aVersion)
{
    if (aImageSegmentsOnly && !aFlag2 && aImageSegment == 3 && aVersion == 20) {
        Make(aPath, aOut);
    }
}

ORMO_EXPORT void DelISD(void** aIsd)
{
    if (*aIsd == &g_isd) {
        *aIsd = nullptr;
        --g_alive;
    }
}

ORMO_EXPORT void ISDType(const char* aPath, int* aType, int* aVersion)
{
    if (Has(aPath, "unidentified")) {
        throw 1;
    }
    *aType = Has(aPath, ".nitf") ? 0 : Has(aPath, ".osde") ? 1 : Has(aPath, ".tfrd") ? 2 : -1;
    *aVersion = *aType == 0 ? 21 : *aType == 1 ? 11 : *aType == 2 ? 1 : -1;
}

ORMO_EXPORT bool IsSupportedISDFile(const char* aPath, const char** aFormatName)
{
    if (Has(aPath, "throw")) {
        throw 1;
    }
    *aFormatName = "TFRD";
    return Has(aPath, ".tfrd");
}

ORMO_EXPORT void GetAcceptableImageCategories() {}
ORMO_EXPORT void DelCString() {}
ORMO_EXPORT void DeleteCStringArray() {}
ORMO_EXPORT void DelSupportedSpecialNitfTREs() {}
ORMO_EXPORT void GetAllSupportedTreCERETags() {}
ORMO_EXPORT const void* GetSupportedSpecialNitfTREs()
{
    return nullptr;
}
#if !defined(COMPANION_INCOMPLETE)
ORMO_EXPORT void IsValidSecurityClassificationMarking() {}
#endif

/// No marking for the unclassified level, so that a loader that makes one up is found out; level 3 fails.
ORMO_EXPORT const char* GetDefaultClassificationLevelString(int aLevel)
{
    if (aLevel == 3) {
        throw aLevel;
    }
    return aLevel == 2 ? nullptr : COMPANION_MARKING;
}
