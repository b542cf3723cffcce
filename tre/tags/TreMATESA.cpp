#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMATESA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width need           form     values        unit     label
    Field("CUR_SOURCE",      42, RequiredBlank, Ecs,     "",           "",      "Current File/Segment Source",
          "Source of this file or segment: for an image the sensor name and model, for other products the name of "
          "the producer."),
    Field("CUR_MATE_TYPE",   16, Required,      Ecs,
          "any=such as FTITLE, IID2, FILENAME, DOCID, UUID, URN, URL or IC-ID",
          "", "Current File/Segment Mate Type",
          "Kind of the identifier that names this file or segment."),
    Field("CUR_FILE_ID_LEN",  4, Required,      Integer, "0001..9999", "bytes", "Length of the CUR_FILE_ID Field",
          "Length of the identifier that follows."),
    Sized("CUR_FILE_ID",     "CUR_FILE_ID_LEN", 0, Required,      Ecs,     "",           "",      "ID of the Current File/Segment",
          "Identifier of this file or segment, whose mates the extension lists."),
    Field("NUM_GROUPS",       4, Required,      Integer, "0001..9999", "",      "Number of Mate Relationship Groups",
          "How many groups of related files follow."),
    Repeat("NUM_GROUPS"),
        Field("RELATIONSHIP",    24, Required,      Ecs,
              "any=such as STEREO, PARENT, CHILD or MOSAIC",
              "", "Mate Relationship",
              "How the files of the group relate to this file or segment."),
        Field("NUM_MATES",        4, Required,      Integer, "0001..9999", "",      "Number of Mates in the Group",
              "How many files the group names."),
        Repeat("NUM_MATES"),
            Field("SOURCE",          42, RequiredBlank, Ecs,     "",           "",      "Mate Source",
                  "Source of the related file: for an image the sensor name and model, for other products the name "
                  "of the producer."),
            Field("MATE_TYPE",       16, Required,      Ecs,
                  "any=such as FTITLE, IID2, FILENAME, DOCID, UUID, URN, URL or IC-ID",
                  "", "Mate Identifier Type",
                  "Kind of the identifier that names the related file."),
            Field("MATE_ID_LEN",      4, Required,      Integer, "0001..9999", "bytes", "Length of the MATE_ID Field",
                  "Length of the identifier that follows."),
            Sized("MATE_ID",         "MATE_ID_LEN", 0, Required,      Ecs,     "",           "",      "Mate File Identifier",
                  "Identifier of the related file."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMATESA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MATESA",
        .name = "Mates",
        .length = 0,
        .lengthRule =
            "66 + CUR_FILE_ID_LEN + sum over NUM_GROUPS groups of (28 + sum over NUM_MATES mates of (62 + "
            "MATE_ID_LEN)); 158..99985",
        .placement = "image subheader or file header",
        .purpose =
            "Names the files that belong together with this file or segment, such as stereo partners, calibration "
            "data or the products it was made from, in groups by their relation.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1 App AK Table AK.6-5); imaging-nitf TRE description file and "
            "its test records; NITRO plug-in table (cites Table AK.6-5); pynitf TRE definition and its test record; "
            "OSSIM NITF tag class (cites App AK); NFX MATLAB TRE class and its byte-level test (cites STDI-0002-1 App "
            "AK); OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AK)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "Sources list different names of identifier types and relationships, and newer editions may know more, "
            "so that every name is allowed."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
