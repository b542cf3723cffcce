#pragma once

#include "fields/ByteSource.h"
#include "fields/FieldRow.h"
#include "fields/FindingList.h"
#include "nitf/NITFCnst.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// A file header of no more bytes is refused.
constexpr std::uint64_t MOST_BYTES_REFUSED = 39;
/// One read covers the header of nearly every file.
constexpr std::uint64_t FIRST_READ = 4096;
inline constexpr const char* NO_HEADER = "ERROR: Failed to retrieve the NITF file header from the input file.";

// Where the two lengths stand in both versions. A downgrading event of NITF 2.0 moves them.
constexpr std::uint64_t FILE_LENGTH_AT = 342;
constexpr std::uint64_t HEADER_LENGTH_AT = 354;
constexpr std::uint64_t DOWNGRADE_AT = 280;
constexpr std::uint64_t DOWNGRADING_EVENT_WIDTH = 40;

/// Bytes of the fixed fields before the one of the tag, conditions left out: what the tables say of these places.
template<std::size_t N>
constexpr std::uint64_t WidthBefore(const FieldRow (&aRows)[N], std::string_view aTag)
{
    std::uint64_t width = 0;
    std::size_t conditions = 0;
    for (const FieldRow& row : aRows) {
        if (row.IsField() && aTag == row.tag) {
            break;
        }
        conditions += row.IsGroup() ? 1U : 0U;
        conditions -= row.kind == RowKind::End ? 1U : 0U;
        width += conditions == 0 ? row.width : 0U;
    }
    return width;
}

/// The bytes of a file header as they are to be read.
struct RawFileHeader
{
    std::string bytes;
    bool streaming = false;  ///< put together with the replacement of a STREAMING_FILE_HEADER DES
};

/// Takes as many bytes as HL says, from `aFirst`, the first bytes of the file, when they suffice. When FL says that the
/// file was written as a stream (MIL-STD-2500C, 5.8.3.2), the replacement header at the end of the file is checked and
/// takes the place of the first bytes. An HL that cannot be gives what there is of a header: whoever reads it says
/// which field is missing.
RawFileHeader ReadRawFileHeader(const ByteSource& aSource, std::string aFirst, NITFCnst::Version aVersion,
                                FindingList& aFindings);

}  // namespace ORMO::SensorModel::CSM::Detail
