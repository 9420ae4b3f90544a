#include "ribbon/ribbon_contexts.h"

namespace qvx {

bool IsSuffixedForm(std::string_view id, std::string_view stem) noexcept {
  if (!id.starts_with(stem)) return false;
  const std::string_view rest = id.substr(stem.size());
  for (const ExplorerRibbonContext& context : kExplorerRibbonContexts) {
    if (rest == context.suffix) return true;
  }
  return false;
}

bool IsFamily(std::string_view id, std::string_view stem) noexcept {
  return id == stem || IsSuffixedForm(id, stem);
}

}  // namespace qvx
