#pragma once

#include "foundation/CSMApi.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// One sensor model as its plug-in announces it.
struct OfferedModel
{
    std::string name;
    std::string version;  ///< Empty when the plug-in does not tell it.
};

/// The plug-ins in the list of the CSM API, in order of registration.
std::vector<const TSMPlugin*> RegisteredPlugins();

/// The models that a plug-in announces; one that it cannot name is left out.
std::vector<OfferedModel> ModelsOf(const TSMPlugin& aPlugin);

/// The file of the library that a plug-in's code stands in; empty when the system does not tell it.
std::string LibraryOf(const TSMPlugin& aPlugin);

}  // namespace ORMO::SensorModel::CSM::Detail
