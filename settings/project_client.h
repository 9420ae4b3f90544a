// cProjectClient: one project of the catalogue, its name, colour and dates.
//
// Its record in the catalogue text is the encoded name, the colour as
// decimal text and the two dates as "year-month-day" without padding, joined
// by ","; a date of the years 1899, 4501 or 1 (the empty date among them)
// writes as nothing:
//
//   cProjectClient p;
//   p.ListName = "Alpha, phase 1";
//   p.intColorCode = 5;
//   p.StartDate = DateSerial(2011, 3, 1);
//   p.ToString(s) == "Alpha_COMMA_ phase 1,5,2011-3-1,"
#pragma once

#include <cstdint>
#include <string>

#include "core/dates.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

class cProjectClient {
 public:
  std::string ListName;
  int16_t intColorCode = 0;
  DateValue StartDate = kEmptyDate;
  DateValue FinishDate = kEmptyDate;

  // The project record. No trap of its own: a failure goes to the caller.
  std::string ToString(FailureSink& s) const;
  // The same record, appended to `out`.
  void AppendTo(FailureSink& s, std::string& out) const;
};

}  // namespace qvx
