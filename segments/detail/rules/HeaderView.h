#pragma once

#include "fields/FieldRecord.h"
#include "fields/Number.h"
#include "segments/NITFFieldSegment.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/detail/rules/Rule.h"
#include "tre/TRE.h"
#include "tre/TREStore.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The fields of an image that rules compare, as numbers and without padding.
struct ImageFacts
{
    std::uint64_t rows = 0;
    std::uint64_t columns = 0;
    std::uint64_t blocksPerRow = 0;
    std::uint64_t blocksPerColumn = 0;
    std::uint64_t blockColumns = 0;  ///< NPPBH as it stands, 0 included
    std::uint64_t blockRows = 0;     ///< NPPBV as it stands
    std::uint64_t bits = 0;          ///< NBPP
    std::uint64_t actualBits = 0;    ///< ABPP
    std::uint64_t bands = 0;
    std::string_view compression;  ///< IC
    std::string_view mode;         ///< IMODE
    std::string_view pixelType;    ///< PVTYPE
    std::string_view representation;
    std::string_view category{};
    /// Whether every number is one: else that alone is the fault, and there is nothing to compare.
    bool isReadable = false;

    bool IsUncompressed() const noexcept { return compression == "NC" || compression == "NM"; }
    bool IsMasked() const noexcept { return compression.find('M') != std::string_view::npos; }
    /// Whether IC is the code of that digit with or without mask: Is('3') for C3 and M3.
    bool Is(char aDigit) const noexcept
    {
        return compression.size() == 2 && compression[1] == aDigit && (compression[0] == 'C' || compression[0] == 'M');
    }
    bool IsDownsampled() const noexcept { return compression == "I1"; }
    bool IsJpeg() const noexcept { return Is('3') || Is('5') || IsDownsampled(); }
    bool IsJpeg2000() const noexcept { return Is('8'); }
    std::uint64_t Blocks() const noexcept { return blocksPerRow * blocksPerColumn; }
    std::uint64_t WidthOfBlock() const noexcept { return blockColumns == 0 ? columns : blockColumns; }
    std::uint64_t HeightOfBlock() const noexcept { return blockRows == 0 ? rows : blockRows; }
};

/// One band of an image.
struct BandFacts
{
    std::size_t number = 0;   ///< from 1
    std::string_view mark{};  ///< IREPBAND
    std::string_view category{};
    std::uint64_t tables = 0;   ///< NLUTS
    std::uint64_t entries = 0;  ///< NELUT
};

/// The name of a field inside a repeat, without memory of its own: NumberedName("IREPBAND", 2) is IREPBAND_2.
class NumberedName
{
public:
    NumberedName(std::string_view aTag, std::size_t aTurn) noexcept
    {
        char* out = std::copy(aTag.begin(), aTag.end(), m_text);
        *out++ = '_';
        m_length = static_cast<std::size_t>(std::to_chars(out, std::end(m_text), aTurn).ptr - m_text);
    }
    operator std::string_view() const noexcept { return {m_text, m_length}; }

private:
    char m_text[48];
    std::size_t m_length;
};

/// What a rule sees of one header and its data. Asking allocates nothing.
class HeaderView
{
public:
    explicit HeaderView(const NITFFieldSegment& aSegment) noexcept;

    const NITFFieldSegment& Segment() const noexcept { return m_segment; }
    const NITFFieldSegment::Parts& Inside() const noexcept { return m_segment.Inside(); }
    NITFCnst::DataSegmentType Kind() const noexcept { return Inside().layout->kind->kind; }
    NITFCnst::Version Version() const noexcept { return Inside().layout->kind->version; }
    bool Is20() const noexcept { return Version() == NITFCnst::NITF_VERSION_NUMBER_20; }
    /// The position among the segments of the kind; Finding::NO_INDEX for the file header.
    int Index() const noexcept;
    bool Looks(Subject aSubject) const noexcept;

    bool Has(std::string_view aField) const noexcept { return Inside().record.Find(aField) != nullptr; }
    /// The value without the blanks around it; empty when the field is not there.
    std::string_view Text(std::string_view aField) const noexcept { return TrimBlanks(Inside().record.Text(aField)); }
    /// False when the field is not there or is no number.
    bool Number(std::string_view aField, std::uint64_t& aOut) const noexcept
    {
        return ToCount(Inside().record.Text(aField), aOut);
    }
    /// The same; 0 for none.
    std::uint64_t Number(std::string_view aField) const noexcept { return Inside().Number(aField); }

    std::uint64_t DataStart() const noexcept { return m_segment.GetSegmentDataStart(); }
    std::uint64_t DataSize() const noexcept { return m_segment.GetSegmentDataSize(); }
    /// Whether the file holds all of the data.
    bool HasData() const noexcept
    {
        return Inside().source != nullptr && Inside().source->Holds(DataStart(), DataSize());
    }
    /// Some of the data, as many bytes as there are from that offset on; false when none can be read.
    [[nodiscard]] bool ReadData(std::uint64_t aOffset, std::uint64_t aMost, std::string& aOut) const;

    /// Of an image only.
    const ImageFacts& Image() const noexcept { return m_image; }
    /// Calls for every band of an image in one walk over its fields, up to the first false.
    template<typename Look>
    void ForEachBand(Look aLook) const;

    /// Calls with every TRE of the header, overflow ones included, and its turn among those of its tag.
    template<typename Look>
    void ForEachTre(Look aLook) const
    {
        for (const TREStore* const store : {&m_segment.GetTREStore(), &m_segment.GetOverflowTREStore()}) {
            for (const TRE* const tre : store->InOrder()) {
                aLook(*tre);
            }
        }
    }
    bool HasTREs() const noexcept
    {
        return !m_segment.GetTREStore().IsEmpty() || !m_segment.GetOverflowTREStore().IsEmpty();
    }
    /// The first TRE of a tag; null when there is none.
    const TRE* FindTre(std::string_view aTag) const noexcept;
    /// Of the TRE among those of its tag in its area, from 1.
    int TurnOf(const TRE& aTre) const noexcept;

private:
    void ReadImage() noexcept;

    const NITFFieldSegment& m_segment;
    ImageFacts m_image;
};

/// What is wrong in one place.
struct Breach
{
    std::string_view field{};                   ///< in place of which the finding stands; may be empty
    std::string allowed{};                      ///< what may stand there
    std::string detail{};                       ///< more than the sentence says
    std::string value{};                        ///< in place of the field's own
    std::uint64_t offset = Finding::NO_OFFSET;  ///< in the file, in place of the field's own
    bool isMild = false;                        ///< a warning, whatever the rule's level
    const TRE* tre = nullptr;                   ///< of which the field is
    const char* sentence = nullptr;             ///< fixed words, level included, in place of the rule's own
};

/// Takes what a rule has found in one header.
class Report
{
public:
    Report(const Rule& aRule, FindingList& aFindings) noexcept : m_rule(aRule), m_findings(aFindings) {}

    const Rule& Of() const noexcept { return m_rule; }
    FindingList& Findings() const noexcept { return m_findings; }
    void operator()(const HeaderView& aHeader, const Breach& aBreach) const;
    /// A finding about no header in particular.
    void operator()(const Breach& aBreach) const;

private:
    void Add(Finding&& aFinding, const Breach& aBreach) const;

    const Rule& m_rule;
    FindingList& m_findings;
};

/// Runs every rule that one header is enough for.
void CheckHeaderRules(const HeaderView& aHeader, FindingList& aFindings);

template<typename Look>
void HeaderView::ForEachBand(Look aLook) const
{
    const FieldStore& fields = Inside().record.Store();
    BandFacts band;
    bool goesOn = true;
    for (const FieldEntry& entry : fields.Entries()) {
        const std::string_view tag(fields.Row(entry).tag);
        if (tag == "IREPBAND") {
            goesOn = goesOn && (band.number == 0 || aLook(band));
            band = {.number = band.number + 1, .mark = TrimBlanks(fields.Value(entry))};
        } else if (band.number == 0) {
            continue;
        } else if (tag == "ISUBCAT") {
            band.category = TrimBlanks(fields.Value(entry));
        } else if (tag == "NLUTS") {
            static_cast<void>(ToCount(fields.Value(entry), band.tables));
        } else if (tag == "NELUT") {
            static_cast<void>(ToCount(fields.Value(entry), band.entries));
        } else if (tag == "ISYNC") {
            break;
        }
    }
    if (goesOn && band.number != 0) {
        aLook(band);
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
