// A companion ISD library reduced to its exports. COMPANION_MARKING is the marking that it answers for every level,
// COMPANION_INCOMPLETE leaves one export out.

#define ORMO_EXPORT extern "C" __attribute__((visibility("default")))

#if !defined(COMPANION_MARKING)
#define COMPANION_MARKING "INCOMPLETE"
#endif

ORMO_EXPORT void GetAcceptableImageCategories() {}
ORMO_EXPORT void CreateISD() {}
ORMO_EXPORT void CreateIsdNITF() {}
ORMO_EXPORT void DelCString() {}
ORMO_EXPORT void DeleteCStringArray() {}
ORMO_EXPORT void DelISD() {}
ORMO_EXPORT void DelSupportedSpecialNitfTREs() {}
ORMO_EXPORT void GetAllSupportedTreCERETags() {}
ORMO_EXPORT void GetSupportedSpecialNitfTREs() {}
ORMO_EXPORT void ISDType() {}
ORMO_EXPORT void IsSupportedISDFile() {}
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
