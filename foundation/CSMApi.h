#pragma once

/// The CSM API base library, our own or a user's SDK. Everything of this library includes it from here.
///
/// The headers of an SDK carry dynamic exception specifications, `throw (TSMError)`, which C++17 refuses. They are
/// no part of a function's mangled name and change no layout, so they are blanked out while the headers are read. The
/// standard headers that an SDK needs come first and are read as they are.

#include <list>
#include <map>
#include <string>
#include <vector>

#include <stdio.h>
#include <stdlib.h>

#if defined(ORMO_CSMAPI_EXTERNAL)
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define throw(...)
#endif

#include "TSMCovarianceModel.h"
#include "TSMError.h"
#include "TSMISDByteStream.h"
#include "TSMISDFilename.h"
#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"
#include "TSMImageSupportData.h"
#include "TSMMisc.h"
#include "TSMPlugin.h"
#include "TSMSensorModel.h"
#include "TSMWarning.h"

#if defined(ORMO_CSMAPI_EXTERNAL)
#undef throw
#if defined(__clang__)
#pragma clang diagnostic pop
#endif
#endif
