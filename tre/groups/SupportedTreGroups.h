#pragma once

#include "SupportedTreGroup.h"

namespace ORMO::SensorModel::CSM {

// The groups differ only in their code, description and tags, so one pattern declares them all.
#define ORMO_TRE_GROUP(aClass)                                     \
    class ORMO_CSM_API aClass : public SupportedTreGroup           \
    {                                                              \
    public:                                                        \
        static const aClass& Instance();                           \
        /** The tags of the group. */                              \
        static const std::vector<const char*>& GetSupportedTREs(); \
                                                                   \
    private:                                                       \
        aClass();                                                  \
    }

/// ASDE (Airborne Support Data Extension).
ORMO_TRE_GROUP(SupportedTreASDE);
/// Commercial SDE (Support Data Extensions for Commercial Imagery Products).
ORMO_TRE_GROUP(SupportedTreCommercialSDE);
/// DPPDB (Digital Point Positioning Database).
ORMO_TRE_GROUP(SupportedTreDPPDB);
/// ESD (Exploitation Support Data).
ORMO_TRE_GROUP(SupportedTreESD);
/// GeoSDE (Geospatial Support Data Extension).
ORMO_TRE_GROUP(SupportedTreGeoSDE);
/// MISC (miscellaneous).
ORMO_TRE_GROUP(SupportedTreMISC);
/// PIAE (Profile for Imagery Archives Extensions).
ORMO_TRE_GROUP(SupportedTrePIAE);
/// ResearchSDE (Research Tagged Record Extensions).
ORMO_TRE_GROUP(SupportedTreResearchSDE);
/// RPF (Raster Product Format).
ORMO_TRE_GROUP(SupportedTreRPF);
/// RSM (Replacement Sensor Model).
ORMO_TRE_GROUP(SupportedTreRSM);
/// Public (publicly documented extensions).
ORMO_TRE_GROUP(SupportedTrePublic);

#undef ORMO_TRE_GROUP

}  // namespace ORMO::SensorModel::CSM
