#include "isd/detail/CsmRecords.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t TAG_LENGTH = sizeof(::tre::name) - 1;

template<typename Length>
bool Fits(std::string_view aBytes) noexcept
{
    return aBytes.size() <= static_cast<std::size_t>(std::numeric_limits<Length>::max());
}

/// The bytes with a NUL behind them, which no length counts.
std::unique_ptr<char[]> WithNul(std::string_view aBytes)
{
    auto copy = std::make_unique<char[]>(aBytes.size() + 1);
    std::copy(aBytes.begin(), aBytes.end(), copy.get());
    return copy;
}

/// A new array of records, each filled from its counterpart.
template<typename Record, typename Fill>
std::unique_ptr<Record[]> Copied(const Record* aRecords, int aCount, Fill aFill)
{
    const std::size_t count = CountOf(aRecords, aCount);
    std::unique_ptr<Record[]> copies;
    if (count != 0) {
        // The CSM API releases its arrays by `delete[]`.
        copies.reset(new Record[count]);
        for (std::size_t i = 0; i != count; ++i) {
            aFill(copies[i], aRecords[i]);
        }
    }
    return copies;
}

}  // namespace

std::string_view TagOf(const ::tre& aTre) noexcept
{
    const char* const end = std::find(std::begin(aTre.name), std::end(aTre.name), '\0');
    return {aTre.name, static_cast<std::size_t>(end - aTre.name)};
}

bool FillTre(::tre& aTre, std::string_view aTag, std::string_view aData)
{
    if (!Fits<decltype(aTre.length)>(aData)) {
        return false;
    }
    aTre.record = WithNul(aData).release();
    aTre.length = static_cast<int>(aData.size());
    const std::string_view tag = aTag.substr(0, TAG_LENGTH);
    std::fill_n(std::copy(tag.begin(), tag.end(), aTre.name), TAG_LENGTH - tag.size(), ' ');
    aTre.name[TAG_LENGTH] = '\0';
    return true;
}

bool FillDes(::des& aDes, std::string_view aSubheader, std::string_view aData)
{
    if (!Fits<decltype(aDes.desShLength)>(aSubheader) || !Fits<decltype(aDes.desDataLength)>(aData)) {
        return false;
    }
    auto data = WithNul(aData);
    aDes.desSh = WithNul(aSubheader).release();
    aDes.desShLength = static_cast<int>(aSubheader.size());
    aDes.desData = data.release();
    aDes.desDataLength = static_cast<long>(aData.size());
    return true;
}

std::unique_ptr<tsm_ISD> NewNitfIsd(NITFCnst::Version aVersion)
{
    if (aVersion == NITFCnst::NITF_VERSION_NUMBER_20) {
        return std::make_unique<NITF_2_0_ISD>();
    }
    return std::make_unique<NITF_2_1_ISD>();
}

std::unique_ptr<::tre[]> CopyTres(const ::tre* aTres, int aCount)
{
    return Copied(aTres, aCount, [](::tre& aCopy, const ::tre& aSource) {
        static_cast<void>(FillTre(aCopy, TagOf(aSource), BytesOf(aSource.record, aSource.length)));
        // The name as it was, also one that is no whole tag.
        std::copy(std::begin(aSource.name), std::end(aSource.name), aCopy.name);
    });
}

std::unique_ptr<::des[]> CopyDess(const ::des* aDess, int aCount)
{
    return Copied(aDess, aCount, [](::des& aCopy, const ::des& aSource) {
        static_cast<void>(FillDes(aCopy, BytesOf(aSource.desSh, aSource.desShLength),
                                  BytesOf(aSource.desData, aSource.desDataLength)));
    });
}

std::unique_ptr<::image[]> CopyImages(const ::image* aImages, int aCount)
{
    return Copied(aImages, aCount, [](::image& aCopy, const ::image& aSource) {
        aCopy.imageSubHeader = aSource.imageSubHeader;
        aCopy.imageTREs = CopyTres(aSource.imageTREs, aSource.numTREs).release();
        aCopy.numTREs = aCopy.imageTREs == nullptr ? 0 : aSource.numTREs;
    });
}

}  // namespace ORMO::SensorModel::CSM::Detail
