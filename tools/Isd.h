#pragma once

#include "isd/ImageSupportDataNITF.h"

#include <memory>
#include <string>

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

/// Opens a file; null, with the reason on standard error, when it cannot be opened.
Isd OpenFile(const std::string& aPath, bool aImagesOnly = false);

/// Writes one line to standard error, prefixed with the file name, without a control byte.
void PrintProblem(const std::string& aPath, const std::string& aText);

}  // namespace OrmoNitf
