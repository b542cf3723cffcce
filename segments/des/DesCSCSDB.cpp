#include "fields/RowList.h"
#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/CommonSensorRows.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr const char* PAIRINGS[] = {"NUM_PAIRINGS_BASIC_PF", "NUM_PAIRINGS_BASIC_PL", "NUM_PAIRINGS_POST_PF",
                                    "NUM_PAIRINGS_POST_PL"};

/// Six characters for each sensor that a function pairs with this one. They are one field, for repeats nest no deeper.
template<std::size_t N>
bool WidthOfPairs(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t count = 0;
    const bool known = aContext.Count(PAIRINGS[N], count);
    aOut = 6 * count;
    return known;
}

bool CountTriangle(const WalkContext& aContext, std::string_view aOrder, std::uint64_t& aOut)
{
    std::uint64_t order = 0;
    const bool known = aContext.Count(aOrder, order) && order <= UINT32_MAX;
    aOut = known ? order * (order + 1) / 2 : 0;
    return known;
}

bool CountBasicElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "NUM_ADJ_PARM", aOut);
}

bool CountPostElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t posts = 0;
    if (!CountTriangle(aContext, "NUM_ADJ_PARM", aOut) || !aContext.Count("NUM_POSTS", posts)) {
        return false;
    }
    aOut *= aContext.Text("COMMON_POSTS_COV") == "1" ? 1 : posts;
    return true;
}

bool CountCalibrationElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "N1CAL", aOut);
}

bool CountDirectElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "NUM_PARA", aOut);
}

// STDI-0002 Volume 2 Appendix M.
// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                      width need         form     values                          unit        label
    Field("COV_VERSION_DATE",            8, Required,    Date,    "{YYYYMMDD}",                   "",         "Covariance Version Date",
          "Date of this version of the covariance data."),
    Field("CORE_SETS",                   1, Required,    Integer, "0..6",                         "",         "Number of Core Sets",
          "How many sets of sensor error data follow."),
    Repeat("CORE_SETS"),
        Field("REF_FRAME_POSITION",          1, Conditional, Integer,
              "1=earth-fixed|2=sensor|3=orbital|4=TCEF|5=inertial|6=SCEF",
              "", "Reference Frame for Position",
              "Coordinate system of the position errors of the set."),
        Field("REF_FRAME_ATTITUDE",          1, Conditional, Integer,
              "1=earth-fixed|2=sensor|3=orbital|4=TCEF|5=inertial|6=SCEF",
              "", "Reference Frame for Attitude",
              "Coordinate system of the attitude errors of the set."),
        Field("NUM_GROUPS",                  1, Conditional, Integer, "1..7",                         "",         "Number of Groups",
              "How many groups of correlated parameters the set has."),
        Repeat("NUM_GROUPS"),
            Field("CORR_REF_DATE",               8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event",
                  "Date since which the errors of the group are correlated."),
            Field("CORR_REF_TIME",              16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event",
                  "Time of day since which the errors of the group are correlated."),
            Field("NUM_ADJ_PARM",                1, Conditional, Integer, "1..7",                         "",         "Number of Adjustable Parameters",
                  "How many parameters the group has.").Locked(),
            Repeat("NUM_ADJ_PARM"),
                Field("ADJ_PARM_ID",                 1, Conditional, Integer,
                      "1=x position|2=y position|3=z position|4..6=attitude angle|7=focal length",
                      "", "Adjustable Parameter ID",
                      "Names a parameter of the group."),
            End(),
            Field("BASIC_SUB_ALLOC",             1, Conditional, Integer, "0=no|1=yes",                   "",         "Basic Sub-allocation Flag",
                  "Tells whether basic error data for the group follow."),
            When("BASIC_SUB_ALLOC", "1"),
                RepeatBy("NUM_ADJ_PARM*(NUM_ADJ_PARM+1)/2", CountBasicElements, "NUM_ADJ_PARM"),
                    Field("ERRCOV_C1",                  21, Conditional, Real,    "",                             "",         "Basic Error Covariance",
                          "Element of the upper triangle of the basic covariance matrix, row after row."),
                End(),
                Field("BASIC_PF_FLAG",               1, Conditional, Integer, "0=no|1=yes",                   "",         "Basic Platform Correlation Flag",
                      "Tells whether correlation functions between platforms are given for the basic errors."),
                When("BASIC_PF_FLAG", "1"),
                    Field("NUM_BASIC_PF",                2, Conditional, Integer, "01..99",                       "",         "Number of Basic Platform Functions",
                          "How many correlation functions between platforms follow."),
                    Repeat("NUM_BASIC_PF"),
                        Field("BASIC_PF_SPDCF",              2, Conditional, Integer, "01..99",                       "",         "Basic Platform Function ID",
                              "Identifier (SPDCF_ID) of the correlation function."),
                        Field("NUM_PAIRINGS_BASIC_PF",       2, Conditional, Integer, "01..99",                       "",         "Number of Pairings",
                              "How many sensors the function pairs with this one."),
                        Computed("BASIC_PF_SPDCF_SENSOR", WidthOfPairs<0>, Conditional, Text,    "",                             "",         "Paired Sensors",
                              "Other sensors to which the function applies: names of six characters, one after the "
                              "other.").By("NUM_PAIRINGS_BASIC_PF"),
                    End(),
                End(),
                Field("BASIC_PL_FLAG",               1, Conditional, Integer, "0=no|1=yes",                   "",         "Basic Payload Correlation Flag",
                      "Tells whether correlation functions between payloads are given for the basic errors."),
                When("BASIC_PL_FLAG", "1"),
                    Field("NUM_BASIC_PL",                2, Conditional, Integer, "01..99",                       "",         "Number of Basic Payload Functions",
                          "How many correlation functions between payloads follow."),
                    Repeat("NUM_BASIC_PL"),
                        Field("BASIC_PL_SPDCF",              2, Conditional, Integer, "01..99",                       "",         "Basic Payload Function ID",
                              "Identifier (SPDCF_ID) of the correlation function."),
                        Field("NUM_PAIRINGS_BASIC_PL",       2, Conditional, Integer, "01..99",                       "",         "Number of Pairings",
                              "How many sensors the function pairs with this one."),
                        Computed("BASIC_PL_SPDCF_SENSOR", WidthOfPairs<1>, Conditional, Text,    "",                             "",         "Paired Sensors",
                              "Other sensors to which the function applies: names of six characters, one after the "
                              "other.").By("NUM_PAIRINGS_BASIC_PL"),
                    End(),
                End(),
                Field("BASIC_SR_FLAG",               1, Conditional, Integer, "0=no|1=yes",                   "",         "Basic Sensor Correlation Flag",
                      "Tells whether a correlation function within the sensor is given for the basic errors."),
                When("BASIC_SR_FLAG", "1"),
                    Field("BASIC_SR_SPDCF",              2, Conditional, Integer, "01..99",                       "",         "Basic Sensor Function ID",
                          "Identifier (SPDCF_ID) of that function."),
                End(),
            End(),
            Field("POST_SUB_ALLOC",              1, Conditional, Integer, "0=no|1=yes",                   "",         "Post Sub-allocation Flag",
                  "Tells whether error data at correction posts follow for the group."),
            When("POST_SUB_ALLOC", "1"),
                Field("POST_START_DATE",             8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of First Post",
                      "Date of the first correction post."),
                Field("POST_START_TIME",            15, Conditional, Real,
                      "00000.000000000..86399.999999999",
                      "s", "Time of First Post",
                      "Time of day of the first correction post, in seconds after midnight."),
                Field("POST_DT",                    13, Conditional, Real,    "000.000000000..999.999999999", "s",        "Time Between Posts",
                      "Time step between neighbouring correction posts."),
                Field("NUM_POSTS",                   3, Conditional, Integer, "002..999",                     "",         "Number of Posts",
                      "How many correction posts there are.").Locked(),
                Field("COMMON_POSTS_COV",            1, Conditional, Integer,
                      "0=one matrix for each post|1=one matrix for all",
                      "", "Common Covariance Flag",
                      "Tells whether all posts share one covariance matrix.").Locked(),
                RepeatBy("NUM_ADJ_PARM*(NUM_ADJ_PARM+1)/2, for each post unless all share one matrix,", CountPostElements, "NUM_ADJ_PARM"),
                    Field("ERRCOV_C2",                  21, Conditional, Real,    "",                             "",         "Post Error Covariance",
                          "Element of the upper triangle of the covariance matrix of a post, or of the one that all "
                          "posts share."),
                End(),
                Field("POST_INTERP",                 1, Conditional, Integer, "0=nearest|1=linear",           "",         "Post Interpolation Method",
                      "Rule by which errors between posts are found."),
                Field("POST_PF_FLAG",                1, Conditional, Integer, "0=no|1=yes",                   "",         "Post Platform Correlation Flag",
                      "Tells whether correlation functions between platforms are given for the post errors."),
                When("POST_PF_FLAG", "1"),
                    Field("NUM_POST_PF",                 2, Conditional, Integer, "01..99",                       "",         "Number of Post Platform Functions",
                          "How many correlation functions between platforms follow."),
                    Repeat("NUM_POST_PF"),
                        Field("POST_PF_SPDCF",               2, Conditional, Integer, "01..99",                       "",         "Post Platform Function ID",
                              "Identifier (SPDCF_ID) of the correlation function."),
                        Field("NUM_PAIRINGS_POST_PF",        2, Conditional, Integer, "01..99",                       "",         "Number of Pairings",
                              "How many sensors the function pairs with this one."),
                        Computed("POST_PF_SPDCF_SENSOR", WidthOfPairs<2>, Conditional, Text,    "",                             "",         "Paired Sensors",
                              "Other sensors to which the function applies: names of six characters, one after the "
                              "other.").By("NUM_PAIRINGS_POST_PF"),
                    End(),
                End(),
                Field("POST_PL_FLAG",                1, Conditional, Integer, "0=no|1=yes",                   "",         "Post Payload Correlation Flag",
                      "Tells whether correlation functions between payloads are given for the post errors."),
                When("POST_PL_FLAG", "1"),
                    Field("NUM_POST_PL",                 2, Conditional, Integer, "01..99",                       "",         "Number of Post Payload Functions",
                          "How many correlation functions between payloads follow."),
                    Repeat("NUM_POST_PL"),
                        Field("POST_PL_SPDCF",               2, Conditional, Integer, "01..99",                       "",         "Post Payload Function ID",
                              "Identifier (SPDCF_ID) of the correlation function."),
                        Field("NUM_PAIRINGS_POST_PL",        2, Conditional, Integer, "01..99",                       "",         "Number of Pairings",
                              "How many sensors the function pairs with this one."),
                        Computed("POST_PL_SPDCF_SENSOR", WidthOfPairs<3>, Conditional, Text,    "",                             "",         "Paired Sensors",
                              "Other sensors to which the function applies: names of six characters, one after the "
                              "other.").By("NUM_PAIRINGS_POST_PL"),
                    End(),
                End(),
                Field("POST_SR_FLAG",                1, Conditional, Integer, "0=no|1=yes",                   "",         "Post Sensor Correlation Flag",
                      "Tells whether a correlation function within the sensor is given for the post errors."),
                When("POST_SR_FLAG", "1"),
                    Field("POST_SR_SPDCF",               2, Conditional, Integer, "01..99",                       "",         "Post Sensor Function ID",
                          "Identifier (SPDCF_ID) of that function."),
                    Field("POST_CORR",                   1, Conditional, Integer, "0=no|1=yes",                   "",         "Intra-image Correlation Only Flag",
                          "Tells whether the function holds only within one image."),
                End(),
            End(),
        End(),
    End(),
    Field("IO_CAL_AP",                   1, Required,    Integer, "0=no|1=yes",                   "",         "Calibration Parameter Flag",
          "Tells whether errors of the inner orientation follow."),
    When("IO_CAL_AP", "1"),
        Field("NUM_SETS_CAL_AP",             2, Conditional, Integer, "01..99",                       "",         "Number of Calibration Sets",
              "How many sets of calibration parameters, one for each focal length, there are."),
        Repeat("NUM_SETS_CAL_AP"),
            Field("FOCAL_LENGTH_CAL",           11, Conditional, Real,    "00.00000000..99.99999999",     "m",        "Calibration Focal Length",
                  "Focal length of the set."),
        End(),
        Field("NCAL_CPG",                    2, Conditional, Integer, "01..11",                       "",         "Number of Calibration Groups",
              "How many groups of correlated calibration parameters follow."),
        Repeat("NCAL_CPG"),
            Field("CORR_REF_DATE_IO",            8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, Calibration",
                  "Date since which the errors of the group are correlated."),
            Field("CORR_REF_TIME_IO",           16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, Calibration",
                  "Time of day since which the errors of the group are correlated."),
            Field("N1CAL",                       2, Conditional, Integer, "01..11",                       "",         "Number of Calibration Parameters",
                  "How many parameters the group has."),
            Repeat("N1CAL"),
                Field("CAL_AP_ID",                   2, Conditional, Integer,
                      "01=x0|02=y0|03=K0|04=K1|05=K2|06=K3|07=P1|08=P2|09=P3|10=A1|11=A2",
                      "", "Calibration Parameter ID",
                      "Names a parameter of the group: principal point, radial, decentring or affine distortion."),
            End(),
            Repeat("NUM_SETS_CAL_AP"),
                RepeatBy("N1CAL*(N1CAL+1)/2", CountCalibrationElements, "N1CAL"),
                    Field("ERRCOV_C3",                  21, Conditional, Real,    "",                             "",         "Calibration Error Covariance",
                          "Element of the upper triangle of the covariance matrix of the group for one focal length."),
                End(),
            End(),
            Field("CAL_INTERP",                  1, Conditional, Integer, "0=nearest|1=linear",           "",         "Calibration Interpolation Type",
                  "Rule by which errors between focal lengths are found."),
            Field("SPDCF_ID_TIME",               2, Conditional, Integer, "01..99",                       "",         "Function ID in Time",
                  "Identifier (SPDCF_ID) of the correlation function over time."),
            Field("SPDCF_ID_FL",                 2, Conditional, Integer, "01..99",                       "",         "Function ID in Focal Length",
                  "Identifier (SPDCF_ID) of the correlation function over focal length."),
        End(),
    End(),
    Field("TS_CAL_AP",                   1, Required,    Integer, "0=no|1=yes",                   "",         "Time Synchronization Flag",
          "Tells whether errors of the time synchronization follow."),
    When("TS_CAL_AP", "1"),
        Field("NUM_TS_GRP",                  1, Conditional, Integer,
              "1=position and attitude together|2=position and attitude apart|"
              "3=position, attitude and focal length together|4=position and attitude together, focal length apart|"
              "5=all three apart",
              "", "Time Synchronization Layout",
              "Tells how the synchronization errors are grouped."),
        When("NUM_TS_GRP", "1|3"),
            Field("CORR_REF_DATE_TS",            8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, TS",
                  "Date since which the time offsets of all parameters are correlated."),
            Field("CORR_REF_TIME_TS",           16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, TS",
                  "Time of day since which the time offsets of all parameters are correlated."),
        End(),
        When("NUM_TS_GRP", "2|5"),
            Field("CORR_REF_DATE_TSP",           8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, TSP",
                  "Date since which the time offsets of the position are correlated."),
            Field("CORR_REF_TIME_TSP",          16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, TSP",
                  "Time of day since which the time offsets of the position are correlated."),
        End(),
        When("NUM_TS_GRP", "4"),
            Field("CORR_REF_DATE_TSPA",          8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, TSPA",
                  "Date since which the time offsets of position and attitude are correlated."),
            Field("CORR_REF_TIME_TSPA",         16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, TSPA",
                  "Time of day since which the time offsets of position and attitude are correlated."),
        End(),
        When("NUM_TS_GRP", "1"),
            Field("TSRR",                       21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TSRR",
                  "Variance of the position time offset."),
            Field("TSRC",                       21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TSRC",
                  "Covariance between position and attitude time offsets."),
            Field("TSCC",                       21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TSCC",
                  "Variance of the attitude time offset."),
        End(),
        When("NUM_TS_GRP", "2|3|4|5"),
            Field("TS_POS_COV",                 21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_POS_COV",
                  "Variance of the position time offset."),
        End(),
        When("NUM_TS_GRP", "2|5"),
            Field("TS_POS_SPDCF",                2, Conditional, Integer, "01..99",                       "",         "Time Synchronization Function ID TS_POS_SPDCF",
                  "Identifier (SPDCF_ID) of the correlation function of the group."),
            Field("CORR_REF_DATE_TSA",           8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, TSA",
                  "Date since which the time offsets of the attitude are correlated."),
            Field("CORR_REF_TIME_TSA",          16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, TSA",
                  "Time of day since which the time offsets of the attitude are correlated."),
        End(),
        When("NUM_TS_GRP", "3|4"),
            Field("TS_POS_ATT_COV",             21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_POS_ATT_COV",
                  "Covariance between position and attitude time offsets."),
        End(),
        When("NUM_TS_GRP", "3"),
            Field("TS_POS_FL_COV",              21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_POS_FL_COV",
                  "Covariance between position and focal length time offsets."),
        End(),
        When("NUM_TS_GRP", "2|3|4|5"),
            Field("TS_ATT_COV",                 21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_ATT_COV",
                  "Variance of the attitude time offset."),
        End(),
        When("NUM_TS_GRP", "2|5"),
            Field("TS_ATT_SPDCF",                2, Conditional, Integer, "01..99",                       "",         "Time Synchronization Function ID TS_ATT_SPDCF",
                  "Identifier (SPDCF_ID) of the correlation function of the group."),
        End(),
        When("NUM_TS_GRP", "3"),
            Field("TS_ATT_FL_COV",              21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_ATT_FL_COV",
                  "Covariance between attitude and focal length time offsets."),
        End(),
        When("NUM_TS_GRP", "4"),
            Field("TS_PA_SPDCF",                 2, Conditional, Integer, "01..99",                       "",         "Time Synchronization Function ID TS_PA_SPDCF",
                  "Identifier (SPDCF_ID) of the correlation function of the group."),
        End(),
        When("NUM_TS_GRP", "4|5"),
            Field("CORR_REF_DATE_TSFL",          8, Conditional, Date,    "{YYYYMMDD}",                   "",         "Date of Last De-correlation Event, TSFL",
                  "Date since which the time offsets of the focal length are correlated."),
            Field("CORR_REF_TIME_TSFL",         16, Conditional, Time,    "{HHmmss.sssssssss}",           "",         "Time of Last De-correlation Event, TSFL",
                  "Time of day since which the time offsets of the focal length are correlated."),
        End(),
        When("NUM_TS_GRP", "3|4|5"),
            Field("TS_FL_COV",                  21, Conditional, Real,    "",                             "s^2",      "Time Synchronization Covariance TS_FL_COV",
                  "Variance of the focal length time offset."),
        End(),
        When("NUM_TS_GRP", "4|5"),
            Field("TS_FL_SPDCF",                 2, Conditional, Integer, "01..99",                       "",         "Time Synchronization Function ID TS_FL_SPDCF",
                  "Identifier (SPDCF_ID) of the correlation function of the group."),
        End(),
        When("NUM_TS_GRP", "1|3"),
            Field("TS_SPDCF",                    2, Conditional, Integer, "01..99",                       "",         "Time Synchronization Function ID TS_SPDCF",
                  "Identifier (SPDCF_ID) of the correlation function of the group."),
        End(),
    End(),
    Field("UE_FLAG",                     1, Required,    Integer, "0=no|1=yes",                   "",         "Unmodeled Error Flag",
          "Tells whether a grid of errors in the image that the sensor model does not explain follows."),
    When("UE_FLAG", "1"),
        Field("LINE_DIMENSION",              3, Conditional, Integer, "001..999",                     "",         "Grid Points in Line Direction",
              "How many grid points lie along the line direction."),
        Field("SAMPLE_DIMENSION",            2, Conditional, Integer, "01..99",                       "",         "Grid Points in Sample Direction",
              "How many grid points lie along the sample direction."),
        Repeat("LINE_DIMENSION"),
            Repeat("SAMPLE_DIMENSION"),
                Field("URR",                        21, Conditional, Real,    "",                             "pixels^2", "Unmodeled Line Variance",
                      "Variance of the line coordinate at the grid point."),
                Field("URC",                        21, Conditional, Real,    "",                             "pixels^2", "Unmodeled Line-Sample Covariance",
                      "Covariance of line and sample coordinate at the grid point."),
                Field("UCC",                        21, Conditional, Real,    "",                             "pixels^2", "Unmodeled Sample Variance",
                      "Variance of the sample coordinate at the grid point."),
            End(),
        End(),
        Field("LINE_SPDCF",                  2, Conditional, Integer, "01..99",                       "",         "Line Direction Function ID",
              "Identifier (SPDCF_ID) of the correlation function along the line direction."),
        Field("SAMPLE_SPDCF",                2, Conditional, Integer, "01..99",                       "",         "Sample Direction Function ID",
              "Identifier (SPDCF_ID) of the correlation function along the sample direction."),
    End(),
    Field("SPDCF_FLAG",                  1, Required,    Integer, "0=no|1=yes",                   "",         "Correlation Function Flag",
          "Tells whether correlation functions (strictly positive definite correlation functions) are defined."),
    When("SPDCF_FLAG", "1"),
        Field("NUM_SPDCF",                   2, Conditional, Integer, "01..99",                       "",         "Number of Correlation Functions",
              "How many correlation functions follow."),
        Repeat("NUM_SPDCF"),
            Field("SPDCF_ID",                    2, Conditional, Integer, "01..99",                       "",         "Correlation Function ID",
                  "Identifier by which the other fields refer to the function."),
            Field("SPDCF_P",                     2, Conditional, Integer, "01..99",                       "",         "Number of Constituents",
                  "How many weighted parts the function is summed from."),
            Repeat("SPDCF_P"),
                Field("SPDCF_FAM",                   1, Conditional, Integer,
                      "0=four parameters|1=piecewise linear|2=damped cosine",
                      "", "Correlation Function Family",
                      "Form of the part."),
                Field("SPDCF_WEIGHT",                5, Conditional, Real,    "0.000..1.000",                 "",         "Constituent Weight",
                      "Weight of the part."),
                When("SPDCF_FAM", "0"),
                    Field("FP_A",                        8, Conditional, Real,    "0.000001..1.000000",           "",         "Four-parameter A",
                          "Parameter A of the four-parameter function."),
                    Field("FP_ALPHA",                    8, Conditional, Real,    "0.000000..1.000000",           "",         "Four-parameter Alpha",
                          "Parameter alpha of the four-parameter function."),
                    Field("FP_BETA",                     9, Conditional, Real,    "00.000000..10.000000",         "",         "Four-parameter Beta",
                          "Parameter beta of the four-parameter function."),
                    Field("FP_T",                       21, Conditional, Real,    "",                             "",         "Four-parameter T",
                          "Parameter T (correlation length) of the four-parameter function."),
                End(),
                When("SPDCF_FAM", "1"),
                    Field("NUM_SEGS",                    2, Conditional, Integer, "02..10",                       "",         "Number of Segments",
                          "How many points the piecewise linear function has."),
                    Repeat("NUM_SEGS"),
                        Field("PL_MAX_COR",                  8, Conditional, Real,    "0.000000..1.000000",           "",         "Segment Maximum Correlation",
                              "Correlation at the start of the segment."),
                        Field("PL_TAU_MAX_COR",             21, Conditional, Real,    "",                             "",         "Segment Tau",
                              "Difference in time or place at the start of the segment."),
                    End(),
                End(),
                When("SPDCF_FAM", "2"),
                    Field("DC_A",                        8, Conditional, Real,    "0.000001..1.000000",           "",         "Damped Cosine A",
                          "Parameter A of the damped cosine function."),
                    Field("DC_T",                       21, Conditional, Real,    "",                             "",         "Damped Cosine T",
                          "Parameter T of the damped cosine function."),
                    Field("DC_P",                       21, Conditional, Real,    "",                             "",         "Damped Cosine P",
                          "Parameter P of the damped cosine function."),
                End(),
            End(),
        End(),
    End(),
    Field("DIRECT_COVARIANCE_FLAG",      1, Required,    Integer, "0=no|1=yes",                   "",         "Direct Covariance Flag",
          "Tells whether adjusted values with their full covariance follow."),
    When("DIRECT_COVARIANCE_FLAG", "1"),
        Field("DC_TYPE",                     1, Conditional, Integer, "0",                            "",         "Direct Covariance Type",
              "Form of the adjusted values."),
        When("DC_TYPE", "0"),
            Field("NUM_PARA",                    4, Conditional, Integer, "0001..9999",                   "",         "Number of Adjustable Parameters",
                  "How many parameters were adjusted."),
            Repeat("NUM_PARA"),
                Field("ADJ",                        21, Conditional, Real,    "",                             "",         "Adjusted Value",
                      "Correction of the parameter from an outside adjustment."),
            End(),
            RepeatBy("NUM_PARA*(NUM_PARA+1)/2", CountDirectElements, "NUM_PARA"),
                Field("ERRCOV_C4",                  21, Conditional, Real,    "",                             "",         "Direct Error Covariance",
                      "Element of the upper triangle of the covariance matrix of the adjusted values."),
            End(),
        End(),
    End(),
    Field("RESERVED_LEN",                9, Required,    Integer, "000000000..999999999",         "bytes",    "Size of Reserved Field",
          "Length of the reserved field that follows."),
    WhenPositive("RESERVED_LEN"),
        Sized("RESERVED",               "RESERVED_LEN", 0, Conditional, Bytes,   "",                             "",         "Reserved Data Field",
              "Bytes for additions to the layout."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 23);

}  // namespace

DesDESSHFCSCSDB::DesDESSHFCSCSDB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSCSDB::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSCSDB, "Common Sensor Covariance Support Data",
                                   COMMON_SENSOR_LENGTHS, "DesDESSHFCSCSDB", COMMON_SENSOR_SUBHEADER_TABLE.View()};
    return LAYOUT;
}

DesDESDATACSCSDB::DesDESDATACSCSDB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESDATA(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESDATACSCSDB::InitDESDATAFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESDATAs::CSCSDB, "Common Sensor Covariance Support Data", "23 and more",
                                   "DesDESDATACSCSDB", TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
