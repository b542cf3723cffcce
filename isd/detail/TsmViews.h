#pragma once

#include "foundation/CSMApi.h"
#include "foundation/detail/Lazy.h"

#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// Names and versions of sensor models, kept for the arrays that are handed out.
struct ModelTexts
{
    std::vector<std::string> names;
    std::vector<std::string> versions;
    std::vector<const char*> nameTexts;
    std::vector<const char*> versionTexts;
};

/// The CSM API forms of an ISD, owned, and the array of them.
struct TsmForms
{
    std::vector<std::unique_ptr<tsm_ISD>> owned;
    std::vector<const tsm_ISD*> array;
};

/// What a NITF ISD keeps for the CSM side once it is asked for.
struct TsmViews
{
    Lazy<TsmForms> forms;
    std::mutex guard;  ///< Of `models`.
    /// One entry per different answer: plug-ins come and go, but what was handed out stays.
    std::list<ModelTexts> models;
};

}  // namespace ORMO::SensorModel::CSM::Detail
