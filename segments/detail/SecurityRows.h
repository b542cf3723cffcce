#pragma once

#include "fields/FieldRow.h"
#include "fields/RowList.h"

#include <algorithm>
#include <array>
#include <cstddef>

// Rows that stand in every header of a version: the security block with the header's own prefix, and the extension
// areas.
namespace ORMO::SensorModel::CSM::Detail {

/// A text that can be an argument of a template.
template<std::size_t N>
struct Literal
{
    char text[N]{};
    constexpr Literal(const char (&aText)[N]) noexcept { std::copy_n(aText, N, text); }
};

template<Literal FIRST, Literal SECOND>
struct JoinedLiteral
{
    static constexpr auto VALUE = [] {
        std::array<char, sizeof FIRST.text + sizeof SECOND.text - 1> text{};
        std::copy_n(FIRST.text, sizeof FIRST.text - 1, text.begin());
        std::copy_n(SECOND.text, sizeof SECOND.text, text.begin() + sizeof FIRST.text - 1);
        return text;
    }();
};

/// Two texts put together when the table is compiled: Join<"FS", "CLSY">.
template<Literal FIRST, Literal SECOND>
inline constexpr const char* Join = JoinedLiteral<FIRST, SECOND>::VALUE.data();

// clang-format off

/// NITF 2.1, 167 bytes (MIL-STD-2500C, table A-1 and its kin). The first tag is given whole, because the DES and RES
/// subheaders spell it in their own ways; the form of the classification reason differs in the file header.
template<Literal CLAS, Literal PREFIX, Literal TITLE, Form REASON = Form::Ecs>
inline constexpr FieldRow SECURITY_21[] = {
    Field(CLAS.text,              1, Need::Required,      Form::Ecs, "T=TOP SECRET|S=SECRET|C=CONFIDENTIAL|R=RESTRICTED|U=UNCLASSIFIED", "", Join<TITLE, " Security Classification [T|S|C|R|U]">),
    Field(Join<PREFIX, "CLSY">,   2, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Security Classification System [FIPS 10-4 country code|XN]">),
    Field(Join<PREFIX, "CODE">,  11, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Codewords">),
    Field(Join<PREFIX, "CTLH">,   2, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Control and Handling">),
    Field(Join<PREFIX, "REL">,   20, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Releasing Instructions">),
    Field(Join<PREFIX, "DCTP">,   2, Need::RequiredBlank, Form::Ecs, "DD|DE|GD|GE|O|X", "", Join<TITLE, " Declassification Type [DD|DE|GD|GE|O|X]">),
    Field(Join<PREFIX, "DCDT">,   8, Need::RequiredBlank, Form::Ecs, "{CCYYMMDD}", "", Join<TITLE, " Declassification Date {CCYYMMDD}">),
    Field(Join<PREFIX, "DCXM">,   4, Need::RequiredBlank, Form::Ecs, "X1..X8|X251..X259|any=code of a later profile", "", Join<TITLE, " Declassification Exemption [X1-X8|X251-X259]">),
    Field(Join<PREFIX, "DG">,     1, Need::RequiredBlank, Form::Ecs, "S|C|R", "", Join<TITLE, " Downgrade [S|C|R]">),
    Field(Join<PREFIX, "DGDT">,   8, Need::RequiredBlank, Form::Ecs, "{CCYYMMDD}", "", Join<TITLE, " Downgrade Date {CCYYMMDD}">),
    Field(Join<PREFIX, "CLTX">,  43, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Classification Text">),
    Field(Join<PREFIX, "CATP">,   1, Need::RequiredBlank, Form::Ecs, "O|D|M", "", Join<TITLE, " Classification Authority Type [O|D|M]">),
    Field(Join<PREFIX, "CAUT">,  40, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Classification Authority">),
    Field(Join<PREFIX, "CRSN">,   1, Need::RequiredBlank, REASON,    "A|B|C|D|E|F|G", "", Join<TITLE, " Classification Reason [A-G]">),
    Field(Join<PREFIX, "SRDT">,   8, Need::RequiredBlank, Form::Ecs, "{CCYYMMDD}", "", Join<TITLE, " Security Source Date {CCYYMMDD}">),
    Field(Join<PREFIX, "CTLN">,  15, Need::RequiredBlank, Form::Ecs, "", "", Join<TITLE, " Security Control Number">),
};

/// NITF 2.0, 167 bytes, or 207 with the downgrading event, of which not even blanks stand otherwise (MIL-STD-2500A).
template<Literal PREFIX, Literal TITLE>
inline constexpr FieldRow SECURITY_20[] = {
    Field(Join<PREFIX, "CLAS">,   1, Need::Required, Form::Text, "T=TOP SECRET|S=SECRET|C=CONFIDENTIAL|R=RESTRICTED|U=UNCLASSIFIED", "", Join<TITLE, " Security Classification [T|S|C|R|U]">),
    Field(Join<PREFIX, "CODE">,  40, Need::Optional, Form::Text, "", "", Join<TITLE, " Codewords">),
    Field(Join<PREFIX, "CTLH">,  40, Need::Optional, Form::Text, "", "", Join<TITLE, " Control and Handling">),
    Field(Join<PREFIX, "REL">,   40, Need::Optional, Form::Text, "", "", Join<TITLE, " Releasing Instructions">),
    Field(Join<PREFIX, "CAUT">,  20, Need::Optional, Form::Text, "", "", Join<TITLE, " Classification Authority">),
    Field(Join<PREFIX, "CTLN">,  20, Need::Optional, Form::Text, "", "", Join<TITLE, " Security Control Number">),
    Field(Join<PREFIX, "DWNG">,   6, Need::Optional, Form::Text, "{YYMMDD}|999998|999999", "", Join<TITLE, " Security Downgrade {YYMMDD}[999998|999999]">).Rule("SEC-10"),
    When(Join<PREFIX, "DWNG">, "999998"),
        Field(Join<PREFIX, "DEVT">, 40, Need::Conditional, Form::Text, "", "", Join<TITLE, " Downgrading Event">).Rule("SEC-10"),
    End(),
};

/// An extension area: its length, which counts the overflow number too, the number of the DES with the rest of it, and
/// its records. What the length may be comes from the standard.
constexpr RowList<5> AreaRows(const char* aLength, const char* aRange, const char* aLengthLabel, const char* aOverflow,
                              const char* aOverflowLabel, const char* aArea, const char* aAreaLabel) noexcept
{
    return {{
        Field(aLength, 5, Need::Required, Form::Digits, aRange, "", aLengthLabel),
        WhenPositive(aLength),
            Field(aOverflow, 3, Need::Conditional, Form::Digits, "000..999", "", aOverflowLabel).Locked(),
            Sized(aArea, aLength, -3, Need::Conditional, Form::Records, "", "", aAreaLabel),
        End(),
    }};
}

// clang-format on

}  // namespace ORMO::SensorModel::CSM::Detail
