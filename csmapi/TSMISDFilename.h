#pragma once

#include "TSMImageSupportData.h"
#include "TSMMisc.h"

#include <string>

/// Image support data that is only the name of the image file.
class TSM_EXPORT_API filenameISD : public tsm_ISD
{
public:
    filenameISD() { _format = "FILENAME"; }

    std::string _filename;
};
