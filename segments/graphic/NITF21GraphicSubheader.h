#pragma once

#include "../NITFDrawnSegment.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The subheader of one graphic segment of NITF 2.1 (MIL-STD-2500C, table A-5) or NSIF 1.0, and its metafile.
class ORMO_CSM_API NITF21GraphicSubheader : public NITFDrawnSegment
{
public:
    /// Levels, location and extent of a graphic as its fields say, in pixels.
    struct CCSInformation
    {
        long displayLevel = 0;
        long attachmentLevel = 0;
        long row = 0;     ///< SLOC, relative to what the graphic is attached to
        long column = 0;  ///< as above
        bool isColor = false;
        long upperLeftRow = 0;      ///< SBND1
        long upperLeftColumn = 0;   ///< as above
        long lowerRightRow = 0;     ///< SBND2
        long lowerRightColumn = 0;  ///< as above
    };

    /// Made by the reader of files only.
    explicit NITF21GraphicSubheader(Input& aInput);
    NITF21GraphicSubheader(const NITF21GraphicSubheader& aOther) = default;
    using NITFDrawnSegment::operator=;
    using NITFDrawnSegment::operator==;
    using NITFDrawnSegment::operator!=;
    NITF21GraphicSubheader& operator=(const NITF21GraphicSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF21GraphicSubheader& aOther) const { return NITFDrawnSegment::operator==(aOther); }
    bool operator!=(const NITF21GraphicSubheader& aOther) const { return !(*this == aOther); }

    /// False at the first value that is not within the standard's limits; those before it are set.
    bool GetCCSInformation(CCSInformation& aInformation) const;
    /// SXSOFL: the number, from 1, of the DES that carries what did not fit into SXSHD; 0 for none.
    unsigned long GetOverflowGraphicExtendedSubheaderData() const noexcept;
    bool GetAllGraphicSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
