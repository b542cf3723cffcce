#pragma once

#include "foundation/CSMApi.h"
#include "nitf/NITFCnst.h"

#include <cstddef>
#include <memory>
#include <string_view>

// Filling and copying of the records of the CSM API. A record is written field by field, since its copy constructors
// and its clear are shallow or unsafe in some base libraries of this generation.
namespace ORMO::SensorModel::CSM::Detail {

/// How many records an array really has: none without an array, whatever the count says.
template<typename Record>
std::size_t CountOf(const Record* aRecords, long aCount) noexcept
{
    return aRecords == nullptr || aCount < 0 ? 0 : static_cast<std::size_t>(aCount);
}

/// The bytes of a record's part; empty when there is none.
inline std::string_view BytesOf(const char* aBytes, long aLength) noexcept
{
    return {aBytes, CountOf(aBytes, aLength)};
}

/// The tag of a record, without what is behind a NUL.
std::string_view TagOf(const ::tre& aTre) noexcept;

/// Fills a record that is new. The tag is filled up with blanks to six characters, or cut. False, with the record as it
/// was, when the data are longer than the record can say; throws std::bad_alloc.
bool FillTre(::tre& aTre, std::string_view aTag, std::string_view aData);
/// The same for a DES. Its data may be longer than the operation of the record's own takes.
bool FillDes(::des& aDes, std::string_view aSubheader, std::string_view aData);

/// An empty ISD of the class for a version of NITF; NSIF 1.0 goes as NITF 2.1.
std::unique_ptr<tsm_ISD> NewNitfIsd(NITFCnst::Version aVersion);

/// Deep copies of arrays of records; null for none.
std::unique_ptr<::tre[]> CopyTres(const ::tre* aTres, int aCount);
std::unique_ptr<::des[]> CopyDess(const ::des* aDess, int aCount);
std::unique_ptr<::image[]> CopyImages(const ::image* aImages, int aCount);

/// Makes a new, empty ISD a deep copy of another one.
template<typename NitfISD>
void CopyNitfIsd(const NitfISD& aFrom, NitfISD& aTo)
{
    aTo.fileHeader = aFrom.fileHeader;
    aTo.fileTREs = CopyTres(aFrom.fileTREs, aFrom.numTREs).release();
    aTo.numTREs = aTo.fileTREs == nullptr ? 0 : aFrom.numTREs;
    aTo.fileDESs = CopyDess(aFrom.fileDESs, aFrom.numDESs).release();
    aTo.numDESs = aTo.fileDESs == nullptr ? 0 : aFrom.numDESs;
    aTo.images = CopyImages(aFrom.images, aFrom.numImages).release();
    aTo.numImages = aTo.images == nullptr ? 0 : aFrom.numImages;
}

}  // namespace ORMO::SensorModel::CSM::Detail
