#pragma once

#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Names the kinds of image support data; never instantiated.
class ORMO_CSM_API SupportedISD
{
public:
    /// Has a fixed type, so that a companion library's number may be cast to it without harm.
    enum Type : int
    {
        ISD_TYPE_UNKNOWN = -1,
        ISD_TYPE_NITF = 0,  ///< NSIF included.
        ISD_TYPE_OSDE = 1,
        ISD_TYPE_TFRD = 2  ///< Made by companion libraries only.
    };

    /// The format names, as ImageSupportData keeps them.
    class RasterFormat
    {
    public:
        static constexpr const char* NITF = "NITF";
        static constexpr const char* OSDE = "OSDE";
        static constexpr const char* TFRD = "TFRD";

    private:
        RasterFormat();
    };

    /// The type of a format name, whatever its letter case and the white space around it. Only "NITF" and "TFRD" can
    /// be asked for by name; "OSDE" and anything else, null included, gives ISD_TYPE_UNKNOWN.
    static Type GetSupportedISDType(const char* aName);

    /// Whether this library makes ISDs of the type by itself: true for NITF alone.
    static bool IsSupportedISDType(Type aType) noexcept;

private:
    SupportedISD();
};

}  // namespace ORMO::SensorModel::CSM
