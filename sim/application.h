// SimApplication: the simulated host's Application.
//
// Version is read-only to the add-in and set by the world. ActiveWindow is
// the most recently activated open window, ActiveExplorer and
// ActiveInspector the most recent of their kind (Nothing if none was shown).
// GetNamespace takes "MAPI" only. CreateObject goes to the context's hook
// (429 without one). CreateItem(0, 1, 3) makes an unsaved item whose Parent
// is the default folder of its kind. Quit raises the event Quit, once.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class SimExplorer;
class SimExplorers;
class SimFolder;
class SimInspector;
class SimInspectors;
class SimItem;
class SimNameSpace;
class SimWindow;

class SimApplication : public SimObject {
 public:
  SimApplication(ContextPtr context, std::string version);
  std::string TypeName() const override { return "Application"; }
  // Builds the session and the window lists; call once right after make_shared.
  void Init(std::string mailboxName, std::string userName);

  const std::string& version() const { return version_; }
  void SetVersion(std::string version) { version_ = std::move(version); }
  SimExplorers& explorers() { return *explorers_; }
  SimInspectors& inspectors() { return *inspectors_; }
  SimNameSpace& session() { return *session_; }
  const ContextPtr& context() const { return context_; }

  std::shared_ptr<SimWindow> ActiveWindow() const;
  std::shared_ptr<SimExplorer> ActiveExplorer() const;
  std::shared_ptr<SimInspector> ActiveInspector() const;

  // Opens (or brings forward) an inspector on the item.
  std::shared_ptr<SimInspector> DisplayItem(const std::shared_ptr<SimItem>& item);
  void CloseInspectorsOf(const SimItem& item);
  std::shared_ptr<SimItem> CreateItem(int32_t itemType);
  void Quit();
  bool quitting() const { return quit_; }

  // Called by windows.
  void ActivateWindow(const std::shared_ptr<SimWindow>& window);
  // Before a window's Close: it leaves its collection.
  void WindowClosing(const SimWindow& window);
  // After it: the activation order, the next active window, the last window's quit.
  void WindowClosed(const std::shared_ptr<SimWindow>& window);
  // Forgets a window's place in the activation order without events.
  void ForgetWindow(const SimWindow& window);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;

 private:
  template <class T>
  std::shared_ptr<T> MostRecent() const;

  ContextPtr context_;
  std::string version_;
  std::shared_ptr<SimNameSpace> session_;
  std::shared_ptr<SimExplorers> explorers_;
  std::shared_ptr<SimInspectors> inspectors_;
  std::vector<std::weak_ptr<SimWindow>> order_;  // activation order, most recent last
  bool quit_ = false;
};

}  // namespace qvx::sim
