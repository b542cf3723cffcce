#pragma once

#include "TypedTre.h"

// One class per typed tag, Tre<TAG>.
namespace ORMO::SensorModel::CSM {

#define ORMO_TYPED_TAG(aGroup, aTag, aCode, aType) ORMO_TYPED_TRE(Tre##aTag, TRE);
#include "TreTagList.h"

}  // namespace ORMO::SensorModel::CSM
