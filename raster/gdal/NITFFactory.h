#pragma once

#include "../../foundation/Export.h"

class GDALOpenInfo;

namespace ORMO::SensorModel::CSM {

class ImageSupportDataNITF;

/// Opens a NITF or NSIF file by its name or by an open request of GDAL; never instantiated. Part of the library
/// csm_gdal.
///
/// A name of the form NITF_IM:INDEX:FILE, prefix in any letter case, is GDAL's way to name one image segment of a file,
/// counted from 0. Objects are released with ImageSupportDataNITFFactory::Destroy. No operation raises.
class ORMO_CSM_API NITFFactory
{
public:
    /// Makes an object of the named file and selects the image segment that the name asks for; one that the file does
    /// not have leaves the object at its default segment. White space around the name does not count.
    ///
    /// aImageIndex is the index asked for, 0 for a plain name, and -1 when the name cannot be used. aHasImage tells
    /// whether the file has any image segment, aIsSubdataset (optional) whether the name has the form above. False,
    /// with a null object, for anything that is no readable NITF file; GetErrorMessage tells why, and is null for a
    /// file of another format.
    static bool Open(const char* aFileName, ImageSupportDataNITF** aIsd, int& aImageIndex, bool& aHasImage,
                     bool* aIsSubdataset = nullptr);

    /// The same for a request, whose first bytes tell the version; without any the file itself is looked into.
    static bool Open(const GDALOpenInfo* aRequest, ImageSupportDataNITF** aIsd, int& aImageIndex, bool& aHasImage,
                     bool* aIsSubdataset = nullptr);

    /// Takes the name of a request apart. The file name points into the request and is null, the index -1, when the
    /// answer is false: for a missing or empty name, an index that is no decimal number, or no file after it. When
    /// aVersion is given and -1, the file is looked into and its NITFCnst::Version is told there.
    static bool ExtractOpenFileInformation(const char*& aFileName, const GDALOpenInfo* aRequest, int& aImageIndex,
                                           bool* aIsSubdataset = nullptr, int* aVersion = nullptr);

    /// Texts of this thread's last Open, null when there is nothing to say.
    static const char* GetErrorMessage() noexcept;
    static const char* GetWarningMessage() noexcept;

private:
    NITFFactory();
};

}  // namespace ORMO::SensorModel::CSM
