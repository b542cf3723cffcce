#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

enum class Format
{
    Nitf20,
    Nitf21,
    Nsif10
};

/// A whole TRE: tag, length and data.
std::string Tre(std::string_view aTag, std::string_view aData);

/// A number in digits, zeros in front.
std::string Padded(std::uint64_t aNumber, std::size_t aWidth);

/// A file header or subheader as a list of named fields, made from widths that the standards print and from nothing of
/// the library's, so that it is a second opinion on the library's tables.
class HeaderFields
{
public:
    /// Fields as "NAME:WIDTH=TEXT" (text, blank filled) or "NAME#WIDTH=DIGITS" (number, zero filled), one after
    /// another; "_" in a default stands for a blank and "%" in a name for the prefix of the security fields.
    HeaderFields(std::string_view aLayout, std::string_view aPrefix);

    /// Fits a value to its field: texts are filled with blanks, numbers with zeros in front, both are cut.
    HeaderFields& Set(std::string_view aName, std::string_view aValue);
    HeaderFields& Set(std::string_view aName, std::uint64_t aNumber) { return Set(aName, std::to_string(aNumber)); }
    /// Puts a field of exactly these bytes behind another one.
    HeaderFields& InsertAfter(std::string_view aBefore, std::string_view aName, std::string_view aBytes);
    /// Fills an extension area ("UDHD", "XHD", "UDID", "IXSHD", "SXSHD", "LXSHD", "TXSHD"): length, overflow, TREs.
    HeaderFields& Area(std::string_view aName, std::string_view aTres, unsigned aOverflow = 0);
    /// NITF 2.0: downgrading on an event, which opens the event field.
    HeaderFields& Event(std::string_view aText);
    /// Image: ICORDS with the IGEOLO that it opens.
    HeaderFields& Location(std::string_view aIcords, std::string_view aIgeolo);
    HeaderFields& Comment(std::string_view aText);
    /// Image: a compression code with the rate that it opens.
    HeaderFields& Compression(std::string_view aCode, std::string_view aRate);
    /// Image: a band more, with look-up tables of one size. More than nine bands stand in XBANDS.
    HeaderFields& Band(std::string_view aIrepband, const std::vector<std::string>& aTables = {});
    /// Image: takes all bands away.
    HeaderFields& NoBands();
    /// DES or RES: the user-defined subheader fields.
    HeaderFields& UserFields(std::string_view aBytes);

    /// Deliberate damage: these bytes stand in the file in place of the field, whatever its width. Length fields of the
    /// file header are named LISH001, LI001 and so on.
    HeaderFields& Damage(std::string_view aName, std::string_view aBytes);
    /// Deliberate damage: bytes behind the last field; they count in the length of the header.
    HeaderFields& Surplus(std::string_view aBytes);

    /// The fields in their order.
    std::vector<std::string> Names() const;
    std::string Get(std::string_view aName) const;
    bool Has(std::string_view aName) const;
    std::size_t OffsetOf(std::string_view aName) const;
    std::string Bytes() const;

private:
    struct Item
    {
        std::string name;
        std::size_t width;
        bool number;
        std::string value;
    };

    std::size_t IndexOf(std::string_view aName) const;
    const std::string& Written(const Item& aItem) const;

    std::string m_prefix;
    std::vector<Item> m_items;
    std::map<std::string, std::string, std::less<>> m_damage;
    std::string m_surplus;
    unsigned m_comments = 0;
    unsigned m_bands = 0;
};

/// A segment: its subheader and its data.
struct SegmentBytes
{
    std::string type;  ///< "IM", "SY", "LA", "TE", "DE", "RE"
    HeaderFields header;
    std::string data;
};

/// Builds a file of NITF 2.0, NITF 2.1 or NSIF 1.0. References that the Add operations answer stay good.
class NitfBuilder
{
public:
    explicit NitfBuilder(Format aFormat = Format::Nitf21);

    /// The file header; lengths and counts are filled in when the bytes are made.
    HeaderFields& File() { return m_file; }

    /// An uncompressed image of 8 bits, one block, one band without tables, with a pixel pattern.
    HeaderFields& AddImage(unsigned aRows = 2, unsigned aColumns = 3);
    /// A graphic, or a symbol in NITF 2.0.
    HeaderFields& AddGraphic(std::string_view aData = "CGM");
    /// NITF 2.0 only.
    HeaderFields& AddLabel(std::string_view aText = "label");
    HeaderFields& AddText(std::string_view aText = "text\r\n");
    HeaderFields& AddDes(std::string_view aId, std::string_view aData);
    /// TREs that did not fit elsewhere: TRE_OVERFLOW, in NITF 2.0 Registered or Controlled Extensions.
    HeaderFields& AddOverflow(std::string_view aArea, unsigned aItem, std::string_view aTres);
    HeaderFields& AddRes(std::string_view aId, std::string_view aData);

    /// All segments in the order in which they stand in the file.
    std::vector<const SegmentBytes*> Segments() const;
    /// The data of the last segment added.
    std::string& LastData() { return m_segments.back().data; }

    /// The file header alone.
    std::string Header() const { return Complete().Bytes(); }
    /// Where a field of the completed file header stands.
    std::size_t OffsetOf(std::string_view aName) const { return Complete().OffsetOf(aName); }
    std::string Bytes() const;
    /// The same file as a writer leaves it that did not know the lengths beforehand: nines in the length fields and a
    /// STREAMING_FILE_HEADER at the end.
    std::string StreamedBytes() const;

private:
    HeaderFields& Add(std::string_view aType, std::string_view aLayout, std::string_view aPrefix,
                      std::string_view aData);
    HeaderFields Complete(bool aUnknownLengths = false) const;

    Format m_format;
    HeaderFields m_file;
    std::deque<SegmentBytes> m_segments;
};

}  // namespace ORMO::SensorModel::CSM::Tests
