#pragma once

#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"
#include "ImageSupportDataNITF.h"

#include <memory>
#include <vector>

namespace ORMO::SensorModel::CSM {

class WrapperCSMISD;

/// Makes the image support data of NITF and NSIF files; never instantiated. A companion library comes first. Hosts use
/// ImageSupportDataFactory, which knows every format. The texts of the last call are kept per thread.
class ORMO_CSM_API ImageSupportDataNITFFactory
{
public:
    /// Makes an ISD of a file; an NSIF 1.0 file is read as NITF 2.1. A version that is none makes the factory look into
    /// the file. `aImageSegment` chooses the current image segment, -1 leaves the choice to the ISD. False, with a text
    /// in GetErrorMessage and nothing in `*aOut`, for a missing argument and for a version that cannot be read.
    ///
    /// A file that fails while it is read raises what its ISD raises: ImageSupportDataConstructionException,
    /// InitializationException or std::bad_alloc.
    static bool Create(const char* aPath, ImageSupportDataNITF** aOut, bool aImageSegmentsOnly, bool aFlag2,
                       int aImageSegment, NITFCnst::Version aVersion);

    /// Makes an ISD of a NITF ISD of the CSM API; false for a missing argument, for a wrapper of another class and for
    /// a file header whose version is not that of the class. Raises as the form for a file does.
    static bool Create(const WrapperCSMISD* aIsd, ImageSupportDataNITF** aOut, bool aFlag, int aImageSegment);

    /// A deep copy of an ISD, which owns all but the open file and outlives what it was copied from. False, with a text
    /// in GetErrorMessage and nothing in `*aOut`, for a missing argument, for an ISD that a companion library made, and
    /// when memory is short.
    static bool Clone(const ImageSupportDataNITF* aIsd, ImageSupportDataNITF** aOut);

    /// Releases an ISD and nulls the pointer. Null is ignored.
    static void Destroy(ImageSupportDataNITF** aIsd);

    /// Whether the file is of a version that can be read; aFormatName is then "NITF", else null. Never throws.
    static bool IsSupportedISDFile(const char* aPath, const char*& aFormatName) noexcept;

    /// What this thread's last call of Create found wrong with a file that it refused; empty when there was nothing.
    static const std::vector<Finding>& GetFindings() noexcept;
    /// Texts of this thread's last call of Create, Clone or Destroy, null when there is nothing to say.
    static const char* GetErrorMessage() noexcept;
    static const char* GetWarningMessage() noexcept;

private:
    ImageSupportDataNITFFactory();

    friend class ImageSupportDataFactory;

    /// The same for a file that is open, or a block of memory.
    static bool Create(ImageSupportDataNITF::Request& aRequest, ImageSupportDataNITF** aOut);
    static std::unique_ptr<ImageSupportDataNITF> Construct(ImageSupportDataNITF::Request& aRequest);
};

}  // namespace ORMO::SensorModel::CSM
