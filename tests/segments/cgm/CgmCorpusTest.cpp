// Metafiles of real files: each decodes to its end, and nothing that it draws is lost.

#include "segments/cgm/CGMDrawing.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/XmlCheck.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;

/// Where a metafile stands in a file, and what is known of it.
struct Place
{
    const char* file;
    std::size_t offset;
    std::size_t size;
    std::size_t nonCompliant;
    std::size_t skipped = 0;
};

constexpr Place PLACES[] = {
    {"i_3052a.ntf", 656, 864, 1},     {"i_3063f.ntf", 656, 940, 2},      {"ns3051v.nsf", 656, 936, 2, 1},
    {"ns3101b.nsf", 656, 1488, 0},    {"i_3113g.ntf", 69987, 150, 1},    {"i_3113g.ntf", 70395, 370, 1},
    {"gdal3453.ntf", 186112, 216, 1}, {"gdal3453.ntf", 187076, 358, 1},  {"gdal3453.ntf", 188053, 216, 1},
    {"gdal3453.ntf", 189015, 356, 1}, {"gdal3453.ntf", 189990, 216, 1},  {"gdal3453.ntf", 190954, 358, 1},
    {"gdal3453.ntf", 191931, 216, 1}, {"gdal3453.ntf", 192895, 358, 1},  {"WithBE.ntf", 100669, 258, 1},
    {"U_1060A.NTF", 736, 930, 3},     {"U_1101A.NTF", 1049727, 1610, 0}, {"U_1130F.NTF", 263552, 210, 0},
};

std::string BytesAt(const Place& aPlace)
{
    const std::string file = CorpusBytes(aPlace.file);
    return file.size() < aPlace.offset + aPlace.size ? "" : file.substr(aPlace.offset, aPlace.size);
}

TEST(CgmCorpusTest, EveryMetafileIsReadToItsEndWithAllThatItDraws)
{
    for (const Place& place : PLACES) {
        const std::string bytes = BytesAt(place);
        if (bytes.empty()) {
            GTEST_SKIP() << place.file << " is absent";
        }
        const NITFCGMMetaFile metafile = Metafile(bytes);
        EXPECT_EQ(nullptr, metafile.GetFault()) << place.file;
        EXPECT_TRUE(metafile.HasEndOfMetafile()) << place.file;
        EXPECT_EQ(place.nonCompliant, metafile.GetNumNonNITFCGMCompliantInputs()) << place.file << ' ' << place.offset;
        EXPECT_EQ(place.skipped, metafile.GetNumSkippedGraphicalPrimitives()) << place.file;
        std::size_t drawn = 0;
        std::size_t shown = 0;
        for (const auto& [element, count] : CountCgmElements(bytes)) {
            drawn += element.first == 4 ? count : 0;
            // Shown is all but control elements and the hatch index, which the profile does not have.
            shown += element.first != 3 && element.first != -1 && element != std::pair(5, 24) ? count : 0;
        }
        EXPECT_EQ(drawn, metafile.GetAllGraphicalPrimitiveElements().size() + place.skipped) << place.file;
        EXPECT_EQ(shown, metafile.GetNumOfClearTextLines() + place.skipped) << place.file;
        std::string svg;
        CGMDrawing::AppendSvg(metafile, 0, 0, svg);
        EXPECT_EQ("", XmlFault(svg)) << place.file;
        EXPECT_EQ(static_cast<long>(metafile.GetAllGraphicalPrimitiveElements().size()) + 2,
                  std::count(svg.begin(), svg.end(), '\n'))
            << place.file << svg;
    }
}

TEST(CgmCorpusTest, ClearTextsAreThoseWorkedOutFromTheBytes)
{
    const std::string north = BytesAt(PLACES[14]);
    const std::string arrow = BytesAt(PLACES[6]);
    if (north.empty() || arrow.empty()) {
        GTEST_SKIP() << "WithBE.ntf or gdal3453.ntf is absent";
    }
    EXPECT_EQ(
        "BEGMF NORTH;\n"
        "MFVERSION 1;\n"
        "MFELEMLIST drawingplus;\n"
        "MFDESC \"NITF/CGM;ProfileEd:2301-2/Source:SORSER 1.0;Date:20140817\";\n"
        "FONTLIST HELVETICA_BOLD;\n"
        "BEGPIC NORTH;\n"
        "COLRMODE direct;\n"
        "EDGEWIDTHMODE abs;\n"
        "VDCEXT (0,32767) (32767,0);\n"
        "BEGPICBODY ;\n"
        "FILLCOLR 255 255 0;\n"
        "INTSTYLE empty;\n"
        "EDGEVIS on;\n"
        "EDGEWIDTH 1;\n"
        "EDGETYPE 1;\n"
        "EDGECOLR 255 255 0;\n"
        "TEXTFONTINDEX 1;\n"
        "ELLIPSE (25,25) (25,51) (51,25);\n"
        "INTSTYLE solid;\n"
        "POLYGON (25,25) (25,0) (29,8) (20,8) (25,0);\n"
        "CHARHEIGHT 12;\n"
        "CHARORI 0 -1 1 0;\n"
        "TEXTCOLR 255 255 0;\n"
        "TEXT (12,31) final N;\n"
        "ENDPIC ;\n"
        "ENDMF ;\n",
        ClearText(Metafile(north)));
    EXPECT_EQ(
        "BEGMF ;\n"
        "MFVERSION 1;\n"
        "MFELEMLIST drawingplus;\n"
        "MFDESC \"NITF/CGM;ProfileEd:2301-2/Source:Global ImageViewer v20.0B339;Date:20091125\";\n"
        "BEGPIC ;\n"
        "COLRMODE direct;\n"
        "LINEWIDTHMODE abs;\n"
        "EDGEWIDTHMODE abs;\n"
        "VDCEXT (0,32767) (32767,0);\n"
        "BEGPICBODY ;\n"
        "LINECOLR 255 255 0;\n"
        "LINEWIDTH 2;\n"
        "LINETYPE 1;\n"
        "LINE (2,83) (70,2);\n"
        "EDGECOLR 255 255 0;\n"
        "EDGEVIS on;\n"
        "INTSTYLE solid;\n"
        "FILLCOLR 255 255 0;\n"
        "EDGEWIDTH 2;\n"
        "EDGETYPE 1;\n"
        "POLYGON (64,8) (57,3) (70,2) (71,14) (64,8);\n"
        "ENDPIC ;\n"
        "ENDMF ;\n",
        ClearText(Metafile(arrow)));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
