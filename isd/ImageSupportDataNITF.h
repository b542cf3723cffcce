#pragma once

#include "../foundation/Export.h"
#include "../foundation/Finding.h"
#include "../segments/NITFStdDataSegmentInfo.h"
#include "../segments/des/NITFDESSubheader.h"
#include "../segments/fileheader/NITFFileHeader.h"
#include "../segments/graphic/NITF21GraphicSubheader.h"
#include "../segments/image/NITFImageSubheader.h"
#include "../segments/label/NITF20LabelSubheader.h"
#include "../segments/res/NITFRESSubheader.h"
#include "../segments/symbol/NITF20SymbolSubheader.h"
#include "../segments/text/NITFTextSubheader.h"
#include "ImageSupportData.h"
#include "ValidationRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The image support data of a NITF or NSIF file: owns the file header and every segment that is read, and answers for
/// them by kind and index. Made and destroyed by the factories only. What is handed out by pointer lives as long as the
/// object.
class ORMO_CSM_API ImageSupportDataNITF : public ImageSupportData
{
public:
    // What only the library's own sources can look into: what is to be opened, and what was read of it.
    struct Request;
    struct Parts;

    /// Levels and place of a segment that is drawn, in pixels.
    struct CCSInformation
    {
        std::uint64_t displayLevel = 0;
        std::uint64_t attachmentLevel = 0;
        long row = 0;        ///< the location as the header gives it, from what the segment is attached to
        long column = 0;     ///< as above
        long ccsRow = 0;     ///< the location in the common coordinate system
        long ccsColumn = 0;  ///< as above
    };
    using MetadataArray = const RawNITFMetadataStdDataSegment* const*;
    using MetadataList = std::vector<const RawNITFMetadataStdDataSegment*>;
    using Markings = std::map<std::string, int>;

    ~ImageSupportDataNITF() override;

    /// The version that the first bytes of a file tell: 20, 21 (also for NSIF 1.0), or -1.
    static int Identify(const unsigned char* aHeaderBytes, std::size_t aLength);

    /// Reads the file anew, its image segments or all of it; what was handed out before is void. Errors and warnings go
    /// to new texts, where they are asked for, which the caller frees with CSMUtilString::DeleteCString. False, with
    /// the object as it was, when the file cannot be read any more or was never one.
    bool Open(bool aImageSegmentsOnly, char** aErrors, char** aWarnings);

    // The file. Texts are those of the fields, as stored; null when the file has no such field.

    const NITFFileHeader* GetNITFFileHeader() const noexcept;
    /// "NITF02.10", "NITF02.00" or "NSIF01.00".
    const char* GetFileTypeAndVersion() const override;
    SupportedISD::Type GetIsdRasterFormat() override;
    /// The real size in bytes, whatever the header says.
    std::uint64_t GetNITFFileSize() const noexcept;
    NITFCnst::Version GetNITFFileVersionCode() const noexcept { return GetNITFFileHeader()->GetVersion(); }
    const char* GetNITFFileVersionNumber() const noexcept { return GetFormatVersion(); }
    const char* GetNITFFileHeaderFieldFHDR() const noexcept { return GetNITFFileHeader()->GetFieldValueFHDR(); }
    /// "02.10", "02.00" or "01.00"; NITF 2.0 writes it into FHDR.
    const char* GetNITFFileHeaderFieldFVER() const noexcept;
    bool GetNITFFileHeaderFieldCLEVEL(int& aLevel) const noexcept
    {
        return GetNITFFileHeader()->GetFieldValueCLEVEL(aLevel);
    }
    const char* GetNITFFileHeaderFieldFDT() const noexcept { return GetNITFFileHeader()->GetFieldValueFDT(); }
    const char* GetNITFFileHeaderFieldFSCLAS() const noexcept { return GetNITFFileSecurityClassification(); }
    const char* GetNITFFileTitle() const noexcept { return GetNITFFileHeader()->GetFieldFTITLE(); }
    const char* GetNITFFileOriginatorName() const noexcept { return GetNITFFileHeader()->GetFileOriginatorName(); }
    const char* GetNITFFileOriginatorPhoneNumber() const noexcept
    {
        return GetNITFFileHeader()->GetFileOriginatorPhoneNumber();
    }
    const char* GetNITFFileOriginatingStationID() const noexcept
    {
        return GetNITFFileHeader()->GetFileOriginatingStationID();
    }
    const char* GetNITFFileSecurityClassification() const noexcept
    {
        return GetNITFFileHeader()->GetFileSecurityClassification();
    }
    bool GetNITFFileBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept
    {
        return GetNITFFileHeader()->GetFileBackgroundColor(aRed, aGreen, aBlue);
    }
    Util::CSMCnst::ByteOrder GetRPFFileByteOrder() const noexcept { return GetNITFFileHeader()->GetRPFFileByteOrder(); }
    /// The file as a stdio stream, opened when first asked for; null when it cannot be opened.
    std::FILE* GetFileHandle() const override;
    /// A second stream of the file, for the file argument of NITFImagePixelReader.
    std::FILE* GetImagePixelFileHandle() const;
    /// Whether the two streams are closed with the object, as they are unless told otherwise; else whoever asked for
    /// them closes them.
    void CloseFileHandleOnResetOrDelete(bool aClose) noexcept;

    // The segments, by kind and index. A query about a segment that is not in the file, or was not read, answers false
    // or null, with arrays null and 0 and other outputs as they were, and GetErrorMessage says so; the same for an
    // unknown name. A false or null answer without a text says that the segment does not tell.

    const NITFStdDataSegmentInfos& GetSegmentInfos() const noexcept;
    long GetNumOfImageSegments() const override;
    /// The segment of a kind; the file header is the one segment of its kind.
    const NITFFieldSegment* GetSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const;
    const NITFImageSubheader* GetImageSubheader(std::size_t aIndex) const;
    const NITFTextSubheader* GetTextSubheader(std::size_t aIndex) const;
    /// NITF 2.1 and NSIF 1.0.
    const NITF21GraphicSubheader* GetGraphicSubheader(std::size_t aIndex) const;
    /// NITF 2.0.
    const NITF20SymbolSubheader* GetSymbolSubheader(std::size_t aIndex) const;
    /// NITF 2.0.
    const NITF20LabelSubheader* GetLabelSubheader(std::size_t aIndex) const;
    const NITFDESSubheader* GetDataExtensionSegment(std::size_t aIndex) const;
    const NITFRESSubheader* GetReservedExtensionSegment(std::size_t aIndex) const;
    /// A segment of a kind that only one version has: graphics in NITF 2.1, symbols and labels in NITF 2.0.
    const NITFDrawnSegment* GetVersionSpecificDataSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const;
    bool SetCurrentImageSegment(long aSegment) override;
    /// Writes the data of a segment, of any kind, to a stream in pieces. False also when the data are not all in the
    /// file or writing fails.
    bool WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut) const;
    /// Such an object has the file header, the images and the DESs; all else, and the pixels, it does not hold.
    bool IsInitUsingTsmNITFISD() const override;
    /// Whether the TREs of an overflow DES were handed to the segment that it names; else they stay on the DES.
    bool IsOverflowPlaced(std::size_t aDes) const;

    // An image segment, as NITFImageSubheader answers. Bands count from 0; the index of the image stands last.

    const char* GetImageSegmentField(const char* aTag, std::size_t aIndex) const;
    bool GetImageSegmentFieldAsDouble(const char* aTag, double& aValue, std::size_t aIndex) const;
    const char* GetImageSegmentSecurityClassification(std::size_t aIndex) const;
    /// IC as one of the constants of NITFCnst.
    const char* GetImageFieldIC(std::size_t aIndex) const;
    /// False when ICORDS says that there is no location.
    bool GetImageFieldICORDS(char& aIcords, std::size_t aIndex) const;
    bool IsImageFieldICORDSAvailable(std::size_t aIndex) const;
    bool GetImageFieldXBANDS(unsigned long& aBands, std::size_t aIndex) const;
    bool GetImageSegmentNumOfBands(unsigned long& aBands, std::size_t aIndex) const;
    const NITFImgBandInfo* GetImageBandInfo(int aBand, std::size_t aIndex) const;
    bool HasLUTsForImageBand(int aBand, std::size_t aIndex) const;
    bool GetLUTsOfImageBand(int aBand, std::vector<NITFImgBandInfo::WideTable>& aTables, std::size_t aIndex) const;
    bool GetImageSegmentColumnsAndRows(unsigned long& aColumns, unsigned long& aRows, std::size_t aIndex) const;
    bool GetPadPixelValueOfImageSegmentAsDouble(double& aValue, std::size_t aIndex) const;
    bool GetPadPixelComplexOfImageSegment(double& aReal, double& aImaginary, std::size_t aIndex) const;
    /// What reads the pixels.
    const NITFImagePixelReader* GetImagePixelReader(std::size_t aIndex) const;
    bool IsCloudCoverImageSegment(std::size_t aIndex) const;
    /// The place in the common coordinate system.
    bool GetImageSegmentCCS(long& aColumn, long& aRow, std::size_t aIndex) const;
    bool GetImageSegmentCCSInformation(CCSInformation& aInformation, std::size_t aIndex) const;
    /// "NITF_IM:2:/data/image.ntf", the name by which GDAL opens the image segment too.
    const char* GetUniqueImageSegmentIdentifier(std::size_t aSegment) const override;
    long GetImageSegmentIndex(const char* aIdentifier) const override;
    /// Whether both have image segments of the same identifiers.
    bool CompareUniqueImageSegmentIDs(const ImageSupportDataNITF& aOther) const;
    /// Position on the ground, distance, area, height and uncertainty: what the sensor model of that name gives at the
    /// centre of the image. False when no registered plug-in builds the model of the image.
    bool GetMensurationCapabilities(bool& aPosition, bool& aDistance, bool& aArea, bool& aHeight, bool& aUncertainty,
                                    const char* aSensorModelName, const char* aSegmentIdentifier) override;
    bool GetMensurationCapabilities(bool& aPosition, bool& aDistance, bool& aArea, bool& aHeight, bool& aUncertainty,
                                    const char* aSensorModelName, int aSegment) override;

    // Where an image lies on the ground, and of which image it is a chip. Latitudes and longitudes are those of the
    // corner pixels in degrees, NITFImgExtent::NUM_OF_CORNERS of each in the order of IGEOLO; heights are metres above
    // the ellipsoid.

    const NITFImgExtent* GetImageExtentInformation(std::size_t aIndex) const;
    bool HasIGEOLOGeographicExtent(std::size_t aIndex) const;
    bool GetIGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const;
    bool HasBLOCKGeographicExtent(std::size_t aIndex) const;
    bool GetBLOCKGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const;
    bool HasGEOLOGeographicExtent(std::size_t aIndex) const;
    bool GetGEOLOGeographicExtent(double* aLatitudes, double* aLongitudes, std::size_t aIndex) const;
    bool HasCSCRNGeographicExtent(std::size_t aIndex) const;
    bool GetCSCRNGeographicExtent(bool& aIsMeasured, double* aLatitudes, double* aLongitudes, std::size_t aIndex) const;
    bool GetMostPreciseGeographicExtent(bool& aIsMeasured, const char*& aSource, double* aLatitudes,
                                        double* aLongitudes, std::size_t aIndex) const;
    bool GetApproxGeographicCenterOfExtent(double& aLatitude, double& aLongitude, std::size_t aIndex) const;
    bool GetApproxGeographicExtentBoundingBox(double& aSouth, double& aWest, double& aNorth, double& aEast,
                                              std::size_t aIndex) const;
    /// The corners that a sensor model gave; they are no part of the file.
    bool GetSensorModelComputedExtentCoord(double* aLatitudes, double* aLongitudes, double* aHeights,
                                           std::string& aModel, std::string& aSource, std::size_t aIndex) const;
    bool SetSensorModelComputedExtentCoord(const double* aLatitudes, const double* aLongitudes, const double* aHeights,
                                           const char* aModel, const char* aSource, std::size_t aIndex);
    bool ClearSensorModelComputedExtentCoord(std::size_t aIndex);
    bool GetImageSegmentAverageHeight(double& aHeight, long aSegment) const override;
    bool IsImageSegmentCoordGeographic(unsigned int aSegment) const override;
    bool IsImageChip(std::size_t aIndex) const;
    bool IsUnityTransform(int aSegment) const override;
    bool GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull, const double*& aFullToChip,
                                     int aSegment) const override;
    /// ICHIPB, else ICHIPA; null when the image is no chip.
    const TRE* GetICHIPTRE(std::size_t aIndex) const;

    // The rational polynomial coefficients of an image (see TreRPC00): four times twenty, in the order of RPC00B
    // whichever TRE they come from. Latitudes and longitudes are degrees, heights and errors metres, lines and samples
    // pixels.

    /// 'B' or 'A' for the TRE that gives them; false when there is none.
    bool GetRPC00Availability(char& aAvailability, std::size_t aIndex) const;
    bool GetRPC00Coefficients(double* aLineNumerator, double* aLineDenominator, double* aSampleNumerator,
                              double* aSampleDenominator, std::size_t aIndex) const;
    bool GetRPC00Offsets(double& aLatitude, double& aLongitude, double& aHeight, long& aLine, long& aSample,
                         std::size_t aIndex) const;
    bool GetRPC00Scales(double& aLatitude, double& aLongitude, double& aHeight, long& aLine, long& aSample,
                        std::size_t aIndex) const;
    bool GetRPC00Errors(double& aBias, double& aRandom, std::size_t aIndex) const;
    /// Names and values of all fields of that TRE; freed with NITFImageSubheader::DeleteRPCFields.
    bool GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount, std::size_t aIndex) const;

    // What is drawn over the images: graphics, or symbols and labels.
    /// Whether the file has any of them.
    bool HasGraphicalData() const noexcept;
    /// Graphics, or symbols and labels, in file order; those that could not be read are left out.
    std::vector<const NITFDrawnSegment*> GetDrawnSegments() const;
    /// The metafiles of them in file order, those that labels are made into included. They belong to the segments.
    std::vector<const NITFCGMMetaFile*> GetAllCGMMetaFiles() const;
    std::size_t GetNumOfCGMMetaFiles() const { return GetAllCGMMetaFiles().size(); }
    /// Images, graphics, symbols and labels in the order in which they are drawn, one over the other: by display level,
    /// equal ones in file order.
    std::vector<const NITFFieldSegment*> GetDisplayableDataSegmentOrderedByDisplayLevels() const;
    bool GetVersionSpecificDataSegmentCCSInformation(NITFCnst::DataSegmentType aKind, CCSInformation& aInformation,
                                                     std::size_t aIndex) const;

    // The TREs of a segment, in new arrays that the caller frees (NITFStdDataSegment::DeleteTREPointerArray); the TREs
    // stay the segment's. True with no TREs when it has none. Those of overflow DESs count when they are asked for.

    bool GetDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag, const TRE**& aArray,
                           std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetAllDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const TRE**& aArray,
                               std::size_t& aCount, bool aIncludeOverflow) const;
    /// The same for the kinds that only one version has.
    bool GetVersionSpecificDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag,
                                          const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetAllVersionSpecificDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const TRE**& aArray,
                                              std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetNITFFileHeaderTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetAllFileHeaderTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const;
    /// All TREs of the file header, those of overflow DESs included.
    bool GetAllNITFFileHeaderTREs(const TRE**& aArray, std::size_t& aCount) const;
    bool GetAllImageSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow,
                                std::size_t aIndex) const;
    /// Whether the segment has such a field, or a TRE of such a tag.
    bool IsDataSegmentField(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aField) const;
    bool IsDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag) const;
    // A field of the first TRE of a tag.
    bool GetNITFFileHeaderTREFieldAsDouble(const char* aTag, const char* aField, double& aValue) const;
    bool GetImageSegmentTREFieldAsDouble(const char* aTag, const char* aField, double& aValue,
                                         std::size_t aIndex) const;

    // A field by the name of its segment: "NITFFileHeader", "ImageSegment" (the current image segment, or the first) or
    // "ImageSegment:2". False with a text in GetErrorMessage.
    bool GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue) override;
    bool GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue) override;
    bool GetFieldAsLong(const char* aSegment, const char* aField, long& aValue) override;
    bool GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue, std::size_t& aLength) override;
    bool GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue) override;
    /// 1 when the standard allows the value for the field, 0 when not; -1, with a text in GetErrorMessage, when there
    /// is no such segment or field.
    int IsFieldValueInRange(const char* aSegment, const char* aField, const char* aValue) const;
    /// The XML element of the segment of that name; it lives until the segment is asked again. Null, with a text in
    /// GetErrorMessage, when there is no such segment.
    const char* SerializeDataSegment(const char* aSegment) override;

    // Headers as raw metadata, those of their TREs included: in an array, or in a vector that is cleared first. All
    // that is handed out belongs to the object. False, with null and 0 or an empty vector, when the file has no such
    // segment.

    const RawNITFMetadataStdDataSegment* GetAllMetadataNITFFileHeader() const;
    bool GetAllMetadataNITFFileHeader(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataNITFFileHeader(MetadataList& aList) const;
    bool GetAllMetadataImageSegments(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataImageSegments(MetadataList& aList) const;
    bool GetAllMetadataTextSegments(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataTextSegments(MetadataList& aList) const;
    bool GetAllMetadataDESs(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataDESs(MetadataList& aList) const;
    bool GetAllMetadataRESs(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataRESs(MetadataList& aList) const;
    /// The same as GetAllMetadataRESs: the standards have no other reserved segments.
    bool GetAllMetadataReservedSegments(MetadataArray& aArray, std::size_t& aCount) const;
    bool GetAllMetadataReservedSegments(MetadataList& aList) const;
    /// Of "GraphicSegment", "SymbolSegment" or "LabelSegment"; any other name, and one of the other version, is refused
    /// with a text in GetErrorMessage.
    bool GetAllMetadataVersionSpecificDataSegments(const char* aSegment, MetadataArray& aArray,
                                                   std::size_t& aCount) const;
    bool GetAllMetadataVersionSpecificDataSegments(const char* aSegment, MetadataList& aList) const;

    // Security classification markings: each distinct one with its rank (NITFCnst::GetSecurityClassificationRank).

    /// Those of the file header, of every segment that was read, and of RPFHDR. What TREs say of the classification of
    /// sources does not count.
    bool RetrieveAllSecurityClassificationMarkings(Markings& aMarkings) const;
    /// Those of graphics, symbols and labels, and of their TREs.
    bool GetVersionSpecificStdDataSegmentsSecurityClassificationMarkings(Markings& aMarkings) const;

    // Comparison with the segment of the same index in another file: fields, TREs and data.

    bool CompareDataSegment(NITFCnst::DataSegmentType aKind, const ImageSupportDataNITF& aOther,
                            std::size_t aIndex) const;
    bool CompareNITFFileHeader(const ImageSupportDataNITF& aOther) const;
    bool CompareNITFImageSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const;
    bool CompareNITFTextSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const;
    bool CompareNITFDESSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const;
    bool CompareNITFRESSubheader(const ImageSupportDataNITF& aOther, std::size_t aIndex) const;

    /// What was found on reading, in the order in which it was met. Capped; GetWarnings says how many more there were.
    std::vector<Finding> GetFindings() const;
    /// The same as lines for a person.
    std::vector<std::string> GetWarnings() const;

    // The file as ISDs of the CSM API, which sensor-model plug-ins take. TREs of overflow DESs stand behind the own
    // ones of the header that they belong to; the DESs stay in the list of DESs. Data of a DES that are not all in the
    // file are left empty.

    /// A NITF_2_0_ISD or NITF_2_1_ISD with all that was read and, when there is a file, a filenameISD. Made when first
    /// asked for; they live until ClearTSMISDData. False, with null and 0, when memory is short.
    bool GetAllTsmISDs(const tsm_ISD**& aTsmISDs, std::size_t& aCount) const override;
    void ClearTSMISDData() noexcept;
    /// Replaces the content of an ISD of one of the five kinds (SupportedTSMISD). Of the images, a NITF ISD takes the
    /// one of this number, or all when it is negative. False, with the ISD as it was, for null, for any other class,
    /// for a NITF ISD of the other version, for a number that is no image's, when memory is short or the file cannot
    /// be read.
    bool SetTSMISD(int aImageSegment, tsm_ISD* aTsmISD) const;
    // Parts of a NITF ISD, under the same terms.
    bool PopulateTSMISDFileHeaderTREs(tsm_ISD* aTsmISD) const;
    bool PopulateTSMISDImageSegments(tsm_ISD* aTsmISD, int aImageSegment) const;
    bool PopulateTSMISDDESs(tsm_ISD* aTsmISD) const;
    bool PopulateCSMImageObject(::image& aImage, int aImageSegment) const;

    // Sensor models of the plug-ins that are registered with the CSM API, each asked with an ISD of this one image
    // and, when the file has only one, with the name of the file. The library's own plug-in builds none and is left
    // out.

    /// False, with nulls and 0, when there is no such image. A model name stands once, with the version of the plug-in
    /// registered first. The arrays live as long as the object.
    bool GetSensorModelsOfImageSegment(const char**& aNames, const char**& aVersions, std::size_t& aCount,
                                       std::size_t aSegment) const override;
    /// A new model, which the caller deletes, from the first plug-in that builds it; null when none does.
    TSMSensorModel* GetTSMSensorModel(const char* aSensorModelName, std::size_t aSegment) const override;

    // Host metadata by property key (PropertyKey); docs/properties.md lists what answers each. Keys that no field of
    // the file answers, and those that need a sensor model, have no answer. Images count from 0.

    /// Key to value.
    using OrmoMetadata = std::map<std::string, std::string>;

    /// The value without the blanks around it; null when there is none. It lives as long as the object.
    const char* GetOrmoMetadata(const char* aKey, std::size_t aImage) const noexcept;
    /// The same, with the source that answered: "image TRE USE00A field SUN_EL".
    bool FindOrmoMetadata(const char* aKey, std::size_t aImage, std::string& aValue, std::string& aSource) const;
    /// All that is answered for an image. Without that image what is known of the file.
    OrmoMetadata RetrieveOrmoMetadata(std::size_t aImage) const;
    /// Its three parts: what names file and image, what is known of sensor and sun, and texts about all of it.
    void RetrieveOrmoMetadataSet1(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;
    void RetrieveOrmoMetadataSet2(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;
    void RetrieveOrmoMetadataSet3(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;

    /// The file in some lines for a person: what it is, where it comes from, its segments and its first ten images.
    const char* GetImageSupportDataSummary() override;
    std::string ComposeSummary() const;
    /// Parts of it: the lines about the file; what an image is, empty when there is no such image.
    std::string GetFileSummary() const;
    std::string GetImageSummary(std::size_t aImage) const;

    // XML. What was read is written; segments that were left out on opening are no part of it.

    /// The whole file as an XML document, kept in the object.
    const char* Serialize() override;
    /// The same for a version, 20 or 21 (also for NSIF 1.0); null for any other than the file's own.
    const char* SerializeImageSupportDataNITF(int aVersion);
    /// Writes the same document in pieces, so that it never stands in memory as a whole. False with a text in
    /// GetErrorMessage when not all of it could be written.
    bool WriteXml(std::FILE* aOut) const;
    /// The element that holds all image segments; nothing when there are none. What cannot be written sets failbit.
    void SerializeImageSegments(std::ostream& aOut) const;
    /// The same for graphics, or for symbols and labels.
    void SerializeVersionSpecificDataSegments(std::ostream& aOut) const;
    /// The element of one segment, by the name of its kind ("NITFFileHeader" with index 0, "ImageSegment"); kept by
    /// the segment until it is asked again. Null with a text in GetErrorMessage when there is none.
    const char* GetSerializedXMLMetadata(const char* aSegment, int aIndex);
    /// The same for graphics, symbols and labels only.
    const char* GetVersionSpecificSerializedXMLMetadata(const char* aSegment, int aIndex);

    /// Holds the file against every rule (ValidationRules). The result and its report are kept: a second call only
    /// answers them. Raises nothing.
    bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings) override;
    /// The same as often as it is called, by rules and moment of the caller's choice.
    bool Validate(const ValidationOptions& aOptions, unsigned long& aErrors, unsigned long& aWarnings);
    /// What RigorousValidation found of the file as a whole and of its header: appends the sections of the report and
    /// counts. False when there are errors.
    bool RigorousValidationNITFGlobal(std::string& aReport, unsigned long& aErrors, unsigned long& aWarnings);
    /// The same of graphics, or of symbols and labels.
    bool RigorousValidationVersionSpecificDataSegments(std::string& aReport, unsigned long& aErrors,
                                                       unsigned long& aWarnings);
    /// The findings of the last rigorous validation, those of reading included, errors first.
    std::vector<Finding> GetValidationFindings() const;
    /// The same as lines for a person.
    std::vector<std::string> GetValidationLines() const;
    /// For the library's own sources.
    const Parts& Inside() const noexcept { return *m_parts; }

protected:
    /// Reads everything that the request asks for. Raises InitializationException for a path that leads to no file and
    /// ImageSupportDataConstructionException with all errors, which then stand in the request's findings too.
    explicit ImageSupportDataNITF(Request& aRequest);
    /// A deep copy: everything but the open file is its own. Throws RequestedOperationFailedException.
    ImageSupportDataNITF(const ImageSupportDataNITF& aOther);

    using ImageSupportData::operator=;
    /// What the base class compares, and every segment with its fields, TREs and data.
    bool operator==(const ImageSupportData& aOther) const override;
    /// Throws RequestedOperationFailedException, with this object as it was, for an object of another class too.
    void Assign(const ImageSupportData& aOther) override;
    bool CloneObj(const ImageSupportData& aOther) override;
    /// Nothing happens to objects of other classes.
    void Swap(ImageSupportData& aFirst, ImageSupportData& aSecond) override;

    void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const override;
    void SetHighestSecurityClassificationMarking() override;

private:
    void TakeFindings(Request& aRequest);
    bool PlaceOfName(const char* aName, NITFCnst::DataSegmentType& aKind, std::size_t& aIndex) const;
    const NITFFieldSegment* SegmentOfName(const char* aName) const;
    /// Hands on what the segment said of a query that it was asked on behalf of this object.
    bool Told(bool aAnswer, const NITFFieldSegment& aSegment) const;
    template<typename Ask>
    bool AskSegment(const char* aSegment, Ask aAsk) const;
    const MetadataList& MetadataOf(NITFCnst::DataSegmentType aKind) const;
    const MetadataList& VersionSpecificMetadata(const char* aSegment) const;
    /// False, with a text in GetErrorMessage, for a kind that the other version has too, or alone.
    bool CheckVersionSpecific(NITFCnst::DataSegmentType aKind, std::string_view aName) const;

    std::unique_ptr<Parts> m_parts;
};

}  // namespace ORMO::SensorModel::CSM
