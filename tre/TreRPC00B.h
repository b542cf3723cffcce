#pragma once

#include "TreRPC00.h"
#include "tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

// Also the typed form of RPC00A, whose fields are the same; the tag tells which one an object is.
ORMO_TYPED_TRE(TreRPC00B, TreRPC00);

}  // namespace ORMO::SensorModel::CSM
