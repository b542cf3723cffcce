#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "SupportedISD.h"

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// Of the CSM API, which this header does not bring along (foundation/CSMApi.h).
class TSMSensorModel;
class image;
class tsm_ISD;

namespace ORMO::SensorModel::CSM {

/// Root of all image support data: what a file tells about its images, asked without knowing the file's format.
///
/// Objects are made by ImageSupportDataFactory and released by its Destroy. Everything handed out by pointer belongs
/// to the object and lives until the object is changed or destroyed. Segments count from 0. What a format does not
/// know is answered as each operation says here; queries never throw at this level. The order of the virtual
/// operations is part of the binary interface.
class ORMO_CSM_API ImageSupportData
{
public:
    virtual ~ImageSupportData();

    /// The CSM API forms of this object; null, 0 and false when there are none.
    virtual bool GetAllTsmISDs(const tsm_ISD**& aTsmISDs, std::size_t& aCount) const;

    // The value of a field, or of a TRE's field, in the segment of the given name, converted to the type asked for.
    // False, with a text in GetErrorMessage, when there is no such field or its value does not convert.
    virtual bool GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue);
    virtual bool GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue);
    virtual bool GetFieldAsLong(const char* aSegment, const char* aField, long& aValue);
    virtual bool GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue, std::size_t& aLength);
    virtual bool GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue);

    /// The open file, which the caller must not close; null when none is held.
    virtual std::FILE* GetFileHandle() const;
    /// Format and version in one word, such as "NITF02.10"; "UNKNOWN" when the format has none.
    virtual const char* GetFileTypeAndVersion() const;
    /// "UNKNOWN" when the file has no marking.
    virtual const char* GetHighestSecurityClassificationMarking() const;
    /// Whether the image is a chip of a larger one, and the coefficients from chip to full image and back. False, with
    /// the outputs as they were, when the file does not tell.
    virtual bool GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull, const double*& aFullToChip,
                                             int aSegment) const;
    /// The average height of the ground in metres. When it is not known the answer is false and, for a segment number
    /// that is not negative, the height 0.
    virtual bool GetImageSegmentAverageHeight(double& aHeight, long aSegment) const;
    /// The number of the image segment with this unique identifier; -1 when there is none.
    virtual long GetImageSegmentIndex(const char* aIdentifier) const;
    /// A text for a person to read; null when there is none.
    virtual const char* GetImageSupportDataSummary();
    virtual SupportedISD::Type GetIsdRasterFormat();

    /// Which of five kinds of measurement a sensor model can make in the image segment with this identifier. False,
    /// with all five false, when it is not known.
    virtual bool GetMensurationCapabilities(bool& aFirst, bool& aSecond, bool& aThird, bool& aFourth, bool& aFifth,
                                            const char* aSensorModelName, const char* aSegmentIdentifier);
    /// The same for the image segment of this number.
    virtual bool GetMensurationCapabilities(bool& aFirst, bool& aSecond, bool& aThird, bool& aFourth, bool& aFifth,
                                            const char* aSensorModelName, int aSegment);

    virtual long GetNumOfImageSegments() const;
    /// Names and versions of the sensor models that can take the image segment, two arrays of aCount texts. An image
    /// without a sensor model gives null, 0 and true.
    virtual bool GetSensorModelsOfImageSegment(const char**& aNames, const char**& aVersions, std::size_t& aCount,
                                               std::size_t aSegment) const;
    /// Null when there is no such sensor model.
    virtual TSMSensorModel* GetTSMSensorModel(const char* aSensorModelName, std::size_t aSegment) const;
    /// Null when the segment has none.
    virtual const char* GetUniqueImageSegmentIdentifier(std::size_t aSegment) const;
    /// Whether the corners of the image segment are given in geographic coordinates.
    virtual bool IsImageSegmentCoordGeographic(unsigned int aSegment) const;
    /// Whether the object was made from a CSM API ISD and not from a file.
    virtual bool IsInitUsingTsmNITFISD() const;
    /// Whether rows and columns of the image segment are those of the original image.
    virtual bool IsUnityTransform(int aSegment) const;

    /// Checks all that the file tells about itself and counts what it finds; the findings stand in
    /// GetValidationSummaryReport. True when there is no error.
    virtual bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings);

    /// The whole metadata of the file as an XML document; null when it cannot be written.
    virtual const char* Serialize();
    /// The XML text of one segment, given its text so far; at this level the argument itself.
    virtual const char* SerializeDataSegment(const char* aText);

    /// Chooses the image segment that queries without a segment of their own are about; false when there is none.
    virtual bool SetCurrentImageSegment(long aSegment);

    /// Texts of the query that this thread asked last or, before it asked any, of making the object; null when there is
    /// nothing to say. They stay until this thread asks again.
    const char* GetErrorMessage() const noexcept;
    const char* GetWarningMessage() const noexcept;
    /// The findings of the last rigorous validation; empty before the first.
    const char* GetValidationSummaryReport() const noexcept;

    /// The highest classification level that the content of the file calls for.
    Util::CSMCnst::ClassType GetClassificationLevel() const noexcept;
    /// Every distinct security classification marking of the file, in the order of the file. Collected on the first
    /// call; both forms throw std::bad_alloc when there is no memory for that.
    const std::vector<const char*>& GetAllSecurityClassificationMarkings();
    /// The same as an array; null and 0 when the file has no marking. The array is not to be changed.
    const char** GetAllSecurityClassificationMarkings(std::size_t& aCount);

    /// The path of the file, the name of its format (SupportedISD::RasterFormat) and the version of the format as the
    /// file writes it, such as "02.10"; null when not known.
    const char* GetFileName() const noexcept;
    const char* GetImageFormat() const noexcept;
    const char* GetFormatVersion() const noexcept;
    /// The image segment that SetCurrentImageSegment chose, -1 when none is chosen.
    long GetCurrentImageSegment() const noexcept;

protected:
    ImageSupportData();
    /// Trims the texts; the format version may be null. Throws InitializationException for an empty format and, unless
    /// whoever calls has the file open already, for a path that leads to no file.
    ImageSupportData(const char* aFileName, const char* aImageFormat, const char* aFormatVersion, bool aIsOpen = false);
    /// A deep copy. Throws RequestedOperationFailedException when it fails.
    ImageSupportData(const ImageSupportData& aOther);

    // The assignment that the compiler gives every derived class hides this one and calls it: what g++ warns about is
    // meant.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
#endif
    virtual ImageSupportData& operator=(const ImageSupportData& aOther);
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
    /// Whether both speak of the same file, format, classification and current image segment. Messages, validation and
    /// marking lists do not count; an object without a file name or format equals none but itself.
    virtual bool operator==(const ImageSupportData& aOther) const;
    virtual bool operator!=(const ImageSupportData& aOther) const;

    /// Takes over the content of another object. A message, marking or report that the other object does not have
    /// leaves the own one as it is. Markings are collected anew when they are next asked for. Throws
    /// RequestedOperationFailedException, with this object emptied, when the copy fails.
    virtual void Assign(const ImageSupportData& aOther);
    /// As Assign, but false in place of the exception.
    virtual bool CloneObj(const ImageSupportData& aOther);
    /// Builds the marking list from what CollectSecurityClassificationMarkings tells, unless it is built.
    virtual void InitSecurityClassificationMarkings();
    /// Appends the markings of every part of the file in the order of the file; repeated and empty ones may be among
    /// them. Every format supplies it.
    virtual void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const = 0;
    /// Finds m_highestMarking; at this level nothing is known of markings.
    virtual void SetHighestSecurityClassificationMarking();
    /// Exchanges the content of two objects of one class.
    virtual void Swap(ImageSupportData& aFirst, ImageSupportData& aSecond);

    // Queries of const objects may come from several threads at once, so each thread has texts of its own.

    /// Begins a query: the texts of this thread's last one are gone, and those of making the object stand behind.
    void ClearMessages() const;
    /// The texts of this thread's present query; null stands for none.
    void SetMessages(const char* aError, const char* aWarning) const;
    /// The same for a query without an answer; answers false.
    bool RefuseQuery(const std::string& aError) const;

    // An empty text stands for none: operations hand it out as null.
    bool m_markingsBuilt = false;
    bool m_rigorouslyValidated = false;
    std::string m_fileName;
    std::string m_imageFormat;
    std::string m_formatVersion;
    /// A text that a derived class may keep, such as the document that its Serialize hands out.
    std::string m_keptText;
    Util::CSMCnst::ClassType m_classificationLevel = Util::CSMCnst::CLASS_TYPE_UNCLASSIFIED;
    long m_currentImageSegment = NO_IMAGE_SEGMENT;
    std::string m_highestMarking;
    std::string m_errorMessage;    ///< of making the object
    std::string m_warningMessage;  ///< as above
    std::string m_validationSummaryReport;
    unsigned long m_validationErrorCount = 0;
    unsigned long m_validationWarningCount = 0;

    static constexpr long NO_IMAGE_SEGMENT = -1;

private:
    friend class ImageSupportDataFactory;  // through which hosts copy and compare

    struct Queries;

    void CleanupImageSupportData() noexcept;
    void ReleaseMarkings() noexcept;

    /// The distinct markings, and the list that is handed out: the text of each.
    std::vector<std::string> m_markingTexts;
    std::vector<const char*> m_markings;
    std::unique_ptr<const Queries> m_queries;  // never null
};

}  // namespace ORMO::SensorModel::CSM
