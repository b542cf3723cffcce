#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace {

const std::size_t TAG_LENGTH = 6;
const std::size_t LENGTH_DIGITS = 5;

/// Clients fill the records by hand: a count means something only when it is positive and has an array to count.
std::size_t Count(const void* aItems, long aCount)
{
    return aItems == nullptr || aCount < 0 ? 0 : static_cast<std::size_t>(aCount);
}

/// A copy with a NUL appended, for any length but of a null pointer: that stays null.
std::unique_ptr<char[]> CopyBytes(const char* aBytes, std::size_t aLength)
{
    std::unique_ptr<char[]> copy;
    if (aBytes != nullptr) {
        copy.reset(new char[aLength + 1]);
        std::copy_n(aBytes, aLength, copy.get());
        copy[aLength] = '\0';
    }
    return copy;
}

template<typename Record>
std::unique_ptr<Record[]> CopyRecords(const Record* aRecords, int aCount)
{
    std::unique_ptr<Record[]> copy;
    if (aRecords != nullptr) {
        const std::size_t count = Count(aRecords, aCount);
        copy.reset(new Record[count]);
        std::copy_n(aRecords, count, copy.get());
    }
    return copy;
}

/// Five digits as a number, 0 for anything else; reads no further than the first character that is no digit.
int ParseLength(const char* aDigits)
{
    int length = 0;
    for (std::size_t i = 0; i != LENGTH_DIGITS; ++i) {
        if (aDigits[i] < '0' || aDigits[i] > '9') {
            return 0;
        }
        length = length * 10 + (aDigits[i] - '0');
    }
    return length;
}

template<typename Isd>
void InitNitf(Isd& aIsd)
{
    aIsd.numTREs = 0;
    aIsd.fileTREs = nullptr;
    aIsd.numDESs = 0;
    aIsd.fileDESs = nullptr;
    aIsd.numImages = 0;
    aIsd.images = nullptr;
}

template<typename Isd>
void ReleaseNitf(Isd& aIsd)
{
    delete[] aIsd.fileTREs;
    delete[] aIsd.fileDESs;
    delete[] aIsd.images;
}

/// All copies are made before anything is released, so that a failed copy leaves the target as it was.
template<typename Isd>
void CopyNitf(const Isd& aFrom, Isd& aTo)
{
    std::string header = aFrom.fileHeader;
    std::unique_ptr<tre[]> tres = CopyRecords(aFrom.fileTREs, aFrom.numTREs);
    std::unique_ptr<des[]> dess = CopyRecords(aFrom.fileDESs, aFrom.numDESs);
    std::unique_ptr<image[]> images = CopyRecords(aFrom.images, aFrom.numImages);
    ReleaseNitf(aTo);
    aTo.fileHeader.swap(header);
    aTo.numTREs = aFrom.numTREs;
    aTo.fileTREs = tres.release();
    aTo.numDESs = aFrom.numDESs;
    aTo.fileDESs = dess.release();
    aTo.numImages = aFrom.numImages;
    aTo.images = images.release();
}

}  // namespace

des::des() : desShLength(0), desSh(nullptr), desDataLength(0), desData(nullptr) {}

des::des(const des& aOther) : des()
{
    *this = aOther;
}

des& des::operator=(const des& aOther)
{
    if (this != &aOther) {
        std::unique_ptr<char[]> header = CopyBytes(aOther.desSh, Count(aOther.desSh, aOther.desShLength));
        std::unique_ptr<char[]> data = CopyBytes(aOther.desData, Count(aOther.desData, aOther.desDataLength));
        clear();
        desShLength = aOther.desShLength;
        desSh = header.release();
        desDataLength = aOther.desDataLength;
        desData = data.release();
    }
    return *this;
}

des::~des()
{
    clear();
}

void des::setDES(int des_sh_length, char* des_sh, int des_data_length, char* des_data)
{
    const std::size_t headerLength = Count(des_sh, des_sh_length);
    const std::size_t dataLength = Count(des_data, des_data_length);
    std::unique_ptr<char[]> header = CopyBytes(des_sh == nullptr ? "" : des_sh, headerLength);
    std::unique_ptr<char[]> data = CopyBytes(des_data == nullptr ? "" : des_data, dataLength);
    clear();
    desShLength = static_cast<int>(headerLength);
    desSh = header.release();
    desDataLength = static_cast<long>(dataLength);
    desData = data.release();
}

void des::clear()
{
    delete[] desSh;
    delete[] desData;
    desShLength = 0;
    desSh = nullptr;
    desDataLength = 0;
    desData = nullptr;
}

tre::tre() : record(nullptr), name(), length(0) {}

tre::tre(const tre& aOther) : tre()
{
    *this = aOther;
}

tre& tre::operator=(const tre& aOther)
{
    if (this != &aOther) {
        std::unique_ptr<char[]> copy = CopyBytes(aOther.record, Count(aOther.record, aOther.length));
        clear();
        record = copy.release();
        std::copy(aOther.name, aOther.name + sizeof name, name);
        length = aOther.length;
    }
    return *this;
}

tre::~tre()
{
    clear();
}

void tre::setTRE(char* tre_text)
{
    char tag[sizeof name] = {};
    std::size_t tagLength = 0;
    while (tre_text != nullptr && tagLength != TAG_LENGTH && tre_text[tagLength] != '\0') {
        tag[tagLength] = tre_text[tagLength];
        ++tagLength;
    }
    // A text that ends inside its tag has neither length nor data, and nothing behind its end is looked at.
    const bool complete = tagLength == TAG_LENGTH;
    const int dataLength = complete ? ParseLength(tre_text + TAG_LENGTH) : 0;
    const char* const data = dataLength == 0 ? "" : tre_text + TAG_LENGTH + LENGTH_DIGITS;
    std::unique_ptr<char[]> copy = CopyBytes(data, static_cast<std::size_t>(dataLength));
    clear();
    record = copy.release();
    std::copy(tag, tag + sizeof tag, name);
    length = dataLength;
}

void tre::clear()
{
    delete[] record;
    record = nullptr;
    name[0] = '\0';
    length = 0;
}

image::image() : imageTREs(nullptr), numTREs(0) {}

image::image(const image& aOther) : image()
{
    *this = aOther;
}

image& image::operator=(const image& aOther)
{
    if (this != &aOther) {
        std::string header = aOther.imageSubHeader;
        std::unique_ptr<tre[]> tres = CopyRecords(aOther.imageTREs, aOther.numTREs);
        delete[] imageTREs;
        imageSubHeader.swap(header);
        imageTREs = tres.release();
        numTREs = aOther.numTREs;
    }
    return *this;
}

image::~image()
{
    delete[] imageTREs;
}

NITF_2_0_ISD::NITF_2_0_ISD()
{
    _format = "NITF2.0";
    InitNitf(*this);
}

NITF_2_0_ISD::NITF_2_0_ISD(const NITF_2_0_ISD& aOther) : tsm_ISD(aOther)
{
    InitNitf(*this);
    CopyNitf(aOther, *this);
}

NITF_2_0_ISD& NITF_2_0_ISD::operator=(const NITF_2_0_ISD& aOther)
{
    if (this != &aOther) {
        CopyNitf(aOther, *this);
        tsm_ISD::operator=(aOther);
    }
    return *this;
}

NITF_2_0_ISD::~NITF_2_0_ISD()
{
    ReleaseNitf(*this);
}

NITF_2_1_ISD::NITF_2_1_ISD()
{
    _format = "NITF2.1";
    InitNitf(*this);
}

NITF_2_1_ISD::NITF_2_1_ISD(const NITF_2_1_ISD& aOther) : tsm_ISD(aOther)
{
    InitNitf(*this);
    CopyNitf(aOther, *this);
}

NITF_2_1_ISD& NITF_2_1_ISD::operator=(const NITF_2_1_ISD& aOther)
{
    if (this != &aOther) {
        CopyNitf(aOther, *this);
        tsm_ISD::operator=(aOther);
    }
    return *this;
}

NITF_2_1_ISD::~NITF_2_1_ISD()
{
    ReleaseNitf(*this);
}
