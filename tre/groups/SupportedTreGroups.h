#pragma once

#include "SupportedTreGroup.h"

namespace ORMO::SensorModel::CSM {

/// ASDE (Airborne Support Data Extension).
class ORMO_CSM_API SupportedTreASDE : public SupportedTreGroup
{
public:
    static const SupportedTreASDE& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreASDE();
};

/// Commercial SDE (Support Data Extensions for Commercial Imagery Products).
class ORMO_CSM_API SupportedTreCommercialSDE : public SupportedTreGroup
{
public:
    static const SupportedTreCommercialSDE& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreCommercialSDE();
};

/// DPPDB (Digital Point Positioning Database).
class ORMO_CSM_API SupportedTreDPPDB : public SupportedTreGroup
{
public:
    static const SupportedTreDPPDB& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreDPPDB();
};

/// ESD (Exploitation Support Data).
class ORMO_CSM_API SupportedTreESD : public SupportedTreGroup
{
public:
    static const SupportedTreESD& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreESD();
};

/// GeoSDE (Geospatial Support Data Extension).
class ORMO_CSM_API SupportedTreGeoSDE : public SupportedTreGroup
{
public:
    static const SupportedTreGeoSDE& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreGeoSDE();
};

/// MISC (miscellaneous).
class ORMO_CSM_API SupportedTreMISC : public SupportedTreGroup
{
public:
    static const SupportedTreMISC& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreMISC();
};

/// PIAE (Profile for Imagery Archives Extensions).
class ORMO_CSM_API SupportedTrePIAE : public SupportedTreGroup
{
public:
    static const SupportedTrePIAE& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTrePIAE();
};

/// ResearchSDE (Research Tagged Record Extensions).
class ORMO_CSM_API SupportedTreResearchSDE : public SupportedTreGroup
{
public:
    static const SupportedTreResearchSDE& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreResearchSDE();
};

/// RPF (Raster Product Format).
class ORMO_CSM_API SupportedTreRPF : public SupportedTreGroup
{
public:
    static const SupportedTreRPF& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreRPF();
};

/// RSM (Replacement Sensor Model).
class ORMO_CSM_API SupportedTreRSM : public SupportedTreGroup
{
public:
    static const SupportedTreRSM& Instance();
    /// The tags of the group.
    static const std::vector<const char*>& GetSupportedTREs();

private:
    SupportedTreRSM();
};

}  // namespace ORMO::SensorModel::CSM
