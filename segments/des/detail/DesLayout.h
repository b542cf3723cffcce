#pragma once

#include "fields/FieldTable.h"
#include "segments/des/DesFieldSet.h"

/// All that is known of the subheader fields or the data of one DES type.
struct ORMO_CSM_LOCAL ORMO::SensorModel::CSM::DesFieldSet::Layout
{
    const char* type;     ///< the identifier: DESID or DESTAG without blanks
    const char* name;     ///< long name
    const char* lengths;  ///< the lengths in bytes that the type can have, for messages
    const char* owner;    ///< the class that reads it, for messages
    Detail::FieldTable table;
    const char* misfit = "";   ///< stands before the text of bytes that do not fit
    const char* leading = "";  ///< a required field whose lack has a text of its own
};
