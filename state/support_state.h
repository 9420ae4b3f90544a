// State of the support services: error reporting, files, session, mail library.
#pragma once

#include <cstdint>
#include <string>

#include "core/object.h"

namespace qvx {

struct SupportState {
  // Error reporting: only the first report of the process is shown.
  bool firstReportShown = false;
  std::string strCurrentAction;
  bool traceFlag = false;   // nothing sets it: the log stays off
  bool writingLog = false;  // breaks the loop log -> log folder -> file object -> log
  // File and process services.
  Object objFSO;
  bool fileSystemRepairTried = false;
  bool dictionaryRepairTried = false;
  // Session services.
  int16_t cachedVersion = 0;
  bool sendReceiveEnabled = false;  // nothing sets it
  // Mail library.
  Object mapiUtils;
  bool mapiUtilsFailed = false;
};

}  // namespace qvx
