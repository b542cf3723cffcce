#include "segments/fileheader/detail/FileHeaderReader.h"

#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "segments/fileheader/NITF20FileHeader.h"
#include "segments/fileheader/NITF21FileHeader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

// One read covers the header of nearly every file.
constexpr std::uint64_t FIRST_READ = 4096;
constexpr std::string_view NO_HEADER = "ERROR: Failed to retrieve the NITF file header from the input file.";

// The data of a STREAMING_FILE_HEADER DES: length, mark, header, mark, length; they close the file.
constexpr std::string_view FIRST_MARK("\x0A\x6E\x1D\x97", 4);
constexpr std::string_view SECOND_MARK("\x0E\xCA\x14\xBF", 4);
constexpr std::uint64_t LENGTH_DIGITS = 7;
constexpr std::size_t HEADER_LENGTH_DIGITS = 6;
constexpr std::uint64_t FRAME = 2 * (LENGTH_DIGITS + 4);

std::string Place(std::string_view aField, std::uint64_t aOffset, const std::string& aWhat)
{
    return "[NITFFileHeader field " + std::string(aField) + " at byte offset " + std::to_string(aOffset) + ": " +
           aWhat + "]";
}

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

/// `aLengthAt` is the offset of HL, which the replacement may state anew.
void UseStreamedHeader(const ByteSource& aSource, std::size_t aLengthAt, RawFileHeader& aOut)
{
    std::string reason;
    const std::string streamed = StreamedHeader(aSource, reason);
    if (streamed.empty()) {
        aOut.hint = "WARN: FL is all nines, so the file was written as a stream, but " + reason + ".";
        return;
    }
    std::uint64_t length = 0;
    std::string bytes;
    if (streamed.size() >= aLengthAt + HEADER_LENGTH_DIGITS &&
        ToCount(std::string_view(streamed).substr(aLengthAt, HEADER_LENGTH_DIGITS), length) &&
        length != aOut.bytes.size() && aSource.Read(0, length, bytes)) {
        aOut.bytes = std::move(bytes);
    }
    const std::size_t replaced = std::min(streamed.size(), aOut.bytes.size());
    aOut.bytes.replace(0, replaced, streamed, 0, replaced);
    aOut.streaming = true;
    aOut.warnings = "WARN: The file was written as a stream: the STREAMING_FILE_HEADER at its end (" +
                    std::to_string(streamed.size()) + " byte(s)) is read in place of the first header.";
}

}  // namespace

bool ReadRawFileHeader(const ByteSource& aSource, NITFCnst::Version aVersion, RawFileHeader& aOut, std::string& aErrors)
{
    const auto fail = [&aErrors](const std::string& aPlace) {
        AppendBlock(aErrors, std::string(NO_HEADER) + "\n" + aPlace);
        return false;
    };
    if (!aSource.ReadUpTo(0, FIRST_READ, aOut.bytes)) {
        return fail("[the file cannot be read]");
    }
    FieldStore probe(aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? NITF20FileHeader::Table()
                                                                  : NITF21FileHeader::Table());
    const WalkResult walked = FieldWalk::Read(aOut.bytes, probe);
    std::string missing;
    if (walked.fault == Fault::Short || walked.fault == Fault::CountBeyondData) {
        std::string name;
        probe.Table().AppendName(walked.row, walked.turns, name);
        const std::string wanted = std::to_string(walked.wanted) + " byte(s)";
        missing = Place(name, walked.offset,
                        (walked.fault == Fault::Short ? wanted + " needed"
                                                      : "value " + Shown(walked.value) + " promises " + wanted) +
                            ", the file ends at " + std::to_string(aSource.Size()));
    }
    const FieldEntry* const entry = probe.Find("HL");
    if (entry == nullptr) {
        return fail(missing);
    }
    std::uint64_t length = 0;
    const std::string_view text = probe.Value(*entry);
    if (!ToCount(text, length) || length <= MOST_BYTES_REFUSED) {
        return fail(Place("HL", probe.Position(*entry), "value " + Shown(text) + " is no possible header length"));
    }
    if (length > aSource.Size()) {
        return fail(!missing.empty() && aSource.Size() <= FIRST_READ
                        ? missing
                        : Place("HL", probe.Position(*entry),
                                "value " + Shown(text) + " is beyond the end of the file at " +
                                    std::to_string(aSource.Size())));
    }
    const std::uint64_t lengthAt = probe.Position(*entry);
    bool found = false;
    const std::string fileLength(probe.Find("FL", found));
    if (length <= aOut.bytes.size()) {
        aOut.bytes.resize(static_cast<std::size_t>(length));
    } else if (!aSource.Read(0, length, aOut.bytes)) {
        return fail("[the file cannot be read]");
    }
    if (found && aVersion != NITFCnst::NITF_VERSION_NUMBER_20 && fileLength == NITFCnst::STR_VAL_999999999999) {
        UseStreamedHeader(aSource, static_cast<std::size_t>(lengthAt), aOut);
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail
