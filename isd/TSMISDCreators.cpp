#include "isd/TSMISDCreators.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilFile.h"

#include <memory>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

void CheckArguments(const char* aPath, tsm_ISD** aTsmISD, const char* aSource)
{
    if (aTsmISD == nullptr) {
        throw std::invalid_argument("Input argument \"aTsmISD\" cannot be NULL.");
    }
    if (aPath == nullptr || !Util::CSMUtilFile::FileExists(aPath)) {
        throw FileAccessException("Input file name is NULL or the file doesn't exist.", aSource);
    }
}

}  // namespace

void TSMISDCreatorFileName::Create(const char* aPath, tsm_ISD** aTsmISD)
{
    CheckArguments(aPath, aTsmISD, "TSMISDCreatorFileName::Create");
    // The class has no constructor from a name.
    auto isd = std::make_unique<filenameISD>();
    isd->_filename = aPath;
    *aTsmISD = isd.release();
}

void TSMISDCreatorByteStream::Create(const char* aPath, tsm_ISD** aTsmISD)
{
    CheckArguments(aPath, aTsmISD, "TSMISDCreatorByteStream::Create");
}

void TSMISDCreatorNITF20::Create(const char* aPath, tsm_ISD** aTsmISD)
{
    CheckArguments(aPath, aTsmISD, "TSMISDCreatorNITF20::Create");
}

void TSMISDCreatorNITF21::Create(const char* aPath, tsm_ISD** aTsmISD)
{
    CheckArguments(aPath, aTsmISD, "TSMISDCreatorNITF21::Create");
}

void TSMISDCreatorOrmoTSMISD::Create(const char* aPath, tsm_ISD** aTsmISD)
{
    CheckArguments(aPath, aTsmISD, "TSMISDCreatorOrmoTSMISD::Create");
}

}  // namespace ORMO::SensorModel::CSM
