#pragma once

#include "TSMISDNITF20.h"
#include "TSMImageSupportData.h"
#include "TSMMisc.h"

#include <string>

/// A NITF 2.1 or NSIF 1.0 file without its pixels, laid out as NITF_2_0_ISD is.
class TSM_EXPORT_API NITF_2_1_ISD : public tsm_ISD
{
public:
    NITF_2_1_ISD();
    NITF_2_1_ISD(const NITF_2_1_ISD& aOther);
    NITF_2_1_ISD& operator=(const NITF_2_1_ISD& aOther);
    ~NITF_2_1_ISD();

    std::string fileHeader;
    int numTREs;
    tre* fileTREs;
    int numDESs;
    des* fileDESs;
    int numImages;
    image* images;
};
