#pragma once

#include "isd/ImageSupportDataNITF.h"
#include "isd/WrapperCSMIsdNITF.h"

#include <memory>

namespace ORMO::SensorModel::CSM::Detail {

class ByteSource;
class FindingList;

/// The parts of a wrapped ISD, copied to where the tables of its file header place them; there is nothing between them.
/// Null, with an error for each part that does not fit its place, when they do not make one file.
std::shared_ptr<const ByteSource> SourceOfWrapped(const WrapperCSMIsdNITF& aIsd, const NITFStdDataSegmentInfos& aInfos,
                                                  FindingList& aFindings);

/// Adds the TREs that stand in the records of a wrapped ISD and neither in the header that they belong to nor in an
/// overflow DES: a host may have put them there.
void AddTresOfRecords(const WrapperCSMIsdNITF& aIsd, ImageSupportDataNITF::Parts& aParts, FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
