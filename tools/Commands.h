#pragma once

#include "tools/Command.h"

namespace OrmoNitf {

extern const Command CATALOGUE;
extern const Command CGM;
extern const Command COMPLETION;
extern const Command DESCRIBE;
extern const Command DIFF;
extern const Command DUMP;
extern const Command EXTRACT;
extern const Command INFO;
extern const Command JSON;
extern const Command MANUAL;
extern const Command PLUGIN;
extern const Command PREVIEW;
extern const Command PROPERTY;
extern const Command REPORT;
extern const Command RULES;
extern const Command SCHEMA;
extern const Command TABLE;
extern const Command VALIDATE;
extern const Command XML;

/// In the order in which --help lists them.
inline constexpr const Command* COMMANDS[] = {&INFO,   &JSON,   &XML,      &VALIDATE, &RULES,     &TABLE, &CATALOGUE,
                                              &DIFF,   &DUMP,   &PROPERTY, &DESCRIBE, &EXTRACT,   &CGM,   &PREVIEW,
                                              &REPORT, &SCHEMA, &PLUGIN,   &MANUAL,   &COMPLETION};

}  // namespace OrmoNitf
