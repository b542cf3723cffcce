#include "segments/detail/rules/Rule.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

// What the row of every field asks for, and what is found when a file is read. Nothing looks twice: the rows are held
// against by the record of the header, and what reading found stands among the findings already.
// clang-format off
constexpr Rule RULES[] = {
    {"FLD-01", ERROR, ALL, Subject::Field, "every field",
     "The value of a field is none of those that may stand there.",
     "Each field of a header, a TRE and the user-defined fields of a DES has a range or a list of values. A field that may be left out is warned of only.",
     "the table of the header or the definition of the TRE"},
    {"FLD-02", ERROR, ALL, Subject::Field, "every field",
     "A field holds a byte that its character set does not have.",
     "BCS-A allows 0x20 to 0x7E, ECS-A also 0xA0 to 0xFF, BCS-N digits and + - . /, BCS-NPI digits only; line feed, form feed and carriage return end lines.",
     "MIL-STD-2500C 5.1.7"},
    {"FLD-03", ERROR, ALL, Subject::Field, "every field",
     "A field that must be filled is blank.",
     "Required fields and conditional ones whose condition holds may be blank only where the table says so. Fields that many good files leave blank are warned of only.",
     "the table of the header or the definition of the TRE"},
    {"FLD-04", ERROR, ALL, Subject::Field, "every field with a number",
     "A field that holds a number holds something else.",
     "Numbers stand in digits, with sign, point and exponent where the form of the field has them.",
     "the table of the header or the definition of the TRE"},
    {"RD-01", WARN, ALL, Subject::File, "segment tables",
     "The data of a segment end beyond the end of the file.",
     "Subheaders can be read, the data of the segment cannot.",
     "found when the file is read"},
    {"RD-02", WARN, ALL, Subject::FileHeader, "FL",
     "The file was written as a stream and is read by the header at its end.",
     "A writer that did not know the lengths beforehand leaves a second header in a STREAMING_FILE_HEADER DES. Nothing is wrong with that, but a reader that does not know of it sees no length.",
     "MIL-STD-2500C 5.8.3.2"},
    {"RD-03", WARN, ALL, Subject::Tre, "CEDATA, REDATA",
     "The data of a TRE do not fit the layout of its tag.",
     "The TRE is kept with its bytes but without fields.",
     "the definition of the TRE"},
    {"RD-04", WARN, ALL, Subject::Tre, "CETAG, RETAG",
     "A TRE has no typed form and is left out.",
     "Only when typed TREs alone were asked for.",
     "found when the file is read"},
    {"RD-05", WARN, ALL, Subject::Tre, "CETAG, RETAG",
     "A TRE could not be made and is left out.",
     "Its tag is blank, or memory was short.",
     "found when the file is read"},
    {"RD-06", WARN, ALL, Subject::Cgm, "CGM",
     "A metafile is not read, or not to its end.",
     "What stands before the fault is drawn. The finding names class, identifier and offset of the element.",
     "ISO/IEC 8632-3; MIL-STD-2301A"},
    {"RD-07", WARN, V20, Subject::Symbol, "STYPE, NBPP, SNUM, SROT",
     "What a symbol draws cannot be made of its fields.",
     "A bitmap needs bits, an object symbol a number and a rotation that exist.",
     "MIL-STD-2500A tables VII and X"},
    {"RD-08", WARN, V21, Subject::Des, "DESSHF",
     "The user-defined subheader fields do not fit the type of the DES.",
     "They are kept as one field.",
     "the definition of the DES"},
    {"RD-09", WARN, ALL, Subject::File, "segment data",
     "The data of a segment are not available.",
     "The file is cut, cannot be read any more, or the image support data were made without them.",
     "found when the file is read"},
};
// clang-format on

}  // namespace

RuleList FieldRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
