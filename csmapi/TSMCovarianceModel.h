#pragma once

#include "TSMMisc.h"

#include <string>

/// Root of the covariance models that a sensor model may hand out; subclasses set the format text.
class TSM_EXPORT_API tsm_CovarianceModel
{
public:
    tsm_CovarianceModel() : _format("UNKNOWN") {}
    tsm_CovarianceModel(const tsm_CovarianceModel&) = default;
    tsm_CovarianceModel& operator=(const tsm_CovarianceModel&) = default;
    virtual ~tsm_CovarianceModel() {}

    void getFormat(std::string& format) const { format = _format; }

protected:
    std::string _format;
};
