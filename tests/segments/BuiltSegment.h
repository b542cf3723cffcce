#pragma once

#include "fields/ByteSource.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {

/// The one segment of a built file, read by its subheader class alone. The file may be cut short, so that the data are
/// not all there.
template<typename Subheader>
class BuiltSegment
{
public:
    BuiltSegment(const NitfBuilder& aBuilder, NITFCnst::Version aVersion, std::size_t aMissingBytes = 0,
                 bool aSpecificOnly = false)
    {
        const SegmentBytes& segment = *aBuilder.Segments().front();
        const std::string bytes = aBuilder.Bytes();
        const std::string header = segment.header.Bytes();
        const std::size_t start = aBuilder.Header().size();
        m_info.SetSegmentType(segment.type.c_str(), aVersion);
        m_info.SetSegmentHeaderStart(start);
        m_info.SetSegmentHeaderSize(static_cast<std::uint32_t>(header.size()));
        m_info.SetSegmentDataStart(start + header.size());
        m_info.SetSegmentDataSize(segment.data.size());
        m_file.Write(bytes.substr(0, bytes.size() - aMissingBytes));
        std::string reason;
        m_source = Detail::ByteSource::Open(m_file.Path(), reason);
        m_header = std::make_unique<Subheader>(
            header.data(), static_cast<long>(header.size()), m_info,
            aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? NITFCnst::STR_NITF_0200 : "NITF02.10", m_source,
            Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, aSpecificOnly);
    }

    Subheader* operator->() const { return m_header.get(); }
    Subheader& operator*() const { return *m_header; }
    const NITFStdDataSegmentInfo& Info() const { return m_info; }
    const std::shared_ptr<const Detail::ByteSource>& Source() const { return m_source; }

private:
    TempFile m_file;
    NITFStdDataSegmentInfo m_info;
    std::shared_ptr<const Detail::ByteSource> m_source;
    std::unique_ptr<Subheader> m_header;
};

}  // namespace ORMO::SensorModel::CSM::Tests
