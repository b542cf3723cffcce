#pragma once

#include "TSMImageSupportData.h"
#include "TSMMisc.h"

#include <string>

// The records own what their pointers name, which comes from array new, and their copies are deep. Base libraries
// of this generation differ in both: code that has to build against any of them copies records by hand and never
// clears one that will be destroyed.

/// A data extension segment: subheader and data, each with a NUL appended that its length does not count.
class TSM_EXPORT_API des
{
public:
    des();
    des(const des& aOther);
    des& operator=(const des& aOther);
    ~des();

    /// Replaces both parts by copies. A null part or a negative length counts as length 0.
    void setDES(int des_sh_length, char* des_sh, int des_data_length, char* des_data);
    void clear();

    int desShLength;
    char* desSh;
    long desDataLength;
    char* desData;
};

/// A tagged record extension.
class TSM_EXPORT_API tre
{
public:
    tre();
    tre(const tre& aOther);
    tre& operator=(const tre& aOther);
    ~tre();

    /// Replaces the record by a copy of `tre_text`: tag (6 characters), length (5 digits) and that many bytes of data.
    /// A length that is not a number counts as 0. NUL bytes inside the data survive.
    void setTRE(char* tre_text);
    void clear();

    /// The data after tag and length, with a NUL appended that `length` does not count.
    char* record;
    /// The tag with its blanks, and a NUL.
    char name[7];
    int length;
};

/// An image segment: its subheader and the TREs of its two extension areas.
class TSM_EXPORT_API image
{
public:
    image();
    image(const image& aOther);
    image& operator=(const image& aOther);
    ~image();

    std::string imageSubHeader;
    tre* imageTREs;
    int numTREs;
};

/// A NITF 2.0 file without its pixels. Clients walk NITF_2_1_ISD objects through this class: both keep the same
/// fields in the same order.
class TSM_EXPORT_API NITF_2_0_ISD : public tsm_ISD
{
public:
    NITF_2_0_ISD();
    NITF_2_0_ISD(const NITF_2_0_ISD& aOther);
    NITF_2_0_ISD& operator=(const NITF_2_0_ISD& aOther);
    ~NITF_2_0_ISD();

    std::string fileHeader;
    int numTREs;
    tre* fileTREs;
    int numDESs;
    des* fileDESs;
    int numImages;
    image* images;
};
