#include "tre/detail/TreMaker.h"

namespace ORMO::SensorModel::CSM::Detail {

void TreMaker::SetIdentity(TRE& aTre, const char* aTag, std::int32_t aCode, SupportedTreFactory::Enum aGroup)
{
    if (aTre.m_tag != aTag) {  // a tag that is read through another tag's class keeps its own name
        std::size_t length = 0;
        const char* const data = aTre.GetRawTREDataString(length);
        aTre.m_tag = aTag;
        aTre.m_text = aTre.Compose(data, length);
    }
    aTre.m_tagCode = aCode;
    aTre.m_groupCode = aGroup;
}

void TreMaker::SetPlace(TRE& aTre, const char* aArea, std::uint64_t aFileOffset) noexcept
{
    aTre.m_area = aArea;
    aTre.m_fileOffset = aFileOffset;
}

std::unique_ptr<TRE> TreMaker::MakeGeneric(const char* aTag, const char* aData, std::size_t aLength, TRE::Type aType)
{
    return std::unique_ptr<TRE>(new TRE(aTag, aData, aLength, aType));
}

std::unique_ptr<TRE> TreMaker::CloneGeneric(const TRE& aSource)
{
    return std::unique_ptr<TRE>(new TRE(aSource));
}

}  // namespace ORMO::SensorModel::CSM::Detail
