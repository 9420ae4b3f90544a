// cSingleList: the program's list of strings, unique without regard to case.
//
// `dicList` is a dictionary whose key and item are the same text; the first
// spelling to arrive stays, and enumeration is in insertion order. The list
// moves to and from delimited text, combo boxes and list boxes, arrays, list
// views and recordsets; those objects are reached by name, so that a form's
// combo box and an Office command bar combo box serve alike.
//
// Each operation traps its own failure, reports it under its label (see the
// .cpp) and returns its empty result; a list that was being replaced stays
// replaced and partly filled.
//
//   cSingleList list;
//   list.FromString(s, "beta\r\nAlpha\r\nBETA", "\r\n");   // Alpha, beta
//   list.ToString(s, "\r\n", false);                       // "Alpha\r\nbeta"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "core/ordered_dictionary.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

class cSingleList {
 public:
  std::string ListName;      // untouched here
  int16_t intColorCode = 0;  // untouched here
  // Each entry's key is its item; getItemIndex relies on it.
  OrderedDictionary<std::string> dicList;

  // 0-based position of the first item equal to Item, case included; the
  // count when there is none. Constant time, like GetItem.
  int16_t getItemIndex(FailureSink& s, std::string_view Item);
  // The item at a 0-based index, trimmed; "" outside the list.
  std::string GetItem(FailureSink& s, int16_t Index);
  // The items joined, the whole trimmed. Sort replaces the list by its sorted form.
  std::string ToString(FailureSink& s, std::string_view Delimiter, bool Sort);
  // Replaces the list by the non-empty parts of Text, untrimmed, then sorts
  // (when Text is not empty).
  void FromString(FailureSink& s, std::string_view Text, std::string_view Delimiter);
  // Fills a combo box (Clear, AddItem) and selects Value. A text the control
  // showed before wins and is written back into Value.
  void PopulateComboList(FailureSink& s, const Object& Control, std::string& Value, bool AddBlank);
  // An item drawn at random.
  std::string RandomItem(FailureSink& s);
  // Replaces the list by the second column of the recordset, then sorts.
  void FromRecordset(FailureSink& s, const Object& Recordset);
  // Replaces the list by the elements whose trimmed text is not empty. No sort.
  void FromArray(FailureSink& s, const std::vector<Variant>& Values);
  // Replaces the list by the selected rows of a combo or list box. No sort.
  void FromComboOrList(FailureSink& s, const Object& Control);
  // One row (index 0) of the non-empty items; skipped slots stay empty at the end.
  std::vector<std::vector<std::string>> ToArray(FailureSink& s);
  // Brings the second column of a recordset into line with the list.
  void ToRS(FailureSink& s, const Object& Recordset);
  // Non-empty items joined by tabs, trimmed, then a tab and a blank.
  std::string ToStringTab(FailureSink& s);
  // Adds the list view's item texts (with their tags appended when WithTag,
  // to the list as it is; otherwise to a new list). No sort.
  void FromListView(FailureSink& s, const Object& ListView, bool WithTag);

 private:
  void AddIfAbsent(std::string_view item);
};

}  // namespace qvx
