#include "segments/fileheader/detail/FileHeaderReader.h"

#include "fields/MessageText.h"
#include "fields/Number.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

// The data of a STREAMING_FILE_HEADER DES: length, mark, header, mark, length; they close the file.
constexpr std::string_view FIRST_MARK("\x0A\x6E\x1D\x97", 4);
constexpr std::string_view SECOND_MARK("\x0E\xCA\x14\xBF", 4);
constexpr std::uint64_t LENGTH_DIGITS = 7;
constexpr std::size_t HEADER_LENGTH_DIGITS = 6;
constexpr std::uint64_t FRAME = 2 * (LENGTH_DIGITS + 4);

/// The replacement header, or an empty text with the reason.
std::string StreamedHeader(const ByteSource& aSource, std::string& aReason)
{
    std::string tail;
    std::uint64_t length = 0;
    const std::uint64_t size = aSource.Size();
    if (size < FRAME || !aSource.Read(size - LENGTH_DIGITS, LENGTH_DIGITS, tail) || !ToCount(tail, length) ||
        tail.find(' ') != std::string::npos || length == 0 || !aSource.Holds(0, length + FRAME) ||
        !aSource.Read(size - length - FRAME, length + FRAME, tail)) {
        aReason = "no STREAMING_FILE_HEADER stands at the end of the file";
        return {};
    }
    const std::string_view frame(tail);
    const std::string_view firstLength = frame.substr(0, LENGTH_DIGITS);
    const std::string_view lastLength = frame.substr(frame.size() - LENGTH_DIGITS);
    if (frame.substr(LENGTH_DIGITS + 4 + length, 4) != SECOND_MARK || frame.substr(LENGTH_DIGITS, 4) != FIRST_MARK) {
        aReason = "no STREAMING_FILE_HEADER stands at the end of the file";
        return {};
    }
    if (firstLength != lastLength) {
        aReason =
            "the two lengths of the STREAMING_FILE_HEADER differ: " + Shown(firstLength) + ", " + Shown(lastLength);
        return {};
    }
    return std::string(frame.substr(LENGTH_DIGITS + 4, length));
}

/// The text of a fixed place; empty when it is not there.
std::string_view At(std::string_view aBytes, std::uint64_t aOffset, std::size_t aWidth) noexcept
{
    return aBytes.size() < aOffset + aWidth ? std::string_view{}
                                            : aBytes.substr(static_cast<std::size_t>(aOffset), aWidth);
}

void UseStreamedHeader(const ByteSource& aSource, RawFileHeader& aOut, FindingList& aFindings)
{
    std::string reason;
    const std::string streamed = StreamedHeader(aSource, reason);
    if (streamed.empty()) {
        aFindings.Add(
            MakeFinding("WARN: FL is all nines, so the file was written as a stream, but " + reason + ".", "SF-01"));
        return;
    }
    std::uint64_t length = 0;
    std::string bytes;
    if (ToCount(At(streamed, HEADER_LENGTH_AT, HEADER_LENGTH_DIGITS), length) && length != aOut.bytes.size() &&
        aSource.Read(0, length, bytes)) {
        aOut.bytes = std::move(bytes);
    }
    const std::size_t replaced = std::min(streamed.size(), aOut.bytes.size());
    aOut.bytes.replace(0, replaced, streamed, 0, replaced);
    aOut.streaming = true;
    aFindings.Add(MakeFinding("WARN: The file was written as a stream: the STREAMING_FILE_HEADER at its end (" +
                                  std::to_string(streamed.size()) + " byte(s)) is read in place of the first header.",
                              "RD-02"));
}

}  // namespace

RawFileHeader ReadRawFileHeader(const ByteSource& aSource, std::string aFirst, NITFCnst::Version aVersion,
                                FindingList& aFindings)
{
    const bool is20 = aVersion == NITFCnst::NITF_VERSION_NUMBER_20;
    const bool downgraded = is20 && At(aFirst, DOWNGRADE_AT, 6) == NITFCnst::STR_VAL_999998;
    const std::uint64_t lengthAt = HEADER_LENGTH_AT + (downgraded ? DOWNGRADING_EVENT_WIDTH : 0);
    RawFileHeader raw{std::move(aFirst), false};
    const std::string_view text = At(raw.bytes, lengthAt, HEADER_LENGTH_DIGITS);
    std::uint64_t length = 0;
    if (text.empty()) {
        return raw;
    }
    if (!ToCount(text, length) || length <= MOST_BYTES_REFUSED || length > aSource.Size()) {
        Finding finding = MakeFinding(NO_HEADER);
        finding.detail = length > aSource.Size() ? "is beyond the end of the file at " + std::to_string(aSource.Size())
                                                 : "is no possible header length";
        finding.owner = NITFCnst::XML_ELEMENT_NITF_FILE_HEADER;
        finding.segment = finding.owner;
        finding.field = "HL";
        finding.value = text;
        finding.offset = lengthAt;
        aFindings.Add(std::move(finding));
        return raw;
    }
    const bool streamed = !is20 && At(raw.bytes, FILE_LENGTH_AT, 12) == NITFCnst::STR_VAL_999999999999;
    std::string whole;
    if (length <= raw.bytes.size()) {
        raw.bytes.resize(static_cast<std::size_t>(length));
    } else if (aSource.Read(0, length, whole)) {
        raw.bytes = std::move(whole);
    }
    if (streamed) {
        UseStreamedHeader(aSource, raw, aFindings);
    }
    return raw;
}

}  // namespace ORMO::SensorModel::CSM::Detail
