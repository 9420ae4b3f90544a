#include "settings/single_list.h"

#include <random>

#include "core/text.h"
#include "core/trap.h"
#include "settings/combo_fill.h"
#include "settings/scripting_sort.h"

namespace qvx {
namespace {

constexpr int32_t kSecondColumn = 1;  // Fields.Item(1): a recordset's second column

int16_t ToIndex(size_t position) {
  if (position > 32767) throw Failure::Runtime(err::kOverflow);
  return static_cast<int16_t>(position);
}

Object SecondField(const Object& recordset) {
  return recordset.Get("Fields").ToObject().Get("Item", {Variant(kSecondColumn)}).ToObject();
}

}  // namespace

void cSingleList::AddIfAbsent(std::string_view item) {
  if (!dicList.Exists(item)) dicList.Add(item, std::string(item));
}

int16_t cSingleList::getItemIndex(FailureSink& s, std::string_view Item) {
  return TrappedResult<int16_t>(s, "SingleList.getItemIndex", [&](Line& line, int16_t& result) {
    line = 10;
    // Keys ignore case but the comparison is exact: with key and item the
    // same text, only the entry under Item's key can equal it, so the
    // dictionary's index answers without a walk (the ribbon asks per row).
    size_t position = dicList.IndexOf(Item);
    if (position == dicList.npos || dicList.Entries()[position].value != Item) {
      position = dicList.Count();
    }
    line = 20;
    result = ToIndex(position);
  });
}

std::string cSingleList::GetItem(FailureSink& s, int16_t Index) {
  return TrappedResult<std::string>(s, "SingleList.GetItem", [&](Line& line, std::string& result) {
    line = 10;
    if (Index >= 0 && static_cast<size_t>(Index) < dicList.Count()) {
      result = std::string(Trim(dicList.Entries()[static_cast<size_t>(Index)].value));
    }
  });
}

std::string cSingleList::ToString(FailureSink& s, std::string_view Delimiter, bool Sort) {
  return TrappedResult<std::string>(s, "SingleList.GetString",
                                    [&](Line& line, std::string& result) {
                                      line = 10;
                                      if (Sort && dicList.Count() > 1)
                                        dicList = Scripting::Sort(dicList, 1);
                                      line = 20;
                                      std::vector<std::string> items;
                                      items.reserve(dicList.Count());
                                      for (const auto& entry : dicList)
                                        items.push_back(entry.value);
                                      line = 30;
                                      result = std::string(Trim(Join(items, Delimiter)));
                                    });
}

void cSingleList::FromString(FailureSink& s, std::string_view Text, std::string_view Delimiter) {
  Trapped(s, "SingleList.SetString", [&](Line& line) {
    line = 10;
    dicList = {};
    if (Text.empty()) return;
    line = 20;
    for (const std::string& part : Split(Text, Delimiter)) {
      if (!part.empty()) AddIfAbsent(part);
    }
    line = 30;
    // Always sorted, whatever the caller wants: a stored order never survives a read.
    dicList = Scripting::Sort(dicList, 1);
  });
}

void cSingleList::PopulateComboList(FailureSink& s, const Object& Control, std::string& Value,
                                    bool AddBlank) {
  Trapped(s, "SingleList.PopulateComboList", [&](Line& line) {
    FillComboList(s, line, Control, Value, AddBlank, dicList,
                  [](const auto& entry) -> const std::string& { return entry.value; });
  });
}

std::string cSingleList::RandomItem(FailureSink& s) {
  return TrappedResult<std::string>(
      s, "SingleList.RandomItem", [&](Line& line, std::string& result) {
        line = 10;
        std::random_device source;
        const double draw = std::uniform_real_distribution<double>(0.0, 1.0)(source);
        line = 20;
        const int16_t at = Variant(draw * (static_cast<double>(dicList.Count()) - 1.0)).ToInteger();
        line = 30;
        if (at < 0 || static_cast<size_t>(at) >= dicList.Count()) {
          throw Failure::Runtime(err::kSubscriptOutOfRange);
        }
        result = dicList.Entries()[static_cast<size_t>(at)].value;
      });
}

void cSingleList::FromRecordset(FailureSink& s, const Object& Recordset) {
  Trapped(s, "SingleList.FromRecordset", [&](Line& line) {
    line = 10;
    dicList = {};
    line = 20;
    if (!Recordset.IsNothing()) {
      while (true) {
        line = 30;
        if (Recordset.Get("EOF").ToBoolean()) break;
        line = 40;
        AddIfAbsent(SecondField(Recordset).Get("Value").ToText());
        line = 50;
        Recordset.Call("MoveNext");
      }
    }
    line = 60;
    dicList = Scripting::Sort(dicList, 1);
  });
}

void cSingleList::FromArray(FailureSink& s, const std::vector<Variant>& Values) {
  Trapped(s, "SingleList.SetArray", [&](Line& line) {
    line = 10;
    dicList = {};
    line = 20;
    for (const Variant& element : Values) {
      const std::string text = element.ToText();
      if (!Trim(text).empty()) AddIfAbsent(text);
    }
  });
}

void cSingleList::FromComboOrList(FailureSink& s, const Object& Control) {
  Trapped(s, "SingleList.GetControl", [&](Line& line) {
    line = 10;
    dicList = {};
    line = 20;
    const int32_t count = Control.Get("ListCount").ToLong();
    line = 30;
    for (int32_t i = 0; i < count; ++i) {
      if (Control.Get("Selected", {Variant(i)}).ToBoolean()) {
        AddIfAbsent(Control.Get("List", {Variant(i)}).ToText());
      }
    }
  });
}

std::vector<std::vector<std::string>> cSingleList::ToArray(FailureSink& s) {
  using Table = std::vector<std::vector<std::string>>;
  return TrappedResult<Table>(s, "SingleList.GetArray", [&](Line& line, Table& result) {
    line = 10;
    // Bounds 0 to count - 1: an empty list has none to give.
    if (dicList.Count() == 0) throw Failure::Runtime(err::kSubscriptOutOfRange);
    Table table(1, std::vector<std::string>(dicList.Count()));
    line = 20;
    size_t next = 0;
    for (const auto& entry : dicList) {
      if (!entry.value.empty()) table[0][next++] = entry.value;
    }
    result = std::move(table);
  });
}

void cSingleList::ToRS(FailureSink& s, const Object& Recordset) {
  Trapped(s, "cSingleList.ToRS", [&](Line& line) {
    line = 10;
    cSingleList stored;
    stored.FromRecordset(s, Recordset);
    line = 20;
    for (const auto& entry : dicList) {
      if (stored.dicList.Exists(entry.value)) continue;
      line = 30;
      Recordset.Call("AddNew");
      line = 40;
      SecondField(Recordset).Put("Value", Variant(entry.value));
      line = 50;
      Recordset.Call("Update");
    }
    line = 60;
    if (stored.dicList.Count() == 0) return;
    line = 70;
    const std::string field = SecondField(Recordset).Get("Name").ToText();
    for (const auto& entry : stored.dicList) {
      if (dicList.Exists(entry.value)) continue;
      line = 80;
      Recordset.Call("MoveFirst");
      line = 90;
      // The quote inside an entry is not escaped: such a row is not found.
      Recordset.Call("Find", {Variant(field + " = '" + entry.value + "'")});
      line = 100;
      if (!Recordset.Get("EOF").ToBoolean()) Recordset.Call("Delete", {Variant(int32_t{1})});
    }
  });
}

std::string cSingleList::ToStringTab(FailureSink& s) {
  return TrappedResult<std::string>(s, "SingleList.GetString",
                                    [&](Line& line, std::string& result) {
                                      line = 10;
                                      // Skipped items leave their slots empty at the end: one more
                                      // tab each.
                                      std::vector<std::string> items(dicList.Count());
                                      size_t next = 0;
                                      for (const auto& entry : dicList) {
                                        if (!entry.value.empty()) items[next++] = entry.value;
                                      }
                                      line = 20;
                                      result = std::string(Trim(Join(items, "\t"))) + "\t ";
                                    });
}

void cSingleList::FromListView(FailureSink& s, const Object& ListView, bool WithTag) {
  Trapped(s, "SingleList.FromListView", [&](Line& line) {
    line = 10;
    if (!WithTag) dicList = {};
    line = 20;
    const Object items = ListView.Get("ListItems").ToObject();
    const int32_t count = items.Get("Count").ToLong();
    for (int32_t i = 1; i <= count; ++i) {
      line = 30;
      const Object item = items.Get("Item", {Variant(i)}).ToObject();
      std::string text = item.Get("Text").ToText();
      if (WithTag) text += item.Get("Tag").ToText();
      line = 40;
      AddIfAbsent(text);
    }
  });
}

}  // namespace qvx
