#pragma once

#include "fields/FieldRecord.h"
#include "foundation/detail/Lazy.h"
#include "segments/des/DesFieldSet.h"

#include <string>
#include <vector>

/// All that a DES type holds. Who asks of its fields inside the library works on this.
struct ORMO_CSM_LOCAL ORMO::SensorModel::CSM::DesFieldSet::Parts
{
    struct Names
    {
        std::vector<std::string> texts;
        std::vector<const char*> pointers;
    };

    std::string type = "UNKNOWN";
    std::string data;
    Detail::FieldRecord fields;
    Detail::Lazy<Names> names;

    static const Parts& Of(const DesFieldSet& aSet) noexcept { return *aSet.m_parts; }
};
