// TREs, overflow, and data extension segments.

#include "tests/isd/rules/RuleCases.h"

namespace ORMO::SensorModel::CSM::Tests {

namespace {

/// A USE00A of an image that is straight up.
const std::string USE = Tre("USE00A",
                            "000"
                            "001.0"
                            " "
                            "00255"
                            "   "
                            " "
                            "   "
                            "00.00"
                            "+00.00" +
                                std::string(12 + 15 + 4 + 1 + 3 + 1 + 1, ' ') +
                                "00"
                                "00001"
                                "001" +
                                std::string(18, ' ') +
                                "+45.0"
                                "180.0");

std::string Blanks(std::size_t aCount)
{
    return std::string(aCount, ' ');
}

/// An unknown TRE, of which nothing is asked but to be whole.
const std::string ANY = Tre("ANYANY", "x");

std::string Chip(const char* aFlag, const char* aRow, const char* aFullRow)
{
    const std::string zero = "00000000.000";
    const std::string points = zero + zero + zero + zero + aRow + zero + zero + zero;
    const std::string full = zero + zero + zero + zero + aFullRow + zero + zero + zero;
    return Tre("ICHIPB", std::string(aFlag) + "0001.00000" + "00" + "00" + points + full + "00000100" + "00000100");
}

std::string Layers(unsigned aBands)
{
    return Tre("J2KLRA",
               "0"
               "05" +
                   Padded(aBands, 5) + "001" + "000" + "08.000000");
}

std::string Identity(char aEdition)
{
    const std::string number = "+1.00000000000000E+00";
    std::string data = Blanks(80) + std::string(40, aEdition) +
                       Blanks(40 + 40 + 40 + 4 + 2 + 2 + 2 + 2 + 9 + 8 + 8 + 21 + 21) + "G" + Blanks(12 * 21);
    for (int i = 0; i != 24; ++i) {
        data += number;
    }
    data += Blanks(18 * 21 + 6 * 8 + 4 * 8);
    return data;
}

std::string Bandsb(unsigned aCount)
{
    std::string quantity = "RAW";
    quantity.resize(24, ' ');
    return Tre("BANDSB", Padded(aCount, 5) + quantity + "U" + std::string(8, '\0') +
                             "0001.00M"
                             "0001.00M"
                             "0001.00M"
                             "0001.00M" +
                             std::string(52, '\0'));
}

/// A commercial dataset that was processed at a moment.
std::string Dataset(const char* aProcessed)
{
    return Tre("CSDIDA",
               "01JAN2026QB0101001AAP10000"
               "20260101110000" +
                   std::string(aProcessed) +
                   "0000NN"
                   "version   ");
}

template<typename Change>
std::string WithOverflow(bool aBroken, Change aChange, Format aFormat = Format::Nitf21)
{
    NitfBuilder file(aFormat);
    HeaderFields& image = file.AddImage();
    image.Area("UDID", ANY, 1);
    HeaderFields& des = file.AddOverflow("UDID", 1, ANY);
    aChange(file, image, des, aBroken);
    return file.Bytes();
}

}  // namespace

std::vector<RuleCase> TreCases()
{
    return {
        {"TR-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Area("IXSHD", ANY + (b ? "junk" : "")); });
         }},
        {"TR-02",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto&, auto& i, bool b) { i.Area("IXSHD", Tre(b ? "anyany" : "ANY_01", "x")); });
         }},
        {"TR-03",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto& f, auto& i, bool b) { (b ? f.File().Area("XHD", USE) : i.Area("IXSHD", USE)); });
         }},
        {"TR-04",
         [](bool aBroken) {
             return WithImage(
                 aBroken, [](auto&, auto& i, bool b) { i.Area(b ? "UDID" : "IXSHD", USE); }, Format::Nitf20);
         }},
        {"TR-06",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Area("IXSHD", b ? USE + USE : USE); });
         }},
        {"TR-07",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Area("IXSHD", Tre("EXPLTA", "x") + (b ? Tre("EXPLTB", "x") : ""));
             });
         },
         "RD-03", "RD-03"},
        {"TR-08",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Area("IXSHD", b ? Layers(1) : ANY); });
         }},
        {"TR-10",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 i.Compression("C6", "    ").Area("IXSHD", Layers(b ? 3 : 1));
                 f.LastData() = "any";
                 if (!i.Has("none")) {
                     i.Damage("COMRAT", "");
                 }
             });
         }},
        {"TR-11",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Area("IXSHD", Bandsb(b ? 3 : 1)); });
         }},
        {"TR-13",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Area("IXSHD", Chip("00", b ? "00000005.000" : "00000001.500", "00000100.000"));
             });
         }},
        {"TR-15",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Area("IXSHD", Tre("ACFTB", "x") + Tre(b ? "ANYANY" : "AIMIDB", "x"));
             });
         },
         "RD-03", "RD-03"},
        {"TR-16",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto&, auto& i, bool b) { i.Area("IXSHD", Tre(b ? "CSEXRA" : "CSEXRX", "x")); });
         },
         "RD-03"},
        {"TR-17",
         [](bool aBroken) {
             NitfBuilder file;
             file.File().Area("UDHD", Dataset(aBroken ? "20260102120000" : "20260101120000"));
             return file.Bytes();
         }},
        {"TR-18",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Area("IXSHD", (b ? "" : Tre("RSMIDA", Identity('E'))) + Tre("RSMPCA", "x"));
             });
         },
         "RD-03", "RD-03"},
        {"TR-19",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto&, auto& i, bool b) { i.Area(b ? "IXSHD" : "UDID", Tre("RPFIMG", "x")); });
         },
         "RD-03", "RD-03"},
        {"RD-03",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto&, auto& i, bool b) { i.Area("IXSHD", b ? Tre("USE00A", "short") : USE); });
         }},
        {"DE-01",
         [](bool aBroken) {
             return WithOverflow(aBroken, [](auto&, auto&, auto& d, bool b) { d.Set("DESVER", b ? "2" : "1"); });
         }},
        {"DE-02",
         [](bool aBroken) {
             return WithOverflow(aBroken, [](auto&, auto& i, auto& d, bool b) {
                 d.Set("DESITEM", b ? "007" : "001");
                 i.Set("UDOFL", b ? "000" : "001");
             });
         }},
        {"DE-03",
         [](bool aBroken) {
             return WithOverflow(aBroken, [](auto&, auto& i, auto&, bool b) { i.Set("UDOFL", b ? "000" : "001"); });
         }},
        {"DE-04",
         [](bool aBroken) {
             return WithOverflow(aBroken, [](auto& f, auto&, auto&, bool b) {
                 if (b) {
                     f.AddOverflow("UDID", 1, ANY);
                 }
             });
         },
         "DE-03"},
        {"DE-05",
         [](bool aBroken) {
             return WithOverflow(aBroken, [](auto& f, auto&, auto&, bool b) { f.LastData() = b ? ANY + "junk" : ANY; });
         }},
        {"DE-06",
         [](bool aBroken) {
             return WithOverflow(
                 aBroken,
                 [](auto&, auto&, auto& d, bool b) {
                     d.Set("DESTAG", b ? "Controlled Extensions" : "Registered Extensions");
                 },
                 Format::Nitf20);
         }},
        {"DE-07",
         [](bool aBroken) {
             NitfBuilder file;
             HeaderFields& des = file.AddDes("XML_DATA_CONTENT", "<x/>");
             if (aBroken) {
                 des.UserFields(std::string(100, '0'));
             }
             return file.Bytes();
         },
         "RD-08"},
        {"DE-08",
         [](bool aBroken) {
             return WithImage(aBroken,
                              [](auto&, auto& i, bool b) { i.Area("IXSHD", Tre(b ? "CSCCGA" : "ANYANY", "x")); });
         },
         "RD-03"},
        {"DE-09",
         [](bool aBroken) {
             NitfBuilder file;
             file.AddDes(aBroken ? "TEST_DES" : "XML_DATA_CONTENT", "<x/>");
             return file.Bytes();
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
