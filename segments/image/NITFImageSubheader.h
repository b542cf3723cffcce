#pragma once

#include "../NITFDataSegment.h"
#include "NITFImagePixelReader.h"
#include "NITFImgBandInfo.h"
#include "NITFImgExtent.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class NITFImageDataMaskSubheader;
class TreRPC00;

/// The subheader of one image segment with all that follows from it: bands and look-up tables, layout of the pixels and
/// the pixels themselves, footprint, location in the common coordinate system and rational polynomial coefficients.
/// NITF20ImageSubheader reads MIL-STD-2500A, NITF21ImageSubheader MIL-STD-2500C (table A-3), which also serves
/// NSIF 1.0.
///
/// What is derived from fields and TREs is worked out when it is first asked for; nothing of it slows opening a file.
/// What is handed out by pointer belongs to the subheader and stays until a TRE is added. Bands, rows and columns count
/// from 0. Queries answer false, null or what they say for a value that is not there, with their outputs left as they
/// were; none raises.
class ORMO_CSM_API NITFImageSubheader : public NITFDataSegment, public NITFImagePixelReader
{
public:
    ~NITFImageSubheader() override;

    // ---- The subheader itself

    /// Position among the image segments of the file, from 0.
    int GetImageSegmentNumber() const noexcept { return GetSegmentNumber(); }
    /// The raw bytes of the subheader.
    const char* GetImageSubheader(long& aLength) const noexcept;
    /// The stored text of a field; null when it is not there.
    const char* GetImageSegmentField(const char* aTag) const noexcept;
    const char* GetImageSegmentSecurityClassification() const noexcept { return GetImageSegmentField("ISCLAS"); }
    /// UDOFL: the number, from 1, of the DES that carries what did not fit into UDID; 0 for none.
    unsigned long GetOverflowUserDefinedImageData() const noexcept;
    /// The same for IXSHD.
    unsigned long GetOverflowImageExtendedSubheaderData() const noexcept;
    /// All TREs of the image; the array is the caller's (DeleteTREPointerArray).
    bool GetAllImageSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }
    /// Takes the TRE over; false for null. What was derived from the TREs is worked out again.
    bool AddImageSegmentTRE(TRE* aTre) { return AddTRE(aTre); }
    /// The subheader as raw metadata, built on demand; owned by the subheader.
    const RawNITFMetadataStdDataSegment* GetAllImageSegmentMetadata() const { return GetAllMetadata(); }

    // ---- Codes

    /// IC as a code and as one of the constants of NITFCnst; unknown and null for a text that is no code.
    NITFCnst::IC GetEnumFieldIC() const;
    const char* GetImageCompressionCode() const;
    /// IREP and ICAT, null for a text that the version does not know.
    const char* GetImageRepresentation() const;
    const char* GetImageCategory() const;
    /// 'B', 'P', 'R' or 'S'; '\0' for any other.
    char GetImageMode() const;
    /// IMAG as a factor: "1.0 " is 1, "/2  " is 0.5; 0 for a text that is none.
    double GetImageMagnificationFactor() const;
    /// Whether the segment shows clouds in place of ground: its category is CLOUD or its identifier CC.
    bool IsCloudCoverImageSegment() const;

    /// The values that the version has for ICAT and IREP, in the order of its table.
    const std::vector<const char*>* GetAllValidImageCategories() const;
    const std::vector<const char*>* GetAllValidImageRepresentations() const;
    /// The entry of that list for a text, blanks around it left out; null when there is none.
    const char* IsValidImageCategory(const char* aText) const;
    const char* IsValidImageRepresentation(const char* aText) const;

    // ---- Bands and layout of the pixels

    /// NBANDS, or XBANDS when NBANDS is 0.
    unsigned long GetNumOfImageBands() const noexcept;
    bool GetFieldXBANDS(unsigned long& aBands) const;
    /// Null for a number that no band has.
    const NITFImgBandInfo* GetImageBandInfo(int aBand) const;
    bool HasLUTsForBand(int aBand) const;
    /// The look-up tables of a band (NITFImgBandInfo::GetLUTs).
    bool GetLUTs(int aBand, std::vector<NITFImgBandInfo::WideTable>& aTables) const;
    /// Blocks per row and column; 0 when the field holds no number.
    unsigned long GetFieldNBPR() const noexcept;
    unsigned long GetFieldNBPC() const noexcept;
    /// Pixels of a block, the zero form of NPPBH and NPPBV resolved.
    bool GetNumPixelsPerBlock(unsigned long& aHorizontal, unsigned long& aVertical) const;
    /// The first row and column of a block, which counts from 0, row by row.
    bool GetImageBlockStart(std::uint64_t aBlock, std::uint64_t& aRow, std::uint64_t& aColumn) const;
    /// PJUST, NBPP, ABPP and PVTYPE; false when one of them is not what the version allows.
    bool GetPixelBitValues(char& aJustification, int& aNBPP, int& aABPP, NITFCnst::PixelType& aType) const;
    NITFCnst::PixelType GetImagePixelValueType() const;
    /// 'L' or 'R'; '\0' for any other.
    char GetImagePixelJustification() const;
    bool GetImageSignificantColumnsAndRows(unsigned long& aColumns, unsigned long& aRows) const;

    // ---- Data mask and pixels

    /// Whether IC says that a data mask stands in front of the pixels.
    bool HasDataMaskSubheader() const;
    /// The data mask, read when first asked for; null, with a text in GetErrorMessage, when there is none or it does
    /// not fit the image.
    std::shared_ptr<const NITFImageDataMaskSubheader> GetImageDataMask() const;
    /// Whether the data mask has a value for pad pixels; then as a number, of complex pixels as two.
    bool HasPadPixelValue() const;
    bool GetPadPixelValueAsDouble(double& aValue) const;
    bool GetPadPixelComplex(double& aReal, double& aImaginary) const;

    std::size_t GetBytesPerSample() const override;
    Status RetrieveImageOverview(int aBand, int aStep, std::size_t aBufferSize, void* aBuffer) const override;
    Status RetrieveImagePixels(int aFirstRow, int aFirstColumn, int aRows, int aColumns, int aBand, int aBufferSize,
                               void* aBuffer, std::FILE* aFile) const override;

    // ---- Location in the common coordinate system

    /// ILOC: rows and columns from the segment that this one is attached to.
    bool GetILOC(long& aRow, long& aColumn) const;
    long GetLOCRowValue() const override;
    long GetLOCColumnValue() const override;
    /// The place in the common coordinate system: ILOC and the offset of the segment that this one is attached to.
    bool GetCCSColumnAndRow(long& aColumn, long& aRow) const override;
    long GetCCSRowValue() const override;
    long GetCCSColumnValue() const override;
    /// Location and place, as the operations above.
    bool GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const override;

    // ---- Footprint (see NITFImgExtent): corner pixels in degrees, four of each in the order of IGEOLO

    /// '\0' when the field is blank or means that there is no location.
    char GetFieldICORDS() const;
    /// Whether ICORDS says that the subheader has a location.
    bool IsFieldICORDSAvailable() const;
    /// Whether that location is latitudes and longitudes.
    bool IsGeographicCoordinate() const;
    const NITFImgExtent& GetImageExtentInformation() const;
    bool HasBLOCKGeographicExtent() const;
    bool GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes) const;
    bool HasCSCRNGeographicExtent() const;
    bool GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes) const;
    bool HasGEOLOGeographicExtent() const;
    bool GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const;
    bool HasIGEOLOGeographicExtent() const;
    bool GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes) const;
    bool GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                        double* aLongitudes) const;
    bool GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude) const;
    bool GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth, double& aEast) const;
    /// The best footprint there is, map grids included.
    bool GetFootprint(NITFImgExtent::Footprint& aFootprint) const;
    /// ICHIPB, else ICHIPA; null when the image is no chip.
    const TRE* GetICHIPTRE() const;
    bool IsImageChip() const;
    bool IsUnityTransform() const;
    bool GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull, const double*& aFullToChip) const;
    /// Metres above the ellipsoid: the mean of the corners of CSCRNA, else the height offset of the polynomials.
    bool HasAverageHeight() const;
    bool GetImageSegmentAverageHeight(double& aHeight) const;
    bool SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes, const double* aHeights,
                                           const char* aModel, const char* aSource);
    bool GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                           std::string& aModel, std::string& aSource) const;
    bool SensorModelComputedExtentCoordSet() const;
    void ClearSensorModelComputedExtentCoord();

    // ---- Rational polynomial coefficients (see TreRPC00)

    /// 'B' or 'A' for the TRE that gives them, RPC00B first; 'N' when there is none that can be read.
    char GetRPC00Availability() const;
    /// Four times twenty coefficients, in the order of RPC00B whichever TRE they come from.
    bool GetRPC00Coefficients(double* aLineNumerator, double* aLineDenominator, double* aSampleNumerator,
                              double* aSampleDenominator) const;
    bool GetRPC00Offsets(double& aLatitude, double& aLongitude, double& aHeight, long& aLine, long& aSample) const;
    bool GetRPC00Scales(double& aLatitude, double& aLongitude, double& aHeight, long& aLine, long& aSample) const;
    bool GetRPC00Errors(double& aBias, double& aRandom) const;
    /// Names and values of all fields of that TRE; freed with DeleteRPCFields.
    bool GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount) const;
    static void DeleteRPCFields(const char**& aNames, const char**& aValues, std::size_t aCount) noexcept;

protected:
    NITFImageSubheader(const Layout& aLayout, Input& aInput);
    NITFImageSubheader(const NITFImageSubheader& aOther);

    using NITFDataSegment::operator=;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    void TREsChanged() override;

    struct Attributes;
    struct Location;

    // What is derived from the fields, step by step. Each answers whether the fields hold what the version allows; what
    // they do not hold stays as the attributes begin.
    bool SetCommonCoordinateSys(Location& aOut) const;
    bool SetImageBlockStartIndices(Attributes& aOut) const;
    bool SetImageCategory(Attributes& aOut) const;
    bool SetImageCompressionCode(Attributes& aOut) const;
    bool SetImageMagnification(Attributes& aOut) const;
    bool SetImageMode(Attributes& aOut) const;
    /// All that the pixels are read by; false when one step is.
    bool SetImagePixelsAccessingInformation(Attributes& aOut) const;
    bool SetImageRepresentation(Attributes& aOut) const;
    bool SetImageSignificantRowsAndColumns(Attributes& aOut) const;
    bool SetIsGeographicCoordSys(Attributes& aOut) const;
    /// All the rest.
    bool SetMiscImageAttributes(Attributes& aOut) const;
    bool SetNumOfImageBands(Attributes& aOut) const;
    bool SetNumPixelsPerBlockHorizontalAndVertical(Attributes& aOut) const;
    bool SetPixelBitValues(Attributes& aOut) const;
    /// The TRE that gives the rational polynomial coefficients.
    bool SetTrePRC00Information(Attributes& aOut) const;

    // What is derived from ICORDS, IGEOLO and the TREs, source by source; each answers whether its source is set.
    bool CheckImageChipInformation(NITFImgExtent& aOut) const;
    bool FinalizeSettingOfImageExtentInformation(NITFImgExtent& aOut) const;
    /// Gives one TRE to the source that its tag names.
    bool SetGeopositioningInfoTRE(const TRE* aTre, NITFImgExtent& aOut) const;
    bool SetImageExtentInformation(NITFImgExtent& aOut) const;
    bool SetTreBLOCKExtentInformation(NITFImgExtent& aOut) const;
    bool SetTreBNDPLExtentInformation(NITFImgExtent& aOut) const;
    bool SetTreCSCRNExtentInformation(NITFImgExtent& aOut) const;
    bool SetTreGEOLOExtentInformation(NITFImgExtent& aOut) const;

    /// The bands with their tables; FinalizeSettingOfBandsInformation adds the BANDS TREs of the image.
    std::vector<NITFImgBandInfo> ExtractImageBandsInfos() const;
    void FinalizeSettingOfBandsInformation(std::vector<NITFImgBandInfo>& aBands) const;
    std::shared_ptr<const NITFImageDataMaskSubheader> ExtractDataMaskSubheader(std::string& aError) const;
    NITFImgExtent CreateImageExtentObj() const;

private:
    struct Derived;

    const Attributes& TheAttributes() const;
    const TRE* FindTRE(const char* aTag) const;
    std::vector<const TRE*> FindTREs(const char* aTag) const;

    std::unique_ptr<Derived> m_derived;
};

}  // namespace ORMO::SensorModel::CSM
