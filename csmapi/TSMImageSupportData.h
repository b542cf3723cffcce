#pragma once

#include "TSMMisc.h"

#include <string>

/// Root of all image support data. Its format text tells which subclass an object is: clients choose by the text
/// and then cast, so a subclass takes one of the four texts below only if it is that class.
class TSM_EXPORT_API tsm_ISD
{
public:
    tsm_ISD() : _format("UNKNOWN") {}
    tsm_ISD(const tsm_ISD&) = default;
    tsm_ISD& operator=(const tsm_ISD&) = default;
    virtual ~tsm_ISD() {}

    void getFormat(std::string& format) const { format = _format; }

protected:
    /// Set by the constructors of subclasses.
    std::string _format;
};
