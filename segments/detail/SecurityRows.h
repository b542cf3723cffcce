#pragma once

// The security block of a header: the same rows in every header of a version, with the header's own prefix. Each use
// pastes the prefix into the tags, which only the preprocessor can do at compile time.

/// NITF 2.1, 167 bytes (MIL-STD-2500C, table A-1 and its kin). The first tag is given whole, because the DES subheader
/// spells it DECLAS, with the name that others give it or null; the form of the classification reason differs in the
/// file header.
#define ORMO_SECURITY_ROWS_21(aClas, aAlias, aPrefix, aTitle, aReasonForm)                                          \
    Field(aClas, 1, Required, Ecs, "T|S|C|R|U", "", aTitle " Security Classification [T|S|C|R|U]").Alias(aAlias),   \
        Field(aPrefix "CLSY", 2, RequiredBlank, Ecs, "", "",                                                        \
              aTitle " Security Classification System [FIPS 10-4 country code|XN]"),                                \
        Field(aPrefix "CODE", 11, RequiredBlank, Ecs, "", "", aTitle " Codewords"),                                 \
        Field(aPrefix "CTLH", 2, RequiredBlank, Ecs, "", "", aTitle " Control and Handling"),                       \
        Field(aPrefix "REL", 20, RequiredBlank, Ecs, "", "", aTitle " Releasing Instructions"),                     \
        Field(aPrefix "DCTP", 2, RequiredBlank, Ecs, "DD|DE|GD|GE|O|X", "",                                         \
              aTitle " Declassification Type [DD|DE|GD|GE|O|X]"),                                                   \
        Field(aPrefix "DCDT", 8, RequiredBlank, Ecs, "{CCYYMMDD}", "", aTitle " Declassification Date {CCYYMMDD}"), \
        Field(aPrefix "DCXM", 4, RequiredBlank, Ecs, "X1..X8|X251..X259|any=code of a later profile", "",           \
              aTitle " Declassification Exemption [X1-X8|X251-X259]"),                                              \
        Field(aPrefix "DG", 1, RequiredBlank, Ecs, "S|C|R", "", aTitle " Downgrade [S|C|R]"),                       \
        Field(aPrefix "DGDT", 8, RequiredBlank, Ecs, "{CCYYMMDD}", "", aTitle " Downgrade Date {CCYYMMDD}"),        \
        Field(aPrefix "CLTX", 43, RequiredBlank, Ecs, "", "", aTitle " Classification Text"),                       \
        Field(aPrefix "CATP", 1, RequiredBlank, Ecs, "O|D|M", "", aTitle " Classification Authority Type [O|D|M]"), \
        Field(aPrefix "CAUT", 40, RequiredBlank, Ecs, "", "", aTitle " Classification Authority"),                  \
        Field(aPrefix "CRSN", 1, RequiredBlank, aReasonForm, "A|B|C|D|E|F|G", "",                                   \
              aTitle " Classification Reason [A-G]"),                                                               \
        Field(aPrefix "SRDT", 8, RequiredBlank, Ecs, "{CCYYMMDD}", "", aTitle " Security Source Date {CCYYMMDD}"),  \
        Field(aPrefix "CTLN", 15, RequiredBlank, Ecs, "", "", aTitle " Security Control Number")

/// NITF 2.0, 167 bytes, or 207 with the downgrading event, of which not even blanks stand otherwise (MIL-STD-2500A).
#define ORMO_SECURITY_ROWS_20(aPrefix, aTitle)                                                                \
    Field(aPrefix "CLAS", 1, Required, Text, "T|S|C|R|U", "", aTitle " Security Classification [T|S|C|R|U]"), \
        Field(aPrefix "CODE", 40, Optional, Text, "", "", aTitle " Codewords"),                               \
        Field(aPrefix "CTLH", 40, Optional, Text, "", "", aTitle " Control and Handling"),                    \
        Field(aPrefix "REL", 40, Optional, Text, "", "", aTitle " Releasing Instructions"),                   \
        Field(aPrefix "CAUT", 20, Optional, Text, "", "", aTitle " Classification Authority"),                \
        Field(aPrefix "CTLN", 20, Optional, Text, "", "", aTitle " Security Control Number"),                 \
        Field(aPrefix "DWNG", 6, Optional, Text, "{YYMMDD}|999998|999999", "",                                \
              aTitle " Security Downgrade {YYMMDD}[999998|999999]"),                                          \
        When(aPrefix "DWNG", "999998"),                                                                       \
        Field(aPrefix "DEVT", 40, Conditional, Text, "", "", aTitle " Downgrading Event"), End()
