#pragma once

#include "isd/ImageSupportDataNITF.h"
#include "segments/NITFSegmentTREs.h"

#include <memory>
#include <string>
#include <vector>

namespace OrmoNitf {

/// Exit codes of the program.
enum ExitCode
{
    EXIT_DONE = 0,
    EXIT_FILE_HAS_ERRORS = 1,
    EXIT_WRONG_USE = 2
};

struct IsdDestroyer
{
    void operator()(ORMO::SensorModel::CSM::ImageSupportDataNITF* aIsd) const;
};
using Isd = std::unique_ptr<ORMO::SensorModel::CSM::ImageSupportDataNITF, IsdDestroyer>;

struct OpenOptions
{
    bool imagesOnly = false;  ///< leave out the segments behind the images
    bool salvage = false;     ///< take what can be read of a damaged file
};

/// Opens a file; null, with what was wrong, when it cannot be opened.
Isd OpenFile(const std::string& aPath, const OpenOptions& aOptions,
             std::vector<ORMO::SensorModel::CSM::Finding>& aFindings);

/// The same with the reason among the problems.
Isd OpenFile(const std::string& aPath, const OpenOptions& aOptions = {});

/// EXIT_FILE_HAS_ERRORS when errors were found on reading, as only salvage lets them pass, else EXIT_DONE.
int ExitCodeOf(const ORMO::SensorModel::CSM::ImageSupportDataNITF& aIsd);

inline std::vector<const ORMO::SensorModel::CSM::TREStore*> StoresOf(
    const ORMO::SensorModel::CSM::NITFFieldSegment& aSegment)
{
    return ORMO::SensorModel::CSM::NITFSegmentTREs::GetStores(aSegment);
}

/// The first error that names a segment, which is then not what it should be; null when there is none.
const ORMO::SensorModel::CSM::Finding* ErrorOf(const std::vector<ORMO::SensorModel::CSM::Finding>& aFindings,
                                               ORMO::SensorModel::CSM::NITFCnst::DataSegmentType aKind,
                                               std::size_t aIndex);

/// Writes one line to the problems, prefixed with the file name, without a control byte.
void PrintProblem(const std::string& aPath, const std::string& aText);

}  // namespace OrmoNitf
