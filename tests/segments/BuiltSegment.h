#pragma once

#include "fields/ByteSource.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "segments/detail/SegmentLayout.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace ORMO::SensorModel::CSM::Tests {

/// A subheader read by its class alone, from bytes that stand where `aInfo` says.
template<typename Subheader>
std::unique_ptr<Subheader> ReadSegment(std::string aRaw, const NITFStdDataSegmentInfo& aInfo,
                                       std::shared_ptr<const Detail::ByteSource> aSource = nullptr,
                                       const char* aVersionText = "NITF02.10", bool aSpecificOnly = false)
{
    NITFFieldSegment::Input input;
    input.raw = std::move(aRaw);
    input.info = aInfo;
    input.versionText = aVersionText;
    input.source = std::move(aSource);
    input.specificOnly = aSpecificOnly;
    return std::make_unique<Subheader>(input);
}

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
        m_header = ReadSegment<Subheader>(
            header, m_info, m_source,
            aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? NITFCnst::STR_NITF_0200 : "NITF02.10", aSpecificOnly);
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
