// The main module's process-wide objects, released only by the tear-down.
#pragma once

#include <memory>
#include <string>

#include "core/object.h"
#include "settings/my_settings.h"

namespace qvx {

// Where the add-in stands in its life: it only ever moves forward.
enum class AddinPhase { NotConnected, Connected, Started, TornDown };

struct MainGlobals {
  AddinPhase phase = AddinPhase::NotConnected;
  Object objOutlook;
  bool blnAddinConnected = false;
  std::unique_ptr<cMySettings> objMySettings;
  std::string strToolName;
  Object objNameSpace;
  Object objRibbonUI;
};

}  // namespace qvx
