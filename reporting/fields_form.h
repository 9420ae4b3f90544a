// frmFields, "All Project Fields": the twelve tag values of one item in one
// place (project, activity, custom lists 1 to 4 in combo boxes, custom
// fields 5 to 10 in text boxes), written onto that item or onto every item
// of a selection.
//
//   ShowStaticFields(s);   // the ribbon's cmdStaticFields, the toolbar's cboStaticFields
//
// Or by hand, as ShowStaticFields does:
//
//   frmFields form(s);
//   Object selection = Main::GetCurrentSelectedItem(s, true);
//   form.LoadFields(selection);
//   s.ui().ShowModal(form);
//
// On a Selection (MultipleSelection) every box starts empty, the TimeSheet ID
// is hidden, and Save writes every box onto every item, empty ones included,
// skipping reported items when DontAllowChangesToReportedItem is set. On one
// reported item with that flag the form only shows: every box and Save are
// disabled and Cancel reads "E&xit". Fields 9 and 10 take digits and
// backspace only, key by key; a paste is not filtered.
#pragma once

#include "core/object.h"
#include "platform/form_model.h"

namespace qvx {

class AddinState;

class frmFields : public platform::FormModel {
 public:
  explicit frmFields(AddinState& s);

  // Fills the form from an item or a Selection. Trap "frmFields.LoadFields";
  // after a failure the form shows what was filled so far.
  void LoadFields(const Object& objSelection) noexcept;
  // Writes every box onto the item and saves it. Trap
  // "frmFields.TagValuesToFieldsSingleItem".
  void TagValuesToFieldsSingleItem(const Object& objItem) noexcept;

  Object objCurrentSelection;
  bool ReportedItemState = false;
  bool MultipleSelection = false;

 private:
  void cboProject_Click() noexcept;
  void cmdSave_Click() noexcept;

  AddinState& s_;
};

// Opens frmFields modally on what the user works on (the item of the active
// inspector, or the explorer's selection); nothing when there is nothing.
// Trap "Main.ShowStaticFields".
void ShowStaticFields(AddinState& s) noexcept;

}  // namespace qvx
