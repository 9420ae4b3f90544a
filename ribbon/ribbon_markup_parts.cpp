#include "ribbon/ribbon_markup_parts.h"

namespace qvx {

std::string DropDownMarkup(std::string_view stem, std::string_view suffix, bool boundVisible) {
  std::string xml = "<dropDown id=\"";
  xml += stem;
  xml += suffix;
  xml += '"';
  if (boundVisible) xml += " getVisible=\"GetVisible\"";
  xml +=
      " getItemLabel=\"GetItemLabel\" getItemCount=\"GetItemCount\"  getLabel=\"getLabel\" "
      "sizeString=\"AAAAAAAAAAAAAAAAAAAA\" onAction=\"OnActionDropDown\" "
      "getSelectedItemIndex=\"GetSelectedItemIndex\"   getEnabled=\"GetEnabled\"/>";
  return xml;
}

std::string CustomFieldDropDownMarkup(int field, std::string_view suffix) {
  const std::string number = std::to_string(field);
  std::string xml = "<dropDown id=\"cboField";
  xml += number;
  xml += suffix;
  xml += "\" getVisible=\"GetCustomField";
  xml += number;
  xml +=
      "Visibility\" getItemLabel=\"GetItemLabel\" getItemCount=\"GetItemCount\" "
      "getLabel=\"getLabel\" sizeString=\"AAAAAAAAAAAAAAAAAAAA\" onAction=\"OnActionDropDown\" "
      "getSelectedItemIndex=\"GetSelectedItemIndex\" getEnabled=\"GetEnabled\"/>";
  return xml;
}

}  // namespace qvx
