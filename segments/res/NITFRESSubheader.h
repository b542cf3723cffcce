#pragma once

#include "../NITFDataSegment.h"

#include <cstddef>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {

/// The subheader of one reserved extension segment. NITF20RESSubheader reads the layout that readers of NITF 2.0 files
/// agree on, NITF21RESSubheader MIL-STD-2500C (table A-9), which also serves NSIF 1.0.
class ORMO_CSM_API NITFRESSubheader : public NITFDataSegment
{
public:
    ~NITFRESSubheader() override;

    /// RESID without the blanks around it.
    std::string GetRESTypeID() const;
    /// RESDATA, read when first asked for; it belongs to the segment. False, with the reason appended to `aErrors` when
    /// that is given, when it is not all in the file.
    bool GetRESDATA(const char*& aData, std::size_t& aLength, std::string* aErrors = nullptr) const
    {
        return GetData(aData, aLength, aErrors);
    }

protected:
    NITFRESSubheader(const char* aVersionText, const Detail::FieldTable& aTable);
    NITFRESSubheader(const NITFRESSubheader& aOther);

    using NITFDataSegment::operator=;
    std::string FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const override;
    const char* KindWord() const noexcept override { return "RES"; }
    void AppendDataElements(std::string& aXml) const override;

    void InitNITFRES(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                     std::shared_ptr<const Detail::ByteSource> aSource, const char* aReader);
};

}  // namespace ORMO::SensorModel::CSM
