#pragma once

#include "TSMImageSupportData.h"
#include "TSMMisc.h"

#include <string>

/// Image support data as plain bytes.
class TSM_EXPORT_API bytestreamISD : public tsm_ISD
{
public:
    bytestreamISD() { _format = "BYTESTREAM"; }

    /// Takes the whole file, byte for byte. Throws TSMError: FILE_READ for a file that cannot be read, MEMORY when
    /// it does not fit. Other base libraries of this generation declare this constructor without defining it.
    bytestreamISD(std::string filename);

    std::string _isd;
};
