#include "tests/support/NitfBuilder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

// Layouts by MIL-STD-2500A and MIL-STD-2500C, conditional fields left out.
constexpr std::string_view SECURITY_20 = " %CLAS:1=U %CODE:40 %CTLH:40 %REL:40 %CAUT:20 %CTLN:20 %DWNG:6";
constexpr std::string_view SECURITY_21 =
    " %CLAS:1=U %CLSY:2 %CODE:11 %CTLH:2 %REL:20 %DCTP:2 %DCDT:8 %DCXM:4 %DG:1 %DGDT:8 %CLTX:43 %CATP:1"
    " %CAUT:40 %CRSN:1 %SRDT:8 %CTLN:15";

constexpr std::string_view FILE_20_START =
    "FHDR:9=NITF02.00 CLEVEL#2=3 STYPE:4 OSTAID:10=ORMO FDT:14=01120000ZJAN26"
    " FTITLE:80=Built_file";
constexpr std::string_view FILE_21_START =
    "FHDR:4=NITF FVER:5=02.10 CLEVEL#2=3 STYPE:4=BF01 OSTAID:10=ORMO"
    " FDT:14=20260101120000 FTITLE:80=Built_file";
constexpr std::string_view FILE_20_MIDDLE = " FSCOP:5 FSCPYS:5 ENCRYP#1 ONAME:27=Builder OPHONE:18=555-0100";
constexpr std::string_view FILE_21_MIDDLE =
    " FSCOP#5 FSCPYS#5 ENCRYP#1 FBKGC:3=~~~ ONAME:24=Builder OPHONE:18=555-0100";
constexpr std::string_view FILE_20_END = " FL#12 HL#6 NUMI#3 NUMS#3 NUML#3 NUMT#3 NUMDES#3 NUMRES#3 UDHDL#5 XHDL#5";
constexpr std::string_view FILE_21_END = " FL#12 HL#6 NUMI#3 NUMS#3 NUMX#3 NUMT#3 NUMDES#3 NUMRES#3 UDHDL#5 XHDL#5";

constexpr std::string_view IMAGE_20_START = "IM:2=IM IID:10=IMAGE IDATIM:14=01120000ZJAN26 TGTID:17 ITITLE:80=Built";
constexpr std::string_view IMAGE_21_START = "IM:2=IM IID1:10=IMAGE IDATIM:14=20260101120000 TGTID:17 IID2:80=Built";
constexpr std::string_view IMAGE_REST =
    " ENCRYP#1 ISORCE:42 NROWS#8 NCOLS#8 PVTYPE:3=INT IREP:8=MONO ICAT:8=VIS ABPP#2=8 PJUST:1=R ICORDS:1 NICOM#1"
    " IC:2=NC NBANDS#1 ISYNC#1 IMODE:1=B NBPR#4=1 NBPC#4=1 NPPBH#4 NPPBV#4 NBPP#2=8 IDLVL#3 IALVL#3 ILOC#10"
    " IMAG:4=1.0 UDIDL#5 IXSHDL#5";

constexpr std::string_view SYMBOL_START = "SY:2=SY SID:10=SYMBOL SNAME:20=Built";
constexpr std::string_view SYMBOL_20_REST =
    " ENCRYP#1 STYPE:1=C NLIPS#4 NPIXPL#4 NWDTH#4 NBPP#1 SDLVL#3 SALVL#3 SLOC#10 SLOC2#10 SCOLOR:1 SNUM#6 SROT#3"
    " NELUT#3 SXSHDL#5";
constexpr std::string_view GRAPHIC_21_REST =
    " ENCRYP#1 SFMT:1=C SSTRUCT#13 SDLVL#3 SALVL#3 SLOC#10 SBND1#10 SCOLOR:1=C SBND2#10 SRES2#2 SXSHDL#5";
constexpr std::string_view LABEL_START = "LA:2=LA LID:10=LABEL";
constexpr std::string_view LABEL_REST =
    " ENCRYP#1 LFS:1 LCW#2 LCH#2 LDLVL#3 LALVL#3 LLOC#10 LTC:3=~~~ LBC:3=~~~ LXSHDL#5";
constexpr std::string_view TEXT_20_START = "TE:2=TE TEXTID:10=TEXT TXTDT:14=01120000ZJAN26 TXTITL:80=Built";
constexpr std::string_view TEXT_21_START = "TE:2=TE TEXTID:7=TEXT TXTALVL#3 TXTDT:14=20260101120000 TXTITL:80=Built";
constexpr std::string_view TEXT_REST = " ENCRYP#1 TXTFMT:3=STA TXSHDL#5";

std::string Joined(std::string_view aStart, std::string_view aSecurity, std::string_view aRest)
{
    return std::string(aStart).append(aSecurity).append(aRest);
}

/// One kind of segment in the order of the file, with its fields of the file header.
struct Kind
{
    const char* type;
    const char* count;
    const char* headerLength;
    std::size_t headerDigits;
    const char* dataLength;
    std::size_t dataDigits;
};

constexpr std::array<Kind, 6> KINDS{{{"IM", "NUMI", "LISH", 6, "LI", 10},
                                     {"SY", "NUMS", "LSSH", 4, "LS", 6},
                                     {"LA", "NUML", "LLSH", 4, "LL", 3},
                                     {"TE", "NUMT", "LTSH", 4, "LT", 5},
                                     {"DE", "NUMDES", "LDSH", 4, "LD", 9},
                                     {"RE", "NUMRES", "LRESH", 4, "LRE", 7}}};

}  // namespace

std::string Padded(std::uint64_t aNumber, std::size_t aWidth)
{
    std::string text = std::to_string(aNumber);
    text.insert(0, text.size() < aWidth ? aWidth - text.size() : 0, '0');
    return text;
}

std::string Tre(std::string_view aTag, std::string_view aData)
{
    std::string text(aTag);
    text.resize(6, ' ');
    return text.append(Padded(aData.size(), 5)).append(aData);
}

HeaderFields::HeaderFields(std::string_view aLayout, std::string_view aPrefix) : m_prefix(aPrefix)
{
    while (!aLayout.empty()) {
        const std::string_view word = aLayout.substr(0, aLayout.find(' '));
        aLayout.remove_prefix(std::min(word.size() + 1, aLayout.size()));
        const auto mark = word.find_first_of(":#");
        if (mark == std::string_view::npos) {
            continue;
        }
        Item item{std::string(word.substr(0, mark)), 0, word[mark] == '#', {}};
        if (item.name.front() == '%') {
            item.name.replace(0, 1, aPrefix);
        }
        const auto value = word.find('=', mark);
        std::from_chars(word.data() + mark + 1, word.data() + std::min(value, word.size()), item.width);
        std::string text(value == std::string_view::npos ? std::string_view() : word.substr(value + 1));
        std::replace(text.begin(), text.end(), '_', ' ');
        const std::string name = item.name;
        m_items.push_back(std::move(item));
        Set(name, text);
    }
}

std::size_t HeaderFields::IndexOf(std::string_view aName) const
{
    for (std::size_t i = 0; i != m_items.size(); ++i) {
        if (m_items[i].name == aName) {
            return i;
        }
    }
    throw std::out_of_range("no field " + std::string(aName));
}

bool HeaderFields::Has(std::string_view aName) const
{
    return std::any_of(m_items.begin(), m_items.end(), [aName](const Item& aItem) { return aItem.name == aName; });
}

HeaderFields& HeaderFields::Set(std::string_view aName, std::string_view aValue)
{
    Item& item = m_items[IndexOf(aName)];
    item.value = aValue;
    if (item.number && aValue.size() < item.width) {
        item.value.insert(0, item.width - aValue.size(), '0');
    }
    item.value.resize(item.width, ' ');
    return *this;
}

HeaderFields& HeaderFields::InsertAfter(std::string_view aBefore, std::string_view aName, std::string_view aBytes)
{
    const auto place = m_items.begin() + static_cast<std::ptrdiff_t>(IndexOf(aBefore)) + 1;
    m_items.insert(place, Item{std::string(aName), aBytes.size(), false, std::string(aBytes)});
    return *this;
}

HeaderFields& HeaderFields::Area(std::string_view aName, std::string_view aTres, unsigned aOverflow)
{
    const std::string length = std::string(aName) + "L";
    const std::string overflow = aName == "UDHD"  ? "UDHOFL"
                                 : aName != "XHD" ? std::string(aName.substr(0, aName.size() - 2)) + "OFL"
                                 : Has("FVER")    ? "XHDLOFL"
                                                  : "XHDOFL";
    Set(length, aTres.size() + 3);
    InsertAfter(length, overflow, Padded(aOverflow, 3));
    return aTres.empty() ? *this : InsertAfter(overflow, aName, aTres);
}

HeaderFields& HeaderFields::Event(std::string_view aText)
{
    Set(m_prefix + "DWNG", "999998");
    std::string text(aText);
    text.resize(40, ' ');
    return InsertAfter(m_prefix + "DWNG", m_prefix + "DEVT", text);
}

HeaderFields& HeaderFields::Location(std::string_view aIcords, std::string_view aIgeolo)
{
    Set("ICORDS", aIcords);
    return InsertAfter("ICORDS", "IGEOLO", aIgeolo);
}

HeaderFields& HeaderFields::Comment(std::string_view aText)
{
    std::string text(aText);
    text.resize(80, ' ');
    const std::string before = m_comments == 0 ? "NICOM" : "ICOM_" + std::to_string(m_comments);
    Set("NICOM", ++m_comments);
    return InsertAfter(before, "ICOM_" + std::to_string(m_comments), text);
}

HeaderFields& HeaderFields::Compression(std::string_view aCode, std::string_view aRate)
{
    Set("IC", aCode);
    return InsertAfter("IC", "COMRAT", aRate);
}

HeaderFields& HeaderFields::Band(std::string_view aIrepband, const std::vector<std::string>& aTables)
{
    const std::string turn = "_" + std::to_string(++m_bands);
    std::string before = m_bands == 1 ? "NBANDS" : "BAND_" + std::to_string(m_bands - 1);
    if (m_bands <= 9) {
        Set("NBANDS", m_bands);
    } else if (m_bands == 10) {
        Set("NBANDS", "0");
        InsertAfter("NBANDS", "XBANDS", "00010");
    } else {
        m_items[IndexOf("XBANDS")].value = Padded(m_bands, 5);
    }
    const auto put = [&](const std::string& aName, std::string aBytes, std::size_t aWidth) {
        aBytes.resize(aWidth, ' ');
        InsertAfter(before, aName, aBytes);
        before = aName;
    };
    put("IREPBAND" + turn, std::string(aIrepband), 2);
    put("ISUBCAT" + turn, "", 6);
    put("IFC" + turn, "N", 1);
    put("IMFLT" + turn, "", 3);
    put("NLUTS" + turn, std::to_string(aTables.size()), 1);
    if (!aTables.empty()) {
        put("NELUT" + turn, Padded(aTables.front().size(), 5), 5);
    }
    for (std::size_t i = 0; i != aTables.size(); ++i) {
        put("LUTD" + turn + "_" + std::to_string(i + 1), aTables[i], aTables[i].size());
    }
    put("BAND" + turn, "", 0);  // marks the end of the band
    return *this;
}

HeaderFields& HeaderFields::NoBands()
{
    const auto first = m_items.begin() + static_cast<std::ptrdiff_t>(IndexOf("NBANDS")) + 1;
    m_items.erase(first, m_items.begin() + static_cast<std::ptrdiff_t>(IndexOf("ISYNC")));
    m_bands = 0;
    return Set("NBANDS", "0");
}

HeaderFields& HeaderFields::UserFields(std::string_view aBytes)
{
    const std::string prefix = Has("DESSHL") ? "DES" : "RES";
    Set(prefix + "SHL", aBytes.size());
    return InsertAfter(prefix + "SHL", prefix + "SHF", aBytes);
}

HeaderFields& HeaderFields::Damage(std::string_view aName, std::string_view aBytes)
{
    m_damage[std::string(aName)] = aBytes;
    return *this;
}

HeaderFields& HeaderFields::Surplus(std::string_view aBytes)
{
    m_surplus = aBytes;
    return *this;
}

const std::string& HeaderFields::Written(const Item& aItem) const
{
    const auto damaged = m_damage.find(aItem.name);
    return damaged == m_damage.end() ? aItem.value : damaged->second;
}

std::vector<std::string> HeaderFields::Names() const
{
    std::vector<std::string> names;
    for (const Item& item : m_items) {
        if (item.width != 0) {
            names.push_back(item.name);
        }
    }
    return names;
}

std::string HeaderFields::Get(std::string_view aName) const
{
    return Written(m_items[IndexOf(aName)]);
}

std::size_t HeaderFields::OffsetOf(std::string_view aName) const
{
    std::size_t offset = 0;
    for (std::size_t i = 0, end = IndexOf(aName); i != end; ++i) {
        offset += Written(m_items[i]).size();
    }
    return offset;
}

std::string HeaderFields::Bytes() const
{
    std::string bytes;
    for (const Item& item : m_items) {
        bytes += Written(item);
    }
    return bytes + m_surplus;
}

NitfBuilder::NitfBuilder(Format aFormat)
    : m_format(aFormat),
      m_file(aFormat == Format::Nitf20
                 ? Joined(FILE_20_START, SECURITY_20, std::string(FILE_20_MIDDLE).append(FILE_20_END))
                 : Joined(FILE_21_START, SECURITY_21, std::string(FILE_21_MIDDLE).append(FILE_21_END)),
             "FS")
{
    if (aFormat == Format::Nsif10) {
        m_file.Set("FHDR", "NSIF").Set("FVER", "01.00");
    }
}

HeaderFields& NitfBuilder::Add(std::string_view aType, std::string_view aLayout, std::string_view aPrefix,
                               std::string_view aData)
{
    m_segments.push_back({std::string(aType), HeaderFields(aLayout, aPrefix), std::string(aData)});
    return m_segments.back().header;
}

HeaderFields& NitfBuilder::AddImage(unsigned aRows, unsigned aColumns)
{
    const bool is20 = m_format == Format::Nitf20;
    std::string pixels(std::size_t{aRows} * aColumns, '\0');
    for (std::size_t i = 0; i != pixels.size(); ++i) {
        pixels[i] = static_cast<char>(i % aColumns * 8 + i / aColumns * 2);
    }
    HeaderFields& header =
        Add("IM", Joined(is20 ? IMAGE_20_START : IMAGE_21_START, is20 ? SECURITY_20 : SECURITY_21, IMAGE_REST), "IS",
            pixels);
    header.Set("NROWS", aRows).Set("NCOLS", aColumns).Set("NPPBH", aColumns).Set("NPPBV", aRows);
    header.Set("IDLVL", m_segments.size()).Band("M");
    return is20 ? header.Set("ICORDS", "N") : header;
}

HeaderFields& NitfBuilder::AddGraphic(std::string_view aData)
{
    const bool is20 = m_format == Format::Nitf20;
    return Add("SY", Joined(SYMBOL_START, is20 ? SECURITY_20 : SECURITY_21, is20 ? SYMBOL_20_REST : GRAPHIC_21_REST),
               "SS", aData)
        .Set("SDLVL", m_segments.size());
}

HeaderFields& NitfBuilder::AddLabel(std::string_view aText)
{
    if (m_format != Format::Nitf20) {
        throw std::logic_error("only NITF 2.0 has labels");
    }
    return Add("LA", Joined(LABEL_START, SECURITY_20, LABEL_REST), "LS", aText).Set("LDLVL", m_segments.size());
}

HeaderFields& NitfBuilder::AddText(std::string_view aText)
{
    const bool is20 = m_format == Format::Nitf20;
    return Add("TE", Joined(is20 ? TEXT_20_START : TEXT_21_START, is20 ? SECURITY_20 : SECURITY_21, TEXT_REST), "TS",
               aText);
}

HeaderFields& NitfBuilder::AddDes(std::string_view aId, std::string_view aData)
{
    const bool is20 = m_format == Format::Nitf20;
    const char* const id = is20 ? "DESTAG" : "DESID";
    const std::string start = std::string("DE:2=DE ") + id + ":25 DESVER#2=1";
    std::string security(is20 ? SECURITY_20 : SECURITY_21);
    if (!is20) {
        security.replace(0, 6, " DECLAS");  // the one field of the block without the S
    }
    return Add("DE", Joined(start, security, " DESSHL#4"), "DES", aData).Set(id, aId);
}

HeaderFields& NitfBuilder::AddOverflow(std::string_view aArea, unsigned aItem, std::string_view aTres)
{
    const bool registered = aArea == "UDHD" || aArea == "UDID";
    const char* const id = m_format != Format::Nitf20 ? "TRE_OVERFLOW"
                           : registered               ? "Registered Extensions"
                                                      : "Controlled Extensions";
    HeaderFields& header = AddDes(id, aTres);
    std::string area(aArea);
    area.resize(6, ' ');
    header.InsertAfter(m_format == Format::Nitf20 ? "DESDWNG" : "DESCTLN", "DESOFLW", area);
    return header.InsertAfter("DESOFLW", "DESITEM", Padded(aItem, 3));
}

HeaderFields& NitfBuilder::AddRes(std::string_view aId, std::string_view aData)
{
    const bool is20 = m_format == Format::Nitf20;
    return Add("RE", Joined("RE:2=RE RESID:25 RESVER#2=1", is20 ? SECURITY_20 : SECURITY_21, " RESSHL#4"),
               is20 ? "RES" : "RE", aData)
        .Set("RESID", aId);
}

std::vector<const SegmentBytes*> NitfBuilder::Segments() const
{
    std::vector<const SegmentBytes*> ordered;
    for (const Kind& kind : KINDS) {
        for (const SegmentBytes& segment : m_segments) {
            if (segment.type == kind.type) {
                ordered.push_back(&segment);
            }
        }
    }
    return ordered;
}

HeaderFields NitfBuilder::Complete(bool aUnknownLengths) const
{
    HeaderFields file = m_file;
    std::uint64_t total = 0;
    for (const Kind& kind : KINDS) {
        unsigned count = 0;
        std::string before = kind.count;
        for (const SegmentBytes& segment : m_segments) {
            if (segment.type != kind.type) {
                continue;
            }
            const std::size_t header = segment.header.Bytes().size();
            const std::string turn = Padded(++count, 3);
            file.InsertAfter(before, kind.headerLength + turn,
                             aUnknownLengths ? std::string(kind.headerDigits, '9') : Padded(header, kind.headerDigits));
            file.InsertAfter(
                kind.headerLength + turn, kind.dataLength + turn,
                aUnknownLengths ? std::string(kind.dataDigits, '9') : Padded(segment.data.size(), kind.dataDigits));
            before = kind.dataLength + turn;
            total += header + segment.data.size();
        }
        if (file.Has(kind.count)) {
            file.Set(kind.count, count);
        }
    }
    const std::size_t length = file.Bytes().size();
    file.Set("HL", length).Set("FL", aUnknownLengths ? 999999999999 : total + length);
    return file;
}

std::string NitfBuilder::Bytes() const
{
    std::string bytes = Header();
    for (const SegmentBytes* const segment : Segments()) {
        bytes += segment->header.Bytes() + segment->data;
    }
    return bytes;
}

std::string NitfBuilder::StreamedBytes() const
{
    constexpr std::size_t FRAME = 7 + 4 + 4 + 7;
    NitfBuilder streamed = *this;
    streamed.AddDes("STREAMING_FILE_HEADER", "");
    const std::size_t length = streamed.Header().size();
    streamed.LastData().assign(length + FRAME, ' ');  // its length stands in the header that it holds
    const std::string digits = Padded(length, 7);
    streamed.LastData() = digits + "\x0A\x6E\x1D\x97" + streamed.Header() + "\x0E\xCA\x14\xBF" + digits;
    return streamed.Complete(true).Bytes() + streamed.Bytes().substr(length);
}

}  // namespace ORMO::SensorModel::CSM::Tests
