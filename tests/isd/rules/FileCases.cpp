// The file around its segments, dates, lengths, levels and security.

#include "tests/isd/rules/RuleCases.h"

namespace ORMO::SensorModel::CSM::Tests {

namespace {

/// A file whose header does not know its length, and the header at its end that does, or does not either.
std::string Streamed(std::size_t aReplaced, bool aKnows, std::string_view aLastDigits = {})
{
    constexpr std::size_t FRAME = 22;
    NitfBuilder file;
    file.AddDes("STREAMING_FILE_HEADER", "");
    const std::size_t length = aReplaced == 0 ? file.Header().size() : aReplaced;
    file.LastData().assign(length + FRAME, ' ');
    NitfBuilder open = file;
    open.File().Damage("FL", "999999999999");
    const std::string digits = Padded(length, 7);
    const std::string header = (aKnows ? file : open).Header().substr(0, length);
    const std::string last(aLastDigits.empty() ? std::string_view(digits) : aLastDigits);
    open.LastData() = digits + "\x0A\x6E\x1D\x97" + header + "\x0E\xCA\x14\xBF" + last;
    return open.Bytes();
}

/// Two images, one over the other.
template<typename Change>
std::string TwoImages(bool aBroken, Change aChange)
{
    NitfBuilder file;
    HeaderFields& first = file.AddImage();
    HeaderFields& second = file.AddImage();
    second.Set("IALVL", "001");
    aChange(file, first, second, aBroken);
    return file.Bytes();
}

template<typename Change>
std::string Marked(bool aBroken, Change aChange)
{
    NitfBuilder file;
    file.AddImage();
    file.File().Set("FSCLAS", "S").Set("FSCLSY", "US");
    aChange(file.File(), aBroken);
    return file.Bytes();
}

}  // namespace

std::vector<RuleCase> FileCases()
{
    return {
        {"FH-02",
         [](bool aBroken) {
             NitfBuilder file;
             file.File().Surplus(aBroken ? "x" : "");
             return file.Bytes();
         }},
        {"FH-03",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddImage();
             const std::string bytes = file.Bytes();
             file.File().Damage("FL", Padded(bytes.size() + (aBroken ? 1 : 0), 12));
             return file.Bytes();
         }},
        {"FH-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto&, bool) {}) + std::string(aBroken ? 1 : 0, '\n');
         }},
        {"FH-05",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddImage(1, 2049);
             file.File().Set("CLEVEL", aBroken ? "03" : "05");
             return file.Bytes();
         }},
        {"FH-06",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto&, bool b) { f.File().Set("CLEVEL", b ? "07" : "03"); });
         }},
        {"FH-07",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto& f, auto&, bool b) { f.File().Set("FDT", b ? "20261301120000" : "20260101------"); });
         }},
        {"FH-08",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto& f, auto&, bool b) { f.File().Set("FDT", b ? "20990101000000" : "20260101120000"); });
         }},
        {"FH-09",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto&, auto& i, bool b) { i.Set("IDATIM", b ? "02120000ZJAN26" : "31120000ZDEC93"); },
                 Format::Nitf20);
         }},
        {"FH-10",
         [](bool aBroken) { return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Surplus(b ? "xyz" : ""); }); }},
        {"FLD-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("PJUST", b ? "X" : "L"); });
         }},
        {"FLD-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("IID1", b ? "A\x01" : "A"); });
         }},
        {"FLD-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto&, bool b) { f.File().Set("OSTAID", b ? "" : "X"); });
         }},
        {"FLD-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Damage("ISYNC", b ? "x" : "0"); });
         }},
        {"RD-01",
         [](bool aBroken) {
             std::string bytes = WithImage(aBroken, [](auto&, auto&, bool) {});
             bytes.resize(bytes.size() - (aBroken ? 1 : 0));
             return bytes;
         },
         "FH-04"},
        {"RD-02",
         [](bool aBroken) {
             NitfBuilder file;
             return aBroken ? file.StreamedBytes() : file.Bytes();
         }},
        {"SF-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto&, bool b) {
                 if (b) {
                     f.File().Damage("FL", "999999999999");
                 }
             });
         }},
        {"SF-02",
         [](bool aBroken) {
             return aBroken ? Streamed(0, true, "0000001") : WithImage(false, [](auto&, auto&, bool) {});
         },
         "SF-01"},
        {"SF-03", [](bool aBroken) { return Streamed(aBroken ? 388 : 0, true); }, "", "RD-02"},
        {"SF-04", [](bool aBroken) { return Streamed(0, !aBroken); }, "", "RD-02"},
        {"DL-01",
         [](bool aBroken) {
             return TwoImages(aBroken, [](auto&, auto&, auto& two, bool b) {
                 two.Set("IDLVL", b ? "001" : "002").Set("IALVL", "000");
             });
         }},
        {"DL-02",
         [](bool aBroken) {
             return TwoImages(aBroken, [](auto&, auto&, auto& two, bool b) { two.Set("IALVL", b ? "005" : "001"); });
         }},
        {"DL-03",
         [](bool aBroken) {
             return TwoImages(aBroken, [](auto&, auto& one, auto& two, bool b) {
                 one.Set("IALVL", b ? "002" : "000");
                 two.Set("IALVL", "000");
             });
         }},
        {"DL-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("ILOC", b ? "-000100000" : "0000100000"); });
         }},
        {"DL-05",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto&, bool b) { f.AddText().Set("TXTALVL", b ? "007" : "001"); });
         }},
        {"DL-06",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("IMAG", b ? "X2" : "/004"); });
         }},
    };
}

std::vector<RuleCase> SecurityCases()
{
    return {
        {"SEC-01",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSDCTP", "DD").Set("FSDCDT", b ? "" : "20300101"); });
         }},
        {"SEC-02",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSDCTP", "DE").Set("FSCLTX", b ? "" : "an event"); });
         }},
        {"SEC-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 f.File().Set("FSCLAS", "C");
                 i.Set("ISCLAS", b ? "S" : "R");
             });
         }},
        {"SEC-04",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSCODE", "AB").Set("FSCLSY", b ? "" : "US"); });
         }},
        {"SEC-05",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSCODE", b ? "UNCLASSIFIE" : "AB CD"); });
         }},
        {"SEC-06",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSREL", b ? "USA/GBR" : "US GBR NATO"); });
         }},
        {"SEC-07",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) {
                 f.Set("FSCATP", "M").Set("FSCAUT", b ? "somebody" : "DERIVE MULTIPLE");
             });
         }},
        {"SEC-08",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) {
                 f.Set("FSCATP", b ? "D" : "O").Set("FSCAUT", "x").Set("FSCRSN", "B");
             });
         }},
        {"SEC-09",
         [](bool aBroken) {
             return Marked(aBroken, [](auto& f, bool b) { f.Set("FSCLAS", b ? "U" : "S").Set("FSDCTP", "O"); });
         }},
        {"SEC-10",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto&, auto& i, bool b) { i.Event(b ? "" : "the end"); }, Format::Nitf20);
         }},
        {"SEC-11",
         [](bool aBroken) {
             NitfBuilder file;
             std::string block = "U" + std::string(166, ' ');
             const std::string data = std::string(aBroken ? "20250101120000" : "20260101120000") + "NITF02.10" +
                                      block.append(40, ' ') + "ARH.XML " + std::string(8, ' ') + "00001x";
             file.File().Area("XHD", Tre("SECURA", data));
             return file.Bytes();
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
