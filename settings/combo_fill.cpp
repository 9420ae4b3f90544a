#include "settings/combo_fill.h"

namespace qvx {

void SelectComboValue(FailureSink& s, Line& line, const Object& Control, const std::string& shown,
                      std::string& Value) {
  line = 50;
  if (!shown.empty()) Value = shown;  // the text the control showed wins
  line = 60;
  if (Value.empty()) return;
  bool failed = !IgnoreFailure(s.Err(), [&] { Control.Put("Text", Variant(Value)); });
  if (!shown.empty()) {
    failed = !IgnoreFailure(s.Err(), [&] { Control.Put("Text", Variant(shown)); }) || failed;
  }
  if (failed) {
    // A control whose text is read-only: select the row instead.
    s.Err().Clear();
    int32_t count = 0;
    if (IgnoreFailure(s.Err(), [&] { count = Control.Get("ListCount").ToLong(); })) {
      for (int32_t i = 0; i <= count; ++i) {
        bool equal = false;
        IgnoreFailure(s.Err(),
                      [&] { equal = Control.Get("List", {Variant(i)}).ToText() == Value; });
        if (equal) {
          IgnoreFailure(s.Err(), [&] { Control.Put("ListIndex", Variant(i)); });
          break;
        }
      }
    }
  }
  s.Err().Clear();
}

}  // namespace qvx
