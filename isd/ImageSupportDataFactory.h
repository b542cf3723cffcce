#pragma once

#include "../foundation/Export.h"
#include "ImageSupportDataNITF.h"
#include "SupportedISD.h"

#include <cstddef>
#include <vector>

namespace ORMO::SensorModel::CSM {

class WrapperCSMISD;

/// The one entry through which an image file, or a CSM API ISD, becomes an ImageSupportData; never instantiated.
///
/// An installed companion library comes before the formats of this library. Companions are looked for once per process.
/// White space around a path does not count. An ISD is released with Destroy and with nothing else. The texts of
/// GetErrorMessage and GetWarningMessage are kept per thread, so that different threads can open files at once.
class ORMO_CSM_API ImageSupportDataFactory
{
public:
    /// Makes an ISD of a file. Without `aAllSegments` only the image segments are read. `aFlag2` goes on to the format
    /// as it is. `*aOut` stays null, with no error, when a companion library takes the file and makes nothing of it.
    ///
    /// Throws std::invalid_argument for a null output and for a file of no known format, else what CreateISD throws.
    static void Create(const char* aPath, ImageSupportData** aOut, bool aAllSegments, bool aFlag2);

    /// Makes an ISD of a NITF file, or of its first part, that stands in memory. With `aCopy` the bytes are copied,
    /// else they must live as long as the ISD. `aName` stands for the path in messages; null for "memory". Segments
    /// whose data lie beyond the bytes have none. No companion is asked. Throws as CreateISD.
    static void CreateFromMemory(const void* aBytes, std::size_t aLength, bool aCopy, const char* aName,
                                 ImageSupportData** aOut, bool aAllSegments, bool aFlag2);

    /// Makes an ISD of what can be read of a damaged NITF file: segments whose subheaders cannot be read are null, with
    /// their place in the segment information and the reason among the findings of the ISD. Nothing is guessed: a count
    /// or length of the file header that leads nowhere is replaced only when exactly one other number lets every
    /// segment begin with its mark and all add up to the size of the file, and a finding says so. No companion is
    /// asked. Throws as CreateISD when not even the file header can be read.
    static void Salvage(const char* aPath, ImageSupportData** aOut);

    /// Makes an ISD of a filled NITF ISD of the CSM API (WrapperCSMIsdNITF20, WrapperCSMIsdNITF21), with no file at
    /// all: of its file header, images, DESs and TREs, which are copied. A record that a host has added to a list of
    /// TREs stands behind the TREs of the header. `aFlag` goes on to the format as it is.
    ///
    /// Throws UnsupportedImageSupportDataException for a null argument and for any other wrapper, and
    /// ImageSupportDataConstructionException for parts that do not make one file, such as fewer images than the file
    /// header tells of. `*aOut` stays null, with a text in GetErrorMessage, when the file header is of no version that
    /// can be read or not of that of the ISD's class.
    static void Create(const WrapperCSMISD* aIsd, ImageSupportData** aOut, bool aFlag);

    /// Makes an ISD of a known type and version (NITFCnst::Version for NITF), which no companion is asked about. For
    /// NITF a version that cannot be read makes the factory look into the file.
    ///
    /// Throws std::invalid_argument for a null output or an empty path, std::bad_alloc, and
    /// ImageSupportDataConstructionException, with the format's error text, for all else that fails.
    static void CreateISD(const char* aPath, ImageSupportData** aOut, bool aAllSegments, bool aFlag2, int aVersion,
                          SupportedISD::Type aType);

    // Copies. An ISD is made by this factory only, so what hosts do with two of them is done here too.

    /// A deep copy, to be released with Destroy. It owns all but the open file and outlives what it was copied from.
    /// False, with a text in GetErrorMessage and nothing in `*aOut`, for a missing argument, for an ISD that a
    /// companion library made, and when memory is short.
    static bool Clone(const ImageSupportData* aIsd, ImageSupportData** aOut);
    /// Makes an ISD a deep copy of another one of its class; pointers that it handed out are void. False, with a text
    /// in GetErrorMessage and the target as it was, when it cannot be done.
    static bool Assign(ImageSupportData& aTarget, const ImageSupportData& aSource);
    /// Whether both are of one class and speak of the same file, with the same current image segment, fields, TREs and
    /// data.
    static bool AreEqual(const ImageSupportData& aLeft, const ImageSupportData& aRight);
    /// Exchanges the content of two ISDs of one class; false, with nothing changed, for two of different classes.
    static bool Swap(ImageSupportData& aLeft, ImageSupportData& aRight);

    /// Releases an ISD and nulls the pointer. Null is ignored.
    static void Destroy(ImageSupportData** aIsd);

    /// The type of a file, ISD_TYPE_UNKNOWN with version -1 when this system reads none of its kind. With
    /// `aBuiltInOnly` no companion is asked.
    static SupportedISD::Type ISDType(const char* aPath, int& aVersion, bool aBuiltInOnly);

    /// Whether an ISD can be made of the file; aFormatName is then its format, else null. Never throws.
    static bool IsSupportedISDFile(const char* aPath, const char*& aFormatName) noexcept;

    /// What this thread's last call that makes an ISD found wrong with a file that it refused, the reason why a file
    /// cannot be opened or is no NITF file included; empty when there was nothing.
    static const std::vector<Finding>& GetFindings() noexcept;
    /// Texts of this thread's last call that makes, copies or destroys, null when there is nothing to say. They live
    /// until the next such call.
    static const char* GetErrorMessage() noexcept;
    static const char* GetWarningMessage() noexcept;

private:
    ImageSupportDataFactory();

    static void CreateNitf(ImageSupportDataNITF::Request& aRequest, ImageSupportData** aOut);
};

}  // namespace ORMO::SensorModel::CSM
